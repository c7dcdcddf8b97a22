#include "application.h"
#include "base.h"
#include "calendrier.h"
#include "dernierrecours.h"
#include "dialogueqt.h"
#include "fenetrescampagnes.h"
#include "fenetresemployeurs.h"
#include "fenetresnationalites.h"
#include "fenetresoutils.h"
#include "fenetressalaries.h"
#include "fenetresvalidateurs.h"
#include "francais.h"
#include "mdiform.h"

#include <QTimer>

int main(int argc, char **argv)
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
    ajouterFenetresValidateurs(fenetres);
    ajouterFenetresOutils(fenetres);

    MDIForm principale(base, dialogue, dernierRecours, bornes, fenetres);
    principale.show();
    QTimer::singleShot(0, &principale, &MDIForm::charger);
    return QApplication::exec();
}
