#include "application.h"
#include "base.h"
#include "calendrier.h"
#include "dernierrecours.h"
#include "dialogueqt.h"
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
    ajouterFenetresValidateurs(fenetres);

    MDIForm principale(base, dialogue, dernierRecours, bornes, fenetres);
    principale.show();
    QTimer::singleShot(0, &principale, &MDIForm::charger);
    return QApplication::exec();
}
