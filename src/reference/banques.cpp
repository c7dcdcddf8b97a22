#include "reference/banques.h"

#include "reference/employeurs.h"
#include "reference/textesaisi.h"
#include "rules/dialogue.h"
#include "rules/texte.h"
#include "storage/base.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype positionsDuCode = 3;

RefusBanque refuser(ChampBanque champ, const QString &texte, Dialogue &dialogue)
{
    dialogue.avertir(texte);
    return champ;
}

RefusBanque ctrlCode(const FicheBanque &fiche, Dialogue &dialogue)
{
    const QStringView code = Trim(fiche.CodeBnq);
    if (code.size() == positionsDuCode && chiffresSeuls(code))
        return {};
    return refuser(ChampBanque::CodeBnq, u" le code de la banque doit être sur 3 positions"_s, dialogue);
}

RefusBanque ctrlNouveauCode(const FicheBanque &fiche, const QString &texte, Base &base, Dialogue &dialogue)
{
    if (!base.Cnx.existe(u"SELECT 1 FROM Banque WHERE Code = ?"_s, {Trim(fiche.CodeBnq)}))
        return {};
    return refuser(ChampBanque::CodeBnq, texte, dialogue);
}

RefusBanque ctrlNoms(FicheBanque &fiche, const QString &sansAbreviation, const QString &sansLibelle,
                     Dialogue &dialogue)
{
    fiche.AbreviatBnq = surUneLigne(fiche.AbreviatBnq);
    fiche.LibelleBnq = surUneLigne(fiche.LibelleBnq);
    if (Trim(fiche.AbreviatBnq).isEmpty())
        return refuser(ChampBanque::AbreviatBnq, sansAbreviation, dialogue);
    if (Trim(fiche.LibelleBnq).isEmpty())
        return refuser(ChampBanque::LibelleBnq, sansLibelle, dialogue);
    return {};
}

/// The rules of add_bnq, in their order. The positions of the code come last: what is told of a form with
/// nothing entered are its names.
RefusBanque ctrlNouvelleBanque(Base &base, FicheBanque &fiche, Dialogue &dialogue)
{
    if (RefusBanque refus = ctrlNouveauCode(fiche, u"cette banque existe déja!"_s, base, dialogue))
        return refus;
    if (RefusBanque refus = ctrlNoms(fiche, u"Veuillez saisir l'abréviation de la Banque SVP"_s,
                                     u"Veuillez saisir la désignation SVP"_s, dialogue))
        return refus;
    return ctrlCode(fiche, dialogue);
}

/// The rules of mod_bnq, in their order.
RefusBanque ctrlBanqueModifiee(Base &base, FicheBanque &fiche, const FicheBanque &lue, Dialogue &dialogue)
{
    if (fiche == lue)
        return refuser(ChampBanque::CodeBnq, u"Aucun Elément à Modifier"_s, dialogue);
    if (RefusBanque refus = ctrlCode(fiche, dialogue))
        return refus;
    if (fiche.CodeBnq != lue.CodeBnq) {
        if (RefusBanque refus = ctrlNouveauCode(fiche, u"Cette Banque Existe Déja!"_s, base, dialogue))
            return refus;
    }
    return ctrlNoms(fiche, u"Veuillez Saisir l'abreviation SVP!!!"_s,
                    u"Veuillez Saisir la dsignation SVP!!!"_s, dialogue);
}

Champs champs(const FicheBanque &fiche)
{
    return {{u"Code"_s, Trim(fiche.CodeBnq)},
            {u"Abreviat"_s, fiche.AbreviatBnq},
            {u"Libelle"_s, fiche.LibelleBnq}};
}

} // namespace

RefusBanque creerBanque(Base &base, FicheBanque &fiche, Dialogue &dialogue)
{
    if (RefusBanque refus = ctrlNouvelleBanque(base, fiche, dialogue))
        return refus;
    base.RsBanque.ajouter(champs(fiche));
    base.RsBanque.requery();
    return {};
}

FicheBanque lireFicheBanque(const Enregistrement &ligne)
{
    return {ligne.texte(u"Code"), ligne.texte(u"Abreviat"), ligne.texte(u"Libelle")};
}

RefusBanque modifierBanque(Base &base, const Enregistrement &ligne, FicheBanque &fiche,
                           const FicheBanque &lue, Dialogue &dialogue)
{
    if (RefusBanque refus = ctrlBanqueModifiee(base, fiche, lue, dialogue))
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
