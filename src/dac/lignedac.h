#pragma once

#include "rules/date.h"
#include "rules/nombre.h"
#include "rules/refus.h"

#include <optional>

class Dialogue;
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

    QString MskDateES;
    QString TxtAssiette;
    QString TxtNbJT;
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
