#include "validators/validateursalaires.h"

#include "rules/dialogue.h"
#include "rules/fonds.h"
#include "rules/identite.h"
#include "rules/nombre.h"
#include "rules/saisie.h"
#include "rules/texte.h"

using namespace Qt::StringLiterals;

ValidateurSalaires::ValidateurSalaires(const ParticularitesSalaires &particularites)
    : Validateur(particularites.cadre), m_particularites(particularites)
{
}

QString ValidateurSalaires::enTitre() const
{
    return m_affiche.employeur + u" - ANNEE "_s + m_affiche.periode;
}

void ValidateurSalaires::reinitialiser()
{
    m_affiche = {};
    nbNationaux = nbSansCompte = nbNinValides = nbNationauxEntres = 0;
    tauxSansCompte = 0;
}

// The header

bool ValidateurSalaires::nomConforme()
{
    bool conforme = true;
    const auto exiger = [&](QStringView lu, QStringView nomme, QStringView faute, QStringView label) {
        if (lu == nomme)
            return;
        dire(faute + u"\nVeuillez corriger SVP !!!"_s);
        joindre(m_resultat, label.toString());
        conforme = false;
    };
    exiger(m_entete.employeur, debutDe(nomFichier(), 8), m_particularites.fauteEmployeur,
           u"N° Employeur Deuxième Ligne différent du Nom du Fichier!!!");
    exiger(m_entete.periode,
           milieuDe(nomFichier(), m_particularites.placePeriode, m_particularites.longueurPeriode),
           u"Erreur Année Deuxième Ligne différente du Nom du Fichier ", m_particularites.labelPeriode);
    return conforme;
}

QString ValidateurSalaires::fautesEntete() const
{
    constexpr QStringView chiffres = u"0123456789";
    QString fautes;
    // "00" passes: that is required.
    if (m_entete.numero == u"0")
        fautes = m_particularites.numeroNul.toString();
    noterFaute(fautes, !faitDe(m_entete.numero, chiffres), m_particularites.numero);
    noterFaute(fautes, !faitDe(m_entete.total, u"0123456789.,"), m_particularites.montant);
    noterFaute(fautes, !faitDe(m_entete.effectif, chiffres),
               u"Nombre Total des Salariés Non Numérique ou Négatif");
    return fautes;
}

void ValidateurSalaires::direFautesEntete(const QString &fautes)
{
    if (fautes.isEmpty())
        return;
    dialogue().afficher(fautes, m_particularites.cadre.titreEntete.toString());
    joindre(m_resultat, fautes);
}

// A line

/// A foreigner must have a nationality of the list other than the national one.
void ValidateurSalaires::ctrlEtranger()
{
    CtrlCode(Etranger,
             {.lettres = u"ON", .mots = u" est Différent de O(Oui) ou N(Non)", .remplacement = u"N"});
    if (national()) {
        ++nbNationaux;
        return;
    }
    const double code = Val(valeur(Nationalite));
    if (code < fonds::PremiereNationalite || code > fonds::DerniereNationalite ||
        code == fonds::NationaliteNationale) {
        signaler(Classe::RejetDur,
                 prefixeNoms() + u"  -  "_s + label(Etranger) + u" = "_s + valeur(Etranger) +
                     u" code nationalité incorrecte"_s,
                 label(Etranger) + u" mal renseignée"_s);
    }
}

bool ValidateurSalaires::ctrlNumero()
{
    const QStringView numero = valeur(NumSalarie);
    if (debutDe(numero, 2) != finDe(valeur(DateNaissance), 2)) {
        signaler(Classe::RejetDur, prefixe() + u"   Numéro SS ou date naissance Incorrecte !"_s,
                 label(NumSalarie) +
                     u" / Pas de concordance entre le Numéro  SS et la date de naissance !"_s);
    } else if (numero.size() != 12) {
        signaler(Classe::RejetDur, prefixe() + u"  Taille  Numéro SS doit être égal à 12 !"_s,
                 label(NumSalarie) + u" / la Numéro SS est constitué de 12 chiffres !"_s);
    } else if (!cleSSJuste(numero)) {
        signaler(Classe::RejetDur,
                 prefixe() + u"  Clés de controle du Numéro  SS incorrecte "_s +
                     m_particularites.finCleFausse,
                 label(NumSalarie) + u" /  Clés SS Incorrecte"_s);
    } else {
        return true;
    }
    return false;
}

/// The number of a national's birth certificate stands in the social-security number.
bool ValidateurSalaires::acteConcorde() const
{
    return !national() || milieuDe(valeur(NumSalarie), 3, 4) == finDe(valeur(ActeNaissance), 4);
}

void ValidateurSalaires::ctrlNin()
{
    const QStringView nin = valeur(Nin);
    if (nin.size() != 18 || nin.startsWith(u"00") || milieuDe(nin, 10, 5) != valeur(ActeNaissance)) {
        signaler(Classe::SansIncidence, prefixe() + u"  -  NIN : "_s + nin + u" Incorrecte "_s,
                 label(Nin) + u" NIN Incorrecte"_s);
    } else if (est(TypeEntreeSortie, u'E')) {
        ++nbNinValides;
    }
}

void ValidateurSalaires::ctrlNationalite()
{
    if (!valeur(Nationalite).isEmpty())
        return;
    signaler(Classe::SansIncidence, prefixeNoms() + u"  -  "_s + label(Nationalite) + u" est Vide"_s,
             label(Nationalite) + m_particularites.motsNationaliteVide.toString());
    valeur(Nationalite) = u"004";
}

void ValidateurSalaires::ctrlPresume()
{
    CtrlCode(Presume,
             {.lettres = u"ON", .mots = u" est Différent de O(Oui) ou N(Non)", .remplacement = u"N"});
}

/// A national has one account at least. Both are always looked at; the first is shown as its test leaves it,
/// without zeros in front.
void ValidateurSalaires::ctrlComptes()
{
    const bool ccp = CtrlCompteCCP(valeur(CompteCCP));
    const bool rip = CtrlRIP(valeur(CompteBancaire));
    if (ccp || rip)
        return;
    ++nbSansCompte;
    signaler(Classe::Rejet,
             prefixeNoms() + u"  -  "_s + label(CompteCCP) + u"  "_s + valeur(CompteCCP) + u"   "_s +
                 valeur(CompteBancaire) + u" / et compte Bancaire non disponible"_s,
             label(CompteCCP) + u" Vide ou non valide"_s);
}

bool ValidateurSalaires::nomAbsent(Champ champ) const
{
    return valeur(champ).isEmpty() || (m_particularites.chiffresRefuses && !SansChiffre(valeur(champ)));
}

void ValidateurSalaires::signalerNom(Classe classe, Champ champ, const QString &montre)
{
    const QString mots = label(champ) + m_particularites.motsNom.toString();
    signaler(classe, prefixe() + montre + mots, mots);
}

void ValidateurSalaires::ctrlNoms()
{
    for (const Champ champ : {Nom, Prenom}) {
        if (nomAbsent(champ)) {
            signalerNom(Classe::RejetDur, champ,
                        u"  -  Nom : "_s + valeur(Nom) + u"  - Prénom: "_s + valeur(Prenom) + u"  -  "_s);
        }
    }
}

void ValidateurSalaires::ctrlSalaire() { CtrlNumerique(Salaire, m_particularites.nonNumerique); }

void ValidateurSalaires::ctrlDuree()
{
    if (CtrlNumerique(Duree, m_particularites.nonNumerique))
        CtrlDureeEtSalaire(m_duree, valeur(Salaire), m_particularites.motsSansSalaire);
}

void ValidateurSalaires::ctrlUnite()
{
    if (!CtrlCode(TypeDuree, m_particularites.unites))
        return;
    if (m_duree < 0 || m_duree > m_particularites.dureeMaximale(valeur(TypeDuree)[0])) {
        signalerValeur(Classe::RejetDur, TypeDuree,
                       QString(u" pour une Durée Travaillée = "_s + valeur(Duree) +
                               u" Se Trouvant en dehors de l'Intervalle Autorisé"_s));
    }
}

void ValidateurSalaires::ctrlContacts()
{
    CtrlCode(Telephone, TelephoneValide);
    CtrlCode(Mail, MailValide);
}

double ValidateurSalaires::partSansCompte() const
{
    return nbNationaux == 0 ? 0 : static_cast<double>(nbSansCompte) / static_cast<double>(nbNationaux) * 100;
}
