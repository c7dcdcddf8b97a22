#pragma once

#include "employees/controleaffiliation.h"

#include <functional>

class Base;

/// What a save does to its screen.
struct SuiviAffiliation
{
    /// Shows the fields that the save has rewritten, before the clerk is told more.
    std::function<void(const FicheSalarie &)> montrer;
    /// The row is written: the entry shows its emptied fields, the change closes. The clerk is told after
    /// that.
    std::function<void()> terminer;
};

/// Checks and adds an employee; on success the record holds the fields of the next entry. RsSalarie stands on
/// the whole table then, on the new row, and after a refusal by the accounts too.
/// @return why nothing was written, or nothing
std::optional<Refus> creerSalarie(FicheSalarie &fiche, Base &base, Dialogue &dialogue,
                                  const SuiviAffiliation &suivi);

/// Checks and changes the employee of that number, in one transaction with the declaration lines that carry
/// it when its ten digits change. A refused change of the number puts the old one back into the record.
/// @throws ErreurBase when another program has changed or deleted the employee meanwhile
std::optional<Refus> modifierSalarie(FicheSalarie &fiche, const AncienNumero &ancien, Base &base,
                                     Dialogue &dialogue, const SuiviAffiliation &suivi);
