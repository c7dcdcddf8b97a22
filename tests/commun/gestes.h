#pragma once

#include <QApplication>
#include <QLineEdit>
#include <QTest>

/// What a clerk's hands do on a screen, by the names of its controls.

template <typename T = QWidget>
T *champ(const QWidget &ecran, const QString &nom)
{
    T *trouve = ecran.findChild<T *>(nom);
    if (!trouve)
        qFatal("no control %s", qPrintable(nom));
    return trouve;
}

inline QString texte(const QWidget &ecran, const QString &nom)
{
    return champ<QLineEdit>(ecran, nom)->text();
}

inline QString focus()
{
    return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
}

inline void taper(const QString &touches) { QTest::keyClicks(QApplication::focusWidget(), touches); }

inline void touche(Qt::Key touche) { QTest::keyClick(QApplication::focusWidget(), touche); }

inline void cliquer(const QWidget &ecran, const QString &nom)
{
    auto *bouton = champ(ecran, nom);
    QTest::mouseClick(bouton, Qt::LeftButton, {}, {10, bouton->height() / 2}); // a check box is narrow
}
