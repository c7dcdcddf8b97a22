#include "demo/commis.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

QString focus()
{
    return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : u"nothing"_s;
}

} // namespace

void attendreFocus(const QString &nom)
{
    if (!QTest::qWaitFor([&] { return focus() == nom; }))
        qFatal("%s has the focus and not %s", qPrintable(focus()), qPrintable(nom));
}

/// QTest::keyClicks() knows no small letter with an accent.
void taper(const QString &touches)
{
    for (const QChar c : touches) {
        QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key(c.toUpper().unicode()),
                            QString(c), Qt::NoModifier);
    }
}

void touche(Qt::Key touche) { QTest::keyClick(QApplication::focusWidget(), touche); }

void remplir(const QWidget &ecran, const QString &nom, const QString &touches)
{
    champ(ecran, nom)->setFocus(Qt::TabFocusReason);
    attendreFocus(nom);
    // Letters that follow each other within an interval are one search in a list: here begins a new one.
    if (const auto *liste = ecran.findChild<QComboBox *>(nom))
        liste->view()->keyboardSearch({});
    taper(touches);
}

void cliquer(const QWidget &ecran, const QString &nom)
{
    auto *bouton = champ(ecran, nom);
    if (!bouton->isEnabled())
        qFatal("%s: %s is greyed", qPrintable(ecran.objectName()), qPrintable(nom));
    QTest::mouseClick(bouton, Qt::LeftButton, {}, {10, bouton->height() / 2}); // a check box is narrow
}

void activer(QWidget &fenetre)
{
    fenetre.activateWindow();
    if (!QTest::qWaitFor([&] { return QApplication::activeWindow() == &fenetre; }))
        qFatal("the window %s is not active", qPrintable(fenetre.objectName()));
}

void dansLaFenetre(const QString &nom, const std::function<void(QWidget &)> &action)
{
    QTimer::singleShot(0, qApp, [nom, action] {
        QWidget *fenetre = QApplication::activeModalWidget();
        if (!fenetre || fenetre->objectName() != nom)
            qFatal("the window %s has not opened", qPrintable(nom));
        activer(*fenetre);
        action(*fenetre);
        if (fenetre->isVisible())
            fenetre->close();
    });
}

Commis::Commis(QMainWindow &principale, const MontrerEcran &montrer)
    : m_principale(principale), m_montrer(montrer)
{
}

void Commis::montrer(QWidget &ecran) const
{
    QTest::qWait(0); // what is still to be laid out
    if (m_montrer)
        m_montrer(ecran);
}

void Commis::ouvrirMenu(const QStringList &noms) const
{
    activer(m_principale);
    auto *menu = champ<QMenu>(m_principale, noms.first());
    QMenuBar *barre = m_principale.menuBar();
    QTest::mouseClick(barre, Qt::LeftButton, {}, barre->actionGeometry(menu->menuAction()).center());
    for (const QString &nom : noms.sliced(1)) {
        if (!QTest::qWaitFor([&] { return menu->isVisible(); }))
            qFatal("the menu %s has not opened", qPrintable(menu->objectName()));
        auto *action = champ<QAction>(m_principale, nom);
        auto *dessous = m_principale.findChild<QMenu *>(nom);
        if (dessous)
            action = dessous->menuAction();
        if (!action->isEnabled())
            qFatal("the entry %s is greyed", qPrintable(nom));
        QMenu *dessus = std::exchange(menu, dessous);
        QTest::mouseClick(dessus, Qt::LeftButton, {}, dessus->actionGeometry(action).center());
    }
}

QWidget &Commis::ouvrir(const QStringList &menu, const QString &nom) const
{
    ouvrirMenu(menu);
    auto *ecran = champ(m_principale, nom);
    if (!QTest::qWaitFor([&] { return ecran->isVisible(); }))
        qFatal("the window %s has not opened", qPrintable(nom));
    return *ecran;
}
