#include "shell/programme.h"

#include "rules/calendrier.h"
#include "screens/dernierrecours.h"
#include "screens/dialogueqt.h"
#include "screens/francais.h"
#include "shell/application.h"
#include "shell/entreesdemenu.h"
#include "shell/mdiform.h"
#include "storage/base.h"

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

    MDIForm principale(base, dialogue, dernierRecours, bornes, entreesDeMenu());
    principale.show();
    QTimer::singleShot(0, &principale, [&] {
        principale.charger();
        if (prete)
            prete(base);
    });
    return QApplication::exec();
}
