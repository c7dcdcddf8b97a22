#include "reference/banques.h"

#include "reference/employeurs.h"
#include "reference/textesaisi.h"
#include "rules/dialogue.h"
#include "rules/texte.h"
#include "storage/base.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype positionsDuCode = 3;

using Issue = std::optional<Refus>;

/// What tells the rules of the change, mod_bnq, from those of the entry, add_bnq: first the entry's.
namespace difference {

/// Whether the positions of the code are looked at first. In the entry they come last: what is told of a form
/// with nothing entered are its names.
constexpr Selon<bool> positionsDAbord{false, true};

constexpr Selon<QStringView> existe{u"cette banque existe déja!", u"Cette Banque Existe Déja!"};

constexpr Selon<QStringView> sansAbreviation{u"Veuillez saisir l'abréviation de la Banque SVP",
                                             u"Veuillez Saisir l'abreviation SVP!!!"};
/// "dsignation" is meant.
constexpr Selon<QStringView> sansLibelle{u"Veuillez saisir la désignation SVP",
                                         u"Veuillez Saisir la dsignation SVP!!!"};

} // namespace difference

Issue ctrlPositions(const FicheBanque &fiche, Dialogue &dialogue)
{
    const QStringView code = Trim(fiche.CodeBnq);
    if (code.size() == positionsDuCode && chiffresSeuls(code))
        return {};
    return refuser(dialogue, controlesBanque[u"CodeBnq"],
                   u" le code de la banque doit être sur 3 positions"_s);
}

/// The rules of both forms, in their order.
/// @param autreCode whether the code is not the one that the bank has
Issue ctrlBanque(Forme forme, Base &base, FicheBanque &fiche, bool autreCode, Dialogue &dialogue)
{
    const auto arreter = [&](QStringView controle, const Selon<QStringView> &texte) {
        return refuser(dialogue, controle, texte[forme].toString());
    };
    if (difference::positionsDAbord[forme]) {
        if (Issue refus = ctrlPositions(fiche, dialogue))
            return refus;
    }
    if (autreCode && base.Cnx.existe(u"SELECT 1 FROM Banque WHERE Code = ?"_s, {Trim(fiche.CodeBnq)}))
        return arreter(controlesBanque[u"CodeBnq"], difference::existe);
    fiche.AbreviatBnq = surUneLigne(fiche.AbreviatBnq);
    fiche.LibelleBnq = surUneLigne(fiche.LibelleBnq);
    if (Trim(fiche.AbreviatBnq).isEmpty())
        return arreter(controlesBanque[u"AbreviatBnq"], difference::sansAbreviation);
    if (Trim(fiche.LibelleBnq).isEmpty())
        return arreter(controlesBanque[u"LibelleBnq"], difference::sansLibelle);
    if (!difference::positionsDAbord[forme])
        return ctrlPositions(fiche, dialogue);
    return {};
}

Champs champs(const FicheBanque &fiche)
{
    return {{u"Code"_s, Trim(fiche.CodeBnq)},
            {u"Abreviat"_s, fiche.AbreviatBnq},
            {u"Libelle"_s, fiche.LibelleBnq}};
}

} // namespace

std::optional<Refus> creerBanque(Base &base, FicheBanque &fiche, Dialogue &dialogue)
{
    if (Issue refus = ctrlBanque(Forme::Creation, base, fiche, true, dialogue))
        return refus;
    base.RsBanque.ajouter(champs(fiche));
    base.RsBanque.requery();
    return {};
}

FicheBanque lireFicheBanque(const Enregistrement &ligne)
{
    return {ligne.texte(u"Code"), ligne.texte(u"Abreviat"), ligne.texte(u"Libelle")};
}

std::optional<Refus> modifierBanque(Base &base, const Enregistrement &ligne, FicheBanque &fiche,
                                    const FicheBanque &lue, Dialogue &dialogue)
{
    if (fiche == lue)
        return refuser(dialogue, controlesBanque[u"CodeBnq"], u"Aucun Elément à Modifier"_s);
    const bool autreCode = fiche.CodeBnq != lue.CodeBnq;
    if (Issue refus = ctrlBanque(Forme::Modification, base, fiche, autreCode, dialogue))
        return refus;
    base.RsBanque.modifier(ligne, champs(fiche));
    base.RsBanque.requery();
    return {};
}

bool supprimerDepuisBanques(Base &base, Dialogue &dialogue)
{
    // The same question and the same walk as in the employers' window, on the employers: this is meant.
    return confirmerSuppression(dialogue) && !base.RsBanque.vide() &&
           supprimerEmployeurCourant(base, dialogue);
}
