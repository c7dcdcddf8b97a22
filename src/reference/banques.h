#pragma once

#include <QString>

#include <optional>

class Base;
class Dialogue;
class Enregistrement;

/// The fields of a bank as add_bnq and mod_bnq hold them.
struct FicheBanque
{
    QString CodeBnq;
    QString AbreviatBnq;
    QString LibelleBnq;

    friend bool operator==(const FicheBanque &, const FicheBanque &) = default;
};

enum class ChampBanque { CodeBnq, AbreviatBnq, LibelleBnq };

/// What a refused record gets the focus on; nothing when all went well.
using RefusBanque = std::optional<ChampBanque>;

/// Adds a bank and makes it the current row. The first fault is told and stops; the success is the screen's
/// to tell.
/// @throws ErreurBase for an abbreviation wider than its column, which is narrower than the field
RefusBanque creerBanque(Base &base, FicheBanque &fiche, Dialogue &dialogue);

FicheBanque lireFicheBanque(const Enregistrement &ligne);

/// Writes the fields into a bank.
/// @param ligne the bank as it was read
/// @param lue the fields as they were shown at first
/// @throws ErreurBase as creerBanque() does
RefusBanque modifierBanque(Base &base, const Enregistrement &ligne, FicheBanque &fiche,
                           const FicheBanque &lue, Dialogue &dialogue);

/// What the delete button of the banks' window does: it deletes the current employer, by the rules of
/// supprimerEmployeur(). This is meant; a bank can't be deleted.
/// @return whether the employer is gone
bool supprimerDepuisBanques(Base &base, Dialogue &dialogue);
