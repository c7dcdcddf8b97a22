#include "ci/enteteci.h"

#include "rules/date.h"
#include "rules/dialogue.h"
#include "rules/identite.h"
#include "rules/saisie.h"
#include "rules/texte.h"
#include "storage/base.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype chiffresEmployeur = 8;
constexpr qsizetype chiffresAgence = 5;
/// Days from the resumption on within which a claim is taken.
constexpr qint64 delaiDuDossier = 90;

/// Where adding and changing a header speak otherwise. All of it is meant.
namespace difference {

constexpr Selon<QStringView> sansAgence{u"Veuillez saisir l'intitulé de votre agence bancaire SVP !",
                                        u"Veuillez saisir le libellé de votre agence bancaire SVP !"};
constexpr Selon<QStringView> horsDelai{
    u"LE Délai de complément du dossier doit être inféieur à 90j de la date de reprise!",
    u"dépassement de date de reprise du chantier (plus de 90j) SVP"};
constexpr Selon<QStringView> valeursIncorrectes{u"Valeurs incorrectes !", u"Valeurs incorrectes!"};
/// The question on a wrong charge: its end, and the answer that lets the save go on.
constexpr Selon<QStringView> finDeQuestion{u" Voulez vous continuer ?", u"voulez vous Corriger ?"};
constexpr Selon<bool> reponsePourContinuer{true, false};

} // namespace difference

using Issue = std::optional<Refus>;

/// The checks of one screen, in its order; the first fault is told.
class ControleEnteteCi
{
public:
    ControleEnteteCi(Forme forme, const FicheEnteteCi &fiche, Dialogue &dialogue)
        : m_forme(forme), m_fiche(fiche), m_reference(Trim(fiche.MskReference)), m_dialogue(dialogue)
    {
    }

    Issue passer()
    {
        struct Etape
        {
            Issue (ControleEnteteCi::*test)();
            Selon<bool> passee;
        };
        // Which test the entry has, and which the change: this is meant.
        static constexpr Etape etapes[] = {
            {&ControleEnteteCi::referenceEmployeur, {true, true}},
            {&ControleEnteteCi::referenceNumerique, {true, false}},
            {&ControleEnteteCi::referenceComplete, {false, true}},
            {&ControleEnteteCi::banque, {true, false}},
            {&ControleEnteteCi::intituleAgence, {true, true}},
            {&ControleEnteteCi::compte, {true, true}},
            {&ControleEnteteCi::arret, {true, true}},
            {&ControleEnteteCi::delai, {true, true}},
            {&ControleEnteteCi::reprise, {true, true}},
            {&ControleEnteteCi::repriseFuture, {true, false}},
            {&ControleEnteteCi::valeurs, {true, true}},
            {&ControleEnteteCi::charges, {true, true}},
            {&ControleEnteteCi::heuresSemaine, {true, false}},
            {&ControleEnteteCi::telephone, {true, false}},
        };
        for (const Etape &etape : etapes) {
            if (!etape.passee[m_forme])
                continue;
            if (Issue refus = (this->*etape.test)())
                return refus;
        }
        return {};
    }

private:
    Refus refuser(QStringView controle, QStringView texte)
    {
        return ::refuser(m_dialogue, controle, texte.toString());
    }

    Issue referenceEmployeur()
    {
        if (debutDe(m_reference, chiffresEmployeur) == Trim(m_fiche.cmbemp))
            return {};
        return refuser(champEnteteCi::reference[m_forme],
                       u"le numéro de référence ne correspond pas à cet employeur");
    }

    Issue referenceNumerique()
    {
        if (EstNumerique(milieuDe(m_reference, chiffresEmployeur + 1, 10)))
            return {};
        return refuser(champEnteteCi::reference[m_forme], u"le numéro de référence est incorrecte !!");
    }

    Issue referenceComplete()
    {
        if (!m_reference.contains(u'_'))
            return {};
        return refuser(champEnteteCi::reference[m_forme], u"le numéro de référence est incorrecte");
    }

    Issue banque()
    {
        if (m_fiche.CmbBnq.isEmpty())
            return refuser(controlesEnteteCi[u"CmbBnq"], u"Veuillez indiquer la banque SVP !");
        if (debutDe(m_fiche.MskNCompteBnq, 3) != m_fiche.CmbBnq) {
            return refuser(controlesEnteteCi[u"MskNCompteBnq"],
                           u"erreur au niveau du RIB, vérifier le code de la banque SVP !");
        }
        if (milieuDe(m_fiche.MskNCompteBnq, 4, chiffresAgence) != m_fiche.MskAgbnq) {
            return refuser(controlesEnteteCi[u"MskAgbnq"],
                           u"erreur au niveau du RIB, vérifier le code de l'agence bancaire SVP !");
        }
        return {};
    }

    Issue intituleAgence()
    {
        if (!Trim(m_fiche.txtAgBnq).isEmpty())
            return {};
        return refuser(controlesEnteteCi[u"txtAgBnq"], difference::sansAgence[m_forme]);
    }

    Issue compte()
    {
        if (CleRIB(milieuDe(m_fiche.MskNCompteBnq, 4, 17)) == u"0")
            return {};
        return refuser(controlesEnteteCi[u"MskNCompteBnq"], u" Numèro de compte bancaire incorrecte  SVP !");
    }

    Issue arret()
    {
        m_arret = dateDe(m_fiche.MskDateArret);
        m_reprise = dateDe(m_fiche.MskDateReprise);
        if (m_arret)
            return {};
        return refuser(controlesEnteteCi[u"MskDateArret"],
                       u"Veuillez saisir correctement la date d'arrêt du chantier SVP");
    }

    /// A text that is no date passes here and is refused behind: this is meant.
    Issue delai()
    {
        if (!m_reprise || m_reprise->daysTo(aujourdhui()) <= delaiDuDossier)
            return {};
        return refuser(controlesEnteteCi[u"MskDateReprise"], difference::horsDelai[m_forme]);
    }

    Issue reprise()
    {
        if (!m_reprise) {
            return refuser(controlesEnteteCi[u"MskDateReprise"],
                           u"Veuillez saisir correctement la date de reprise du chantier SVP");
        }
        if (*m_arret < *m_reprise)
            return {};
        return refuser(controlesEnteteCi[u"MskDateArret"],
                       u"la date d'arrêt ne peut être ultérieure ou égale à la date de reprise du chantier");
    }

    Issue repriseFuture()
    {
        if (*m_reprise <= aujourdhui())
            return {};
        return refuser(controlesEnteteCi[u"MskDateReprise"],
                       u"la date de reprise ne peut être ultérieure à la date du jour ! ");
    }

    static bool estPositif(const QString &texte)
    {
        const QString propre = sansBlancs(texte);
        return EstNumerique(propre) && lireNombre(propre) >= 0;
    }

    Issue valeurs()
    {
        if (!estPositif(m_fiche.sumEdit)) {
            return refuser(champEnteteCi::montant[m_forme],
                           u"Veuillez saisir une valeur correcte pour la somme des salaires!");
        }
        for (const ChargeCi &charge : chargesCi) {
            if (!estPositif(m_fiche.*charge.champ))
                return refuser(charge.controle, charge.incorrecte);
        }
        if (!estPositif(m_fiche.total_salEdit)) {
            return refuser(champEnteteCi::effectif[m_forme],
                           u"Veuillez saisir un nombre de salariés correct!");
        }
        const bool sansEffectif = lireNombre(sansBlancs(m_fiche.total_salEdit)) == 0;
        if ((LireMontant(m_fiche.sumEdit) == Currency()) == sansEffectif)
            return {};
        return refuser(champEnteteCi::montant[m_forme], difference::valeursIncorrectes[m_forme]);
    }

    /// A charge may differ from what is expected, when the clerk stands by it.
    Issue charges()
    {
        const Currency montant = LireMontant(m_fiche.sumEdit);
        for (const ChargeCi &charge : chargesCi) {
            if (LireMontant(m_fiche.*charge.champ) == chargeAttendue(charge, montant))
                continue;
            const bool oui =
                m_dialogue.demander(charge.question[m_forme] + difference::finDeQuestion[m_forme],
                                    charge.titreQuestion[m_forme].toString());
            if (oui != difference::reponsePourContinuer[m_forme])
                return Refus{charge.controle, {}};
        }
        return {};
    }

    Issue heuresSemaine()
    {
        if (!m_fiche.CmbHS.isEmpty())
            return {};
        return refuser(controlesEnteteCi[u"CmbHS"],
                       u"Veuillez indiquer le nombre d'heures travaillées par semaine SVP");
    }

    Issue telephone()
    {
        if (!Trim(m_fiche.TxtTelephone).isEmpty())
            return {};
        return refuser(controlesEnteteCi[u"TxtTelephone"],
                       u"Veuillez saisir le numéro du téléphone de cet employeur dans la "
                       "table employeur SVP!");
    }

    const Forme m_forme;
    const FicheEnteteCi &m_fiche;
    const QStringView m_reference;
    Dialogue &m_dialogue;
    std::optional<QDate> m_arret;
    std::optional<QDate> m_reprise;
};

/// What both screens write.
Champs champs(const FicheEnteteCi &fiche)
{
    Champs champs{{u"N_Identifiant"_s, Trim(fiche.MskReference)},
                  {u"date_arret"_s, lireDate(fiche.MskDateArret)},
                  {u"Date_reprise"_s, lireDate(fiche.MskDateReprise)},
                  {u"Effect_Mis_arret"_s, lireEntier(fiche.total_salEdit)},
                  {u"Montant_Indemnise"_s, LireMontant(fiche.sumEdit)},
                  {u"NCompteBnq"_s, fiche.MskNCompteBnq},
                  {u"LibAgBnq"_s, fiche.txtAgBnq}};
    for (const ChargeCi &charge : chargesCi)
        champs.append({charge.colonne.toString(), LireMontant(fiche.*charge.champ)});
    // An older header may have no hours, or others than the list: without a choice they stay.
    if (!fiche.CmbHS.isEmpty())
        champs.append({u"HTS"_s, fiche.CmbHS.toLongLong()});
    return champs;
}

QString texteDateCi(const Enregistrement &entete, QStringView colonne)
{
    const QDate jour = entete.date(colonne);
    return jour.isValid() ? texteDate(jour) : QString();
}

} // namespace

const std::array<ChargeCi, 3> chargesCi{{
    {.controle = controlesEnteteCi[u"SS26"],
     .champ = &FicheEnteteCi::SS26,
     .colonne = u"ChargePat",
     .libelle = u"Charges SS 26 % :",
     .taux = u"0.26",
     .nonNumerique = u"Veuillez saisir un nombre, comme montant total des charges SS 26% SVP !",
     .incorrecte = u"Veuillez saisir une valeur correcte pour les charges SS patronales!",
     .titreQuestion = {u"controle charges SS", u"controle charge"},
     .question = {u"charges SS patronales '26%' incorrectes, ",
                  u"le montant des charges SS 26% est incorrecte, "}},
    {.controle = controlesEnteteCi[u"SS1221"],
     .champ = &FicheEnteteCi::SS1221,
     .colonne = u"ChargeCp",
     .libelle = u"Charges KORVANDEL 12.21 % :",
     .taux = u"0.1221",
     .nonNumerique = u"Veuillez saisir un nombre, comme montant total des charges KORVANDEL 12.21% SVP !",
     .incorrecte = u"Veuillez saisir une valeur correcte pour les charges CP KORVANDEL!",
     .titreQuestion = {u"controle charges KORVANDEL ", u"controle charge"},
     .question = {u"charges CP '12.21%' KORVANDEL incorrectes, ",
                  u"le montant des charges KORVANDEL CP 12.21% est incorrecte, "}},
    {.controle = controlesEnteteCi[u"SS0375"],
     .champ = &FicheEnteteCi::SS0375,
     .colonne = u"ChargeCi",
     .libelle = u"Charges KORVANDEL 0.375 % :",
     .taux = u"0.00375",
     .nonNumerique = u"Veuillez saisir un nombre, comme montant total des charges SS 0.375% SVP !",
     .incorrecte = u"Veuillez saisir une valeur correcte pour les charges CI KORVANDEL!",
     .titreQuestion = {u"controle charges KORVANDEL ", u"controle charge"},
     .question = {u"charges CI '0.375%' KORVANDEL incorrectes, ",
                  u"le montant des charges KORVANDEL CP 0.375% est incorrecte, "}},
}};

Currency chargeAttendue(const ChargeCi &charge, Currency montant)
{
    return LireMontant(formatProduit({montant.texte(), charge.taux}, u"## ### ### ###.00"));
}

QString texteMontantCi(Currency montant)
{
    const QString arrondi = formatMasque(montant, u"#,##0.00;(#,##0.00)");
    return montantDe(arrondi) == montant ? arrondi : montant.texte();
}

void quitterMontantCi(const QString &sumEdit, Dialogue &dialogue)
{
    const QString propre = sansBlancs(sumEdit);
    if (!EstNumerique(propre))
        dialogue.avertir(u"Veuillez saisir un nombre, comme montant total des salaires annuels SVP !"_s);
    else if (lireNombre(propre) <= 0)
        dialogue.avertir(u"Erreur, le montant du brut à payer ne peut être nul ou négatif!"_s);
}

void quitterChargeCi(const ChargeCi &charge, const QString &texte, Dialogue &dialogue)
{
    if (!EstNumerique(sansBlancs(texte)))
        dialogue.avertir(charge.nonNumerique.toString());
}

void quitterAgenceCi(const QString &MskAgbnq, Dialogue &dialogue)
{
    if (MskAgbnq.size() != chiffresAgence || !chiffresSeuls(MskAgbnq)) {
        dialogue.avertir(u"Le code agence bancaire doit être sur 5 positions, compléter par des 0 à gauche "
                         "SVP"_s);
    }
}

QString telephoneEmployeur(Connexion &cnx, const QString &numero)
{
    const Enregistrement employeur = cnx.premiere(u"SELECT tel FROM employeur WHERE num_emp = ?"_s, {numero});
    return employeur.estVide() ? QString() : employeur.texte(0);
}

QString abreviationBanque(Connexion &cnx, const QString &code)
{
    const Enregistrement banque = cnx.premiere(u"SELECT Abreviat FROM Banque WHERE Code = ?"_s, {code});
    return banque.estVide() ? QString() : banque.texte(0);
}

std::optional<Refus> ajouterEnteteCi(Base &base, const FicheEnteteCi &fiche, Dialogue &dialogue)
{
    constexpr QStringView controle = controlesEnteteCi[u"cmbemp"];
    if (!base.Cnx.existe(u"SELECT 1 FROM employeur"_s))
        return refuser(dialogue, controle, u"Il n'y a pas d'employeur!"_s);
    if (fiche.cmbemp.isEmpty())
        return refuser(dialogue, controle, u"Veuillez spécifier le numéro employeur SVP"_s);
    if (!base.Cnx.existe(u"SELECT 1 FROM employeur WHERE num_emp = ?"_s, {fiche.cmbemp}))
        return refuser(dialogue, controle, u"Ce numéro d'employeur n'éxiste pas"_s);
    if (Issue refus = ControleEnteteCi(Forme::Creation, fiche, dialogue).passer())
        return refus;
    base.RsEnteteCi.ajouter(champs(fiche) +
                            Champs{{u"N_employeur"_s, fiche.cmbemp}, {u"Telephone"_s, fiche.TxtTelephone}});
    return {};
}

FicheEnteteCi remplirFicheEnteteCi(const Enregistrement &entete)
{
    FicheEnteteCi fiche;
    fiche.cmbemp = entete.texte(u"N_employeur");
    fiche.MskReference = entete.texte(u"N_Identifiant");
    CadrerSouligne(fiche.MskReference);
    fiche.MskDateArret = texteDateCi(entete, u"date_arret");
    fiche.MskDateReprise = texteDateCi(entete, u"Date_reprise");
    fiche.total_salEdit = QString::number(entete.entier(u"Effect_Mis_arret", 0));
    fiche.sumEdit = texteMontantCi(entete.montant(u"Montant_Indemnise", Currency()));
    for (const ChargeCi &charge : chargesCi)
        fiche.*charge.champ = texteMontantCi(entete.montant(charge.colonne, Currency()));
    if (!entete.estNul(u"HTS"))
        fiche.CmbHS = QString::number(entete.entier(u"HTS"));
    fiche.MskNCompteBnq = entete.texte(u"NCompteBnq");
    fiche.txtAgBnq = entete.texte(u"LibAgBnq");
    return fiche;
}

std::optional<Refus> modifierEnteteCi(Base &base, const Enregistrement &lue, const FicheEnteteCi &fiche,
                                      Dialogue &dialogue)
{
    if (Issue refus = ControleEnteteCi(Forme::Modification, fiche, dialogue).passer())
        return refus;
    const QString ancienne = lue.texte(u"N_Identifiant");
    const QStringView nouvelle = Trim(fiche.MskReference);
    Transaction transaction(base.Cnx);
    if (nouvelle != ancienne) {
        base.Cnx.executer(u"UPDATE Detail_CI SET N_Identif = ? WHERE N_Identif = ?"_s, {nouvelle, ancienne},
                          {u"N_Identif"_s});
    }
    base.RsEnteteCi.modifier(lue, champs(fiche));
    transaction.commit();
    return {};
}
