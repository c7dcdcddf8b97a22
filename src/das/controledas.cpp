#include "das/controledas.h"

#include "das/genredas.h"
#include "declarations/declaration.h"
#include "employees/fichesalarie.h"
#include "rules/calendrier.h"
#include "rules/date.h"
#include "rules/dialogue.h"
#include "rules/fonds.h"
#include "rules/identite.h"
#include "rules/saisie.h"
#include "rules/texte.h"
#include "storage/base.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype largeurNumero = 12;
constexpr double tauxMinimal = 90.0;

/// The places of the columns in the query of the lines.
enum Colonne {
    NumSalarie,
    CompteCCP,
    CompteBancaire,
    Etranger,
    IdNat,
    Nom,
    Prenom,
    DateNaissance,
    ActeNaissance,
    TypeES,
    DateES
};

const QString colonnes =
    u"l.num_salarie, num_cpt_ccp, num_cpt_banc, etranger, IdNat, nom, prenom, date_naiss, NumActeNaiss, "
    "type_date_es, date_es"_s;

class Passe
{
public:
    Passe(Base &base, const Enregistrement &entete, Dialogue &dialogue)
        : m_base(base), m_entete(entete), m_dialogue(dialogue)
    {
    }

    bool derouler()
    {
        const GenreDeclaration &das = genreDas();
        Requete lignes = lireAvecSalaries(m_base, das, lignesDe(das, cleEntete(das, m_entete)), colonnes);
        while (lignes.suivante()) {
            if (!ligne(lignes))
                return false;
        }
        return taux() && effectif();
    }

private:
    bool ligne(const Enregistrement &ligne)
    {
        const QString stocke = ligne.texte(NumSalarie);
        const QStringView numero = Trim(stocke);
        if (!(numero == NumeroBlanc ? sansNumero(ligne) : numerote(ligne, numero)))
            return false;
        ++m_bonsNumeros;
        // A foreigner counts in no rate.
        if (ligne.texte(Etranger) != u"N")
            return nationalite(ligne);
        compte(ligne);
        return true;
    }

    QString phrase(const Enregistrement &ligne, QStringView fin) const
    {
        return u"Numéro SS : "_s + ligne.texte(NumSalarie) + u"  de l'employé  "_s + ligne.texte(Nom) +
               u"    "_s + ligne.texte(Prenom) + fin;
    }

    bool refuser(const Enregistrement &ligne, QStringView fin)
    {
        m_dialogue.avertir(phrase(ligne, fin));
        return false;
    }

    bool numerote(const Enregistrement &ligne, QStringView numero)
    {
        if (numero.size() != largeurNumero)
            return refuser(ligne, u" pas valide moins de 12 caractères");
        if (numero.first(2) != anneeNaissance(ligne) || !cleJuste(numero))
            return refuser(ligne, u" N° SS ou date de naissance non valide ");
        if (ligne.texte(Etranger) == u"N" && numero.sliced(2, 4) != ligne.texte(ActeNaissance).right(4))
            return refuser(ligne, u" N° SS ou N° acte naissance non valide ");
        return true;
    }

    /// The last two digits of the year.
    static QString anneeNaissance(const Enregistrement &ligne)
    {
        const QDate naissance = ligne.date(DateNaissance);
        if (!naissance.isValid()) {
            throw ErreurConversion(u"La date de naissance du salarié %1 %2 n'est pas renseignée."_s.arg(
                ligne.texte(Nom), ligne.texte(Prenom)));
        }
        return ComplZeros(QString::number(naissance.year() % 100), 2);
    }

    /// A number that is not all digits has no key that could be right.
    static bool cleJuste(QStringView numero) { return chiffresSeuls(numero) && cleSSJuste(numero); }

    /// Tolerated only for somebody who entered in the campaign's last month.
    bool sansNumero(const Enregistrement &ligne)
    {
        if (ligne.texte(TypeES) != u"E")
            return refuser(ligne, u" n'est pas valide, veuillez le renseigner SVP ");
        const QDate entree = lireDate(ligne.texte(DateES));
        const int annee = static_cast<int>(m_entete.entier(u"annee"));
        if (entree < limiteSansNumero(annee))
            return refuser(ligne, u" n'est pas valide, veuillez le renseigner SVP");
        if (entree > finCampagne(annee))
            return refuser(ligne, u" Date d'entrée incorrecte , veuillez la modifier SVP");
        m_dialogue.informer(phrase(ligne,
                                   u" n'est pas valide, il sera pris en charge , mais vous devez  vous "
                                   "rapprocher des services de la CNAS afin de réclamer son numéro de "
                                   "sécurité social "));
        return true;
    }

    bool nationalite(const Enregistrement &ligne)
    {
        const auto qui = [&] {
            return QString(ligne.texte(NumSalarie) + u"   "_s + ligne.texte(Nom) + u"    "_s +
                           ligne.texte(Prenom));
        };
        const QString code = ligne.texte(IdNat);
        if (code.isEmpty()) {
            m_dialogue.avertir(u"Code nationalité non spécifié  pour le salarié :   "_s + qui(),
                               u"Controle nationalité"_s);
            return false;
        }
        const double numero = Val(code);
        if (numero < fonds::PremiereNationalite || numero > fonds::DerniereNationalite ||
            numero == fonds::NationaliteNationale) {
            m_dialogue.avertir(u"Code nationalité incorrect pour le salarié N°  :  "_s + qui());
            return false;
        }
        return true;
    }

    void compte(const Enregistrement &ligne)
    {
        if (comptePayable(ligne.texte(CompteCCP), ligne.texte(CompteBancaire)))
            ++m_nationauxAvecCompte;
        ++m_nationaux;
    }

    bool taux()
    {
        if (m_entete.entier(u"total_calc", 0) == 0 || m_nationaux == 0)
            return true;
        const double taux =
            static_cast<double>(m_nationauxAvecCompte) / static_cast<double>(m_nationaux) * 100;
        if (taux >= tauxMinimal)
            return true;
        m_dialogue.avertir(
            u"Votre fichier Présente un taux insuffisant de salariés avec un numéro de compte valide   :  "_s +
            formatMasque(taux, u"## ###.00") + u"   %, il sera refusé, veuillez le compéter SVP"_s);
        return false;
    }

    bool effectif()
    {
        if (m_bonsNumeros == m_entete.entier(u"total_salarie", 0))
            return true;
        m_dialogue.avertir(u"Votre DAS doit contenir 100% des numéro SS valide, veuillez corriger SVP"_s);
        return false;
    }

    Base &m_base;
    Enregistrement m_entete;
    Dialogue &m_dialogue;
    qint64 m_bonsNumeros = 0;
    qint64 m_nationaux = 0;
    qint64 m_nationauxAvecCompte = 0;
};

} // namespace

bool CtrlDas(Base &base, const Enregistrement &entete, Dialogue &dialogue)
{
    return Passe(base, entete, dialogue).derouler();
}
