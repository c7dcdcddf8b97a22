#include "screens/feuille.h"

#include <QMdiSubWindow>

QWidget *feuilleDe(QWidget *controle)
{
    QWidget *feuille = controle;
    while (feuille->parentWidget() && !feuille->isWindow() &&
           !qobject_cast<QMdiSubWindow *>(feuille->parentWidget()))
        feuille = feuille->parentWidget();
    return feuille;
}
