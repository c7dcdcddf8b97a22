#pragma once

#include <QString>

#include <optional>

class Base;
class Dialogue;
class Enregistrement;
struct GenreDeclaration;

/// The fields from which a header is made, as the screen holds them.
struct FicheEntete
{
    QString cmbemp;
    QString periode;
    bool cmplCheck = false;
    QString sumedit;
    QString total_salEdit;
};

enum class ChampEntete { periode, cmbemp, cmplCheck, sumedit, total_salEdit };

/// What a refused header gets the focus on; nothing when all went well.
using RefusEntete = std::optional<ChampEntete>;

/// Adds a header and makes it the current row. The first fault is told and stops. A complementary declaration
/// gets the number above the highest one, 2 when there is none.
/// @throws ErreurConversion for a figure too big for its column
RefusEntete ajouterEntete(Base &base, const GenreDeclaration &genre, const FicheEntete &fiche,
                          Dialogue &dialogue);

/// Writes the two declared figures into a header. Unlike a new header's they can't be zero: this is meant.
/// @param lue the header as it was shown
RefusEntete modifierEntete(Base &base, const GenreDeclaration &genre, const Enregistrement &lue,
                           const QString &somme, const QString &effectif, Dialogue &dialogue);

/// Asks, and deletes a header if it has no lines. @return whether it is gone
bool supprimerEntete(Base &base, const GenreDeclaration &genre, const Enregistrement &lue,
                     Dialogue &dialogue);

/// Asks, and deletes a header without a look at its lines, which stay behind: this is meant.
bool supprimerEnteteSeul(Base &base, const GenreDeclaration &genre, const Enregistrement &lue,
                         Dialogue &dialogue);

/// Whether a typed figure is a number; blanks count for nothing.
bool estMontantSaisi(const QString &texte);
