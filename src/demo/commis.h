#pragma once

#include "demo/route.h"

#include <QMainWindow>

/// What the clerk of the demonstration sees and does on a screen, by the names of its controls. What is not
/// there, or not as it should be, ends the process with a message.

template <typename T = QWidget>
T *champ(const QWidget &ecran, const QString &nom)
{
    T *trouve = ecran.findChild<T *>(nom);
    if (!trouve)
        qFatal("%s: no control %s", qPrintable(ecran.objectName()), qPrintable(nom));
    return trouve;
}

void attendreFocus(const QString &nom);

/// Key by key.
void taper(const QString &touches);
void touche(Qt::Key touche);
/// Goes to a field as the tabulator does, and types.
void remplir(const QWidget &ecran, const QString &nom, const QString &touches);
void cliquer(const QWidget &ecran, const QString &nom);

/// Makes the window the one that gets the keys; a window system does that when it is shown.
void activer(QWidget &fenetre);
/// Runs in the window that the next action opens modally, and leaves it closed.
void dansLaFenetre(const QString &nom, const std::function<void(QWidget &)> &action);

/// The text of a table of the demonstration.
inline QString texte(const char16_t *chaine) { return QString::fromUtf16(chaine); }

/// The clerk at the main window.
class Commis
{
public:
    Commis(QMainWindow &principale, const MontrerEcran &montrer);

    /// Shows a screen to whoever looks on.
    void montrer(QWidget &ecran) const;
    /// Clicks through the menus down to an entry.
    void ouvrirMenu(const QStringList &noms) const;
    QWidget &ouvrir(const QStringList &menu, const QString &nom) const;

protected:
    QMainWindow &m_principale;

private:
    const MontrerEcran &m_montrer;
};
