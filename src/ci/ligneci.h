#pragma once

#include "declarations/salarieligne.h"

#include <functional>

class Enregistrement;
class LignesDeclaration;

/// The fields of a line as its two screens hold them; the employee is the entry's alone.
struct FicheLigneCi : NumeroSaisi
{
    QString MskDateEmbauche;
    QString MskDateArret;
    QString MskDateReprise;
    QString TxtNbHeure;
    QString TxtMtHoraire;
};

/// What both screens can give the focus to when they refuse; the number is the entry's.
inline constexpr Controles controlesLigneCi{u"MskDateEmbauche", u"MskDateArret", u"MskDateReprise",
                                            u"TxtNbHeure", u"TxtMtHoraire"};

/// The hours as they are read: a comma is a point.
QString heuresSaisies(QString TxtNbHeure);

/// The amount of a line as it is shown, and stored: 75 % of the wage of the hours, to two decimals. Empty for
/// a wage that is none, and for numbers too big.
QString montantIndemnise(const QString &TxtNbHeure, const QString &TxtMtHoraire);

// What leaving a field tells; the focus may go all the same

void quitterHeuresCi(const QString &TxtNbHeure, Dialogue &dialogue);
void quitterSalaireCi(const QString &TxtMtHoraire, Dialogue &dialogue);

/// The fields of a new line: the dates of the claim.
FicheLigneCi proposerLigneCi(const LignesDeclaration &lignes);

/// What the screen does in the midst of an entry.
struct AjoutLigneCi
{
    /// Opens the entry of employees, and waits for its end.
    std::function<void()> creerSalarie;
    /// The line is there; the clerk is told behind.
    std::function<void()> ecrite;
};

/// Checks and adds a line; the success is told. The entry goes on with an employee who was created meanwhile.
/// @return why nothing was written, or nothing
std::optional<Refus> ajouterLigneCi(LignesDeclaration &lignes, const FicheLigneCi &fiche,
                                    const AjoutLigneCi &actions, Dialogue &dialogue);

/// The fields of the change, from the line.
FicheLigneCi remplirFicheLigneCi(const Enregistrement &ligne);

/// Checks and changes a line; the success is told, and so is a failure.
/// @param lue the line as the fields were filled from it
std::optional<Refus> modifierLigneCi(LignesDeclaration &lignes, const Enregistrement &lue,
                                     const FicheLigneCi &fiche, Dialogue &dialogue);
