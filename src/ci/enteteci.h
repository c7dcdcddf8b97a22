#pragma once

#include "rules/nombre.h"
#include "rules/refus.h"
#include "rules/selon.h"

#include <array>
#include <optional>

class Base;
class Connexion;
class Enregistrement;

/// The fields of a header as its two screens hold them. The employer, the bank, the branch's code and the
/// telephone are the entry's alone; a change has the employer of the header.
struct FicheEnteteCi
{
    QString cmbemp;
    QString MskReference;
    QString MskDateArret;
    QString MskDateReprise;
    QString total_salEdit;
    QString sumEdit;
    QString SS26;
    QString SS1221;
    QString SS0375;
    QString CmbHS; ///< empty without a choice
    QString CmbBnq;
    QString MskAgbnq;
    QString MskNCompteBnq;
    QString txtAgBnq;
    QString TxtTelephone;
};

/// What the entry, FrmEntCi, and the change, frm_mod_entci, can give the focus to when they refuse.
inline constexpr Controles controlesEnteteCi{
    u"cmbemp",  u"MskReference",  u"MskDateArret", u"MskDateReprise", u"total_salEdit",
    u"sumEdit", u"SS26",          u"SS1221",       u"SS0375",         u"CmbHS",
    u"CmbBnq",  u"MskNCompteBnq", u"MskAgbnq",     u"txtAgBnq",       u"TxtTelephone"};
inline constexpr Controles controlesModificationEnteteCi{
    u"Mskreference", u"MskDateArret", u"MskDateReprise", u"totaledit",     u"sumedit",
    u"SS26",         u"SS1221",       u"SS0375",         u"MskNCompteBnq", u"txtAgBnq"};

/// The fields that have one name in the entry and another in the change.
namespace champEnteteCi {

inline constexpr Selon<QStringView> reference{controlesEnteteCi[u"MskReference"],
                                              controlesModificationEnteteCi[u"Mskreference"]};
inline constexpr Selon<QStringView> montant{controlesEnteteCi[u"sumEdit"],
                                            controlesModificationEnteteCi[u"sumedit"]};
inline constexpr Selon<QStringView> effectif{controlesEnteteCi[u"total_salEdit"],
                                             controlesModificationEnteteCi[u"totaledit"]};

} // namespace champEnteteCi

/// A charge on the amount paid out. The entry and the change ask about a wrong one in other words, and the
/// same answer means the opposite: this is meant.
struct ChargeCi
{
    QStringView controle;
    QString FicheEnteteCi::*champ;
    QStringView colonne;
    QStringView libelle;
    QStringView taux;
    QStringView nonNumerique; ///< told when the field is left
    QStringView incorrecte;
    Selon<QStringView> titreQuestion;
    Selon<QStringView> question;
};

/// In the order of the screens.
extern const std::array<ChargeCi, 3> chargesCi;

/// The charge on an amount: the exact product, rounded once to two decimals.
Currency chargeAttendue(const ChargeCi &charge, Currency montant);

/// An amount as the fields show it, all its decimals kept.
QString texteMontantCi(Currency montant);

// What leaving a field tells; the focus may go all the same

void quitterMontantCi(const QString &sumEdit, Dialogue &dialogue);
void quitterChargeCi(const ChargeCi &charge, const QString &texte, Dialogue &dialogue);
void quitterAgenceCi(const QString &MskAgbnq, Dialogue &dialogue);

// What a choice in the entry's lists shows; empty when the row is gone

QString telephoneEmployeur(Connexion &cnx, const QString &numero);
QString abreviationBanque(Connexion &cnx, const QString &code);

/// Checks and adds a header, which becomes the current row. The first fault is told and stops.
/// @throws ErreurBase when the reference is another claim's
std::optional<Refus> ajouterEnteteCi(Base &base, const FicheEnteteCi &fiche, Dialogue &dialogue);

/// The fields of the change, from the header.
FicheEnteteCi remplirFicheEnteteCi(const Enregistrement &entete);

/// Checks and changes a header. Under another reference its lines go with it.
/// @param lue the header as it was shown
std::optional<Refus> modifierEnteteCi(Base &base, const Enregistrement &lue, const FicheEnteteCi &fiche,
                                      Dialogue &dialogue);
