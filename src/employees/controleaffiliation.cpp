#include "employees/controleaffiliation.h"

#include "rules/date.h"
#include "rules/dialogue.h"
#include "rules/fonds.h"
#include "rules/identite.h"
#include "rules/nombre.h"
#include "rules/saisie.h"
#include "rules/texte.h"
#include "storage/connexion.h"

using namespace Qt::StringLiterals;

namespace {

using Issue = std::optional<Refus>;

constexpr QStringView sansFocus;
const Refus pasDAccord;

/// One pass over one record.
class Controle
{
public:
    Controle(Forme ecran, const FicheSalarie &fiche, Connexion &cnx, Dialogue &dialogue)
        : m_ecran(ecran), m_fiche(fiche), m_cnx(cnx), m_dialogue(dialogue)
    {
    }

    Issue passer();

private:
    Refus arreter(QStringView controle, const QString &texte, const QString &titre = {})
    {
        return refuser(m_dialogue, controle, texte, titre);
    }

    Issue numero();
    Issue numeroBlanc();
    Issue nationaliteChoisie();
    Issue national();
    void nin();
    Enregistrement autrePorteur() const;
    Issue etranger();
    Issue personne();
    Issue naissance();
    void parents();
    void parent(const QString &nom, const QString &absent, const QString &qui);
    Issue coordonnees();
    Issue accord();

    const Forme m_ecran;
    const FicheSalarie &m_fiche;
    Connexion &m_cnx;
    Dialogue &m_dialogue;
    /// The faults with which the clerk may save all the same.
    QStringList m_liste;
};

Issue Controle::passer()
{
    if (Issue refus = m_fiche.sansNumero() ? numeroBlanc() : numero())
        return refus;
    if (difference::nationaliteDAbord[m_ecran]) {
        if (Issue refus = nationaliteChoisie())
            return refus;
    }
    if (Issue refus = m_fiche.etrangerCheck ? etranger() : national())
        return refus;
    if (Issue refus = personne())
        return refus;
    if (Issue refus = naissance())
        return refus;
    parents();
    if (Issue refus = coordonnees())
        return refus;
    return accord();
}

Issue Controle::numeroBlanc()
{
    if (!difference::accordSansNumero[m_ecran])
        return {};
    m_dialogue.informer(u"Il est préférable d'affecté à cet employé son numéro de sécurité sociale!"_s);
    if (m_dialogue.demander(
            u"Voulez vous effectuer ces changements pour cet employé, même sans numéro SS ?"_s, {}, false))
        return {};
    return pasDAccord;
}

Issue Controle::numero()
{
    const QStringView chiffres = Trim(m_fiche.num_salmask);
    constexpr QStringView surNumero = controlesSalarie[u"num_salmask"];
    if (chiffres.size() != 10)
        return arreter(surNumero, u"la taille du numéro SS, sans la clés de control  est égal à 10!"_s);
    if (chiffres.first(2) != QStringView(m_fiche.mskdate).right(2)) {
        return arreter(
            surNumero,
            u"Pas de concordance entre le numéro SS et la l'année de naissance, veuillez corriger SVP!"_s,
            u"Controle sasie"_s);
    }
    if (!m_fiche.etrangerCheck) {
        const QString &acte = m_fiche.MskNumActeNaiss;
        if (acte == u"00000" || acte == u"_____") {
            const QString texte = difference::acteManquant[m_ecran].toString();
            m_dialogue.informer(texte);
            return Refus{sansFocus, texte};
        }
        if (chiffres.sliced(2, 4) != QStringView(acte).right(4)) {
            return arreter(sansFocus,
                           u"Le numéro d'acte de naissance ou numéro SS erroné, veuillez revérifier SVP !"_s);
        }
    }
    if (!chiffresSeuls(chiffres) || CleSS(chiffres) != m_fiche.clemask) {
        return arreter(surNumero, u"Numéro SS ou clés de controle incorrecte, Veuillez corriger SVP!!!"_s,
                       u"control de clés SS"_s);
    }
    return {};
}

Issue Controle::nationaliteChoisie()
{
    if (m_fiche.CmbNationalite < 0)
        return arreter(sansFocus, u"Veuillez choisir la nationalité SVP !"_s);
    return {};
}

Issue Controle::national()
{
    nin();
    if (m_fiche.CmbNationalite != RangNational) {
        return arreter(sansFocus, u"Nationalité choisie autre que algérienne pour personnel nationaux , "
                                  "veuillez réctifier SVP !"_s);
    }
    if (m_fiche.CmbCommune.isEmpty())
        return arreter(controlesSalarie[u"CmbCommune"],
                       u"Veuillez sélectionner la commune de naissance SVP!"_s);
    return {};
}

void Controle::nin()
{
    const QString &nin = m_fiche.MskNin;
    if (nin.contains(u'_')) {
        m_liste += u"Le Numéro d'Identification National : NIN est Incorrecte"_s;
        return;
    }
    if (nin == difference::ninAbsent[m_ecran])
        return;
    if (QStringView(nin).mid(9, 5) != m_fiche.MskNumActeNaiss)
        m_liste += u"Pas de concordance entre le NIn et le numéro de l'acte de naissance !"_s;

    if (const Enregistrement autre = autrePorteur(); !autre.estVide()) {
        const QString texte = u"Le numéro NIN en cours est déja affecté à un autre employé !   %1   %2   , "
                              "Veuillez rectifier SVP !"_s.arg(autre.texte(u"nom"), autre.texte(u"prenom"));
        m_dialogue.avertir(texte);
        m_liste += texte;
    }
}

/// The first employee of that NIN whose names or date of birth differ; a Null differs from nothing, and a
/// date that is none from every date.
Enregistrement Controle::autrePorteur() const
{
    const std::optional<QDate> naissance = dateDe(m_fiche.mskdate);
    Requete porteurs = m_cnx.lire(
        u"SELECT nom, prenom, date_naiss FROM salarie WHERE NIN = ? ORDER BY rowid"_s, {m_fiche.MskNin});
    while (porteurs.suivante()) {
        if ((!porteurs.estNul(u"nom") && !memeNom(porteurs.texte(u"nom"), m_fiche.nomedit)) ||
            (!porteurs.estNul(u"prenom") && !memeNom(porteurs.texte(u"prenom"), m_fiche.prenomedit)) ||
            (!porteurs.estNul(u"date_naiss") && porteurs.date(u"date_naiss") != naissance))
            return porteurs;
    }
    return {};
}

Issue Controle::etranger()
{
    if (Issue refus = nationaliteChoisie())
        return refus;
    if (m_fiche.CmbNationalite == RangNational) {
        return arreter(sansFocus, u"Erreur, nationalité algérienne choisie pour personnel etranger , "
                                  "veuillez réctifier SVP !"_s);
    }
    return {};
}

Issue Controle::personne()
{
    if (Trim(m_fiche.profesedit).size() < 5) {
        return arreter(controlesSalarie[u"profesedit"],
                       u"la taille autorisée pour la fonction est de 5 caractères au minimum !"_s);
    }
    constexpr QStringView surNom = controlesSalarie[u"nomedit"];
    constexpr QStringView surPrenom = controlesSalarie[u"prenomedit"];
    // A missing first name is told with the words of the surname: that is required.
    const QString nomAbsent = u"Veuillez saisir le nom de l'employé SVP !"_s;
    if (Trim(m_fiche.nomedit).isEmpty())
        return arreter(surNom, nomAbsent);
    if (!SansChiffre(m_fiche.nomedit)) {
        return arreter(surNom, u"le nom de l'employé ne peut contenir que des caractères alphabétiques !"_s);
    }
    if (Trim(m_fiche.prenomedit).isEmpty())
        return arreter(surPrenom, nomAbsent);
    if (!SansChiffre(m_fiche.prenomedit)) {
        return arreter(surPrenom,
                       u"le prénom de l'employé ne peut contenir que des caractères alphabétiques !"_s);
    }
    return {};
}

Issue Controle::naissance()
{
    constexpr QStringView surDate = controlesSalarie[u"mskdate"];
    const std::optional<QDate> jour = dateDe(m_fiche.mskdate);
    if (!jour)
        return arreter(surDate, u"Veuillez Saisir une Date de naissance Correcte SVP!!!"_s);
    // Calendar years alone: month and day of birth don't count.
    const int age = aujourdhui().year() - jour->year();
    if (age < 16) {
        return arreter(surDate,
                       u"Salarié de moins de 16 ans, veuillez saisir une date de naissance valide SVP"_s);
    }
    if (age > fonds::AgeMaximal) {
        return arreter(
            surDate, u" Cette Date de Naissance est trop Ancienne, Veuillez Saisir une Date Valide SVP!!!"_s);
    }
    return {};
}

void Controle::parents()
{
    parent(m_fiche.NomMere, u"le nom de la mère de l'employé n'est pas saisi !"_s,
           u"le nom de la mère de l'employé"_s);
    parent(m_fiche.PrenomMere, u"le prénom de la mère de l'employé n'est pas saisi!"_s,
           u"le prénom de la mère de l'employé"_s);
    parent(m_fiche.PrenomPere, u"le prénom du père de l'employé n'est pas saisi !"_s,
           u"le prénom du père de l'employé"_s);
}

void Controle::parent(const QString &nom, const QString &absent, const QString &qui)
{
    if (nom.isEmpty())
        m_liste += absent;
    else if (!SansChiffre(nom))
        m_liste += u"%1 ne peut contenir que des caractères alphabétiques !"_s.arg(qui);
}

Issue Controle::coordonnees()
{
    if (Trim(m_fiche.adredit).size() < 15)
        m_liste += u"Le champ adresse doit contenir 15 caractères au minimum !"_s;
    if (m_fiche.CmbSexe < 0)
        return arreter(controlesSalarie[u"CmbSexe"], u"Veuillez indiquer le sexe de ce salarié SVP!"_s);
    // Any address counts as badly formed, and the clerk passes by his accord: that is required.
    if (!Trim(m_fiche.TxtEmail).isEmpty())
        m_liste += u"Format du mail incorrecte !"_s;
    if (!CtrlTelephone(m_fiche.MskNTel, m_dialogue))
        m_liste += u"Format du Telephone incorrecte !"_s;
    if (!Trim(m_fiche.c_postalEdit).isEmpty() && !EstNumerique(m_fiche.c_postalEdit)) {
        m_dialogue.avertir(u"Code postal incorrect!"_s);
        m_liste += u"Code postal incorrect !"_s;
    }
    return {};
}

Issue Controle::accord()
{
    if (m_liste.isEmpty())
        return {};
    m_dialogue.avertir(m_liste.join(u'\n'));
    if (m_dialogue.demander(u"Des erreurs existent pour cet affilié, voulez vous tous de même enregistrer "
                            "l'affiliation de cet employé ?"_s))
        return {};
    return pasDAccord;
}

} // namespace

std::optional<Refus> ControleAffiliation(Forme ecran, const FicheSalarie &fiche, Connexion &cnx,
                                         Dialogue &dialogue)
{
    return Controle(ecran, fiche, cnx, dialogue).passer();
}

bool memeNom(QStringView a, QStringView b)
{
    return majuscules(sansBlancsFinaux(a)) == majuscules(sansBlancsFinaux(b));
}
