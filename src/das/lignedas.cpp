#include "das/lignedas.h"

#include "declarations/lignes.h"
#include "employees/fichesalarie.h"
#include "rules/calendrier.h"
#include "rules/date.h"
#include "rules/dialogue.h"
#include "rules/fonds.h"
#include "rules/identite.h"
#include "rules/texte.h"

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype chiffresDuNumero = 10;

using Refus = std::optional<ChampLigneDas>;
constexpr auto montantChamp = ChampLigneDas::sal_annueledit;
constexpr auto dureeChamp = ChampLigneDas::nbj_travailctrl;
constexpr auto dateChamp = ChampLigneDas::mskdate;

enum class Etape { Coherence, Moyenne, Positif, Zero };

/// Where adding and changing a line differ. All of it is meant.
struct Differences
{
    QString montantNonNumerique;
    /// A wage of zero is refused before anything else; otherwise only at its place behind the maxima.
    bool zeroRefuseAussitot;
    QString dateIncorrecte;
    qint64 dureeMinimale;
    std::array<Etape, 4> apresLesMaxima;
    int joursDuMois;
    QString finDeQuestion;
};

const Differences &differencesAjout()
{
    using enum Etape;
    static const Differences ajout{
        .montantNonNumerique = u"Veuillez saisir un montant monètaire SVP"_s,
        .zeroRefuseAussitot = false,
        .dateIncorrecte = u"Date d'Entree / Sortie incorrecte !"_s,
        .dureeMinimale = 1,
        .apresLesMaxima = {Coherence, Moyenne, Positif, Zero},
        .joursDuMois = 30,
        .finDeQuestion = u"  Da, Voulez vous valider ses données ?"_s,
    };
    return ajout;
}

const Differences &differencesModification()
{
    using enum Etape;
    static const Differences modification{
        .montantNonNumerique = u"Veuillez saisir un nombre!"_s,
        .zeroRefuseAussitot = true,
        .dateIncorrecte = u"Date incorrecte !"_s,
        .dureeMinimale = 0,
        .apresLesMaxima = {Positif, Moyenne, Zero, Coherence},
        .joursDuMois = 22,
        .finDeQuestion = u"   Da, Voulez vous valider ses données ?"_s,
    };
    return modification;
}

/// The time worked against the calendar, in hours; a month is 26 days.
qint64 heures(const Duree &duree)
{
    switch (duree.unite.unicode()) {
    case u'M':
        return duree.nombre * 26 * fonds::HeuresParJour;
    case u'H':
        return duree.nombre;
    default:
        return duree.nombre * fonds::HeuresParJour;
    }
}

/// The checks of one screen, in its order; the first fault is told.
class ControleLigneDas
{
public:
    ControleLigneDas(const Differences &differences, const FicheLigneDas &fiche, int annee,
                     Dialogue &dialogue)
        : m_differences(differences), m_fiche(fiche), m_annee(annee), m_dialogue(dialogue)
    {
    }

    Refus montant()
    {
        const QString texte = sansBlancs(m_fiche.sal_annueledit);
        if (!EstNumerique(texte))
            return refuser(montantChamp, m_differences.montantNonNumerique);
        m_montant = LireMontant(texte);
        if (m_differences.zeroRefuseAussitot && m_montant == Currency())
            return refuser(montantChamp, u"Veuillez saisir un montant SVP!"_s);
        return {};
    }

    Refus dateEtDuree()
    {
        const std::optional<QDate> date = dateDe(m_fiche.mskdate);
        const bool option = m_fiche.EOption || m_fiche.SOption;
        if (option && !date)
            return refuser(dateChamp, m_differences.dateIncorrecte);
        if (!option && date) {
            return refuser(dateChamp, u"Vous avez rempli le champ date sans indiquer s'il s'agit d'une date "
                                      "d'entrée ou de sortie!"_s);
        }
        if (option && *date > finCampagne(m_annee))
            return refuser(dateChamp, u"La date est superieure à l'année de compagne!"_s);

        const Duree &duree = m_fiche.nbj_travailctrl;
        if (duree.nombre < m_differences.dureeMinimale) {
            return refuser(dureeChamp, u"Veuillez saisir une valeur correcte pour la durée de travail SVP"_s);
        }
        if (duree.nombre > fonds::dureeMaximale(duree.unite))
            return refuser(dureeChamp, u"Durée de travail superieure au maximum autorisé!"_s);

        for (const Etape etape : m_differences.apresLesMaxima) {
            if (const Refus refus = passer(etape))
                return refus;
        }
        return {};
    }

    Currency montantLu() const { return m_montant; }

private:
    Refus refuser(ChampLigneDas champ, const QString &texte)
    {
        m_dialogue.avertir(texte);
        return champ;
    }

    Refus passer(Etape etape)
    {
        switch (etape) {
        case Etape::Coherence:
            return coherence();
        case Etape::Moyenne:
            return moyenne();
        case Etape::Positif:
            if (m_montant < Currency())
                return refuser(montantChamp, u"Veuillez saisir une valeur positive de salaire annuel"_s);
            return {};
        case Etape::Zero:
            if (m_montant == Currency() && m_fiche.nbj_travailctrl.nombre >= 1) {
                return refuser(montantChamp,
                               u"Vous devez accompagner un salaire nul d'une durée de travail nulle!"_s);
            }
            return {};
        }
        return {};
    }

    /// Whether the time worked fits between the movement and the campaign's other end.
    Refus coherence()
    {
        if (!m_fiche.EOption && !m_fiche.SOption)
            return {};
        const QDate date = lireDate(m_fiche.mskdate);
        const qint64 jours =
            m_fiche.SOption ? debutCampagne(m_annee).daysTo(date) : date.daysTo(finCampagne(m_annee)) + 1;
        if (jours * fonds::HeuresParJour >= heures(m_fiche.nbj_travailctrl))
            return {};
        return refuser(dateChamp, u"Date entrée ou durée travaillée erronée, veuillez rectifier SVP!"_s);
    }

    /// The clerk confirms the monthly wage, whatever it is.
    Refus moyenne()
    {
        const Duree &duree = m_fiche.nbj_travailctrl;
        const auto nombre = static_cast<double>(duree.nombre);
        double mois = nombre;
        if (duree.unite == u'H')
            mois = nombre / 173.33;
        else if (duree.unite != u'M')
            mois = nombre / m_differences.joursDuMois;
        // Four decimals, as an amount has.
        mois = std::nearbyint(mois * 10'000) / 10'000;
        if (mois == 0)
            return {};
        const double parMois = static_cast<double>(m_montant.dixMilliemes()) / 10'000 / mois;
        const QString question = u"le salaire déclaré mensuel moyen est de : "_s +
                                 formatMasque(parMois, u"## ### ### ###.00") + m_differences.finDeQuestion;
        if (m_dialogue.demander(question))
            return {};
        return montantChamp;
    }

    const Differences &m_differences;
    const FicheLigneDas &m_fiche;
    int m_annee;
    Dialogue &m_dialogue;
    Currency m_montant;
};

int anneeDe(const LignesDeclaration &lignes) { return lignes.cle().periode.toInt(); }

/// The employee of a new line; told when he can't be.
std::optional<RefusLigneDas> ctrlSalarie(const LignesDeclaration &lignes, const FicheLigneDas &fiche,
                                         Dialogue &dialogue)
{
    Connexion &cnx = lignes.base().Cnx;
    if (Trim(fiche.num_saledit).isEmpty()) {
        dialogue.avertir(u"Vous n'avez pas sélectionné de salarié ! "_s);
        return RefusLigneDas{ChampLigneDas::num_saledit};
    }
    // Without any employee nobody can be looked for: the line is taken as it is.
    if (cnx.existe(u"SELECT 1 FROM salarie"_s) &&
        !cnx.existe(u"SELECT 1 FROM salarie WHERE num_salarie = ? AND cpt_z = ?"_s,
                    {fiche.numero(), fiche.cpt_z})) {
        dialogue.avertir(u"ce salarié n'existe pas! Nous vous invitons à le créer"_s);
        return RefusLigneDas{ChampLigneDas::num_saledit,
                             dialogue.demander(u"Ce salarié n'existe pas, voulez vous le créer?"_s)};
    }
    const CleDeclaration &cle = lignes.cle();
    if (cnx.existe(u"SELECT 1 FROM ligne_das WHERE num_salarie = ? AND cpt_z = ? AND annee = ? AND "
                   "num_emp = ? AND type_das = ?"_s,
                   {fiche.numero(), fiche.cpt_z, cle.periode, cle.employeur, cle.type})) {
        dialogue.avertir(u"une ligne das existe déja pour ce salarié!"_s);
        return RefusLigneDas{ChampLigneDas::num_saledit};
    }
    return {};
}

ModificationLigneDas refusee(ChampLigneDas focus) { return {IssueModification::Refusee, focus}; }

/// Whether the line is still there, with whatever values.
bool existe(const LignesDeclaration &lignes, const Enregistrement &lue)
{
    return !lue.estVide() && lignes.liste().chercher({{u"num_salarie"_s, lue.texte(u"num_salarie")},
                                                      {u"cpt_z"_s, lue.entier(u"cpt_z")}}) >= 0;
}

ModificationLigneDas modifierLigne(LignesDeclaration &lignes, const Enregistrement &lue,
                                   const FicheLigneDas &fiche, Dialogue &dialogue)
{
    ControleLigneDas controle(differencesModification(), fiche, anneeDe(lignes), dialogue);
    if (const Refus refus = controle.montant())
        return refusee(*refus);
    if (!existe(lignes, lue)) {
        dialogue.avertir(u"Aucun élément à modifier"_s);
        return refusee(montantChamp);
    }
    if (const Refus refus = controle.dateEtDuree())
        return refusee(*refus);

    Champs champs{{u"sal_annuel"_s, controle.montantLu()},
                  {u"nbj_travail"_s, fiche.nbj_travailctrl.nombre},
                  {u"type_dure"_s, QString(fiche.nbj_travailctrl.unite)}};
    // With no option the movement stays as it was.
    if (fiche.EOption || fiche.SOption) {
        champs += Champs{{u"date_es"_s, fiche.mskdate}, {u"type_date_es"_s, fiche.SOption ? u"S"_s : u"E"_s}};
    }
    lignes.modifier(lue, champs);
    dialogue.informer(u"Ligne DAS modifiée avec succès!"_s);
    return {};
}

} // namespace

QString FicheLigneDas::numero() const { return Trim(num_saledit) + Trim(mskcle); }

std::optional<RefusLigneDas> ajouterLigneDas(LignesDeclaration &lignes, const FicheLigneDas &fiche,
                                             Dialogue &dialogue)
{
    ControleLigneDas controle(differencesAjout(), fiche, anneeDe(lignes), dialogue);
    if (const Refus refus = controle.montant())
        return RefusLigneDas{*refus};
    if (const auto refus = ctrlSalarie(lignes, fiche, dialogue))
        return refus;
    if (const Refus refus = controle.dateEtDuree())
        return RefusLigneDas{*refus};

    // Without a movement the line tells of an entry on a blank date.
    lignes.ajouter({{u"Num_Salarie"_s, fiche.numero()},
                    {u"cpt_z"_s, fiche.cpt_z},
                    {u"sal_annuel"_s, controle.montantLu()},
                    {u"nbj_travail"_s, fiche.nbj_travailctrl.nombre},
                    {u"type_dure"_s, QString(fiche.nbj_travailctrl.unite)},
                    {u"date_es"_s, fiche.mskdate},
                    {u"type_date_es"_s, fiche.SOption ? u"S"_s : u"E"_s}});
    dialogue.informer(u"Ligne DAS ajoutée avec succès !"_s);
    return {};
}

ModificationLigneDas modifierLigneDas(LignesDeclaration &lignes, const Enregistrement &lue,
                                      const FicheLigneDas &fiche, Dialogue &dialogue)
{
    try {
        return modifierLigne(lignes, lue, fiche, dialogue);
    } catch (const Erreur &) {
        // The action ends without a word: that is required. The transaction is rolled back already.
        return {IssueModification::Abandonnee, montantChamp};
    }
}

FicheLigneDas remplirFicheLigneDas(const Enregistrement &ligne)
{
    FicheLigneDas fiche;
    fiche.sal_annueledit = ligne.montant(u"sal_annuel", Currency()).texte();
    fiche.nbj_travailctrl.nombre = ligne.entier(u"nbj_travail", 0);
    if (const QString unite = ligne.texte(u"type_dure"); !unite.isEmpty())
        fiche.nbj_travailctrl.unite = unite[0];
    fiche.EOption = ligne.texte(u"type_date_es") == u"E";
    fiche.SOption = ligne.texte(u"type_date_es") == u"S";
    if (!ligne.estNul(u"date_es"))
        fiche.mskdate = ligne.texte(u"date_es");
    return fiche;
}

SalarieMontre salarieDe(const LignesDeclaration &lignes, const QString &numero, qint64 cpt_z)
{
    const Enregistrement trouve = lignes.base().Cnx.premiere(
        u"SELECT nom, prenom, date_naiss, num_cpt_ccp, num_cpt_banc FROM salarie WHERE num_salarie = ? AND "
        "cpt_z = ?"_s,
        {numero, cpt_z});
    if (trouve.estVide())
        return {};
    const QDate naissance = trouve.date(u"date_naiss");
    return {trouve.texte(u"nom"), trouve.texte(u"prenom"),
            naissance.isValid() ? texteDate(naissance) : QString(), trouve.texte(u"num_cpt_ccp"),
            trouve.texte(u"num_cpt_banc")};
}

SaisieNumero ctrlNumeroLigneDas(const FicheLigneDas &fiche, Dialogue &dialogue)
{
    if (fiche.num_saledit == ChiffresBlancs) {
        dialogue.avertir(u"Le numéro de sécurité sociale est à blanc, sélectionnez le salarié à partir de la "
                         "commande INSERER "_s);
        return {};
    }
    const bool complet = fiche.num_saledit.size() == chiffresDuNumero && chiffresSeuls(fiche.num_saledit);
    if (complet && CleSS(fiche.num_saledit) == fiche.mskcle)
        return {.numeroBon = true};
    dialogue.avertir(u"Le numéro de sécurité sociale est incorrecte "_s);
    return {.reprendre = true};
}

bool ctrlDateLigneDas(const QString &mskdate, Dialogue &dialogue)
{
    if (mskdate == DateBlanche || EstDate(mskdate))
        return true;
    dialogue.avertir(u"Veuillez saisir une date correcte SVP"_s);
    return false;
}

QString numeroPourCreation(const QString &num_saledit)
{
    const QStringView numero = Trim(num_saledit);
    return numero.size() < 5 ? numero.toString() : numero.toString().rightJustified(chiffresDuNumero, u' ');
}
