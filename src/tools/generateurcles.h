#pragma once

#include <QString>

#include <optional>

class Dialogue;

/// What the key generator shows beside each number; nothing where the text shown before stays. Blanks around
/// the number count for nothing.

/// @throws ErreurConversion for a number that has a sign or a separator
std::optional<QString> cleDuSS(const QString &TxtSS);
/// @throws ErreurConversion as cleDuSS() does
std::optional<QString> cleDuCCP(const QString &TxtCCP);
/// A RIP or RIB has its key already: whether it is the right one.
std::optional<QString> verdictRipRib(const QString &wCptRIPRIB, Dialogue &dialogue);
