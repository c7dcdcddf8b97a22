#include "shell/programme.h"

#include "das/screens/fenetresdas.h"
#include "employees/screens/fenetresnationalites.h"
#include "employees/screens/fenetressalaries.h"
#include "reference/screens/fenetrescampagnes.h"
#include "reference/screens/fenetresemployeurs.h"
#include "rules/calendrier.h"
#include "screens/dernierrecours.h"
#include "screens/dialogueqt.h"
#include "screens/francais.h"
#include "shell/application.h"
#include "shell/mdiform.h"
#include "storage/base.h"
#include "tools/screens/fenetresoutils.h"
#include "validators/screens/fenetresvalidateurs.h"

#include <QTimer>

int lancerProgramme(int argc, char **argv, const std::function<void(Base &)> &prete)
{
    Application application(argc, argv);
    parlerFrancais(application);

    DialogueQt dialogue;
    Base base;
    DernierRecours dernierRecours(dialogue, [&base] { base.Cnx.annulerTransaction(); });
    application.proteger(&dernierRecours);
    BornesDePeriode bornes;
    RegistreFenetres fenetres;
    ajouterFenetresCampagnes(fenetres);
    ajouterFenetresSalaries(fenetres);
    ajouterFenetresNationalites(fenetres);
    ajouterFenetresEmployeurs(fenetres);
    ajouterFenetresDas(fenetres);
    ajouterFenetresValidateurs(fenetres);
    ajouterFenetresOutils(fenetres);

    MDIForm principale(base, dialogue, dernierRecours, bornes, fenetres);
    principale.show();
    QTimer::singleShot(0, &principale, [&] {
        principale.charger();
        if (prete)
            prete(base);
    });
    return QApplication::exec();
}
