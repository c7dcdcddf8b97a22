#pragma once

#include "rules/refus.h"

#include <optional>

class Base;
class Enregistrement;

/// The fields of a bank as both forms, add_bnq and mod_bnq, hold them.
struct FicheBanque
{
    QString CodeBnq;
    QString AbreviatBnq;
    QString LibelleBnq;

    friend bool operator==(const FicheBanque &, const FicheBanque &) = default;
};

/// What both forms can give the focus to when they refuse.
inline constexpr Controles controlesBanque{u"CodeBnq", u"AbreviatBnq", u"LibelleBnq"};

/// Adds a bank and makes it the current row. The first fault is told and stops; the success is the screen's
/// to tell.
/// @throws ErreurBase for an abbreviation wider than its column, which is narrower than the field
std::optional<Refus> creerBanque(Base &base, FicheBanque &fiche, Dialogue &dialogue);

FicheBanque lireFicheBanque(const Enregistrement &ligne);

/// Writes the fields into a bank.
/// @param ligne the bank as it was read
/// @param lue the fields as they were shown at first
/// @throws ErreurBase as creerBanque() does
std::optional<Refus> modifierBanque(Base &base, const Enregistrement &ligne, FicheBanque &fiche,
                                    const FicheBanque &lue, Dialogue &dialogue);

/// What the delete button of the banks' window does: it deletes the current employer, by the rules of
/// supprimerEmployeur(). This is meant; a bank can't be deleted.
/// @return whether the employer is gone
bool supprimerDepuisBanques(Base &base, Dialogue &dialogue);
