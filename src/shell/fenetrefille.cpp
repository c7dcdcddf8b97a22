#include "shell/fenetrefille.h"

#include <QEvent>

using namespace Qt::StringLiterals;

FenetreFille::FenetreFille(QWidget *feuille)
{
    setWidget(feuille);
    setAttribute(Qt::WA_DeleteOnClose, false);
}

bool FenetreFille::eventFilter(QObject *objet, QEvent *evenement)
{
    if (objet != widget() || evenement->type() != QEvent::Close)
        return QMdiSubWindow::eventFilter(objet, evenement);
    // QMdiSubWindow stays behind as an empty frame when its screen closes by itself, and a close started by
    // the frame passes here as well.
    objet->event(evenement);
    if (evenement->isAccepted() && !m_fermee) {
        m_fermee = true;
        emit fermee();
        hide();
        deleteLater();
    }
    return true;
}
