#include "shell/application.h"

#include "screens/dernierrecours.h"

#include <QEvent>
#include <QIcon>
#include <QLabel>

using namespace Qt::StringLiterals;

Application::Application(int &argc, char **argv) : QApplication(argc, argv)
{
    QIcon icone;
    for (const int taille : {16, 24, 32, 48, 64, 128, 256})
        icone.addFile(u":/icons/hicolor/%1x%1/apps/das-korvandel.png"_s.arg(taille));
    setWindowIcon(icone);
    setDesktopFileName(u"das-korvandel"_s);
}

bool Application::notify(QObject *recepteur, QEvent *evenement)
{
    // A label guesses the format of its text, and the tool tip is a label too.
    if (evenement->type() == QEvent::Polish) {
        if (auto *label = qobject_cast<QLabel *>(recepteur))
            label->setTextFormat(Qt::PlainText);
    }
    try {
        return QApplication::notify(recepteur, evenement);
    } catch (...) {
        if (!m_dernierRecours)
            throw;
        m_dernierRecours->traiterPlusTard();
        return false;
    }
}
