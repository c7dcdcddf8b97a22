#pragma once

#include <QString>

#include <optional>

class Base;
class Dialogue;
class Enregistrement;

/// The fields of an employer as add_emp and mod_emp hold them. A masked field's text is what it shows, prompt
/// characters included.
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

enum class ChampEmployeur { num_empmask, clemask, Rais_SocEdit, AdresseEdit, telEdit, mailEdit };

/// What a refused record gets the focus on; nothing when all went well.
using RefusEmployeur = std::optional<ChampEmployeur>;

/// The key of a new employer, when its field is left.
RefusEmployeur ctrlCleNouvelEmployeur(const FicheEmployeur &fiche, Dialogue &dialogue);

/// Adds an employer and makes it the current row. The first fault is told and stops; telephone and mail have
/// lost their blanks by then. The success is the screen's to tell, once it is closed.
RefusEmployeur creerEmployeur(Base &base, FicheEmployeur &fiche, Dialogue &dialogue);

/// The fields of a stored employer. The key is not stored: it is worked out again, and left blank for a
/// number that has none.
FicheEmployeur lireFicheEmployeur(const Enregistrement &ligne);

/// The key of a changed employer, when its field is left.
RefusEmployeur ctrlCleEmployeurModifie(const FicheEmployeur &fiche, Dialogue &dialogue);

/// Writes the fields into an employer, by the rules of creerEmployeur(). The declarations of an employer that
/// gets another number stay under the old one: this is meant.
/// @param ligne the employer as it was read
/// @param lue the fields as they were shown at first
RefusEmployeur modifierEmployeur(Base &base, const Enregistrement &ligne, FicheEmployeur &fiche,
                                 const FicheEmployeur &lue, Dialogue &dialogue);

/// Deletes the current employer once the clerk has confirmed it. Only headers of the annual declaration stand
/// in the way.
/// @return whether the employer is gone
bool supprimerEmployeur(Base &base, Dialogue &dialogue);

/// The question before a deletion.
bool confirmerSuppression(Dialogue &dialogue);
/// The deletion behind the question. @throws ErreurBase when there is no employer
bool supprimerEmployeurCourant(Base &base, Dialogue &dialogue);
