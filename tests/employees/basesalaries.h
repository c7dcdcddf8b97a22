#pragma once

#include "employees/affiliation.h"
#include "tests/storage/baseessai.h"

/// A database of today's layout in a folder of its own, with a few wilayas, communes and nationalities.
class BaseSalaries : public BaseEssai
{
public:
    BaseSalaries();

    /// The number of a national in whom no rule finds a fault, with its key. @param rang 0 to 9999
    static QString numero(int rang);
    /// Adds an employee; columns that are not given get those of a national with everything in order.
    void ajouter(const QString &numero, qint64 cpt_z, const Champs &champs = {});
};

/// A national in whom no rule finds a fault: born in 1988, certificate 12345.
FicheSalarie ficheNationale();
/// The same person as a foreigner.
FicheSalarie ficheEtrangere();
