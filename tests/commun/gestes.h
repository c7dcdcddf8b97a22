#pragma once

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

/// What a clerk's hands do on a screen and what his eyes see, by the names of its controls. Several names
/// stand in one text, parted by a blank.

template <typename T = QWidget>
T *champ(const QWidget &ecran, const QString &nom)
{
    T *trouve = ecran.findChild<T *>(nom);
    if (!trouve)
        qFatal("no control %s", qPrintable(nom));
    return trouve;
}

/// What a field, a list, a label, a button or a frame shows.
inline QString texte(const QWidget &ecran, const QString &nom)
{
    const QWidget *controle = champ(ecran, nom);
    for (const char *propriete : {"text", "currentText", "plainText", "title"}) {
        if (const QVariant valeur = controle->property(propriete); valeur.isValid())
            return valeur.toString();
    }
    qFatal("%s shows no text", qPrintable(nom));
}

/// What several controls show, joined by "|".
inline QString textes(const QWidget &ecran, const QString &noms)
{
    QStringList vus;
    for (const QString &nom : noms.split(u' '))
        vus += texte(ecran, nom);
    return vus.join(u'|');
}

/// Those of the controls that may be used.
inline QString actifs(const QWidget &ecran, const QString &noms)
{
    QStringList vus;
    for (const QString &nom : noms.split(u' ')) {
        if (champ(ecran, nom)->isEnabled())
            vus += nom;
    }
    return vus.join(u' ');
}

inline QString focus()
{
    return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
}

/// The marked text of the field that has the focus.
inline QString marque()
{
    return QApplication::focusWidget() ? QApplication::focusWidget()->property("selectedText").toString()
                                       : QString();
}

/// Types into whatever has the focus, which a tab moves on.
inline void taper(const QString &touches)
{
    for (const QChar c : touches)
        QTest::keyClicks(QApplication::focusWidget(), c);
}

inline void touche(Qt::Key touche, Qt::KeyboardModifiers avec = {})
{
    QTest::keyClick(QApplication::focusWidget(), touche, avec);
}

/// Types over all that stands in a field.
inline void saisir(const QWidget &ecran, const QString &nom, const QString &touches)
{
    champ(ecran, nom)->setFocus();
    touche(Qt::Key_A, Qt::ControlModifier);
    touche(Qt::Key_Delete);
    taper(touches);
}

/// Pastes into the field that has the focus.
inline void coller(const QString &texte)
{
    QGuiApplication::clipboard()->setText(texte);
    touche(Qt::Key_V, Qt::ControlModifier);
}

inline void cliquer(const QWidget &ecran, const QString &nom)
{
    auto *bouton = champ(ecran, nom);
    QTest::mouseClick(bouton, Qt::LeftButton, {}, {10, bouton->height() / 2}); // a check box is narrow
}

/// Clicks on the head of a column, counted as the columns are seen.
inline void cliquerTete(const QTableView &grille, int place)
{
    QHeaderView *tete = grille.horizontalHeader();
    const int x = tete->sectionViewportPosition(tete->logicalIndex(place)) + 10;
    QTest::mouseClick(tete->viewport(), Qt::LeftButton, {}, {x, tete->height() / 2});
}

/// The key of the current row: what its first column holds.
inline QString courante(const QTableView &grille)
{
    return grille.currentIndex().siblingAtColumn(0).data().toString();
}
