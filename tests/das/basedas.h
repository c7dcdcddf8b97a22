#pragma once

#include "declarations/declaration.h"
#include "tests/employees/basesalaries.h"

/// A database with an employer, a campaign and employees, on which declarations are made.
class BaseDas : public BaseSalaries
{
public:
    BaseDas();

    static constexpr QStringView employeur = u"12345678";

    /// Adds a header and makes it the current one.
    CleDeclaration entete(qint64 type = 1, Currency somme = {}, qint64 effectif = 0, int annee = 2024);
    /// Adds a line; columns that are not given tell of a whole year.
    void ligne(const QString &numero, qint64 cpt_z = 1, const Champs &champs = {}, qint64 type = 1,
               int annee = 2024);
    /// Brings the sums on the current header and its declared figures to those of the lines.
    void accorder();
};

/// What the two screens of a line ask before it is saved.
QString questionMoyenne(const QString &moyenne, bool modification = false);
