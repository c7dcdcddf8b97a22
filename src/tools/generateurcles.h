#pragma once

#include <QString>

#include <optional>

class Dialogue;

/// What the key generator shows beside each number; nothing where the text shown before stays.
struct ClesGenerees
{
    std::optional<QString> LabSS;
    std::optional<QString> LabCCP;
    std::optional<QString> labRipRIB;
};

/// Works out the keys of an SS and of a CCP number, and checks that of a RIP or RIB, which has one already.
/// @throws ErreurConversion for a number that has a sign or a separator
ClesGenerees GenererCles(const QString &TxtSS, const QString &TxtCCP, const QString &wCptRIPRIB,
                         Dialogue &dialogue);
