#include "validators/validateurci.h"

#include "rules/colonnesfixes.h"
#include "rules/dialogue.h"
#include "rules/erreurs.h"
#include "rules/identite.h"
#include "rules/nombre.h"
#include "rules/texte.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView MasqueMontant = u"## ### ### ###.00";
constexpr QStringView TitreRejet = u"Votre Fichier de déclaration liste nominative sera rejeté !";
constexpr QStringView Chiffres = u"0123456789";
constexpr QStringView Montant = u"0123456789.,";

constexpr qsizetype ToutLeReste = -1;

/// Where the fields of a header of version 1.0 begin, and how many columns they have.
constexpr std::array<ChampFixe, 11> colonnesEntete{{
    {u"employeur", 1, 8},
    {u"reference", 9, 10},
    {u"dateArret", 19, 10},
    {u"dateReprise", 29, 10},
    {u"montant", 39, 15},
    {u"effectif", 54, 5},
    {u"charge26", 59, 15},
    {u"charge1221", 74, 15},
    {u"charge0375", 89, 17},
    {u"compte", 106, 20},
    {u"banque", 126, ToutLeReste},
}};
/// The columns of its lines; the last goes to the end.
constexpr std::array largeursLigne{12, 30, 30, 10, 25, 10, 10, 10, 5, 15, 15};

/// A charge on the amount paid out.
struct Charge
{
    qint64 taux; ///< in hundred-thousandths
    QStringView faute;
};

constexpr qint64 UniteTaux = 100'000;
constexpr std::array<Charge, 3> charges{{
    {26'000, u"le montant des charges SS 26% est incorrecte"},
    {12'210, u"le montant des charges KORVANDEL CP 12.21% est incorrecte"},
    {375, u"le montant des charges CI part salarié 0.375% est incorrecte"},
}};

QString montantNormalise(QStringView texte) { return sansBlancs(texte).replace(SepAutre, SepDecimal); }

/// The charge on an amount, exact and then rounded half to even at the fourth decimal.
Currency chargeDe(Currency montant, qint64 taux)
{
    const qint64 compte = montant.dixMilliemes();
    // The product of the whole may not fit 64 bits, that of the remainder does.
    const qint64 produit = compte % UniteTaux * taux;
    qint64 charge = compte / UniteTaux * taux + produit / UniteTaux;
    const qint64 deuxRestes = 2 * std::abs(produit % UniteTaux);
    if (deuxRestes > UniteTaux || (deuxRestes == UniteTaux && charge % 2 != 0))
        charge += produit < 0 ? -1 : 1;
    return Currency::deDixMilliemes(charge);
}

/// Three quarters of the wage of these hours, to the hundredth, half away from zero.
Currency indemnite(double heures, Currency salaireHoraire)
{
    // Whole hours of a usual wage need no more than integers.
    constexpr double heuresMax = 10'000;
    constexpr qint64 salaireMax = 10'000'000'000'000;
    const qint64 salaire = salaireHoraire.dixMilliemes();
    if (std::abs(heures) <= heuresMax && std::abs(salaire) <= salaireMax && heures == std::trunc(heures)) {
        const qint64 produit = salaire * static_cast<qint64>(heures) * 3; // of 40 000ths
        const qint64 centiemes = (std::abs(produit) + 200) / 400;
        return Currency::deDixMilliemes((produit < 0 ? -centiemes : centiemes) * 100);
    }
    // A floating-point product has more digits than the form takes.
    return LireMontant(formatMasque(heures * (static_cast<double>(salaire) / 10'000) * 0.75, u"0.##"));
}

/// Whether the text has the form dd/mm/yyyy with a month above 12.
bool moisImpossible(QStringView texte)
{
    return texte.size() == 10 && texte[2] == u'/' && texte[5] == u'/' && chiffresSeuls(texte.first(2)) &&
           chiffresSeuls(texte.sliced(3, 2)) && chiffresSeuls(texte.last(4)) && texte.sliced(3, 2) > u"12";
}

} // namespace

ValidateurCi::ValidateurCi() : Validateur(particularitesCi) {}

QList<Validateur::Libelle> ValidateurCi::libellesPropres() const
{
    return {{u"LabEmpl"_s, m_affiche.employeur},      {u"LabRef"_s, m_affiche.reference},
            {u"LabDateArret"_s, m_affiche.dateArret}, {u"LabDateReprise"_s, m_affiche.dateReprise},
            {u"LabMtIndemnise"_s, m_affiche.montant}, {u"LabEffectif"_s, m_affiche.effectif},
            {u"LabChg26"_s, m_affiche.charges[0]},    {u"LabCh1221"_s, m_affiche.charges[1]},
            {u"LabChg0375"_s, m_affiche.charges[2]},  {u"LabNCompte"_s, m_affiche.compte},
            {u"LanBanque"_s, m_affiche.banque}};
}

QString ValidateurCi::enTitre() const
{
    return m_affiche.employeur + u" - ANNEE "_s + finDe(m_affiche.dateArret, 4);
}

void ValidateurCi::reinitialiser() { m_affiche = {}; }

// The header

ValidateurCi::Entete ValidateurCi::lireEntete(const QString &ligne, bool colonnesFixes)
{
    std::array<QStringView, 11> champs;
    if (colonnesFixes) {
        std::transform(colonnesEntete.begin(), colonnesEntete.end(), champs.begin(),
                       [&](const ChampFixe &colonne) { return couper(QStringView(ligne), colonne); });
    } else {
        std::array<QStringView, 12> lus; // the ninth, the weekly hours, is not looked at
        couper(ligne, lus);
        champs = {Trim(debutDe(lus[0], 8)),
                  Trim(lus[0].mid(8)),
                  lus[1],
                  lus[2],
                  lus[3],
                  lus[4],
                  lus[5],
                  lus[6],
                  lus[7],
                  lus[9],
                  lus[10]};
    }
    return {
        .employeur = champs[0].toString(),
        .reference = champs[1].toString(),
        .dateArret = champs[2].toString(),
        .dateReprise = champs[3].toString(),
        .montant = montantNormalise(champs[4]),
        .effectif = champs[5].toString(),
        .charges = {montantNormalise(champs[6]), montantNormalise(champs[7]), montantNormalise(champs[8])},
        .compte = champs[9].toString(),
        .banque = champs[10].toString()};
}

bool ValidateurCi::entete(const QString &ligne)
{
    m_entete = lireEntete(ligne, colonnesFixes());
    if (!nomConforme())
        return false;
    direFautesEntete();

    m_affiche = m_entete;
    m_arret = dateDe(m_entete.dateArret);
    m_reprise = dateDe(m_entete.dateReprise);
    const QStringView annee = finDe(m_entete.dateArret, 4);
    m_annee = EstNumerique(annee) ? std::optional(lireNombre(annee)) : std::nullopt;
    try {
        afficherEntete();
        ctrlDatesChantier();
        ctrlCharges();
        ctrlCompte();
    } catch (const ErreurConversion &) {
        // The lines are read all the same.
        dire(u"Erreur, Inconnue dans l'entête du fichier, veuilez corriger ses erreurs SVP !"_s);
    }
    return true;
}

/// The name of the file begins with employer and reference.
bool ValidateurCi::nomConforme()
{
    const qsizetype fin = nomFichier().indexOf(u'_');
    if (QString(m_entete.employeur + m_entete.reference) ==
        debutDe(nomFichier(), fin < 0 ? nomFichier().size() : fin))
        return true;
    dire(
        u"Erreur Numéro réference Deuxième Ligne différente du Nom du Fichier \nVeuillez corriger SVP !!!"_s);
    joindre(m_resultat, u"Référence Deuxième Ligne différente du Nom du Fichier!!!"_s);
    return false;
}

void ValidateurCi::direFautesEntete()
{
    QString fautes;
    noterFaute(fautes, !faitDe(m_entete.employeur, Chiffres), u"N° SS Employeur Non Numérique ou Négatif");
    noterFaute(fautes, !faitDe(m_entete.reference, Chiffres), u"Référence Non Numérique ou Négatif");
    noterFaute(fautes, !faitDe(m_entete.montant, Montant),
               u"Montant Total des Salaires indemnisés Non Numérique ou Négatif");
    noterFaute(fautes, !faitDe(m_entete.effectif, Chiffres),
               u"Nombre Total des Salariés Non Numérique ou Négatif");
    if (!fautes.isEmpty())
        dialogue().afficher(fautes, particularitesCi.titreEntete.toString());
}

/// The amounts in their form. @throws ErreurConversion for one that is no number
void ValidateurCi::afficherEntete()
{
    m_affiche.montant = formatMasque(LireMontant(m_entete.montant), MasqueMontant);
    for (std::size_t i = 0; i < charges.size(); ++i)
        m_affiche.charges[i] = formatMasque(LireMontant(m_entete.charges[i]), MasqueMontant);
}

void ValidateurCi::ctrlDatesChantier()
{
    if (!m_arret || !m_reprise) {
        dire(u"Erreur Date arrêt ou de reprise du chantier incorrecte!"_s);
    } else if (*m_arret >= *m_reprise) {
        dialogue().afficher(
            u"Date arrêt doit être antérieur à la date de reprise, veuillez la corriger SVP"_s,
            TitreRejet.toString());
    }
}

void ValidateurCi::ctrlCharges()
{
    const Currency montant = LireMontant(m_entete.montant);
    for (std::size_t i = 0; i < charges.size(); ++i) {
        if (formatMasque(chargeDe(montant, charges[i].taux), MasqueMontant) != m_affiche.charges[i])
            dialogue().afficher(charges[i].faute.toString(), u"controle charge"_s);
    }
}

void ValidateurCi::ctrlCompte()
{
    if (CtrlRIP(m_entete.compte))
        return;
    dialogue().afficher(
        u"Numéro de compte bancaire erroné, veuillez le corriger, afin que l'on puisse effectuer le paiement SVP"_s,
        TitreRejet.toString());
    joindre(m_resultat, u"Erreur, compte bancaire de l'entreprise erroné, vérifier la clé SVP !"_s);
}

// A line

void ValidateurCi::decouperLigne(QByteArrayView octets)
{
    constexpr std::array<Champ, NombreColonnes> colonnes{
        NumSalarie, Nom,         Prenom, DateNaissance,  Profession,      DateEmbauche,
        DateArret,  DateReprise, Duree,  SalaireHoraire, SalaireIndemnise};
    if (colonnesFixes())
        decouper(octets, colonnes, largeursLigne);
    else
        decouper(octets, colonnes);
    normaliserMontant(SalaireHoraire);
    normaliserMontant(SalaireIndemnise);
}

void ValidateurCi::ligne(QByteArrayView octets)
{
    decouperLigne(octets);

    ctrlNumeroSalarie();
    ctrlVide(Nom);
    ctrlVide(Prenom);
    ctrlNaissance();
    ctrlVide(Profession);
    CtrlDate(DateEmbauche);
    const std::optional<QDate> arret = ctrlJour(DateArret, m_entete.dateArret, m_arret);
    const std::optional<QDate> reprise = ctrlJour(DateReprise, m_entete.dateReprise, m_reprise);
    const double duree = Val(valeur(Duree));
    if (CtrlNumerique(Duree))
        CtrlDureeEtSalaire(duree, valeur(SalaireHoraire), u" non autorisé");
    CtrlNumerique(SalaireHoraire);
    CtrlNumerique(SalaireIndemnise);

    const QDate jourReprise = jour(reprise, valeur(DateReprise));
    if (jour(arret, valeur(DateArret)) > jourReprise) {
        signalerMots(Classe::RejetDur, u"Date arret ulterieur à la date de reprise pour ce salarié !!"_s);
    }
    ctrlIndemnite(duree);
    if (jourReprise > jour(m_reprise, m_entete.dateReprise)) {
        signalerMots(Classe::RejetDur, u"Date reprise de ce salarié non compatible avec celle du chantier"_s);
    }

    compter(SalaireIndemnise);
}

/// The day of the field, which as a rule is that of the site and need not be read again.
std::optional<QDate> ValidateurCi::ctrlJour(Champ champ, QStringView texteChantier,
                                            const std::optional<QDate> &jourChantier)
{
    return jourChantier && valeur(champ) == texteChantier ? jourChantier : CtrlDate(champ);
}

/// Neither sign nor blank; an empty number passes.
void ValidateurCi::ctrlNumeroSalarie()
{
    if (!chiffresSeuls(valeur(NumSalarie)) && !faitDe(valeur(NumSalarie), Montant))
        signalerValeur(Classe::RejetDur, NumSalarie, u" est Non Numérique");
}

void ValidateurCi::ctrlVide(Champ champ)
{
    if (!valeur(champ).isEmpty())
        return;
    const QString mots = label(champ) + u" est Vide"_s;
    signaler(Classe::RejetDur, prefixe() + u"  -  "_s + mots, mots);
}

void ValidateurCi::ctrlNaissance()
{
    const QStringView texte = valeur(DateNaissance);
    if (EstDate(texte)) {
        if (CtrlAge(m_annee ? *m_annee : lireNombre(finDe(m_entete.dateArret, 4)), 16))
            ctrlDebutNumero();
    } else if (moisImpossible(texte)) {
        // This prefix alone has single blanks: that is required.
        const QString mots = label(DateNaissance) + u" = "_s + texte + u" est Non Valide"_s;
        signaler(Classe::RejetDur,
                 u"Ligne N°:"_s + QString::number(nbLignes + 1) + u" - N° SS: "_s + valeur(NumSalarie) +
                     u" - Nom : "_s + valeur(Nom) + u' ' + valeur(Prenom) + u"  -  "_s + mots,
                 mots);
    } else {
        CtrlDate(DateNaissance);
    }
}

/// A number begins with the year of birth, or it stands for none.
void ValidateurCi::ctrlDebutNumero()
{
    const QStringView debut = debutDe(valeur(NumSalarie), 2);
    const QStringView annee = finDe(valeur(DateNaissance), 2);
    if (debut.isEmpty() || debut == u"00" || debut == annee)
        return;
    signalerMots(Classe::SansIncidence,
                 u"Année Naissance = "_s + annee + u" est Différente du Début N° SS = "_s + debut);
}

void ValidateurCi::ctrlIndemnite(double duree)
{
    const Currency salaire = LireMontant(valeur(SalaireHoraire));
    if (indemnite(duree, salaire) != LireMontant(valeur(SalaireIndemnise)))
        signalerMots(Classe::SansIncidence, u"Salaire horaire ou montant indemnise incorrecte !"_s);
}

Verdict ValidateurCi::conclure()
{
    const bool retournee = nbErrRejet > 0;
    if (retournee) {
        dialogue().critique(
            u"Votre Fichier de déclaration de la liste nominative vous sera retourné par la KORVANDEL"_s,
            particularitesCi.titreSuite.toString());
    }
    comparerTotaux(m_affiche.montant, m_affiche.effectif);
    return retournee ? Verdict::Rejetee : Verdict::Acceptee;
}
