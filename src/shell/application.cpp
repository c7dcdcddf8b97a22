#include "application.h"

#include "dernierrecours.h"

bool Application::notify(QObject *recepteur, QEvent *evenement)
{
    try {
        return QApplication::notify(recepteur, evenement);
    } catch (...) {
        if (!m_dernierRecours)
            throw;
        m_dernierRecours->traiterPlusTard();
        return false;
    }
}
