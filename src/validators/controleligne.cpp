#include "validators/controleligne.h"

#include "rules/date.h"
#include "rules/fonds.h"
#include "rules/nombre.h"
#include "rules/texte.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView NonNumerique = u" est Non Numérique";
constexpr QStringView NonValide = u" est Non Valide";

/// The characters of a field, which lie in a buffer of the cutter.
QChar *caracteres(QStringView champ) { return const_cast<QChar *>(champ.data()); }

} // namespace

void ControleLigne::vider()
{
    rejets.vider();
    sansIncidence.vider();
    nbErrRejet = nbErrOK = nbLignes = 0;
    rejetDur = false;
    m_champs = {};
}

void ControleLigne::decouper(QByteArrayView octets, std::span<const Champ> colonnes,
                             std::span<const int> largeurs)
{
    m_coupes.resize(colonnes.size());
    if (largeurs.empty())
        m_decoupeur.decouper(octets, m_coupes);
    else
        m_decoupeur.decouper(octets, largeurs, m_coupes);
    for (std::size_t i = 0; i < colonnes.size(); ++i)
        m_champs[colonnes[i]] = m_coupes[i];
}

void ControleLigne::enMajuscules(Champ champ)
{
    mettreEnMajuscules({caracteres(valeur(champ)), static_cast<std::size_t>(valeur(champ).size())});
}

void ControleLigne::oterBlancs(Champ champ)
{
    QChar *debut = caracteres(valeur(champ));
    valeur(champ) = valeur(champ).first(std::remove(debut, debut + valeur(champ).size(), u' ') - debut);
}

void ControleLigne::normaliserMontant(Champ champ)
{
    QChar *debut = caracteres(valeur(champ));
    QChar *place = debut;
    for (const QChar c : valeur(champ)) {
        if (c != u' ')
            *place++ = c == SepAutre ? QChar(SepDecimal) : c;
    }
    valeur(champ) = valeur(champ).first(place - debut);
}

QString ControleLigne::prefixe(QStringView apresLigne) const
{
    return u"Ligne N°:"_s + apresLigne + QString::number(nbLignes + 1) + u"  -  N° SS: "_s +
           valeur(NumSalarie);
}

QString ControleLigne::prefixeNoms(QStringView apresLigne) const
{
    return prefixe(apresLigne) + u"  -  Nom : "_s + valeur(Nom) + u' ' + valeur(Prenom);
}

void ControleLigne::signaler(Classe classe, const QString &entree, const QString &mots)
{
    const bool rejet = classe != Classe::SansIncidence;
    (rejet ? rejets : sansIncidence)
        .ajouter(entree, nbLignes + 1, valeur(NumSalarie), QString(valeur(Nom) + u' ' + valeur(Prenom)),
                 mots);
    ++(rejet ? nbErrRejet : nbErrOK);
    rejetDur = rejetDur || classe == Classe::RejetDur;
}

void ControleLigne::signalerMots(Classe classe, const QString &mots)
{
    signaler(classe, prefixeNoms() + u"  -  "_s + mots, mots);
}

void ControleLigne::signalerValeur(Classe classe, Champ champ, QStringView mots, QStringView motsListe)
{
    const QString valeurDe = label(champ) + u" = "_s + valeur(champ);
    const QStringView sujet = m_motsAvecValeur ? QStringView(valeurDe) : label(champ);
    signaler(classe, prefixeNoms() + u"  -  "_s + valeurDe + mots,
             sujet + (motsListe.isNull() ? mots : motsListe));
}

bool ControleLigne::CtrlNumerique(Champ champ, Classe nonNumerique)
{
    if (EstNumerique(valeur(champ)))
        return nonNegatif(champ);
    signalerValeur(nonNumerique, champ, NonNumerique);
    return false;
}

bool ControleLigne::nonNegatif(Champ champ)
{
    // Only a sign in front makes a number negative.
    if (!valeur(champ).startsWith(u'-') || Val(valeur(champ)) >= 0)
        return true;
    signalerValeur(Classe::RejetDur, champ, NonNumerique);
    return false;
}

bool ControleLigne::CtrlCode(Champ champ, const RegleCode &regle)
{
    enMajuscules(champ);
    if (std::any_of(regle.lettres.begin(), regle.lettres.end(),
                    [&](QChar lettre) { return est(champ, lettre); }))
        return true;
    signalerValeur(regle.classe, champ, regle.mots, regle.motsListe);
    if (!regle.remplacement.isEmpty())
        valeur(champ) = regle.remplacement;
    return false;
}

void ControleLigne::CtrlCode(Champ champ, bool (*valide)(QStringView))
{
    if (valeur(champ).isEmpty())
        return;
    enMajuscules(champ);
    if (!valide(valeur(champ)))
        signalerValeur(Classe::SansIncidence, champ, u" est incorrecte");
}

std::optional<QDate> ControleLigne::CtrlDate(Champ champ, QStringView motsVide, QStringView apresLigne)
{
    const auto date = dateDe(valeur(champ));
    if (valeur(champ).isEmpty())
        signaler(Classe::RejetDur, prefixeNoms(apresLigne) + u"  -  "_s + label(champ) + u" est Vide"_s,
                 label(champ) + motsVide.toString());
    else if (!date)
        signalerValeur(Classe::RejetDur, champ, NonValide);
    return date;
}

bool ControleLigne::CtrlAge(double annee, int ageMinimal, QStringView motsJeune, QStringView motsVieux)
{
    int naissance = 0; // the four digits at the end: a day would have to be taken apart again
    for (const QChar c : finDe(valeur(DateNaissance), 4))
        naissance = naissance * 10 + (c.unicode() - u'0');
    const bool jeune = naissance > annee - ageMinimal;
    if (!jeune && naissance >= annee - fonds::AgeMaximal)
        return true;
    signalerValeur(Classe::RejetDur, DateNaissance, NonValide, jeune ? motsJeune : motsVieux);
    return false;
}

void ControleLigne::CtrlTexte(Champ champ, qsizetype longueurMinimale)
{
    if (valeur(champ).size() >= longueurMinimale)
        return;
    const QString mots = u" Vide ou non valide"_s;
    signaler(Classe::RejetDur, prefixe() + u"  -  "_s + label(champ) + u" : "_s + valeur(champ) + u' ' + mots,
             label(champ) + mots);
}

void ControleLigne::CtrlDureeEtSalaire(double duree, QStringView salaire, QStringView motsSansSalaire)
{
    const double montant = Val(salaire);
    if (duree > 0 && montant == 0) {
        const QString valeurDe = label(Duree) + u" = "_s + valeur(Duree);
        signaler(Classe::RejetDur,
                 prefixeNoms() + u"  -  "_s + valeurDe + u" est (>0) pour un Salaire Annuel Nul (=0)"_s,
                 valeurDe + motsSansSalaire.toString());
    } else if (duree == 0 && montant == 0) {
        signalerMots(Classe::SansIncidence, label(Duree) + u" et Salaire Annuel Nuls (=0)"_s);
    } else if (duree == 0 && montant > 0) {
        signalerMots(Classe::SansIncidence,
                     label(Duree) + u" = 0 pour Salaire Annuel >0, Risque Erreur (Sauf si Rappel)"_s);
    }
}
