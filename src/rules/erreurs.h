#pragma once

#include <QString>

#include <exception>

/// A failure, with the text in French that the clerk gets to read: it names what was refused.
class Erreur : public std::exception
{
public:
    explicit Erreur(QString texte);

    const QString &texte() const noexcept { return m_texte; }
    const char *what() const noexcept override { return m_octets.constData(); }

private:
    QString m_texte;
    QByteArray m_octets;
};

/// A text that is no number or no date where one is needed, or a number out of range.
class ErreurConversion : public Erreur
{
public:
    using Erreur::Erreur;
};

/// The database refused: a width, a key, a missing table, a locked or damaged file.
class ErreurBase : public Erreur
{
public:
    using Erreur::Erreur;
};

/// A file that can't be opened, read or written.
class ErreurFichier : public Erreur
{
public:
    using Erreur::Erreur;
};

/// The failure to write a file. @param cause as the system tells it
ErreurFichier erreurEcriture(const QString &chemin, const QString &cause);

/// A failure after which the program can't go on: it is shown, and the program ends in good order with exit
/// code 1.
class ErreurFatale : public Erreur
{
public:
    using Erreur::Erreur;
};
