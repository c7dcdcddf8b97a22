#pragma once

#include "rules/refus.h"
#include "rules/selon.h"

#include <optional>

class Base;
class Enregistrement;

/// The fields of an employer as both forms, add_emp and mod_emp, hold them. A masked field's text is what it
/// shows, prompt characters included.
struct FicheEmployeur
{
    QString num_empmask;
    QString clemask;
    QString Rais_SocEdit;
    QString AdresseEdit;
    QString telEdit;
    QString mailEdit;

    friend bool operator==(const FicheEmployeur &, const FicheEmployeur &) = default;
};

/// What both forms can give the focus to when they refuse.
inline constexpr Controles controlesEmployeur{u"num_empmask", u"clemask", u"Rais_SocEdit",
                                              u"AdresseEdit", u"telEdit", u"mailEdit"};

/// The key, when its field is left.
std::optional<Refus> ctrlCleEmployeur(Forme forme, const FicheEmployeur &fiche, Dialogue &dialogue);

/// Adds an employer and makes it the current row. The first fault is told and stops; telephone and mail have
/// lost their blanks by then. The success is the screen's to tell, once it is closed.
std::optional<Refus> creerEmployeur(Base &base, FicheEmployeur &fiche, Dialogue &dialogue);

/// The fields of a stored employer. The key is not stored: it is worked out again, and left blank for a
/// number that has none.
FicheEmployeur lireFicheEmployeur(const Enregistrement &ligne);

/// Writes the fields into an employer, by the rules of creerEmployeur(). The declarations of an employer that
/// gets another number stay under the old one: this is meant.
/// @param ligne the employer as it was read
/// @param lue the fields as they were shown at first
std::optional<Refus> modifierEmployeur(Base &base, const Enregistrement &ligne, FicheEmployeur &fiche,
                                       const FicheEmployeur &lue, Dialogue &dialogue);

/// Deletes the current employer once the clerk has confirmed it. Only headers of the annual declaration stand
/// in the way.
/// @return whether the employer is gone
bool supprimerEmployeur(Base &base, Dialogue &dialogue);

/// The question before a deletion.
bool confirmerSuppression(Dialogue &dialogue);
/// The deletion behind the question. @throws ErreurBase when there is no employer
bool supprimerEmployeurCourant(Base &base, Dialogue &dialogue);
