#pragma once

#include <QString>

#include <optional>

class Dialogue;
class Enregistrement;
class LignesDeclaration;

/// A time worked: a whole number and its unit, "J" days, "H" hours or "M" months.
struct Duree
{
    qint64 nombre = 0;
    QChar unite = u'J';

    friend bool operator==(const Duree &, const Duree &) = default;
};

/// The date field with nothing in it; a line entered without a date keeps it as its date.
inline constexpr QStringView DateBlanche = u"__/__/____";

/// The fields of a line as its two screens hold them.
struct FicheLigneDas
{
    // The employee, on the add screen alone
    QString num_saledit;
    QString mskcle;
    /// Tells employees without a number apart: 1 but for one who was picked.
    qint64 cpt_z = 1;

    QString sal_annueledit;
    Duree nbj_travailctrl;
    bool EOption = false;
    bool SOption = false;
    QString mskdate = DateBlanche.toString();

    /// Digits and key as they are stored.
    QString numero() const;

    friend bool operator==(const FicheLigneDas &, const FicheLigneDas &) = default;
};

enum class ChampLigneDas { num_saledit, mskcle, sal_annueledit, nbj_travailctrl, mskdate };

/// Why a line was not written.
struct RefusLigneDas
{
    ChampLigneDas focus;
    /// The clerk wants to create the employee, who is unknown.
    bool creerSalarie = false;
};

/// Checks and adds a line; the success is told. @return why nothing was written, or nothing
std::optional<RefusLigneDas> ajouterLigneDas(LignesDeclaration &lignes, const FicheLigneDas &fiche,
                                             Dialogue &dialogue);

enum class IssueModification {
    Faite,
    Refusee,
    Abandonnee, ///< a failure that the clerk is not told
};

struct ModificationLigneDas
{
    IssueModification issue = IssueModification::Faite;
    ChampLigneDas focus = ChampLigneDas::sal_annueledit;
};

/// Checks and changes a line; the success is told.
/// @param lue the line as the fields were filled from it; the empty one when there was none
ModificationLigneDas modifierLigneDas(LignesDeclaration &lignes, const Enregistrement &lue,
                                      const FicheLigneDas &fiche, Dialogue &dialogue);

/// The fields of the change screen, from the line.
FicheLigneDas remplirFicheLigneDas(const Enregistrement &ligne);

/// The employee of a line, as the screens show him; empty texts for one who is gone.
struct SalarieMontre
{
    QString nom;
    QString prenom;
    QString date_naiss;
    QString num_cpt_ccp;
    QString num_cpt_banc;
};
SalarieMontre salarieDe(const LignesDeclaration &lignes, const QString &numero, qint64 cpt_z);

/// What leaving the key of a typed number gives.
struct SaisieNumero
{
    bool numeroBon = false;
    /// The focus goes back to the number.
    bool reprendre = false;
};
SaisieNumero ctrlNumeroLigneDas(const FicheLigneDas &fiche, Dialogue &dialogue);

/// Leaving the date. @return whether it is blank or a date; it is told otherwise
bool ctrlDateLigneDas(const QString &mskdate, Dialogue &dialogue);

/// The number for the entry of an unknown employee: one of 5 to 9 characters gets blanks in front up to 10.
QString numeroPourCreation(const QString &num_saledit);
