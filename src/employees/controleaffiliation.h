#pragma once

#include "employees/differencesaffiliation.h"
#include "employees/fichesalarie.h"
#include "rules/refus.h"

#include <optional>

class Connexion;
class Dialogue;

/// The control of an employee's record, in the order of its rules. A rule either stops, or is collected with
/// others into one list, behind which the clerk may save all the same.
std::optional<Refus> ControleAffiliation(Affiliation ecran, const FicheSalarie &fiche, Connexion &cnx,
                                         Dialogue &dialogue);

/// Whether two stored or typed names are the same, whatever their case and the blanks behind them.
bool memeNom(QStringView a, QStringView b);
