#pragma once

#include "declarations/salarieligne.h"
#include "rules/date.h"

#include <functional>

class Enregistrement;
class LignesDeclaration;

/// A time worked: a whole number and its unit, "J" days, "H" hours or "M" months.
struct Duree
{
    qint64 nombre = 0;
    QChar unite = u'J';

    friend bool operator==(const Duree &, const Duree &) = default;
};

/// The fields of a line as its two screens hold them; the employee is the add screen's alone.
struct FicheLigneDas : NumeroSaisi
{
    QString sal_annueledit;
    Duree nbj_travailctrl;
    bool EOption = false;
    bool SOption = false;
    /// A line entered without a date keeps the blank field as its date.
    QString mskdate = DateBlanche.toString();

    friend bool operator==(const FicheLigneDas &, const FicheLigneDas &) = default;
};

/// Checks and adds a line; the success is told. @return why nothing was written, or nothing
/// @param ecrite run once the line is there, before the clerk is told
std::optional<RefusSalarie> ajouterLigneDas(LignesDeclaration &lignes, const FicheLigneDas &fiche,
                                            Dialogue &dialogue, const std::function<void()> &ecrite = {});

/// Checks and changes a line; the success is told. A failure ends the action without a word, as a refusal
/// without a control: that is required.
/// @param lue the line as the fields were filled from it; the empty one when there was none
/// @return why nothing was written, or nothing
std::optional<Refus> modifierLigneDas(LignesDeclaration &lignes, const Enregistrement &lue,
                                      const FicheLigneDas &fiche, Dialogue &dialogue);

/// The fields of the change screen, from the line.
FicheLigneDas remplirFicheLigneDas(const Enregistrement &ligne);

/// Leaving the date. @return whether it is blank or a date; it is told otherwise
bool ctrlDateLigneDas(const QString &mskdate, Dialogue &dialogue);
