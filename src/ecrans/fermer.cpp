#include "fermer.h"

#include <QMdiSubWindow>

void fermerFeuille(QWidget &feuille)
{
    QWidget *cadre = qobject_cast<QMdiSubWindow *>(feuille.parentWidget());
    (cadre ? cadre : &feuille)->close();
}
