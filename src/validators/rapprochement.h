#pragma once

#include <QString>

#include <array>

class Dialogue;

/// The sixteen amounts of monthly and quarterly declarations that the clerk keys to compare them with the
/// annual one. Nothing else is known of them.
struct SaisieDacs
{
    static constexpr std::size_t Nombre = 16;
    /// The names of the boxes in the order of the campaign: three months, then their quarter.
    static constexpr std::array<QStringView, Nombre> Boites{
        u"Txt07", u"Txt08", u"Txt09", u"TxtT3", u"Txt10", u"Txt11", u"Txt12", u"TxtT4",
        u"Txt01", u"Txt02", u"Txt03", u"TxtT1", u"Txt04", u"Txt05", u"Txt06", u"TxtT2"};

    /// The texts of the boxes, in the same order.
    std::array<QString, Nombre> textes;
};

/// Leaving a box: its text becomes the plain text of its number. A negative number is told, and the box is
/// emptied. @return whether the amount was accepted
bool quitterMontantDac(QString &texte, Dialogue &dialogue);

/// The sum of the sixteen amounts. It has as many decimals as the longest of them, so that what the machine
/// can't hold exactly (0.1 + 0.2) is not taken for a difference.
double SommeDacs(const SaisieDacs &dacs);

/// Whether not both a quarter and one of its months have an amount.
bool TrimestreCompatible(QStringView m1, QStringView m2, QStringView m3, QStringView t);

/// Compares the total of the annual declaration, as LabTotSalaires shows it, with the amounts; the verdict is
/// told. @return the text of LabDAS3, empty when a quarter and its months were keyed both
QString verifierDacs(const SaisieDacs &dacs, QStringView totalDas, Dialogue &dialogue);
