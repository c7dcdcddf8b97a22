#include "reference/screens/devant.h"

#include <QMdiArea>
#include <QMdiSubWindow>

void mettreDevant(QWidget &feuille)
{
    auto *cadre = qobject_cast<QMdiSubWindow *>(feuille.parentWidget());
    if (cadre && cadre->mdiArea())
        cadre->mdiArea()->setActiveSubWindow(cadre);
    feuille.window()->raise();
    feuille.window()->activateWindow();
}
