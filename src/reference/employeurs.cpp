#include "reference/employeurs.h"

#include "reference/textesaisi.h"
#include "rules/dialogue.h"
#include "rules/identite.h"
#include "rules/texte.h"
#include "storage/base.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype chiffresDuNumero = 8;

bool estBlanc(QStringView texte) { return Trim(texte).isEmpty(); }

/// A number with less than its eight digits has no key that could be right.
bool cleJuste(const FicheEmployeur &fiche)
{
    const QStringView numero = Trim(fiche.num_empmask);
    return numero.size() == chiffresDuNumero && chiffresSeuls(numero) && CleSS(numero) == fiche.clemask;
}

RefusEmployeur refuser(ChampEmployeur champ, const QString &texte, Dialogue &dialogue)
{
    dialogue.avertir(texte);
    return champ;
}

RefusEmployeur ctrlCle(const FicheEmployeur &fiche, const QString &texte, Dialogue &dialogue)
{
    if (cleJuste(fiche))
        return {};
    return refuser(ChampEmployeur::num_empmask, texte, dialogue);
}

RefusEmployeur ctrlTelephone(FicheEmployeur &fiche, const QString &texte, Dialogue &dialogue)
{
    if (estBlanc(fiche.telEdit))
        return {};
    fiche.telEdit = sansBlancs(fiche.telEdit);
    if (CtrlTelephone(fiche.telEdit, dialogue))
        return {};
    return refuser(ChampEmployeur::telEdit, texte, dialogue);
}

RefusEmployeur ctrlMail(FicheEmployeur &fiche, Dialogue &dialogue)
{
    if (estBlanc(fiche.mailEdit))
        return {};
    fiche.mailEdit = sansBlancs(fiche.mailEdit);
    if (CtrlMail(fiche.mailEdit, dialogue))
        return {};
    return refuser(ChampEmployeur::mailEdit, u"Format E - Mail incorrecte"_s, dialogue);
}

RefusEmployeur ctrlNouveauNumero(const FicheEmployeur &fiche, const QString &texte, Base &base,
                                 Dialogue &dialogue)
{
    // The table itself, and not the list: another program may have added the employer meanwhile.
    if (!base.Cnx.existe(u"SELECT 1 FROM employeur WHERE num_emp = ?"_s, {Trim(fiche.num_empmask)}))
        return {};
    return refuser(ChampEmployeur::num_empmask, texte, dialogue);
}

RefusEmployeur ctrlNoms(FicheEmployeur &fiche, const QString &sansRaison, const QString &sansAdresse,
                        Dialogue &dialogue)
{
    fiche.Rais_SocEdit = surUneLigne(fiche.Rais_SocEdit);
    fiche.AdresseEdit = surUneLigne(fiche.AdresseEdit);
    if (estBlanc(fiche.Rais_SocEdit))
        return refuser(ChampEmployeur::Rais_SocEdit, sansRaison, dialogue);
    if (estBlanc(fiche.AdresseEdit))
        return refuser(ChampEmployeur::AdresseEdit, sansAdresse, dialogue);
    return {};
}

/// The rules of add_emp, in their order.
RefusEmployeur ctrlNouvelEmployeur(Base &base, FicheEmployeur &fiche, Dialogue &dialogue)
{
    if (estBlanc(fiche.clemask))
        return refuser(ChampEmployeur::clemask, u"Veuillez saisir la clé du numéro"_s, dialogue);
    if (RefusEmployeur refus = ctrlCleNouvelEmployeur(fiche, dialogue))
        return refus;
    if (RefusEmployeur refus = ctrlTelephone(fiche,
                                             u"Numéro de télephone incorrecte, exemple format (10 chiffres) "
                                             ": 0660112233 ou 0021445566"_s,
                                             dialogue))
        return refus;
    if (RefusEmployeur refus = ctrlMail(fiche, dialogue))
        return refus;
    if (RefusEmployeur refus = ctrlNouveauNumero(fiche, u"cet employeur existe déja!"_s, base, dialogue))
        return refus;
    return ctrlNoms(fiche, u"Veuillez saisir la raison sociale SVP"_s, u"Veuillez saisir une adresse SVP"_s,
                    dialogue);
}

/// The rules of mod_emp, in their order: the same ones, the names before telephone and mail.
RefusEmployeur ctrlEmployeurModifie(Base &base, FicheEmployeur &fiche, const FicheEmployeur &lue,
                                    Dialogue &dialogue)
{
    if (fiche == lue)
        return refuser(ChampEmployeur::num_empmask, u"Aucun Elément à Modifier"_s, dialogue);
    if (RefusEmployeur refus = ctrlCle(fiche, u"Veillez Saisir un Numéro Correct SVP!!!"_s, dialogue))
        return refus;
    if (fiche.num_empmask != lue.num_empmask) {
        if (RefusEmployeur refus = ctrlNouveauNumero(fiche, u"Cet Employeur Existe Déja!"_s, base, dialogue))
            return refus;
    }
    if (RefusEmployeur refus = ctrlNoms(fiche, u"Veuillez Saisir la Raison Sociale SVP!!!"_s,
                                        u"Veuillez Saisir une Adresse SVP!!!"_s, dialogue))
        return refus;
    if (RefusEmployeur refus = ctrlTelephone(fiche,
                                             u"Numéro de télephone incorrecte, exemple  format (10 chiffres) "
                                             ": 0660112233 ou 0021445566"_s,
                                             dialogue))
        return refus;
    return ctrlMail(fiche, dialogue);
}

Champs champs(const FicheEmployeur &fiche)
{
    return {{u"num_emp"_s, Trim(fiche.num_empmask)},
            {u"rais_soc"_s, fiche.Rais_SocEdit},
            {u"adresse"_s, fiche.AdresseEdit},
            {u"tel"_s, fiche.telEdit},
            {u"Mail"_s, fiche.mailEdit}};
}

/// A sorted list keeps its order by itself at the change of a row, and sorting thousands again would be felt.
void relire(Recordset &employeurs)
{
    if (employeurs.tri().isEmpty())
        employeurs.requery();
}

} // namespace

RefusEmployeur ctrlCleNouvelEmployeur(const FicheEmployeur &fiche, Dialogue &dialogue)
{
    return ctrlCle(fiche, u"Veillez saisir un numéro correct SVP"_s, dialogue);
}

RefusEmployeur creerEmployeur(Base &base, FicheEmployeur &fiche, Dialogue &dialogue)
{
    if (RefusEmployeur refus = ctrlNouvelEmployeur(base, fiche, dialogue))
        return refus;
    base.RsEmployeur.ajouter(champs(fiche));
    relire(base.RsEmployeur);
    return {};
}

FicheEmployeur lireFicheEmployeur(const Enregistrement &ligne)
{
    const QString numero = ligne.texte(u"num_emp");
    const bool aUneCle = numero.size() == chiffresDuNumero && chiffresSeuls(numero);
    return {numero,
            aUneCle ? CleSS(numero) : u"  "_s,
            ligne.texte(u"rais_soc"),
            ligne.texte(u"adresse"),
            ligne.texte(u"tel"),
            ligne.texte(u"Mail")};
}

RefusEmployeur ctrlCleEmployeurModifie(const FicheEmployeur &fiche, Dialogue &dialogue)
{
    return ctrlCle(fiche, u"Veillez Saisir un Numéro Correct SVP"_s, dialogue);
}

RefusEmployeur modifierEmployeur(Base &base, const Enregistrement &ligne, FicheEmployeur &fiche,
                                 const FicheEmployeur &lue, Dialogue &dialogue)
{
    if (RefusEmployeur refus = ctrlEmployeurModifie(base, fiche, lue, dialogue))
        return refus;
    base.RsEmployeur.modifier(ligne, champs(fiche));
    relire(base.RsEmployeur);
    return {};
}

bool supprimerEmployeur(Base &base, Dialogue &dialogue)
{
    return confirmerSuppression(dialogue) && supprimerEmployeurCourant(base, dialogue);
}

bool confirmerSuppression(Dialogue &dialogue)
{
    return dialogue.demander(u"confirmer la suppression?"_s, u"confirmation"_s);
}

bool supprimerEmployeurCourant(Base &base, Dialogue &dialogue)
{
    const Enregistrement courant = base.RsEmployeur.courant();
    if (courant.estVide())
        throw ErreurBase(u"Il n'y a pas d'employeur à supprimer."_s);
    if (base.Cnx.existe(u"SELECT 1 FROM entete_das WHERE num_emp = ?"_s, {courant.texte(u"num_emp")})) {
        dialogue.avertir(
            u"Il existe une ou plusieurs en-têtes DAS pour cet employeur, supprimez les d'abord"_s);
        return false;
    }
    base.RsEmployeur.supprimer(courant);
    return true;
}
