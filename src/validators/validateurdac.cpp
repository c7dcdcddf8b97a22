#include "validators/validateurdac.h"

#include "rules/dialogue.h"
#include "rules/erreurs.h"
#include "rules/fonds.h"
#include "rules/identite.h"
#include "rules/nombre.h"
#include "rules/texte.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView TitreVerdict = u"DAC KORVANDEL";

constexpr RegleCode mouvements{
    .lettres = u"ES", .mots = u" est Différent de E(Entrée) ou S(Sortie)", .classe = Classe::RejetDur};

// Codes of the communes.
constexpr double PremiereCommune = 101;
constexpr double DerniereCommune = 4838;

constexpr double SansComptesToleres = 10; ///< nationals, in per cent

/// Whether a base is below the minimal wage of these hours.
bool sousLeSmig(double assiette, double heures)
{
    if (heures == 0)
        throw ErreurConversion(u"Division par zéro."_s);
    // The last bits of a quotient are no part of the figures of the file: 830.80 over 8 hours is the minimum.
    constexpr double exactitude = 1e-15;
    constexpr double smig = static_cast<double>(fonds::SmigHoraire.dixMilliemes()) / 10'000;
    return assiette / heures < smig * (1 - exactitude);
}

} // namespace

ValidateurDac::ValidateurDac(BornesDePeriode *bornes)
    : ValidateurSalaires(particularitesDac), m_bornes(bornes ? *bornes : m_propres)
{
}

QList<Validateur::Libelle> ValidateurDac::libellesPropres() const
{
    return {{u"LabEmpl"_s, m_affiche.employeur}, {u"LabAnn"_s, m_affiche.periode},
            {u"LabNumDAC"_s, m_affiche.numero},  {u"LabSalDAC"_s, m_affiche.total},
            {u"LabNbDAC"_s, m_affiche.effectif}, {u"LabNbDACReel"_s, LabNbDACReel}};
}

void ValidateurDac::reinitialiser()
{
    ValidateurSalaires::reinitialiser();
    LabNbDACReel.clear();
}

bool ValidateurDac::entete(const QString &ligne)
{
    std::array<QStringView, 6> champs;
    couper(ligne, champs);
    m_entete = {champs[0].toString(), champs[1].toString(), sansBlancs(champs[2]),
                champs[3].toString().replace(SepAutre, SepDecimal), sansBlancs(champs[4])};
    m_restant = std::nearbyint(lireNombre(sansBlancs(champs[5])));
    if (!nomConforme())
        return false;

    QString fautes = fautesEntete();
    noterFaute(fautes, m_restant < 0,
               u"Nombre Total des employés sans les sortants Non Numérique ou Négatif");
    direFautesEntete(fautes);
    BornesPeriode(m_entete.periode, m_bornes);
    m_debut = dateDe(m_bornes.DateDebutPeriode);
    m_fin = dateDe(m_bornes.DateFinPeriode);
    const QStringView annee = debutDe(m_entete.periode, 4);
    m_annee = EstNumerique(annee) ? std::optional(lireNombre(annee)) : std::nullopt;

    m_affiche = m_entete;
    LabNbDACReel = texteNombre(m_restant);
    return true;
}

void ValidateurDac::decouperLigne(QByteArrayView octets)
{
    constexpr std::array<Champ, NombreColonnes> colonnes{NumSalarie,
                                                         Nom,
                                                         Prenom,
                                                         DateNaissance,
                                                         Presume,
                                                         ActeNaissance,
                                                         CommuneNaissance,
                                                         PrenomPere,
                                                         NomMere,
                                                         PrenomMere,
                                                         Etranger,
                                                         Nin,
                                                         CompteCCP,
                                                         CompteBancaire,
                                                         Fonction,
                                                         Salaire,
                                                         Duree,
                                                         TypeDuree,
                                                         DateEntreeSortie,
                                                         TypeEntreeSortie,
                                                         Telephone,
                                                         Mail,
                                                         Autre,
                                                         Nationalite,
                                                         Adresse};
    decouper(octets, colonnes);
    normaliserMontant(Salaire);
    oterBlancs(Duree);
    m_duree = Val(valeur(Duree));
}

void ValidateurDac::ligne(QByteArrayView octets)
{
    decouperLigne(octets);

    ctrlEtranger();
    ctrlNumeroSalarie();
    ctrlNoms();
    ctrlNaissance();
    ctrlParents();
    CtrlTexte(Fonction, 5);
    CtrlTexte(Adresse, 15);
    if (!etranger())
        ctrlEtatCivil();
    ctrlNationalite();
    ctrlPresume();
    if (!etranger())
        ctrlComptes();
    ctrlSalaire();
    ctrlDuree();
    ctrlUnite();
    ctrlMouvement();
    ctrlContacts();

    compter(Salaire);
}

void ValidateurDac::ctrlNumeroSalarie()
{
    if (!CtrlNumerique(NumSalarie))
        return;
    if (valeur(NumSalarie).startsWith(NumeroBlanc.first(10))) {
        const QString faute = u"Numéro  SS Non valide"_s;
        signaler(Classe::RejetDur,
                 prefixeNoms() + u"  -  "_s + label(NumSalarie) + u"  "_s + valeur(NumSalarie) + u"  / "_s +
                     faute,
                 label(NumSalarie) + u" /  "_s + faute);
    } else if (ctrlNumero() && !acteConcorde()) {
        signaler(Classe::RejetDur, prefixe() + u"  Numéro  SS ou Numéro acte de naissance incorrect !"_s,
                 label(NumSalarie) + u" pas de correspondance entre N° acte de naissance et N° SS"_s);
    }
}

void ValidateurDac::ctrlNaissance()
{
    if (CtrlDate(DateNaissance))
        CtrlAge(m_annee ? *m_annee : lireNombre(debutDe(m_entete.periode, 4)), 14);
}

void ValidateurDac::ctrlParents()
{
    if (nomAbsent(PrenomPere))
        signalerNom(Classe::RejetDur, PrenomPere, u"  -  Prenom Pére : "_s + valeur(PrenomPere) + u"  -  "_s);
    // Both names of the mother stand in the entry of each.
    for (const Champ champ : {NomMere, PrenomMere}) {
        if (nomAbsent(champ)) {
            signalerNom(Classe::RejetDur, champ,
                        u"  -  Nom  Mere : "_s + valeur(NomMere) + u"  Prénom mére :"_s + valeur(PrenomMere) +
                            u"  -   "_s);
        }
    }
}

/// What only a national has: NIN, birth certificate and commune.
void ValidateurDac::ctrlEtatCivil()
{
    if (CtrlNumerique(Nin))
        ctrlNin();
    const auto incorrect = [this](Champ champ, const QString &nom) {
        signaler(Classe::Rejet, prefixe() + u"  -  "_s + nom + u" : "_s + valeur(champ) + u" Incorrecte "_s,
                 label(champ) + u' ' + nom + u" Incorrecte"_s);
    };
    if (Val(valeur(ActeNaissance)) == 0)
        incorrect(ActeNaissance, u"Numéro acte naissance"_s);
    const double commune = Val(valeur(CommuneNaissance));
    if (valeur(CommuneNaissance).startsWith(u"0000") || commune < PremiereCommune ||
        commune > DerniereCommune)
        incorrect(CommuneNaissance, u"Commune naissance"_s);
}

void ValidateurDac::ctrlMouvement()
{
    m_dateES = CtrlDate(DateEntreeSortie);
    if (CtrlCode(TypeEntreeSortie, mouvements))
        ctrlEntreeSortie();
}

/// The date of an entry or leaving against the period, then the time worked and its wage against the date.
void ValidateurDac::ctrlEntreeSortie()
{
    const QDate date = jour(m_dateES, valeur(DateEntreeSortie));
    if (dateDansPeriode(date))
        ctrlDureeEtSmig(date);
}

bool ValidateurDac::dateDansPeriode(QDate date)
{
    const QDate debut = jour(m_debut, m_bornes.DateDebutPeriode);
    const QDate fin = jour(m_fin, m_bornes.DateFinPeriode);
    const bool entre = est(TypeEntreeSortie, u'E');
    if (date <= fin && (entre || date >= debut))
        return true;
    // The print says it in other words: that is required.
    signalerMouvement(prefixe() +
                          (entre ? u"  date entrée hors limite"_s : u"  Date de sortie hors limite"_s),
                      entre ? u" Date entrée hors limite"_s : u" Date sortie hors limite"_s);
    return false;
}

void ValidateurDac::ctrlDureeEtSmig(QDate date)
{
    if (!est(TypeDuree, u'J') && !est(TypeDuree, u'H'))
        return;
    const auto jours = static_cast<double>(
        (est(TypeEntreeSortie, u'E') ? std::max(date, *m_debut).daysTo(*m_fin) : m_debut->daysTo(date)) + 1);
    const double heures = est(TypeDuree, u'H') ? m_duree : m_duree * fonds::HeuresParJour;
    if (heures > jours * fonds::HeuresParJour) {
        const QString mots = u" Durée travaillée en jours dépasse le seuil autorisé"_s;
        signalerMouvement(prefixeNoms() + u"  -  "_s + label(TypeEntreeSortie) + u" = "_s +
                              valeur(TypeEntreeSortie) + mots,
                          u' ' + mots);
    } else if (sousLeSmig(Val(valeur(Salaire)), heures)) {
        signalerValeur(Classe::SansIncidence, TypeEntreeSortie, u" Assiette déclarée au dessous du SMIG");
    }
}

void ValidateurDac::signalerMouvement(const QString &entree, const QString &motsListe)
{
    signaler(Classe::RejetDur, entree,
             label(TypeEntreeSortie) + u" = "_s + valeur(TypeEntreeSortie) + motsListe);
}

Verdict ValidateurDac::conclure()
{
    tauxSansCompte = partSansCompte();
    comparerTotaux(m_affiche.total, m_affiche.effectif);

    if (rejetDur || tauxSansCompte > SansComptesToleres) {
        dialogue().avertir(
            u"Votre DAC Contient des Erreurs !!!\nElle sera retournée par la KORVANDEL !!!\nVeuillez Corriger votre Fichier avant envoi, S.V.P!!!"_s,
            TitreVerdict.toString());
        m_resultat2 += u'\n';
        return Verdict::Rejetee;
    }
    if (tauxSansCompte > 0 && nbErrRejet > 0) {
        dialogue().informer(
            u"Votre DAC sera acceptée même avec quelques lignes sans numéros de compte  CCP ou bancaire et numéeo SS, mais de préférence nous vous demandons de bien vouloir les renseignées !"_s,
            TitreVerdict.toString());
    }
    return Verdict::Acceptee;
}
