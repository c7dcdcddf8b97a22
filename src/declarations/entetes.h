#pragma once

#include "rules/refus.h"
#include "storage/valeur.h"

#include <optional>

class Base;
class Enregistrement;
struct GenreDeclaration;

/// Headers that stand for an employer and a period under a number: 1 for the principal declaration, 2 and up
/// for the complementary ones. Told by their columns and words.
struct EntetesNumerotees
{
    const GenreDeclaration &genre;
    QString periode;
    QString type;
    QString somme;
    QString effectif;
    /// What a new header holds besides the fields of the screen.
    Champs aLaCreation;
    /// The list of periods on the screen.
    QStringView controlePeriode;

    struct Textes
    {
        QString choixVide;
        QString principaleExiste;
        QString sansPrincipale;
        QString sommeIncorrecte;
        QString effectifIncorrect;
    } textes;
};

/// The fields from which a header is made, as the screen holds them.
struct FicheEntete
{
    QString cmbemp;
    QString periode;
    bool cmplCheck = false;
    QString sumedit;
    QString total_salEdit;
};

/// Adds a header and makes it the current row. The first fault is told and stops. A complementary declaration
/// gets the number above the highest one, 2 when there is none.
/// @throws ErreurConversion for a figure too big for its column
std::optional<Refus> ajouterEntete(Base &base, const EntetesNumerotees &entetes, const FicheEntete &fiche,
                                   Dialogue &dialogue);

/// Writes the two declared figures into a header. Unlike a new header's they can't be zero: this is meant.
/// @param lue the header as it was shown
std::optional<Refus> modifierEntete(Base &base, const EntetesNumerotees &entetes, const Enregistrement &lue,
                                    const QString &sumedit, const QString &totaledit, Dialogue &dialogue);

/// Asks, and deletes a header if it has no lines. @return whether it is gone
bool supprimerEntete(Base &base, const GenreDeclaration &genre, const Enregistrement &lue,
                     Dialogue &dialogue);

/// Asks, and deletes a header without a look at its lines, which stay behind: this is meant.
bool supprimerEnteteSeul(Base &base, const GenreDeclaration &genre, const Enregistrement &lue,
                         Dialogue &dialogue);

/// Whether the number of a declaration is one above the principal's; an empty one is not.
bool estComplementaire(const QVariant &type);

/// Whether a typed figure is a number; blanks count for nothing.
bool estMontantSaisi(const QString &texte);
