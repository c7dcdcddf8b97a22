#include "programme.h"

#include "application.h"
#include "base.h"
#include "calendrier.h"
#include "dernierrecours.h"
#include "dialogueqt.h"
#include "fenetrescampagnes.h"
#include "fenetresdas.h"
#include "fenetresemployeurs.h"
#include "fenetresnationalites.h"
#include "fenetresoutils.h"
#include "fenetressalaries.h"
#include "fenetresvalidateurs.h"
#include "francais.h"
#include "mdiform.h"

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
