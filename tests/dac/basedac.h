#pragma once

#include "tests/employees/basesalaries.h"

/// A database with an employer and periods, on which nominative declarations are made.
class BaseDac : public BaseSalaries
{
public:
    BaseDac();

    static constexpr QStringView employeur = u"12345678";
    static constexpr QStringView periode = u"202401";

    /// That many nationals in whom no rule finds a fault, each with a line of his own in the declaration 1.
    void peuplerDac(int lignes);
};
