#include "dac/controledac.h"

#include "dac/genredac.h"
#include "declarations/declaration.h"
#include "rules/date.h"
#include "rules/dialogue.h"
#include "rules/fonds.h"
#include "rules/identite.h"
#include "rules/nombre.h"
#include "rules/saisie.h"
#include "rules/texte.h"
#include "storage/base.h"

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype largeurNumero = 12;
constexpr qsizetype longueurProfession = 5;
constexpr qsizetype longueurAdresse = 15;
constexpr qsizetype largeurCompte = 20;
/// The end of an account that stays when another bank or key stands in front.
constexpr qsizetype finDeCompte = 17;

// Percents
constexpr qint64 tauxComptesMinimal = 90;
constexpr qint64 tauxSansNinTolere = 70;

/// The places of the columns in the query of the lines.
enum Colonne {
    NumSalarie,
    DateNaissance,
    Etranger,
    ActeNaissance,
    Nom,
    Prenom,
    PrenomPere,
    NomMere,
    PrenomMere,
    Profession,
    Adresse,
    CommuneConnue,
    TypeES,
    Nin,
    CompteCCP,
    CompteBancaire,
    IdNat
};

const QString colonnes =
    u"l.NumSalarie, date_naiss, etranger, NumActeNaiss, nom, prenom, PrenomPere, NomMere, PrenomMere, "
    u"profes, "
    "adresse, EXISTS (SELECT 1 FROM Commune WHERE Code = CommuneNaiss), Type_ES, NIN, num_cpt_ccp, "
    "num_cpt_banc, IdNat"_s;

const QString nonValide = u"   est non valide, veuillez rectifier SVP !"_s;

QString tropCourt(qsizetype longueur)
{
    return u"   est non valide (Moins de %1 caractères ! ) , veuillez rectifier SVP !"_s.arg(longueur);
}

/// A text that every employee must have, and how its fault opens.
struct TexteRequis
{
    Colonne colonne;
    QString siNul;
    QString siCourt;
    qsizetype longueur = 1;
    QString finSiCourt = nonValide;
};

const std::vector<TexteRequis> &textesRequis()
{
    static const QString profession = u"La profession de l'employé  numéro :  "_s;
    static const QString adresse = u"L'adresse de l'employé  numéro :  "_s;
    static const QString nom = u"Le Nom de l'employé  numéro :  "_s;
    static const QString pere = u"Le prenom du pére de l'employé  numéro :  "_s;
    static const QString nomMere = u"Le Nom de la mére de l'employé  numéro :  "_s;
    static const QString prenomMere = u"Le prenom de la Mére de l'employé  numéro :  "_s;
    static const std::vector<TexteRequis> textes{
        {Nom, nom, nom},
        // The two forms of the first name are meant.
        {Prenom, u"Le prenom de l'employé  numéro :  "_s, u"Le Prenom de l'employé  numéro :  "_s},
        {PrenomPere, pere, pere},
        {NomMere, nomMere, nomMere},
        {PrenomMere, prenomMere, prenomMere},
        {Profession, profession, profession, longueurProfession, tropCourt(longueurProfession)},
        {Adresse, adresse, adresse, longueurAdresse, tropCourt(longueurAdresse)},
    };
    return textes;
}

/// The accounts of one person of the declaration.
struct Porteur
{
    QString identite;
    QString compteCCP;
    QString compteBancaire;
};

/// One search for an account that two people have.
struct Recherche
{
    QString Porteur::*compte;
    /// Whether only the end of an account of full length counts.
    bool finSeule;
    /// Whether an account of zeros alone is none.
    bool zerosIgnores;
    QString debut;
};

const std::vector<Recherche> &recherches()
{
    static const QString bancaire = u"Numéro de compte bancaire : "_s;
    static const std::vector<Recherche> toutes{
        {&Porteur::compteCCP, false, false, u"Numéro de compte CCP : "_s},
        {&Porteur::compteBancaire, false, true, bancaire},
        {&Porteur::compteBancaire, true, true, bancaire},
        {&Porteur::compteCCP, true, true, u"Numéro de compte CCP - RIP : "_s},
    };
    return toutes;
}

class Passe
{
public:
    explicit Passe(Dialogue &dialogue) : m_dialogue(dialogue) {}

    bool derouler(Requete &rangees)
    {
        while (rangees.suivante()) {
            retenir(rangees);
            if (!identite(rangees) || (rangees.texte(Etranger) == u"N" && !national(rangees)))
                return false;
        }
        if (m_porteurs.empty())
            return refuser(u"Pas de DAC nominative a exporté, veuillez reverifier SVP !"_s);
        return taux() &&
               std::ranges::all_of(recherches(), [this](const Recherche &une) { return sansDouble(une); });
    }

private:
    bool refuser(const QString &texte, const QString &titre = {})
    {
        m_dialogue.avertir(texte, titre);
        return false;
    }

    bool refuserNumero(const Enregistrement &ligne, const QString &fin)
    {
        return refuser(u"le numéro de sécurité sociale de l'employé "_s + qui(ligne) + fin);
    }

    static QString qui(const Enregistrement &ligne)
    {
        return ligne.texte(Nom) + u"   "_s + ligne.texte(Prenom);
    }

    bool identite(const Enregistrement &ligne)
    {
        const QString stocke = ligne.texte(NumSalarie);
        const QDate naissance = ligne.date(DateNaissance);
        return numero(ligne, stocke, naissance) && acteNaissance(ligne, stocke) &&
               std::ranges::all_of(textesRequis(),
                                   [&](const TexteRequis &requis) { return texte(ligne, stocke, requis); }) &&
               (naissance.isValid() ||
                refuser(u"La date de naissance de l'employé  numéro :  "_s + stocke + nonValide));
    }

    bool numero(const Enregistrement &ligne, QStringView numero, QDate naissance)
    {
        if (numero.startsWith(u"0000000000"))
            return refuserNumero(ligne, u"  est obligatoire !"_s);
        if (Trim(numero).size() != largeurNumero)
            return refuserNumero(ligne, u"  est non valide !"_s);
        if (naissance.isValid() && numero.first(2) != ComplZeros(QString::number(naissance.year() % 100), 2))
            return refuserNumero(ligne, u"  ne concorde pas avec sa date de naissance  !"_s);
        return true;
    }

    bool acteNaissance(const Enregistrement &ligne, QStringView numero)
    {
        if (ligne.texte(Etranger) != u"N")
            return true;
        if (ligne.estNul(ActeNaissance)) {
            return refuser(u"le numéro de l'acte de naissance de l'employé "_s + qui(ligne) +
                           u"  est obligatoire  !"_s);
        }
        if (ligne.texte(ActeNaissance).right(4) != numero.sliced(2, 4))
            return refuserNumero(ligne, u"  ou le numéro de l'acte de naissance est non valide  !"_s);
        return true;
    }

    bool texte(const Enregistrement &ligne, const QString &numero, const TexteRequis &requis)
    {
        if (ligne.estNul(requis.colonne))
            return refuser(requis.siNul + numero + nonValide);
        if (Trim(ligne.texte(requis.colonne)).size() < requis.longueur)
            return refuser(requis.siCourt + numero + requis.finSiCourt);
        return true;
    }

    bool national(const Enregistrement &ligne)
    {
        if (ligne.entier(CommuneConnue) == 0)
            return refuser(u"Le champ commune de naissance est obligatoire !"_s);
        if (ligne.texte(TypeES) == u"E") {
            ++m_entres;
            if (ligne.texte(Nin).contains(u'_'))
                ++m_entresSansNin;
        }
        if (comptePayable(ligne.texte(CompteCCP), ligne.texte(CompteBancaire)))
            ++m_nationauxAvecCompte;
        ++m_nationaux;

        const auto salarie = [&] {
            return QString(ligne.texte(NumSalarie) + u"   "_s + ligne.texte(Nom) + u"    "_s +
                           ligne.texte(Prenom));
        };
        const QString code = ligne.texte(IdNat);
        if (code.isEmpty()) {
            return refuser(u"Code nationalité non spécifié  pour l'employé :   "_s + salarie(),
                           u"Controle nationalité"_s);
        }
        if (const double rang = Val(code);
            rang < fonds::PremiereNationalite || rang > fonds::DerniereNationalite)
            return refuser(u"Code nationalité incorrect pour le salarié N°  :  "_s + salarie());
        return true;
    }

    void retenir(const Enregistrement &ligne)
    {
        m_porteurs.push_back(
            {Trim(ligne.texte(Nom)) + Trim(ligne.texte(Prenom)) + texteDate(ligne.date(DateNaissance)),
             ligne.texte(CompteCCP), ligne.texte(CompteBancaire)});
    }

    static QString pourCent(qint64 nombre, qint64 sur)
    {
        return formatMasque(static_cast<double>(nombre) / static_cast<double>(sur) * 100, u"## ###.00") +
               u"   %"_s;
    }

    bool taux()
    {
        if (m_nationauxAvecCompte * 100 < m_nationaux * tauxComptesMinimal) {
            m_dialogue.critique(u"Votre fichier risque d'être retourné pour cause de taux de salarié avec N° "
                                "Compte  insuffisant : "_s +
                                pourCent(m_nationauxAvecCompte, m_nationaux));
            return false;
        }
        // The text says 30 and the test 70: both are meant.
        if (m_entres != 0 && m_entresSansNin * 100 >= m_entres * tauxSansNinTolere) {
            m_dialogue.informer(u"Votre fichier présente un taux élevé de non renseignement du NIN  et "
                                "supérieur à 30%   : "_s +
                                pourCent(m_entresSansNin, m_entres));
        }
        return true;
    }

    /// Neighbours in the order of the accounts, and for the same account in that of the lines.
    bool sansDouble(const Recherche &recherche)
    {
        struct Compte
        {
            QStringView compte;
            QStringView identite;
        };
        std::vector<Compte> comptes;
        comptes.reserve(m_porteurs.size());
        for (const Porteur &porteur : m_porteurs) {
            QStringView compte = porteur.*recherche.compte;
            if (recherche.finSeule)
                compte = compte.size() == largeurCompte ? compte.last(finDeCompte) : QStringView();
            const qsizetype largeur = recherche.finSeule ? finDeCompte : largeurCompte;
            const bool zeros = compte.size() == largeur && compte.count(u'0') == largeur;
            if (!compte.isEmpty() && !(recherche.zerosIgnores && zeros))
                comptes.push_back({compte, porteur.identite});
        }
        std::ranges::stable_sort(comptes, {}, &Compte::compte);
        const auto trouve = std::ranges::adjacent_find(comptes, [](const Compte &un, const Compte &suivant) {
            return un.compte == suivant.compte && un.identite != suivant.identite;
        });
        if (trouve == comptes.end())
            return true;
        m_dialogue.critique(recherche.debut + trouve->compte +
                            u"  , affecté en double, veuillez réctifier dans la table salarié SVP"_s);
        return false;
    }

    Dialogue &m_dialogue;
    std::vector<Porteur> m_porteurs;
    qint64 m_nationaux = 0;
    qint64 m_nationauxAvecCompte = 0;
    qint64 m_entres = 0;
    qint64 m_entresSansNin = 0;
};

} // namespace

bool CtrlDacNominative(Base &base, const QString &NumEmployeur, const QString &Periode, qint64 Type_dac,
                       Dialogue &dialogue)
{
    const Condition lignes{u"NumEmployeur = ? AND Periode = ? AND Type_dac = ?"_s,
                           {NumEmployeur, Periode, Type_dac}};
    Requete rangees = lireAvecSalaries(base, genreDac(), lignes, colonnes);
    return Passe(dialogue).derouler(rangees);
}
