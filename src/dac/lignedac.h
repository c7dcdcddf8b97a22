#pragma once

#include "rules/date.h"
#include "rules/nombre.h"
#include "rules/refus.h"

#include <optional>

class Dialogue;
class Enregistrement;
class LignesDeclaration;
struct BornesDePeriode;

/// The fields of a line as its two screens hold them.
struct FicheLigneDac
{
    /// The employee, not typed here.
    QString Num_Salarie;
    qint64 cpt_z = 1;

    // Places in the lists; -1 without a choice
    int CmbES = -1; ///< Entree, Sortie
    int CmbDT = -1; ///< Jours, Heures

    QString MskDateES = DateBlanche.toString();
    QString TxtAssiette = {};
    QString TxtNbJT = {};
};

inline constexpr int Entree = 0;
inline constexpr int Sortie = 1;
inline constexpr int Jours = 0;
inline constexpr int Heures = 1;

/// Where the check speaks otherwise on its two screens: the words for a time above the limit of the period.
struct TextesLigneDac
{
    QString joursParMois;
    QString joursParTrimestre;
    QString heuresParMois;
    QString heuresParTrimestre;
};
const TextesLigneDac &textesAjoutDac();
const TextesLigneDac &textesModificationDac();

/// Why a line is not written.
struct RefusLigneDac
{
    Refus refus;
    /// The clerk gave the employee up: an entry goes back to its lists.
    bool recommencer = false;
};

/// Checks the fields of a line in the order of the screens. The first fault is told and stops; a base under
/// the minimal wage is asked about.
/// @param periode the code of the declaration's period; its bounds are set first, and March has those of the
/// period before it
/// @throws ErreurConversion where no bounds are known yet
std::optional<RefusLigneDac> CtrlLigneDac(const FicheLigneDac &fiche, const TextesLigneDac &textes,
                                          const QString &periode, BornesDePeriode &bornes,
                                          Dialogue &dialogue);

/// Checks and adds a line; one in another declaration of the employer for the period is asked about.
/// @return why nothing was written, or nothing
std::optional<RefusLigneDac> ajouterLigneDac(LignesDeclaration &lignes, const FicheLigneDac &fiche,
                                             BornesDePeriode &bornes, Dialogue &dialogue);

/// Asks, checks and changes a line. @param lue the line as the fields were filled from it
/// @return why nothing was written, or nothing
std::optional<RefusLigneDac> modifierLigneDac(LignesDeclaration &lignes, const Enregistrement &lue,
                                              const FicheLigneDac &fiche, BornesDePeriode &bornes,
                                              Dialogue &dialogue);

/// The fields of the change screen, from the line.
FicheLigneDac remplirFicheLigneDac(const Enregistrement &ligne);

/// Whether an employee may get a line: he has none in the declaration yet. It is told otherwise.
bool ctrlSansLigne(const LignesDeclaration &lignes, const QString &numero, qint64 cpt_z, Dialogue &dialogue);
