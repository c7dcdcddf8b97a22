#pragma once

#include "storage/base.h"

/// The two columns that say which declaration: that of its header, and that of its lines.
struct PaireCle
{
    QString entete;
    QString ligne;
    /// How many characters of the value find the lines for the file; all when 0.
    int largeurAuFichier = 0;
};

/// A sum over the lines that the header keeps.
struct SommeEntete
{
    /// The column of the header.
    QString colonne;
    /// What goes there, in SQL over the lines; ten-thousandths for an amount.
    QString expression;
    /// The column of what the employer declares, when the two must be the same in a file.
    QString declaree = {};
};

/// What the declarations made of a header and lines have in common, told by the places where they differ:
/// columns and words. The routines on headers, lines and sums work on any of them.
struct GenreDeclaration
{
    Recordset Base::*entetes;
    Recordset Base::*lignes;
    QList<PaireCle> cle;
    /// The column of the header that names the employer.
    QString employeur;
    /// The column of the lines that names the employee, with cpt_z.
    QString salarie;
    QList<SommeEntete> sommes;

    struct Textes
    {
        QString supprimerEntete;
        QString lignesPresentes;
        QString supprimerLigne;
        QString titreSupprimerLigne;
    } textes;
};

/// Which declaration: the columns of the key with their values as the header holds them, read by their names
/// in the header.
class CleDeclaration : public Enregistrement
{
public:
    using Enregistrement::Enregistrement;

    friend bool operator==(const CleDeclaration &a, const CleDeclaration &b)
    {
        return a.m_valeurs == b.m_valeurs;
    }
};

/// The declaration of a header's row.
CleDeclaration cleEntete(const GenreDeclaration &genre, const Enregistrement &entete);

/// The header of the declaration, read now; the empty row when it is gone.
Enregistrement lireEntete(Base &base, const GenreDeclaration &genre, const CleDeclaration &cle);

/// The lines of a declaration.
Condition lignesDe(const GenreDeclaration &genre, const CleDeclaration &cle);
/// The same for its file, which may look at a part of the key only.
Condition lignesDuFichier(const GenreDeclaration &genre, const CleDeclaration &cle);

/// Lines (l) with their employees (s) in the order of entry; lines whose employee is gone are left out.
/// @param colonnes what is read of each, for a SELECT
Requete lireAvecSalaries(Base &base, const GenreDeclaration &genre, const Condition &lignes,
                         const QString &colonnes);

/// A figure of a header, whether its column holds an amount or a count; Null counts as zero.
Currency figure(const Recordset &entetes, const Enregistrement &entete, const QString &colonne);

/// Whether the figures that the employer declares are those of the lines.
bool sommesConcordent(const Base &base, const GenreDeclaration &genre, const Enregistrement &entete);
