#include "dac/lignedac.h"

#include "declarations/declaration.h"
#include "declarations/lignes.h"
#include "declarations/salarieligne.h"
#include "rules/calendrier.h"
#include "rules/dialogue.h"
#include "rules/erreurs.h"
#include "rules/fonds.h"
#include "rules/texte.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Issue = std::optional<RefusLigneDac>;

constexpr qint64 heuresParMois = 176;
constexpr qint64 heuresParTrimestre = 528;
/// Days from the entry to the period's end within which a number may be missing.
constexpr qint64 delaiRecrutement = 90;

const QString depasseEnJours =
    u"la durée travaillée en jours dépasse le seuil autorisé, veuillez rectifier SVP !"_s;
const QString depasseEnHeures =
    u"la durée travaillée en heure dépasse le seuil autorisé, veuillez rectifier SVP !"_s;

/// One pass over the fields of a line.
class Controle
{
public:
    Controle(const FicheLigneDac &fiche, const TextesLigneDac &textes, const QString &periode,
             const BornesDePeriode &bornes, Dialogue &dialogue)
        : m_fiche(fiche), m_textes(textes), m_periode(periode), m_bornes(bornes), m_dialogue(dialogue)
    {
    }

    Issue passer()
    {
        for (const auto etape :
             {&Controle::saisie, &Controle::numero, &Controle::mouvement, &Controle::duree}) {
            if (const Issue issue = (this->*etape)())
                return issue;
        }
        return {};
    }

private:
    Issue arreter(QStringView controle, const QString &texte)
    {
        return RefusLigneDac{refuser(m_dialogue, controle, texte)};
    }

    QDate borne(const QString &texte) const
    {
        if (texte.isEmpty())
            throw ErreurConversion(u"Les dates de la période « %1 » ne sont pas connues."_s.arg(m_periode));
        return lireDate(texte);
    }
    QDate premierJour() const { return borne(m_bornes.DateDebutPeriode); }
    QDate dernierJour() const { return borne(m_bornes.DateFinPeriode); }

    Issue saisie()
    {
        if (m_fiche.CmbES < 0)
            return arreter(u"CmbES", u"Veuillez selectionner le type de mouvement SVP"_s);
        const std::optional<QDate> date = dateDe(m_fiche.MskDateES);
        if (!date)
            return arreter(u"MskDateES", u"Veuillez saisir une date valide SVP"_s);
        m_date = *date;
        if (m_fiche.CmbDT < 0)
            return arreter(u"CmbDT", u"Veuillez selectionner le type de durée travaillée SVP"_s);

        if (!EstNumerique(m_fiche.TxtNbJT)) {
            return arreter(u"TxtNbJT", u"Veuillez saisir une valeur correcte, pour la durée travailée"_s);
        }
        m_heures = lireNombre(m_fiche.TxtNbJT) * heuresParUnite();
        if (m_heures == 0)
            return arreter(u"TxtNbJT", u"Valeur de la durée travaillée incorrecte !"_s);

        const QString assiette = sansBlancs(m_fiche.TxtAssiette);
        if (!EstNumerique(assiette)) {
            return arreter(u"TxtAssiette",
                           u"Veuillez saisir une valeur correcte, pour la valeur de l'assiette SVP"_s);
        }
        m_assiette = LireMontant(assiette);
        if (m_assiette == Currency())
            return arreter(u"TxtAssiette", u"valeur de L'assiette déclarée incorrecte !"_s);
        return {};
    }

    Issue numero()
    {
        if (!m_fiche.Num_Salarie.startsWith(u"00"))
            return {};
        if (m_fiche.CmbES == Sortie) {
            return arreter(u"CmbES", u"Si Cet employé est sortant, alors vous devez fournir un numéro de "
                                     "sécurité sociale valide !"_s);
        }
        if (m_date.daysTo(dernierJour()) <= delaiRecrutement ||
            m_dialogue.demander(u"Cet employé n'a pas de numero SS, malgré qu'il est recruté depuis plus de "
                                "3 mois, voulez vous tout de même valider cette saisie ?"_s))
            return {};
        return RefusLigneDac{.refus = {}, .recommencer = true};
    }

    /// The date within the period, and the time that it leaves.
    Issue mouvement()
    {
        const QDate premier = premierJour();
        const QDate dernier = dernierJour();
        if (m_fiche.CmbES == Entree) {
            if (m_date > dernier) {
                return arreter(u"MskDateES", u"la date d'entrée est hors limite, veuillez réctifier SVP !"_s);
            }
            m_limite = std::max(m_date, premier).daysTo(dernier) + 1;
        } else {
            if (m_date < premier || m_date > dernier) {
                return arreter(u"MskDateES",
                               u"la date de sortie est hors limite, veuillez réctifier SVP !"_s);
            }
            m_limite = premier.daysTo(m_date) + 1;
        }
        m_limite *= fonds::HeuresParJour;
        return {};
    }

    Issue duree()
    {
        if (m_heures > static_cast<double>(m_limite))
            return arreter(u"TxtNbJT", enJours() ? depasseEnJours : depasseEnHeures);
        if (sousLeSmig() &&
            !m_dialogue.demander(
                u"l'assiette déclarée est en dessous du SMIG, voulez vous valider ses données ?"_s))
            return RefusLigneDac{{u"TxtAssiette", {}}};
        const bool trimestre = m_periode.size() > 4 && m_periode[4] == u'T';
        if (m_heures > static_cast<double>(trimestre ? heuresParTrimestre : heuresParMois)) {
            return arreter(u"TxtNbJT",
                           enJours() ? (trimestre ? m_textes.joursParTrimestre : m_textes.joursParMois)
                                     : (trimestre ? m_textes.heuresParTrimestre : m_textes.heuresParMois));
        }
        return {};
    }

    bool enJours() const { return m_fiche.CmbDT == Jours; }
    int heuresParUnite() const { return enJours() ? fonds::HeuresParJour : 1; }

    /// base / hours < minimum, multiplied out: a quotient would be rounded.
    bool sousLeSmig() const
    {
        const qint64 heures = (LireMontant(m_fiche.TxtNbJT) * heuresParUnite()).dixMilliemes();
        const qint64 un = Currency::deEntier(1).dixMilliemes();
        const qint64 produit = (fonds::SmigHoraire * heures).dixMilliemes();
        const Currency minimum = Currency::deDixMilliemes(produit / un);
        const qint64 reste = produit % un;
        // Under a negative time the quotient falls where the base rises.
        if (heures < 0)
            return m_assiette > minimum || (m_assiette == minimum && reste < 0);
        return m_assiette < minimum || (m_assiette == minimum && reste > 0);
    }

    const FicheLigneDac &m_fiche;
    const TextesLigneDac &m_textes;
    const QString &m_periode;
    const BornesDePeriode &m_bornes;
    Dialogue &m_dialogue;
    QDate m_date;
    double m_heures = 0;
    Currency m_assiette;
    qint64 m_limite = 0; ///< hours
};

/// What the fields say; the employee is not among them. @param fiche checked
Champs champsDe(const FicheLigneDac &fiche)
{
    return {{u"Assiette"_s, LireMontant(fiche.TxtAssiette)},
            {u"NBJT"_s, lireEntier(fiche.TxtNbJT)},
            {u"Type_Nbjt"_s, fiche.CmbDT == Heures ? u"H"_s : u"J"_s},
            {u"Type_ES"_s, fiche.CmbES == Sortie ? u"S"_s : u"E"_s},
            {u"Date_ES"_s, lireDate(fiche.MskDateES)}};
}

QString periodeDe(const LignesDeclaration &lignes) { return lignes.cle().texte(u"Periode"); }

/// Whether the employee has a line in another declaration of the employer for the period.
bool dansUneAutre(const LignesDeclaration &lignes, const FicheLigneDac &fiche)
{
    const CleDeclaration &cle = lignes.cle();
    return lignes.base().Cnx.existe(u"SELECT 1 FROM Ligne_Dac WHERE NumSalarie = ? AND cpt_z = ? AND "
                                    u"NumEmployeur = ? AND Periode = ? AND "
                                    "Type_dac <> ?"_s,
                                    {fiche.Num_Salarie, fiche.cpt_z, cle.texte(u"NumEmployeur"),
                                     cle.texte(u"Periode"), cle.entier(u"Type_Dac")});
}

} // namespace

const TextesLigneDac &textesAjoutDac()
{
    static const TextesLigneDac textes{
        .joursParMois = depasseEnJours,
        .joursParTrimestre = depasseEnJours,
        // "en jours" of hours is meant.
        .heuresParMois = u"la durée travaillée en jours dépasse le seuil autorisé 176H par mois, veuillez "
                         "rectifier SVP !"_s,
        .heuresParTrimestre = u"la durée travaillée en jours dépasse le seuil autorisé 528 H ou 66J par "
                              "trimestre, veuillez rectifier SVP !"_s,
    };
    return textes;
}

const TextesLigneDac &textesModificationDac()
{
    static const TextesLigneDac textes{
        .joursParMois = u"la durée travaillée en jours dépasse le seuil autorisé, 176 H ou 22 jours par "
                        "mois veuillez rectifier SVP !"_s,
        .joursParTrimestre = u"la durée travaillée en jours dépasse le seuil autorisé, 528 H par trimestre "
                             "veuillez rectifier SVP !"_s,
        .heuresParMois = depasseEnJours,
        .heuresParTrimestre = depasseEnJours,
    };
    return textes;
}

std::optional<RefusLigneDac> CtrlLigneDac(const FicheLigneDac &fiche, const TextesLigneDac &textes,
                                          const QString &periode, BornesDePeriode &bornes, Dialogue &dialogue)
{
    BornesPeriode(periode, bornes);
    return Controle(fiche, textes, periode, bornes, dialogue).passer();
}

std::optional<RefusLigneDac> ajouterLigneDac(LignesDeclaration &lignes, const FicheLigneDac &fiche,
                                             BornesDePeriode &bornes, Dialogue &dialogue)
{
    if (auto refus = CtrlLigneDac(fiche, textesAjoutDac(), periodeDe(lignes), bornes, dialogue))
        return refus;
    if (dansUneAutre(lignes, fiche) &&
        !dialogue.demander(u"Ce salarié existe dans une autre déclaration pour le même employeur et pour la "
                           "même période, voulez vous l'enregistrer dans cette DAC complémentaire ?"_s))
        return RefusLigneDac{};
    // Another program may have made his line, or deleted him, since he was taken.
    if (!ctrlSansLigne(lignes, fiche.Num_Salarie, fiche.cpt_z, dialogue))
        return RefusLigneDac{.refus = {}, .recommencer = true};
    lignes.ajouter(Champs{{u"NumSalarie"_s, fiche.Num_Salarie}, {u"cpt_z"_s, fiche.cpt_z}} + champsDe(fiche));
    return {};
}

std::optional<RefusLigneDac> modifierLigneDac(LignesDeclaration &lignes, const Enregistrement &lue,
                                              const FicheLigneDac &fiche, BornesDePeriode &bornes,
                                              Dialogue &dialogue)
{
    if (!dialogue.demander(u"êtes vous de vouloir effectuer cette modification ?"_s))
        return RefusLigneDac{};
    if (auto refus = CtrlLigneDac(fiche, textesModificationDac(), periodeDe(lignes), bornes, dialogue))
        return refus;
    lignes.modifier(lue, champsDe(fiche));
    return {};
}

FicheLigneDac remplirFicheLigneDac(const Enregistrement &ligne)
{
    const auto choix = [&](QStringView colonne, QStringView premier, QStringView second) {
        const QString lettre = ligne.texte(colonne);
        return lettre == premier ? 0 : lettre == second ? 1 : -1;
    };
    FicheLigneDac fiche{.Num_Salarie = ligne.texte(u"NumSalarie"),
                        .cpt_z = ligne.entier(u"cpt_z"),
                        .CmbES = choix(u"Type_ES", u"E", u"S"),
                        .CmbDT = choix(u"Type_Nbjt", u"J", u"H")};
    if (!ligne.estNul(u"Date_ES"))
        fiche.MskDateES = texteDate(ligne.date(u"Date_ES"));
    if (!ligne.estNul(u"Assiette"))
        fiche.TxtAssiette = ligne.montant(u"Assiette").texte();
    if (!ligne.estNul(u"NBJT"))
        fiche.TxtNbJT = QString::number(ligne.entier(u"NBJT"));
    return fiche;
}

bool ctrlSansLigne(const LignesDeclaration &lignes, const QString &numero, qint64 cpt_z, Dialogue &dialogue)
{
    const bool deja = lignes.contient(numero, cpt_z);
    if (!deja && salarieExiste(lignes.base().Cnx, numero, cpt_z))
        return true;
    dialogue.avertir(deja ? u"Vous avez déja créer une ligne pour ce salarié, ajout impossible !"_s
                          : u"ce salarié n'existe pas! Nous vous invitons à le créer"_s);
    return false;
}
