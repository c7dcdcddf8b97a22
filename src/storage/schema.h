#pragma once

#include "storage/enregistrement.h"

#include <QList>
#include <QString>
#include <QStringList>

/// The fourteen tables. Widths and kinds are kept by the database itself, through CHECKs named after the
/// column
/// ("salarie.nom char(30)"), so that a refusal can be told in words. Nothing of our own stands in the schema
/// (no collation, no function): any SQLite tool opens the file.

/// A width that is not bounded: declared "text".
inline constexpr int SansLimite = 0;

struct Colonne
{
    QString nom;
    Genre genre = Genre::Texte;
    /// Characters of a text.
    int largeur = SansLimite;
    /// Whether the empty text is refused, by a column of texts.
    bool jamaisVide = false;
    /// Whether the empty text is taken, by a column of whole numbers.
    bool videAdmis = false;

    /// char(30), Integer, Currency, Date
    QString type() const;
};

struct Index
{
    QString nom;
    QStringList colonnes;
};

struct Table
{
    QString nom;
    QList<Colonne> colonnes;
    QStringList cle;
    QList<Index> index;

    /// CREATE TABLE.
    QString creation() const;
    /// CREATE INDEX, one statement each.
    QStringList creationIndex() const;
    /// ALTER TABLE ADD COLUMN, for the column of that place.
    QString ajoutColonne(qsizetype rang) const;
};

/// All tables, the five delivered ones first.
const QList<Table> &tablesDuSchema();

/// The table of that name, which must be one of the fourteen.
const Table &tableDuSchema(QStringView nom);
