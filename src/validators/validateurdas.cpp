#include "validators/validateurdas.h"

#include "rules/date.h"
#include "rules/dialogue.h"
#include "rules/erreurs.h"
#include "rules/fonds.h"
#include "rules/identite.h"
#include "rules/nombre.h"
#include "rules/saisie.h"
#include "rules/texte.h"

#include <algorithm>
#include <cmath>
#include <string_view>

using namespace Qt::StringLiterals;
using namespace std::string_view_literals;

namespace {

constexpr QStringView FormatTaux = u" ## ###.00";
constexpr QStringView FormatMontant = u"## ### ### ### ###.00";

constexpr QStringView NonNumerique = u" est Non Numérique";
constexpr QStringView NonValide = u" est Non Valide";
constexpr QStringView DateNeutre = u"01/01/1900";

QStringView debut(QStringView texte, qsizetype nombre) { return texte.first(std::min(texte.size(), nombre)); }

QStringView fin(QStringView texte, qsizetype nombre) { return texte.last(std::min(texte.size(), nombre)); }

/// Characters from a place on, counted from 1; fewer where the text ends before.
QStringView milieu(QStringView texte, qsizetype place, qsizetype nombre)
{
    return texte.size() < place ? QStringView() : debut(texte.sliced(place - 1), nombre);
}

/// Whether a code is this letter.
bool est(QStringView code, QChar lettre) { return code.size() == 1 && code[0] == lettre; }

/// A day that a rule can't do without. @throws ErreurConversion where there is none
QDate jour(const std::optional<QDate> &date, QStringView texte) { return date ? *date : lireDate(texte); }

/// Count of the lines less that of the header, in plain text. Any number may stand in the header.
QString ecartDesNombres(qint64 lignes, QStringView entete)
{
    constexpr double exact = 9e14; // what an amount holds
    const double declare = lireNombre(entete);
    return std::abs(declare) < exact ? (Currency::deEntier(lignes) - LireMontant(entete)).texte()
                                     : texteNombre(static_cast<double>(lignes) - declare);
}

} // namespace

QStringList ValidateurDas::nomsResultat() const { return {u"LabDAS"_s, u"LabDAS2"_s}; }

QString ValidateurDas::titreInfo() const { return u"DAS INFO"_s; }

QString ValidateurDas::titreImpression(const ListesErreurs &listes) const
{
    return (&listes == &rejets ? u"LISTE DES ERREURS DE REJET DAS EMPLOYEUR N° "_s
                               : u"LISTE DES ERREURS MODIFIEES DAS EMPLOYEUR N° "_s) +
           m_affiche.employeur + u" - ANNEE "_s + m_affiche.annee;
}

QList<Validateur::Libelle> ValidateurDas::libelles() const
{
    return libellesResultat() + m_onglets +
           QList<Libelle>{{u"LabEmpl"_s, m_affiche.employeur},  {u"LabAnn"_s, m_affiche.annee},
                          {u"LabNumDAS"_s, m_affiche.numero},   {u"LabSalDAS"_s, m_affiche.total},
                          {u"LabNbDAS"_s, m_affiche.effectif},  {u"LabTotSalaires"_s, LabTotSalaires},
                          {u"LabTotSalaries"_s, LabTotSalaries}};
}

void ValidateurDas::reinitialiser()
{
    ViderEnteteDas();
    LabTotSalaires.clear();
    LabTotSalaries.clear();
    m_onglets.clear();
    nbSSValides = nbNationaux = nbSansCompte = nbNinValides = nbNationauxEntres = 0;
    tauxSS = tauxSansCompte = tauxNin = 0;
}

void ValidateurDas::AfficherEnteteDas() { m_affiche = m_entete; }

void ValidateurDas::ViderEnteteDas() { m_affiche = {}; }

bool ValidateurDas::premiereLigne(const QString &marque)
{
    if (marque == fonds::MarqueDas)
        return true;
    dialogue().afficher(u"Erreur Première Ligne différente de   "_s + fonds::MarqueDas +
                            u"   \nVeuillez corriger SVP !!!"_s,
                        titreInfo());
    // The anomaly message follows as well: that is required.
    throw ErreurConversion(u"La première ligne n'est pas celle d'une DAS."_s);
}

bool ValidateurDas::entete(const QString &ligne)
{
    std::array<QStringView, 5> champs;
    couper(ligne, champs);
    m_entete = {champs[0].toString(), champs[1].toString(), sansBlancs(champs[2]),
                sansBlancs(champs[3]).replace(SepAutre, SepDecimal), champs[4].toString()};

    // The name is <employer, 8>_DAS_<year, 4>.txt
    bool accord = true;
    if (m_entete.employeur != debut(nomFichier(), 8)) {
        dialogue().afficher(
            u"Erreur N° Employeur Deuxième Ligne différent du Nom du Fichier \nVeuillez corriger SVP !!!"_s);
        joindre(m_resultat, u"N° Employeur Deuxième Ligne différent du Nom du Fichier!!!"_s);
        accord = false;
    }
    if (m_entete.annee != milieu(nomFichier(), 14, 4)) {
        dialogue().afficher(
            u"Erreur Année Deuxième Ligne différente du Nom du Fichier \nVeuillez corriger SVP !!!"_s);
        joindre(m_resultat, u"Année Deuxième Ligne différente du Nom du Fichier!!!"_s);
        accord = false;
    }
    if (!accord)
        return false;

    m_annee = static_cast<qint64>(std::nearbyint(lireNombre(m_entete.annee)));
    const QString annee = QString::number(m_annee);
    const QString avant = QString::number(m_annee - 1);
    periodeCampagne = u"01/07/"_s + avant + u"-30/06/"_s + annee;
    m_debutCampagne = dateDe(QString(u"01/07/"_s + avant));
    m_finCampagne = dateDe(QString(u"30/06/"_s + annee));
    m_lendemainCampagne = dateDe(QString(u"01/07/"_s + annee));

    if (const QString fautes = CtrlEnteteDas(); !fautes.isEmpty()) {
        dialogue().afficher(fautes, titreInfo());
        joindre(m_resultat, fautes);
    }
    AfficherEnteteDas();
    dateLimiteSS = u"01/06/"_s + m_affiche.annee;
    m_limiteSS = dateDe(dateLimiteSS);
    return true;
}

QString ValidateurDas::CtrlEnteteDas() const
{
    constexpr QStringView chiffres = u"0123456789";
    QString fautes;
    if (m_entete.numero == u"0")
        joindre(fautes, u"Numéro DAS Nul!!! Il Doit Etre Supérieur à 0 !!!"_s);
    if (!faitDe(m_entete.numero, chiffres))
        joindre(fautes, u"Numéro DAS Non Numérique ou Négatif!!!"_s);
    // Where other words stand in front, a blank stands before the marks.
    const auto marques = [&] { return fautes.isEmpty() ? u"!!!"_s : u" !!!"_s; };
    if (!faitDe(m_entete.total, u"0123456789.,"))
        joindre(fautes, u"Montant Total des Salaires Non Numérique ou Négatif"_s + marques());
    if (!faitDe(m_entete.effectif, chiffres))
        joindre(fautes, u"Nombre Total des Salariés Non Numérique ou Négatif"_s + marques());
    return fautes;
}

bool ValidateurDas::etranger() { return est(valeur(Etranger), u'O'); }

bool ValidateurDas::national() { return est(valeur(Etranger), u'N'); }

void ValidateurDas::DecouperLigneDas(QByteArrayView octets)
{
    decouper(octets, m_champs);
    oterBlancs(valeur(SalaireAnnuel));
    oterBlancs(valeur(DureeTravaillee));
    QChar *salaire = caracteres(valeur(SalaireAnnuel));
    std::replace(salaire, salaire + valeur(SalaireAnnuel).size(), QChar(SepAutre), QChar(SepDecimal));
    m_duree = Val(valeur(DureeTravaillee));
}

void ValidateurDas::ligne(QByteArrayView octets)
{
    DecouperLigneDas(octets);
    situer({valeur(NumSalarie), valeur(Nom), valeur(Prenom)});

    CtrlCode(Etranger);
    CtrlNumerique(NumSalarie);
    CtrlTexte(Nom);
    CtrlTexte(Prenom);
    CtrlTexte(PrenomPere);
    CtrlTexte(NomMere);
    CtrlTexte(PrenomMere);
    if (!etranger())
        CtrlNumerique(Nin);
    CtrlTexte(Nationalite);
    CtrlCode(SituationFamiliale);
    CtrlDate(DateNaissance);
    CtrlTexte(Adresse);
    CtrlCode(Presume);
    if (!etranger())
        CtrlTexte(CompteCCP);
    CtrlNumerique(SalaireAnnuel);
    CtrlNumerique(DureeTravaillee);
    CtrlCode(TypeDuree);
    CtrlDate(DateEntreeSortie);
    CtrlCode(TypeEntreeSortie);
    CtrlCode(Categorie);
    if (!valeur(Telephone).isEmpty())
        CtrlCode(Telephone);
    if (!valeur(Mail).isEmpty())
        CtrlCode(Mail);

    ajouterSalaire(valeur(SalaireAnnuel));
}

QStringView ValidateurDas::label(Champ champ)
{
    switch (champ) {
    case NumSalarie:
        return u"N° Salarié"sv;
    case Nom:
        return u"Nom"sv;
    case Prenom:
        return u"Prenom"sv;
    case SituationFamiliale:
        return u"Situation Familiale"sv;
    case DateNaissance:
        return u"Date Naissance"sv;
    case Adresse:
        return u"Adresse"sv;
    case Presume:
        return u"Présumé"sv;
    case Etranger:
        return u"Etranger"sv;
    case CompteCCP:
        return u"N° Compte CCP"sv;
    case SalaireAnnuel:
        return u"Salaire Annuel"sv;
    case DureeTravaillee:
        return u"Durée Travaillée"sv;
    case TypeDuree:
        return u"Type Durée Travaillée"sv;
    case DateEntreeSortie:
        return u"Date Entrée / Sortie"sv;
    case TypeEntreeSortie:
        return u"Type Entrée / Sortie"sv;
    case Categorie:
        return u"Categorie"sv;
    case Telephone:
        return u"Telephone"sv;
    case Mail:
        return u"Mail"sv;
    case Nationalite:
        return u"Nationalite"sv;
    case PrenomPere:
        return u"PrenomPere"sv;
    case NomMere:
        return u"NomMere"sv;
    case PrenomMere:
        return u"PrenomMere"sv;
    case Nin:
        return u"NIN"sv;
    case CompteBancaire:
    case ActeNaissance:
        break; // tested together with another field, under that one's label
    }
    return {};
}

void ValidateurDas::CtrlNumerique(Champ champ)
{
    const QStringView texte = valeur(champ);
    // A NIN that is no number is told by its form alone.
    if (champ != Nin && !EstNumerique(texte)) {
        signalerValeur(Classe::Rejet, label(champ), texte, NonNumerique);
        return;
    }
    // Only a sign in front makes a number negative.
    if (texte.startsWith(u'-') && Val(texte) < 0) {
        signalerValeur(Classe::RejetDur, label(champ), texte, NonNumerique);
        return;
    }
    switch (champ) {
    case NumSalarie:
        return ctrlNumeroSalarie();
    case Nin:
        return ctrlNin();
    case DureeTravaillee:
        return ctrlDuree();
    default:
        return;
    }
}

void ValidateurDas::ctrlNumeroSalarie()
{
    const QStringView numero = valeur(NumSalarie);
    const QStringView nomChamp = label(NumSalarie);
    if (numero == NumeroBlanc) {
        const bool tolere = SsManquantTolere();
        signaler(tolere ? Classe::SansIncidence : Classe::RejetDur,
                 prefixeNoms() + u"  N° SS non fournie !"_s, nomChamp + u" / N° SS Incorrecte !"_s);
        if (tolere)
            ++nbSSValides;
        return;
    }
    if (debut(numero, 2) != fin(valeur(DateNaissance), 2)) {
        signaler(Classe::RejetDur, prefixe() + u"   Numéro SS ou date naissance Incorrecte !"_s,
                 nomChamp + u" / Pas de concordance entre le Numéro  SS et la date de naissance !"_s);
    } else if (numero.size() != 12) {
        signaler(Classe::RejetDur, prefixe() + u"  Taille  Numéro SS doit être égal à 12 !"_s,
                 nomChamp + u" / la Numéro SS est constitué de 12 chiffres !"_s);
    } else if (!cleSSJuste(numero)) {
        signaler(Classe::RejetDur, prefixe() + u"  Clés de controle du Numéro  SS incorrecte ! "_s,
                 nomChamp + u" /  Clés SS Incorrecte"_s);
    } else if (national() && milieu(numero, 3, 4) != fin(valeur(ActeNaissance), 4)) {
        // The words for the print are those of a number that is none: that is required.
        signaler(Classe::Rejet, prefixe() + u"  ou Numéro acte de naissance Incorrecte "_s,
                 nomChamp + u" = "_s + numero + NonNumerique);
    } else {
        ++nbSSValides;
    }
}

void ValidateurDas::ctrlNin()
{
    const QStringView nin = valeur(Nin);
    if (nin.size() != 18 || nin.startsWith(u"00") || milieu(nin, 10, 5) != valeur(ActeNaissance)) {
        signaler(Classe::SansIncidence, prefixe() + u"  -  NIN : "_s + nin + u" Incorrecte "_s,
                 label(Nin) + u" NIN Incorrecte"_s);
    } else if (est(valeur(TypeEntreeSortie), u'E')) {
        ++nbNinValides;
    }
}

void ValidateurDas::ctrlDuree()
{
    const QStringView texte = valeur(DureeTravaillee);
    const QStringView nomChamp = label(DureeTravaillee);
    const double salaire = Val(valeur(SalaireAnnuel));
    if (m_duree > 0 && salaire == 0) {
        signalerValeur(Classe::RejetDur, nomChamp, texte, u" est (>0) pour un Salaire Annuel Nul (=0)",
                       u" non autorisé");
    } else if (m_duree == 0 && salaire == 0) {
        const QString mots = nomChamp + u" et Salaire Annuel Nuls (=0)"_s;
        signaler(Classe::SansIncidence, prefixeNoms() + u"  -  "_s + mots, mots);
    } else if (m_duree == 0 && salaire > 0) {
        const QString mots = nomChamp + u" = 0 pour Salaire Annuel >0, Risque Erreur (Sauf si Rappel)"_s;
        signaler(Classe::SansIncidence, prefixeNoms() + u"  -  "_s + mots, mots);
    }
}

void ValidateurDas::CtrlCode(Champ champ)
{
    QStringView &code = valeur(champ);
    enMajuscules(code);
    /// Whether the code is one of the letters; if not, the error is listed and the fund's own letter stands
    /// there.
    // The literals carry their length: it would otherwise be counted for every line.
    const auto parmi = [&](QStringView lettres, QStringView mots, Classe classe, QStringView remplacement) {
        if (std::any_of(lettres.begin(), lettres.end(), [&](QChar lettre) { return est(code, lettre); }))
            return true;
        signalerValeur(classe, label(champ), code, mots);
        if (!remplacement.isEmpty())
            code = remplacement;
        return false;
    };

    switch (champ) {
    case Etranger:
        parmi(u"ON"sv, u" est Différent de O(Oui) ou N(Non)"sv, Classe::SansIncidence, u"N"sv);
        ctrlNationalite();
        break;
    case SituationFamiliale:
        parmi(u"MC"sv, u" est Différente de M(Marié) ou C(Célibataire)"sv, Classe::SansIncidence, u"C"sv);
        break;
    case Presume:
        parmi(u"ON"sv, u" est Différent de O(Oui) ou N(Non)"sv, Classe::SansIncidence, u"N"sv);
        break;
    case TypeDuree:
        if (parmi(u"MJH"sv, u" est Différent de M(Mois), J(Jour) ou H(Heure)"sv, Classe::RejetDur, {}))
            ctrlTypeDuree();
        break;
    case TypeEntreeSortie:
        if (parmi(u"ES"sv, u" est Différent de E(Entrée) ou S(Sortie)"sv, Classe::SansIncidence, u"E"sv))
            ctrlEntreeSortie();
        break;
    case Categorie:
        parmi(u"MF"sv, u" est Différente de M(Masculin) ou F(Féminin)"sv, Classe::SansIncidence, u"M"sv);
        break;
    case Telephone:
        if (!TelephoneValide(code))
            signalerValeur(Classe::SansIncidence, label(champ), code, u" est incorrecte");
        break;
    case Mail:
        if (!MailValide(code))
            signalerValeur(Classe::SansIncidence, label(champ), code, u" est incorrecte");
        break;
    default:
        break;
    }
}

/// The nationality that a foreigner must have, one of the list other than the national one.
void ValidateurDas::ctrlNationalite()
{
    if (national()) {
        ++nbNationaux;
        return;
    }
    const double code = Val(valeur(Nationalite));
    if (code < fonds::PremiereNationalite || code > fonds::DerniereNationalite ||
        code == fonds::NationaliteNationale) {
        const QStringView nomChamp = label(Etranger);
        signaler(Classe::RejetDur,
                 prefixeNoms() + u"  -  "_s + nomChamp + u" = "_s + valeur(Etranger) +
                     u" code nationalité incorrecte"_s,
                 nomChamp + u" mal renseignée"_s);
    }
}

/// The unit of the duration is known: the duration must be one of a year.
void ValidateurDas::ctrlTypeDuree()
{
    const QStringView unite = valeur(TypeDuree);
    if (m_duree < 0 || m_duree > fonds::dureeMaximale(unite[0])) {
        const QString mots = u" pour une Durée Travaillée = "_s + valeur(DureeTravaillee) +
                             u" Se Trouvant en dehors de l'Intervalle Autorisé"_s;
        signalerValeur(Classe::RejetDur, label(TypeDuree), unite, mots);
    }
}

/// The movement is an entry or a leaving: its date against the duration and the campaign.
void ValidateurDas::ctrlEntreeSortie()
{
    QStringView &type = valeur(TypeEntreeSortie);
    QStringView &dateES = valeur(DateEntreeSortie);
    if (!CtrlDureeDates()) {
        signaler(Classe::RejetDur,
                 prefixeNoms() + u"  Nombre de jour travaillé ou Date entrée/sortie non valide "_s,
                 label(TypeEntreeSortie) + u" date incorrecte"_s);
    }
    const QDate date = jour(m_dateES, dateES);
    if (est(type, u'E') && date > jour(m_finCampagne, periodeCampagne)) {
        const QString mots = u"Date Entrée = "_s + dateES + u" est > Période Campagne"_s;
        signaler(Classe::SansIncidence, prefixeNoms() + u"  -  "_s + mots, mots);
        dateES = DateNeutre;
    } else if (est(type, u'S') && date < jour(m_debutCampagne, periodeCampagne)) {
        const QString mots = u"Date Sortie = "_s + dateES + u" est < Période Campagne"_s;
        signaler(Classe::SansIncidence, prefixeNoms() + u"  -  "_s + mots, mots);
        dateES = DateNeutre;
        type = u"E";
    } else if (est(type, u'E') && national()) {
        ++nbNationauxEntres;
    }
}

void ValidateurDas::CtrlDate(Champ champ)
{
    const QStringView texte = valeur(champ);
    const bool naissance = champ == DateNaissance;
    const auto date = dateDe(texte);
    if (!naissance)
        m_dateES = date;
    if (texte.isEmpty()) {
        // The blank behind "Ligne N°:" belongs to the date of birth alone.
        signaler(Classe::RejetDur,
                 prefixeNoms(naissance ? u" " : u"") + u"  -  "_s + label(champ) + u" est Vide"_s,
                 naissance ? QString(label(champ) + u" est Vide"_s)
                           : QString(label(champ) + u" =  est vide "_s));
        return;
    }
    if (!date) {
        signalerValeur(Classe::RejetDur, label(champ), texte, NonValide);
        return;
    }
    if (!naissance)
        return;
    const double annee = Val(fin(texte, 4));
    if (annee > static_cast<double>(m_annee - 16))
        signalerValeur(Classe::RejetDur, label(champ), texte, NonValide, u" age de moins de 15 ans");
    else if (annee < static_cast<double>(m_annee - fonds::AgeMaximal))
        signalerValeur(Classe::RejetDur, label(champ), texte, NonValide, u" age de plus de 85 ans");
}

void ValidateurDas::CtrlTexte(Champ champ)
{
    QStringView &texte = valeur(champ);
    switch (champ) {
    case Nom:
    case Prenom:
        if (texte.isEmpty() || !SansChiffre(texte)) {
            const QString mots = label(champ) + u" est Vide ou incorrecte"_s;
            signaler(Classe::RejetDur,
                     prefixe() + u"  -  Nom : "_s + valeur(Nom) + u"  - Prénom: "_s + valeur(Prenom) +
                         u"  -  "_s + mots,
                     mots);
        }
        break;
    case PrenomPere:
    case NomMere:
    case PrenomMere:
        if (texte.isEmpty() || !SansChiffre(texte)) {
            // The father's first name stands in the entry of all three: that is required.
            const QString mots = label(champ) + u" est Vide ou incorrecte"_s;
            signaler(Classe::SansIncidence,
                     prefixe() + u"  -  Prenom Pére : "_s + valeur(PrenomPere) + u"  -  "_s + mots, mots);
        }
        break;
    case Nationalite:
        if (texte.isEmpty()) {
            signaler(Classe::SansIncidence, prefixeNoms() + u"  -  "_s + label(champ) + u" est Vide"_s,
                     label(champ) + u" =  est Vide"_s);
            texte = u"004";
        }
        break;
    case Adresse:
        if (texte.size() < 15) {
            signaler(Classe::RejetDur, prefixe() + u"  -  Adresse : "_s + texte + u"  Vide ou non valide"_s,
                     label(champ) + u" Vide ou non valide"_s);
        }
        break;
    case CompteCCP:
        ctrlComptes();
        break;
    default:
        break;
    }
}

/// A national has one account at least. Both are always looked at; the first is shown as its test leaves it,
/// without zeros in front.
void ValidateurDas::ctrlComptes()
{
    const bool ccp = CtrlCompteCCP(valeur(CompteCCP));
    const bool rip = CtrlRIP(valeur(CompteBancaire));
    if (ccp || rip)
        return;
    ++nbSansCompte;
    const QStringView nomChamp = label(CompteCCP);
    signaler(Classe::Rejet,
             prefixeNoms() + u"  -  "_s + nomChamp + u"  "_s + valeur(CompteCCP) + u"   "_s +
                 valeur(CompteBancaire) + u" / et compte Bancaire non disponible"_s,
             nomChamp + u" Vide ou non valide"_s);
}

/// A newcomer of the campaign's last month may lack a number, and whoever left.
bool ValidateurDas::SsManquantTolere()
{
    if (!est(valeur(TypeEntreeSortie), u'E'))
        return true;
    const auto date = dateDe(valeur(DateEntreeSortie));
    return !date || *date >= jour(m_limiteSS, dateLimiteSS);
}

/// Whether the time worked fits between the movement and the campaign's other end.
bool ValidateurDas::CtrlDureeDates()
{
    const QDate date = jour(m_dateES, valeur(DateEntreeSortie));
    const double jours = est(valeur(TypeEntreeSortie), u'E')
                             ? static_cast<double>(date.daysTo(jour(m_lendemainCampagne, periodeCampagne)))
                             : static_cast<double>(jour(m_debutCampagne, periodeCampagne).daysTo(date));
    const QStringView unite = valeur(TypeDuree);
    if (est(unite, u'M'))
        return jours >= 26 * m_duree;
    if (est(unite, u'J'))
        return jours >= m_duree;
    if (est(unite, u'H'))
        return jours * fonds::HeuresParJour >= m_duree;
    return true;
}

Verdict ValidateurDas::conclure()
{
    annoncerTaux();

    permettreOnglets();
    comparerTotaux();

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

/// Shows the totals of the lines and says how they stand to those of the header.
void ValidateurDas::comparerTotaux()
{
    LabTotSalaires = formatMasque(totalSalaires.valeur(), FormatMontant);
    LabTotSalaries = QString::number(nbLignes);
    m_affiche.total = formatMasque(lireNombre(m_affiche.total), FormatMontant);

    const auto comparer = [](const QString &ecart, const QString &sujet) {
        if (ecart == u"0")
            return QString(sujet + u" = Entête DAS"_s);
        return QString(sujet + (ecart.startsWith(u'-') ? u" < "_s : u" > "_s) + u"Entête DAS de  "_s + ecart);
    };
    m_resultat2 =
        comparer((LireMontant(LabTotSalaires) - LireMontant(m_affiche.total)).texte(), u"Total Lignes DAS"_s);
    joindre(m_resultat2,
            comparer(ecartDesNombres(nbLignes, m_affiche.effectif), u"Total Nb Salariés Lignes DAS"_s));
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
