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
    /// @param salaries how many there are in all, when not each has a line
    void peuplerDac(int lignes, int salaries = 0);
    /// A header that declares nothing; it becomes the current one.
    void entete(qint64 type = 1);
    /// Brings sums and declared figures of the headers to those of the lines, without the count of entries.
    void accorder();
};
