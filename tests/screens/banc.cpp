#include "tests/screens/banc.h"

#include "storage/base.h"

#include <QTest>
#include <QTimer>

Banc::Banc(Base &base)
    : recours(dialogue, [&base] { base.Cnx.annulerTransaction(); }), contexte{base, dialogue, recours, bornes,
                                                                              menu}
{
}

void Banc::activer(QWidget &fenetre)
{
    fenetre.activateWindow();
    if (!QTest::qWaitFor([&] { return QApplication::activeWindow() == &fenetre; }))
        qFatal("%s does not become active", qPrintable(fenetre.objectName()));
}

void dansLaFenetre(const std::function<void(QWidget &)> &gestes)
{
    QTimer::singleShot(0, qApp, [gestes] {
        QWidget *fenetre = QApplication::activeModalWidget();
        if (!fenetre)
            return QTest::qFail("no window has opened", __FILE__, __LINE__);
        Banc::activer(*fenetre);
        gestes(*fenetre);
        if (fenetre->isVisible())
            fenetre->close();
    });
}

void dansLaFenetre(QWidget &ecran, const QString &bouton, const QString &fenetre,
                   const std::function<void(QWidget &)> &gestes)
{
    dansLaFenetre([&](QWidget &ouverte) {
        QCOMPARE(ouverte.objectName(), fenetre);
        gestes(ouverte);
    });
    cliquer(ecran, bouton);
    QCoreApplication::processEvents(); // where no window has opened that is told now
    Banc::activer(ecran);
}
