#pragma once

#include "storage/base.h"

/// A sum over the lines that the header keeps.
struct SommeEntete
{
    /// The column of the header.
    QString colonne;
    /// What goes there, in SQL over the lines; ten-thousandths for an amount.
    QString expression;
};

/// What the declarations made of a header and lines have in common, told by the places where they differ:
/// columns and words. The routines on headers, lines and sums work on any of them.
struct GenreDeclaration
{
    Recordset Base::*entetes;
    Recordset Base::*lignes;

    struct Entete
    {
        QString employeur;
        QString periode;
        QString type;
        QString somme;
        QString effectif;
        /// What a new header holds besides the fields of the screen.
        Champs aLaCreation;
    } entete;

    struct Ligne
    {
        QString salarie;
        QString employeur;
        QString periode;
        QString type;
    } ligne;

    QList<SommeEntete> sommes;

    struct Textes
    {
        QString choixVide;
        QString principaleExiste;
        QString sansPrincipale;
        QString sommeIncorrecte;
        QString effectifIncorrect;
        QString supprimerEntete;
        QString lignesPresentes;
        QString supprimerLigne;
        QString titreSupprimerLigne;
    } textes;
};

/// Which declaration: the employer, the year or the code of the period, and the number of the declaration (1
/// for the principal one).
struct CleDeclaration
{
    QString employeur;
    QString periode;
    qint64 type = 1;

    friend bool operator==(const CleDeclaration &, const CleDeclaration &) = default;
};

/// The declaration of a header's row.
CleDeclaration cleEntete(const GenreDeclaration &genre, const Enregistrement &entete);

/// The header of the declaration, read now; the empty row when it is gone.
Enregistrement lireEntete(Base &base, const GenreDeclaration &genre, const CleDeclaration &cle);

/// The lines of a declaration.
Condition lignesDe(const GenreDeclaration &genre, const CleDeclaration &cle);

/// A query's part from FROM on: the lines of a declaration (l) with their employees (s), in the order of
/// entry; lines whose employee is gone are left out. Its values are those of lignesDe(). The lines are chosen
/// by their rowids, which come in order: sorting whole rows would go through the disk for a big declaration.
QString lignesEtSalaries(Base &base, const GenreDeclaration &genre, const CleDeclaration &cle);
