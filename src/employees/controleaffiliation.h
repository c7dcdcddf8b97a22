#pragma once

#include "employees/differencesaffiliation.h"
#include "employees/fichesalarie.h"
#include "rules/refus.h"

#include <optional>

class Connexion;
class Dialogue;

/// What the two forms of an employee can give the focus to when they refuse.
inline constexpr Controles controlesSalarie{u"num_salmask", u"CmbCommune",       u"profesedit",
                                            u"nomedit",     u"prenomedit",       u"mskdate",
                                            u"CmbSexe",     u"num_cpt_bancedit", u"num_cpt_ccpedit"};

/// The control of an employee's record, in the order of its rules. A rule either stops, or is collected with
/// others into one list, behind which the clerk may save all the same.
std::optional<Refus> ControleAffiliation(Forme ecran, const FicheSalarie &fiche, Connexion &cnx,
                                         Dialogue &dialogue);

/// Whether two stored or typed names are the same, whatever their case and the blanks behind them.
bool memeNom(QStringView a, QStringView b);
