#include "validators/validateurdas.h"

#include "rules/calendrier.h"
#include "rules/date.h"
#include "rules/dialogue.h"
#include "rules/erreurs.h"
#include "rules/fonds.h"
#include "rules/identite.h"
#include "rules/nombre.h"
#include "rules/texte.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView FormatTaux = u" ## ###.00";
constexpr QStringView DateNeutre = u"01/01/1900";

constexpr RegleCode situations{
    .lettres = u"MC", .mots = u" est Différente de M(Marié) ou C(Célibataire)", .remplacement = u"C"};
constexpr RegleCode mouvements{
    .lettres = u"ES", .mots = u" est Différent de E(Entrée) ou S(Sortie)", .remplacement = u"E"};
constexpr RegleCode categories{
    .lettres = u"MF", .mots = u" est Différente de M(Masculin) ou F(Féminin)", .remplacement = u"M"};

/// A day of a campaign, as far as texts of dates reach.
std::optional<QDate> dansLesTextes(QDate date)
{
    return date.year() >= 100 && date.year() <= 9999 ? std::optional(date) : std::nullopt;
}

} // namespace

ValidateurDas::ValidateurDas() : ValidateurSalaires(particularitesDas) {}

QList<Validateur::Libelle> ValidateurDas::libellesPropres() const
{
    return m_onglets + QList<Libelle>{{u"LabEmpl"_s, m_affiche.employeur},
                                      {u"LabAnn"_s, m_affiche.periode},
                                      {u"LabNumDAS"_s, m_affiche.numero},
                                      {u"LabSalDAS"_s, m_affiche.total},
                                      {u"LabNbDAS"_s, m_affiche.effectif}};
}

void ValidateurDas::reinitialiser()
{
    ValidateurSalaires::reinitialiser();
    m_onglets.clear();
    nbSSValides = 0;
    tauxSS = tauxNin = 0;
}

bool ValidateurDas::entete(const QString &ligne)
{
    std::array<QStringView, 5> champs;
    couper(ligne, champs);
    m_entete = {champs[0].toString(), champs[1].toString(), sansBlancs(champs[2]),
                sansBlancs(champs[3]).replace(SepAutre, SepDecimal), champs[4].toString()};
    if (!nomConforme())
        return false;

    m_annee = static_cast<qint64>(std::nearbyint(lireNombre(m_entete.periode)));
    const auto annee = static_cast<int>(m_annee);
    periodeCampagne = u"01/07/"_s + QString::number(annee - 1) + u"-30/06/"_s + QString::number(annee);
    m_debutCampagne = dansLesTextes(debutCampagne(annee));
    m_finCampagne = dansLesTextes(finCampagne(annee));

    direFautesEntete(fautesEntete());
    m_affiche = m_entete;
    dateLimiteSS = u"01/06/"_s + m_affiche.periode;
    m_limiteSS = dateDe(dateLimiteSS);
    return true;
}

void ValidateurDas::DecouperLigneDas(QByteArrayView octets)
{
    constexpr std::array<Champ, NombreColonnes> colonnes{NumSalarie,
                                                         Nom,
                                                         Prenom,
                                                         SituationFamiliale,
                                                         DateNaissance,
                                                         Autre,
                                                         Adresse,
                                                         Autre,
                                                         Autre,
                                                         Presume,
                                                         Etranger,
                                                         CompteCCP,
                                                         CompteBancaire,
                                                         Autre,
                                                         Autre,
                                                         Autre,
                                                         Salaire,
                                                         Duree,
                                                         TypeDuree,
                                                         DateEntreeSortie,
                                                         TypeEntreeSortie,
                                                         Categorie,
                                                         Telephone,
                                                         Mail,
                                                         Autre,
                                                         Nationalite,
                                                         PrenomPere,
                                                         NomMere,
                                                         PrenomMere,
                                                         Nin,
                                                         ActeNaissance};
    decouper(octets, colonnes);
    normaliserMontant(Salaire);
    oterBlancs(Duree);
    m_duree = Val(valeur(Duree));
}

void ValidateurDas::ligne(QByteArrayView octets)
{
    DecouperLigneDas(octets);

    ctrlEtranger();
    ctrlNumeroSalarie();
    ctrlNoms();
    ctrlParents();
    // A NIN that is no number is told by its form alone.
    if (!etranger() && nonNegatif(Nin))
        ctrlNin();
    ctrlNationalite();
    CtrlCode(SituationFamiliale, situations);
    ctrlNaissance();
    CtrlTexte(Adresse, 15);
    ctrlPresume();
    if (!etranger())
        ctrlComptes();
    ctrlSalaire();
    ctrlDuree();
    ctrlUnite();
    m_dateES = CtrlDate(DateEntreeSortie, u" =  est vide ");
    if (CtrlCode(TypeEntreeSortie, mouvements))
        ctrlEntreeSortie();
    CtrlCode(Categorie, categories);
    ctrlContacts();

    compter(Salaire);
}

void ValidateurDas::ctrlNumeroSalarie()
{
    if (!CtrlNumerique(NumSalarie, Classe::Rejet))
        return;
    if (valeur(NumSalarie) == NumeroBlanc) {
        const bool tolere = SsManquantTolere();
        signaler(tolere ? Classe::SansIncidence : Classe::RejetDur,
                 prefixeNoms() + u"  N° SS non fournie !"_s, label(NumSalarie) + u" / N° SS Incorrecte !"_s);
        if (tolere)
            ++nbSSValides;
    } else if (!ctrlNumero()) {
        return;
    } else if (!acteConcorde()) {
        // The words for the print are those of a number that is none: that is required.
        signaler(Classe::Rejet, prefixe() + u"  ou Numéro acte de naissance Incorrecte "_s,
                 label(NumSalarie) + u" = "_s + valeur(NumSalarie) + u" est Non Numérique"_s);
    } else {
        ++nbSSValides;
    }
}

/// A newcomer of the campaign's last month may lack a number, and whoever left.
bool ValidateurDas::SsManquantTolere()
{
    if (!est(TypeEntreeSortie, u'E'))
        return true;
    const auto date = dateDe(valeur(DateEntreeSortie));
    return !date || *date >= jour(m_limiteSS, dateLimiteSS);
}

void ValidateurDas::ctrlParents()
{
    // The father's first name stands in the entry of all three: that is required.
    for (const Champ champ : {PrenomPere, NomMere, PrenomMere}) {
        if (nomAbsent(champ)) {
            signalerNom(Classe::SansIncidence, champ,
                        u"  -  Prenom Pére : "_s + valeur(PrenomPere) + u"  -  "_s);
        }
    }
}

void ValidateurDas::ctrlNaissance()
{
    // The blank behind "Ligne N°:" belongs to the date of birth alone.
    if (CtrlDate(DateNaissance, u" est Vide", u" "))
        CtrlAge(static_cast<double>(m_annee), 16, u" age de moins de 15 ans", u" age de plus de 85 ans");
}

/// The movement is an entry or a leaving: its date against the duration and the campaign.
void ValidateurDas::ctrlEntreeSortie()
{
    if (!CtrlDureeDates()) {
        signaler(Classe::RejetDur,
                 prefixeNoms() + u"  Nombre de jour travaillé ou Date entrée/sortie non valide "_s,
                 label(TypeEntreeSortie) + u" date incorrecte"_s);
    }
    const QDate date = jour(m_dateES, valeur(DateEntreeSortie));
    const bool entre = est(TypeEntreeSortie, u'E');
    if (entre && date > jour(m_finCampagne, periodeCampagne)) {
        signalerMots(Classe::SansIncidence,
                     u"Date Entrée = "_s + valeur(DateEntreeSortie) + u" est > Période Campagne"_s);
        valeur(DateEntreeSortie) = DateNeutre;
    } else if (!entre && date < jour(m_debutCampagne, periodeCampagne)) {
        signalerMots(Classe::SansIncidence,
                     u"Date Sortie = "_s + valeur(DateEntreeSortie) + u" est < Période Campagne"_s);
        valeur(DateEntreeSortie) = DateNeutre;
        valeur(TypeEntreeSortie) = u"E";
    } else if (entre && national()) {
        ++nbNationauxEntres;
    }
}

/// Whether the time worked fits between the movement and the campaign's other end.
bool ValidateurDas::CtrlDureeDates()
{
    constexpr double joursDuMois = 26;
    const QDate date = jour(m_dateES, valeur(DateEntreeSortie));
    const auto jours = static_cast<double>(est(TypeEntreeSortie, u'E')
                                               ? date.daysTo(jour(m_finCampagne, periodeCampagne)) + 1
                                               : jour(m_debutCampagne, periodeCampagne).daysTo(date));
    if (est(TypeDuree, u'M'))
        return jours >= joursDuMois * m_duree;
    if (est(TypeDuree, u'J'))
        return jours >= m_duree;
    if (est(TypeDuree, u'H'))
        return jours * fonds::HeuresParJour >= m_duree;
    return true;
}

Verdict ValidateurDas::conclure()
{
    annoncerTaux();

    comparerTotaux(m_affiche.total, m_affiche.effectif);

    const bool retournee = rejetDur || tauxSS < 100 || tauxSansCompte > 10;
    if (retournee) {
        dialogue().avertir(
            u"Votre Das Contient des Erreurs !!!\nElle sera retournée par la KORVANDEL !!!\nVeuillez Corriger votre Fichier avant envoi, S.V.P!!!"_s);
        m_resultat2 += u'\n';
    }
    nommerOnglets();
    return retournee ? Verdict::Rejetee : Verdict::Acceptee;
}

void ValidateurDas::annoncerTaux()
{
    const auto taux = [](qint64 part, double tout) {
        if (tout == 0)
            throw ErreurConversion(u"Division par zéro."_s);
        return static_cast<double>(part) / tout * 100;
    };
    const auto nationaux = static_cast<double>(nbNationaux);

    // The figures shown in the first and the third box are shares of the nationals, whatever the rate that
    // brings the box up: that is required.
    tauxSS = taux(nbSSValides, lireNombre(m_entete.effectif));
    if (tauxSS < 100 && !rejetDur) {
        dialogue().afficher(u"Votre DAS sera retourné par la KORVANDEL, un taux de "_s +
                            formatMasque(taux(nbSSValides, nationaux), FormatTaux) +
                            u"  % de salariés uniquement possèdent un numéro SS valide"_s);
    }
    if (nbNationaux != 0)
        tauxSansCompte = taux(nbSansCompte, nationaux);
    if (tauxSansCompte > 10 && !rejetDur) {
        dialogue().afficher(u"Votre DAS possède un taux de "_s + formatMasque(tauxSansCompte, FormatTaux) +
                            u"  % de salariés ne possèdent  pas de compte CCP ou bancaire"_s);
    }
    if (nbNationauxEntres == 0)
        return;
    tauxNin = taux(nbNinValides, static_cast<double>(nbNationauxEntres));
    if (!rejetDur && tauxNin < 30) {
        dialogue().informer(u"Votre DAS présente un faible taux "_s +
                            formatMasque(taux(nbNinValides, nationaux), FormatTaux) +
                            u"  % de salariés possèdent un NIN correcte !"_s);
    }
}

/// The sixteen captions of the months and quarters of the campaign.
void ValidateurDas::nommerOnglets()
{
    m_onglets.clear();
    const auto nommer = [this](const QStringList &periodes, qint64 annee) {
        for (const QString &periode : periodes)
            m_onglets.append({u"Lab"_s + periode, QString::number(annee) + u'-' + periode});
    };
    nommer({u"07"_s, u"08"_s, u"09"_s, u"T3"_s, u"10"_s, u"11"_s, u"12"_s, u"T4"_s}, m_annee - 1);
    nommer({u"01"_s, u"02"_s, u"03"_s, u"T1"_s, u"04"_s, u"05"_s, u"06"_s, u"T2"_s}, m_annee);
}
