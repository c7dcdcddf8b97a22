#include "das/lignedas.h"

#include "declarations/lignes.h"
#include "rules/calendrier.h"
#include "rules/date.h"
#include "rules/dialogue.h"
#include "rules/fonds.h"
#include "rules/selon.h"
#include "rules/texte.h"

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView champMontant = u"sal_annueledit";
constexpr QStringView champDuree = u"nbj_travailctrl";
constexpr QStringView champDate = u"mskdate";

/// The checks behind the maxima, whose order differs.
enum class Etape { Coherence, Moyenne, Positif, Zero };

/// Where adding and changing a line differ. All of it is meant.
namespace difference {

constexpr Selon<QStringView> montantNonNumerique{u"Veuillez saisir un montant monètaire SVP",
                                                 u"Veuillez saisir un nombre!"};
/// A wage of zero is refused before anything else; otherwise only at its place behind the maxima.
constexpr Selon<bool> zeroRefuseAussitot{false, true};
constexpr Selon<QStringView> dateIncorrecte{u"Date d'Entree / Sortie incorrecte !", u"Date incorrecte !"};
constexpr Selon<qint64> dureeMinimale{1, 0};
constexpr Selon<std::array<Etape, 4>> apresLesMaxima{
    {Etape::Coherence, Etape::Moyenne, Etape::Positif, Etape::Zero},
    {Etape::Positif, Etape::Moyenne, Etape::Zero, Etape::Coherence}};
constexpr Selon<int> joursDuMois{30, 22};
constexpr Selon<QStringView> finDeQuestion{u"  Da, Voulez vous valider ses données ?",
                                           u"   Da, Voulez vous valider ses données ?"};
constexpr Selon<QStringView> succes{u"Ligne DAS ajoutée avec succès !", u"Ligne DAS modifiée avec succès!"};

} // namespace difference

/// Without any employee nobody can be looked for: the line is taken as it is.
constexpr SalarieInconnu salarieInconnu{.tableVideRefusee = false, .averti = true};

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
    ControleLigneDas(Forme forme, const FicheLigneDas &fiche, const LignesDeclaration &lignes,
                     Dialogue &dialogue)
        : m_forme(forme), m_fiche(fiche), m_annee(static_cast<int>(lignes.cle().entier(u"annee"))),
          m_dialogue(dialogue)
    {
    }

    std::optional<Refus> montant()
    {
        const QString texte = sansBlancs(m_fiche.sal_annueledit);
        if (!EstNumerique(texte))
            return refuser(champMontant, difference::montantNonNumerique[m_forme].toString());
        m_montant = LireMontant(texte);
        if (difference::zeroRefuseAussitot[m_forme] && m_montant == Currency())
            return refuser(champMontant, u"Veuillez saisir un montant SVP!"_s);
        return {};
    }

    std::optional<Refus> dateEtDuree()
    {
        const std::optional<QDate> date = dateDe(m_fiche.mskdate);
        const bool option = m_fiche.EOption || m_fiche.SOption;
        if (option && !date)
            return refuser(champDate, difference::dateIncorrecte[m_forme].toString());
        if (!option && date) {
            return refuser(champDate, u"Vous avez rempli le champ date sans indiquer s'il s'agit d'une date "
                                      "d'entrée ou de sortie!"_s);
        }
        if (option && *date > finCampagne(m_annee))
            return refuser(champDate, u"La date est superieure à l'année de compagne!"_s);

        const Duree &duree = m_fiche.nbj_travailctrl;
        if (duree.nombre < difference::dureeMinimale[m_forme]) {
            return refuser(champDuree, u"Veuillez saisir une valeur correcte pour la durée de travail SVP"_s);
        }
        if (duree.nombre > fonds::dureeMaximale(duree.unite))
            return refuser(champDuree, u"Durée de travail superieure au maximum autorisé!"_s);

        for (const Etape etape : difference::apresLesMaxima[m_forme]) {
            if (const auto refus = passer(etape))
                return refus;
        }
        return {};
    }

    Currency montantLu() const { return m_montant; }

private:
    Refus refuser(QStringView champ, const QString &texte) { return ::refuser(m_dialogue, champ, texte); }

    std::optional<Refus> passer(Etape etape)
    {
        switch (etape) {
        case Etape::Coherence:
            return coherence();
        case Etape::Moyenne:
            return moyenne();
        case Etape::Positif:
            if (m_montant < Currency())
                return refuser(champMontant, u"Veuillez saisir une valeur positive de salaire annuel"_s);
            return {};
        case Etape::Zero:
            if (m_montant == Currency() && m_fiche.nbj_travailctrl.nombre >= 1) {
                return refuser(champMontant,
                               u"Vous devez accompagner un salaire nul d'une durée de travail nulle!"_s);
            }
            return {};
        }
        return {};
    }

    /// Whether the time worked fits between the movement and the campaign's other end.
    std::optional<Refus> coherence()
    {
        if (!m_fiche.EOption && !m_fiche.SOption)
            return {};
        const QDate date = lireDate(m_fiche.mskdate);
        const qint64 jours =
            m_fiche.SOption ? debutCampagne(m_annee).daysTo(date) : date.daysTo(finCampagne(m_annee)) + 1;
        if (jours * fonds::HeuresParJour >= heures(m_fiche.nbj_travailctrl))
            return {};
        return refuser(champDate, u"Date entrée ou durée travaillée erronée, veuillez rectifier SVP!"_s);
    }

    /// The clerk confirms the monthly wage, whatever it is.
    std::optional<Refus> moyenne()
    {
        const Duree &duree = m_fiche.nbj_travailctrl;
        const auto nombre = static_cast<double>(duree.nombre);
        double mois = nombre;
        if (duree.unite == u'H')
            mois = nombre / 173.33;
        else if (duree.unite != u'M')
            mois = nombre / difference::joursDuMois[m_forme];
        // Four decimals, as an amount has.
        mois = std::nearbyint(mois * 10'000) / 10'000;
        if (mois == 0)
            return {};
        const double parMois = static_cast<double>(m_montant.dixMilliemes()) / 10'000 / mois;
        const QString question = u"le salaire déclaré mensuel moyen est de : "_s +
                                 formatMasque(parMois, u"## ### ### ###.00") +
                                 difference::finDeQuestion[m_forme];
        if (m_dialogue.demander(question))
            return {};
        return Refus{champMontant, {}};
    }

    Forme m_forme;
    const FicheLigneDas &m_fiche;
    int m_annee;
    Dialogue &m_dialogue;
    Currency m_montant;
};

/// Whether the line is still there, with whatever values.
bool existe(const LignesDeclaration &lignes, const Enregistrement &lue)
{
    return !lue.estVide() && lignes.liste().chercher({{u"num_salarie"_s, lue.texte(u"num_salarie")},
                                                      {u"cpt_z"_s, lue.entier(u"cpt_z")}}) >= 0;
}

std::optional<Refus> modifierLigne(LignesDeclaration &lignes, const Enregistrement &lue,
                                   const FicheLigneDas &fiche, Dialogue &dialogue)
{
    ControleLigneDas controle(Forme::Modification, fiche, lignes, dialogue);
    if (const auto refus = controle.montant())
        return refus;
    if (!existe(lignes, lue))
        return refuser(dialogue, champMontant, u"Aucun élément à modifier"_s);
    if (const auto refus = controle.dateEtDuree())
        return refus;

    Champs champs{{u"sal_annuel"_s, controle.montantLu()},
                  {u"nbj_travail"_s, fiche.nbj_travailctrl.nombre},
                  {u"type_dure"_s, QString(fiche.nbj_travailctrl.unite)}};
    // With no option the movement stays as it was.
    if (fiche.EOption || fiche.SOption) {
        champs += Champs{{u"date_es"_s, fiche.mskdate}, {u"type_date_es"_s, fiche.SOption ? u"S"_s : u"E"_s}};
    }
    lignes.modifier(lue, champs);
    dialogue.informer(difference::succes[Forme::Modification].toString());
    return {};
}

} // namespace

std::optional<RefusSalarie> ajouterLigneDas(LignesDeclaration &lignes, const FicheLigneDas &fiche,
                                            Dialogue &dialogue, const std::function<void()> &ecrite)
{
    ControleLigneDas controle(Forme::Creation, fiche, lignes, dialogue);
    if (const auto refus = controle.montant())
        return RefusSalarie{*refus};
    if (auto refus = ctrlSalarieDeLigne(lignes.base().Cnx, fiche, salarieInconnu, dialogue))
        return refus;
    if (lignes.contient(fiche.numero(), fiche.cpt_z))
        return RefusSalarie{
            refuser(dialogue, u"num_saledit", u"une ligne das existe déja pour ce salarié!"_s)};
    if (const auto refus = controle.dateEtDuree())
        return RefusSalarie{*refus};

    // Without a movement the line tells of an entry on a blank date.
    lignes.ajouter({{u"Num_Salarie"_s, fiche.numero()},
                    {u"cpt_z"_s, fiche.cpt_z},
                    {u"sal_annuel"_s, controle.montantLu()},
                    {u"nbj_travail"_s, fiche.nbj_travailctrl.nombre},
                    {u"type_dure"_s, QString(fiche.nbj_travailctrl.unite)},
                    {u"date_es"_s, fiche.mskdate},
                    {u"type_date_es"_s, fiche.SOption ? u"S"_s : u"E"_s}});
    if (ecrite)
        ecrite();
    dialogue.informer(difference::succes[Forme::Creation].toString());
    return {};
}

std::optional<Refus> modifierLigneDas(LignesDeclaration &lignes, const Enregistrement &lue,
                                      const FicheLigneDas &fiche, Dialogue &dialogue)
{
    try {
        return modifierLigne(lignes, lue, fiche, dialogue);
    } catch (const Erreur &) {
        return Refus{}; // the transaction is rolled back already
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

bool ctrlDateLigneDas(const QString &mskdate, Dialogue &dialogue)
{
    if (mskdate == DateBlanche || EstDate(mskdate))
        return true;
    dialogue.avertir(u"Veuillez saisir une date correcte SVP"_s);
    return false;
}
