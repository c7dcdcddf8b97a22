#pragma once

#include "rules/nombre.h"

#include <QString>

/// What the fund has laid down once, for declarations and validators alike. What it asks differently of each
/// (the least age, the days of a month) stands with the rule that asks it.
namespace fonds {

// First lines of the files; those of an older version are read only.
inline constexpr QStringView MarqueDas1 = u"DAS KORVANDEL VER 1.0";
inline constexpr QStringView MarqueDas2 = u"DAS KORVANDEL VER 2.0";
inline constexpr QStringView MarqueDas = u"DAS KORVANDEL VER 3.0";
inline constexpr QStringView MarqueDac = u"DAC NOMINATIVE KORVANDEL VER 1.0";
inline constexpr QStringView MarqueCi = u"DECLARATION CHOMAGE INTEMPERIE KORVANDEL VER 2.0";
inline constexpr QStringView MarqueCi1 = u"DECLARATION CHOMAGE INTEMPERIE KORVANDEL VER 1.0";
inline constexpr QStringView MarqueSalaries = u"KORVANDEL SALARIE VER 1.0";

/// The first campaign that is taken, named after the year in which it closes.
inline constexpr int PremiereCampagne = 1998;

/// Codes of the list of nationalities, and the code of the nationals among them.
inline constexpr int PremiereNationalite = 1;
inline constexpr int DerniereNationalite = 246;
inline constexpr int NationaliteNationale = 4;

/// Years at which nobody works any more: calendar years alone, month and day of birth don't count.
inline constexpr int AgeMaximal = 85;

/// Hours of a day's work.
inline constexpr int HeuresParJour = 8;

/// The minimal wage of an hour.
inline constexpr Currency SmigHoraire = Currency::deDixMilliemes(1'038'500);

/// The longest time worked in a campaign, by its unit: "M" months, "J" days, "H" hours.
constexpr int dureeMaximale(QChar unite) { return unite == u'M' ? 12 : unite == u'H' ? 2512 : 314; }

} // namespace fonds
