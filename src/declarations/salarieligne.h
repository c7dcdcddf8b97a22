#pragma once

#include "rules/refus.h"

#include <optional>

class Connexion;

/// The employee of a line as the screens take him: typed, or picked.
struct NumeroSaisi
{
    QString num_saledit;
    QString mskcle;
    /// Tells employees without a number apart: 1 but for one who was picked.
    qint64 cpt_z = 1;

    /// Digits and key as they are stored.
    QString numero() const;

    friend bool operator==(const NumeroSaisi &, const NumeroSaisi &) = default;
};

/// What leaving the key of a typed number gives.
struct SaisieNumero
{
    bool numeroBon = false;
    /// The focus goes back to the number.
    bool reprendre = false;
};
SaisieNumero ctrlNumeroSaisi(const NumeroSaisi &saisi, Dialogue &dialogue);

/// Where the declarations speak otherwise of an employee whom nobody knows. All of it is meant.
struct SalarieInconnu
{
    /// Whether a table without employees stops the line; nobody is looked for otherwise.
    bool tableVideRefusee;
    /// Whether the clerk is warned before he is asked.
    bool averti;
};

/// Why the employee of a line was refused.
struct RefusSalarie
{
    Refus refus;
    /// The clerk wants to create him.
    bool creerSalarie = false;
};

/// The employee of a new line: somebody must be named, and known. @return why he can't be, or nothing
std::optional<RefusSalarie> ctrlSalarieDeLigne(Connexion &cnx, const NumeroSaisi &saisi,
                                               const SalarieInconnu &difference, Dialogue &dialogue);

bool salarieExiste(Connexion &cnx, const QString &numero, qint64 cpt_z);

/// The number for the entry of an unknown employee: one of 5 to 9 characters gets blanks in front up to 10.
QString numeroPourCreation(const QString &num_saledit);

/// The employee of a line, as the screens show him; empty texts for one who is gone.
struct SalarieMontre
{
    QString nom;
    QString prenom;
    QString date_naiss;
    QString num_cpt_ccp;
    QString num_cpt_banc;
};
SalarieMontre salarieDe(Connexion &cnx, const QString &numero, qint64 cpt_z);
