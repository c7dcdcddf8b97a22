#include "ci/ligneci.h"

#include "declarations/lignes.h"
#include "rules/date.h"
#include "rules/dialogue.h"
#include "rules/nombre.h"
#include "rules/selon.h"
#include "rules/texte.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// Hours above which the clerk is asked.
constexpr double heuresSansQuestion = 200;
/// The part of the wage that is paid.
constexpr QStringView partIndemnisee = u"0.75";

/// Where adding and changing a line differ. All of it is meant.
namespace difference {

/// Whether the stoppage may not lie before that of the site.
constexpr Selon<bool> arretDuChantier{false, true};
constexpr Selon<QStringView> succes{u"Ligne Ci ajoutée avec succès !", u"Ligne CI modifiée avec succès!"};

} // namespace difference

/// The claim stops with a table that has no employees at all, and asks at once otherwise.
constexpr SalarieInconnu salarieInconnu{.tableVideRefusee = true, .averti = false};

using Issue = std::optional<Refus>;

/// The checks of one screen, in its order; the first fault is told.
class ControleLigneCi
{
public:
    ControleLigneCi(Forme forme, const FicheLigneCi &fiche, const LignesDeclaration &lignes,
                    Dialogue &dialogue)
        : m_forme(forme), m_fiche(fiche), m_entete(lignes.entete()),
          m_heures(heuresSaisies(fiche.TxtNbHeure)), m_salaire(sansBlancs(fiche.TxtMtHoraire)),
          m_dialogue(dialogue)
    {
    }

    Issue passer()
    {
        for (const auto etape : {&ControleLigneCi::dates, &ControleLigneCi::chantier, &ControleLigneCi::duree,
                                 &ControleLigneCi::montant}) {
            if (Issue refus = (this->*etape)())
                return refus;
        }
        return {};
    }

    /// What both screens write. The amount is the one shown.
    Champs champs() const
    {
        return {{u"Date_embauche"_s, m_embauche},  {u"date_arret"_s, m_arret},
                {u"Date_reprise"_s, m_reprise},    {u"Nb_Heure"_s, m_nombre},
                {u"Salaire_Horaire"_s, m_horaire}, {u"Mt_Indemnise"_s, m_montant}};
    }

private:
    Refus refuser(QStringView controle, const QString &texte)
    {
        return ::refuser(m_dialogue, controle, texte);
    }

    Issue dates()
    {
        for (const auto &[controle, texte, jour] :
             {std::tuple{controlesLigneCi[u"MskDateEmbauche"], &m_fiche.MskDateEmbauche, &m_embauche},
              std::tuple{controlesLigneCi[u"MskDateArret"], &m_fiche.MskDateArret, &m_arret},
              std::tuple{controlesLigneCi[u"MskDateReprise"], &m_fiche.MskDateReprise, &m_reprise}}) {
            if (!EstDate(*texte))
                return refuser(controle, u"Veuillez saisir des dates valide SVP"_s);
            *jour = lireDate(*texte);
        }
        if (m_arret > m_reprise) {
            return refuser(controlesLigneCi[u"MskDateArret"],
                           u"la date d'arret ne peut être ultérieur à la date de reprise du chantier"_s);
        }
        if (m_arret < m_embauche) {
            return refuser(controlesLigneCi[u"MskDateArret"],
                           u"la date d'arret ne peut être antérieure à la date d'embauche de cet employé"_s);
        }
        return {};
    }

    /// An older claim may have no dates: no line lies outside then.
    Issue chantier()
    {
        const QDate arret = m_entete.date(u"date_arret");
        if (difference::arretDuChantier[m_forme] && arret.isValid() && m_arret < arret) {
            return refuser(controlesLigneCi[u"MskDateArret"],
                           u"la date d'arret ne peut être antérieure à la date d'arrêt du chantier !"_s);
        }
        const QDate reprise = m_entete.date(u"Date_reprise");
        if (reprise.isValid() && m_reprise > reprise) {
            return refuser(controlesLigneCi[u"MskDateReprise"],
                           u"la date de reprise ne peut être ultérieur à la date de reprise du chantier !"_s);
        }
        return {};
    }

    Issue duree()
    {
        if (!EstNumerique(m_heures)) {
            return refuser(controlesLigneCi[u"TxtNbHeure"],
                           u"Veuillez saisir une valeur correcte, pour le nombre d'heures à indemniser"_s);
        }
        if (lireNombre(m_heures) > heuresSansQuestion &&
            !m_dialogue.demander(u"le nombre d'heures à indemniser est supérieur à 200, voulez vous valider "
                                 "cette information ?"_s))
            return Refus{controlesLigneCi[u"TxtNbHeure"], {}};
        if (!EstNumerique(m_salaire)) {
            return refuser(controlesLigneCi[u"TxtMtHoraire"],
                           u"Veuillez saisir une valeur correcte, pour la valeur horaire"_s);
        }
        return {};
    }

    Issue montant()
    {
        m_nombre = lireEntier(m_heures);
        m_horaire = LireMontant(m_salaire);
        m_montant = LireMontant(montantIndemnise(m_heures, m_salaire));
        if (m_montant <= Currency()) {
            return refuser(controlesLigneCi[u"TxtNbHeure"], u"Erreur, montant à indemniser incorrecte"_s);
        }
        if (m_horaire <= Currency()) {
            return refuser(controlesLigneCi[u"TxtMtHoraire"],
                           u"Veuillez saisir une valeur de salaire correcte SVP"_s);
        }
        return {};
    }

    const Forme m_forme;
    const FicheLigneCi &m_fiche;
    const Enregistrement m_entete;
    const QString m_heures;
    const QString m_salaire;
    Dialogue &m_dialogue;
    QDate m_embauche;
    QDate m_arret;
    QDate m_reprise;
    qint64 m_nombre = 0; ///< of hours, as their column takes them
    Currency m_horaire;
    Currency m_montant;
};

/// Whether the fields still hold the values of the line, however they are written.
bool inchangee(const Enregistrement &lue, const FicheLigneCi &fiche)
{
    const auto memeDate = [&](QStringView colonne, const QString &texte) {
        return lue.date(colonne) == dateDe(texte).value_or(QDate());
    };
    const auto memeNombre = [](const QString &texte, const auto &valeur) {
        return EstNumerique(texte) ? valeur && LireMontant(texte) == *valeur : !valeur && texte.isEmpty();
    };
    std::optional<Currency> heures;
    std::optional<Currency> salaire;
    if (!lue.estNul(u"Nb_Heure"))
        heures = Currency::deEntier(lue.entier(u"Nb_Heure"));
    if (!lue.estNul(u"Salaire_Horaire"))
        salaire = lue.montant(u"Salaire_Horaire");
    return memeDate(u"Date_embauche", fiche.MskDateEmbauche) && memeDate(u"date_arret", fiche.MskDateArret) &&
           memeDate(u"Date_reprise", fiche.MskDateReprise) &&
           memeNombre(heuresSaisies(fiche.TxtNbHeure), heures) &&
           memeNombre(sansBlancs(fiche.TxtMtHoraire), salaire);
}

std::optional<Refus> modifierLigne(LignesDeclaration &lignes, const Enregistrement &lue,
                                   const FicheLigneCi &fiche, Dialogue &dialogue)
{
    if (inchangee(lue, fiche)) {
        return refuser(dialogue, controlesLigneCi[u"MskDateEmbauche"], u"Aucun élément à modifier"_s);
    }
    ControleLigneCi controle(Forme::Modification, fiche, lignes, dialogue);
    if (Issue refus = controle.passer())
        return refus;
    lignes.modifier(lue, controle.champs());
    dialogue.informer(difference::succes[Forme::Modification].toString());
    return {};
}

Refus direEchec(int numero, const Erreur &erreur, Dialogue &dialogue)
{
    // "frm_modif_lndas" is meant: the text has always named that window.
    dialogue.critique(u"Error %1 (%2) in procedure cmdok_Click of Feuille frm_modif_lndas"_s.arg(
        QString::number(numero), erreur.texte()));
    return {};
}

QString texteDuJour(const Enregistrement &rangee, QStringView colonne)
{
    const QDate jour = rangee.date(colonne);
    return jour.isValid() ? texteDate(jour) : QString();
}

} // namespace

QString heuresSaisies(QString TxtNbHeure) { return TxtNbHeure.replace(SepAutre, SepDecimal); }

QString montantIndemnise(const QString &TxtNbHeure, const QString &TxtMtHoraire)
{
    const double heures = Val(heuresSaisies(TxtNbHeure));
    const std::optional<Currency> salaire = montantDe(TxtMtHoraire);
    if (!salaire || !std::isfinite(heures))
        return {};
    return formatProduit({texteNombre(heures), salaire->texte(), partIndemnisee}, u"## ### ### ###.00");
}

void quitterHeuresCi(const QString &TxtNbHeure, Dialogue &dialogue)
{
    if (!EstNumerique(heuresSaisies(TxtNbHeure)))
        dialogue.avertir(u"Veuillez saisir une valeur numérique SVP"_s);
}

void quitterSalaireCi(const QString &TxtMtHoraire, Dialogue &dialogue)
{
    if (!EstNumerique(sansBlancs(TxtMtHoraire)))
        dialogue.avertir(u"le montant saisi est incorrecte !"_s);
}

FicheLigneCi proposerLigneCi(const LignesDeclaration &lignes)
{
    const Enregistrement entete = lignes.entete();
    FicheLigneCi fiche;
    fiche.MskDateArret = texteDuJour(entete, u"date_arret");
    fiche.MskDateReprise = texteDuJour(entete, u"Date_reprise");
    fiche.TxtMtHoraire = u"00000000.00"_s;
    return fiche;
}

std::optional<Refus> ajouterLigneCi(LignesDeclaration &lignes, const FicheLigneCi &fiche,
                                    const AjoutLigneCi &actions, Dialogue &dialogue)
{
    ControleLigneCi controle(Forme::Creation, fiche, lignes, dialogue);
    if (Issue refus = controle.passer())
        return refus;
    Connexion &cnx = lignes.base().Cnx;
    if (const auto inconnu = ctrlSalarieDeLigne(cnx, fiche, salarieInconnu, dialogue)) {
        if (inconnu->creerSalarie)
            actions.creerSalarie();
        if (!inconnu->creerSalarie || !salarieExiste(cnx, fiche.numero(), fiche.cpt_z))
            return inconnu->refus;
    }
    if (lignes.contient(fiche.numero(), fiche.cpt_z))
        return refuser(dialogue, u"num_saledit", u"une ligne Ci existe déja pour ce salarié!"_s);

    lignes.ajouter(Champs{{u"N_SecSoc"_s, fiche.numero()}, {u"Cpt_z"_s, fiche.cpt_z}} + controle.champs());
    if (actions.ecrite)
        actions.ecrite();
    dialogue.informer(difference::succes[Forme::Creation].toString());
    return {};
}

FicheLigneCi remplirFicheLigneCi(const Enregistrement &ligne)
{
    FicheLigneCi fiche;
    fiche.MskDateEmbauche = texteDuJour(ligne, u"Date_embauche");
    fiche.MskDateArret = texteDuJour(ligne, u"date_arret");
    fiche.MskDateReprise = texteDuJour(ligne, u"Date_reprise");
    if (!ligne.estNul(u"Nb_Heure"))
        fiche.TxtNbHeure = QString::number(ligne.entier(u"Nb_Heure"));
    if (!ligne.estNul(u"Salaire_Horaire"))
        fiche.TxtMtHoraire = ligne.montant(u"Salaire_Horaire").texte();
    return fiche;
}

std::optional<Refus> modifierLigneCi(LignesDeclaration &lignes, const Enregistrement &lue,
                                     const FicheLigneCi &fiche, Dialogue &dialogue)
{
    try {
        return modifierLigne(lignes, lue, fiche, dialogue);
    } catch (const ErreurSql &erreur) {
        return direEchec(erreur.code(), erreur, dialogue);
    } catch (const Erreur &erreur) {
        return direEchec(0, erreur, dialogue);
    }
}
