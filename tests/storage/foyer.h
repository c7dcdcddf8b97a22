#pragma once

#include "storage/connexion.h"

#include <QTemporaryDir>

/// A home folder of a test's own, which is the user's as long as it stands.
class Foyer
{
public:
    Foyer();
    ~Foyer();
    Foyer(const Foyer &) = delete;
    Foyer &operator=(const Foyer &) = delete;

    QString chemin() const { return m_dossier.path(); }

private:
    QTemporaryDir m_dossier;
    QByteArray m_avant;
};

/// Writes a whole file, with its folder.
void ecrireFichier(const QString &chemin, const QByteArray &octets);
QByteArray lireFichier(const QString &chemin);

/// Lays down the four reference files and a database as it was delivered years ago: the five delivered tables
/// alone, salarie with its first columns, and as many employees.
void poserAncienneBase(int colonnesSalarie, int salaries);

/// Adds employees, numbered from 1, by one statement.
void peupler(Connexion &cnx, int salaries);

/// Runs the action. @return the text of the failure that it throws, empty when there is none
template <typename Action>
QString echecDe(Action action)
{
    try {
        action();
    } catch (const Erreur &erreur) {
        return erreur.texte();
    }
    return {};
}
