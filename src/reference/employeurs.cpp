#include "reference/employeurs.h"

#include "reference/textesaisi.h"
#include "rules/dialogue.h"
#include "rules/identite.h"
#include "rules/texte.h"
#include "storage/base.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype chiffresDuNumero = 8;

bool estBlanc(QStringView texte) { return Trim(texte).isEmpty(); }

/// A number with less than its eight digits has no key that could be right.
bool cleJuste(const FicheEmployeur &fiche)
{
    const QStringView numero = Trim(fiche.num_empmask);
    return numero.size() == chiffresDuNumero && chiffresSeuls(numero) && CleSS(numero) == fiche.clemask;
}

using Issue = std::optional<Refus>;

/// What tells the rules of the change, mod_emp, from those of the entry, add_emp: first the entry's.
namespace difference {

/// Whether a key that is left blank is told as such.
constexpr Selon<bool> cleBlancheDite{true, false};

constexpr Selon<QStringView> cleFausseEnQuittant{u"Veillez saisir un numéro correct SVP",
                                                 u"Veillez Saisir un Numéro Correct SVP"};
constexpr Selon<QStringView> cleFausse{u"Veillez saisir un numéro correct SVP",
                                       u"Veillez Saisir un Numéro Correct SVP!!!"};

/// Whether telephone and mail are looked at before the number's double and the names.
constexpr Selon<bool> coordonneesDAbord{true, false};

constexpr Selon<QStringView> telephone{
    u"Numéro de télephone incorrecte, exemple format (10 chiffres) : 0660112233 ou 0021445566",
    u"Numéro de télephone incorrecte, exemple  format (10 chiffres) : 0660112233 ou 0021445566"};

constexpr Selon<QStringView> existe{u"cet employeur existe déja!", u"Cet Employeur Existe Déja!"};

constexpr Selon<QStringView> sansRaison{u"Veuillez saisir la raison sociale SVP",
                                        u"Veuillez Saisir la Raison Sociale SVP!!!"};
constexpr Selon<QStringView> sansAdresse{u"Veuillez saisir une adresse SVP",
                                         u"Veuillez Saisir une Adresse SVP!!!"};

} // namespace difference

/// The rules of both forms, in their order.
class Controle
{
public:
    Controle(Forme forme, FicheEmployeur &fiche, Base &base, Dialogue &dialogue)
        : m_forme(forme), m_fiche(fiche), m_base(base), m_dialogue(dialogue)
    {
    }

    /// @param autreNumero whether the number is not the one that the employer has
    Issue passer(bool autreNumero)
    {
        if (Issue refus = cle())
            return refus;
        if (difference::coordonneesDAbord[m_forme]) {
            if (Issue refus = coordonnees())
                return refus;
        }
        // The table itself, and not the list: another program may have added the employer meanwhile.
        if (autreNumero &&
            m_base.Cnx.existe(u"SELECT 1 FROM employeur WHERE num_emp = ?"_s, {Trim(m_fiche.num_empmask)}))
            return arreter(controlesEmployeur[u"num_empmask"], difference::existe);
        if (Issue refus = noms())
            return refus;
        if (!difference::coordonneesDAbord[m_forme])
            return coordonnees();
        return {};
    }

private:
    Refus arreter(QStringView controle, const Selon<QStringView> &texte)
    {
        return refuser(m_dialogue, controle, texte[m_forme].toString());
    }

    Issue cle()
    {
        if (difference::cleBlancheDite[m_forme] && estBlanc(m_fiche.clemask))
            return refuser(m_dialogue, controlesEmployeur[u"clemask"], u"Veuillez saisir la clé du numéro"_s);
        if (!cleJuste(m_fiche))
            return arreter(controlesEmployeur[u"num_empmask"], difference::cleFausse);
        return {};
    }

    Issue coordonnees()
    {
        if (!estBlanc(m_fiche.telEdit)) {
            m_fiche.telEdit = sansBlancs(m_fiche.telEdit);
            if (!CtrlTelephone(m_fiche.telEdit, m_dialogue))
                return arreter(controlesEmployeur[u"telEdit"], difference::telephone);
        }
        if (!estBlanc(m_fiche.mailEdit)) {
            m_fiche.mailEdit = sansBlancs(m_fiche.mailEdit);
            if (!CtrlMail(m_fiche.mailEdit, m_dialogue))
                return refuser(m_dialogue, controlesEmployeur[u"mailEdit"], u"Format E - Mail incorrecte"_s);
        }
        return {};
    }

    Issue noms()
    {
        m_fiche.Rais_SocEdit = surUneLigne(m_fiche.Rais_SocEdit);
        m_fiche.AdresseEdit = surUneLigne(m_fiche.AdresseEdit);
        if (estBlanc(m_fiche.Rais_SocEdit))
            return arreter(controlesEmployeur[u"Rais_SocEdit"], difference::sansRaison);
        if (estBlanc(m_fiche.AdresseEdit))
            return arreter(controlesEmployeur[u"AdresseEdit"], difference::sansAdresse);
        return {};
    }

    const Forme m_forme;
    FicheEmployeur &m_fiche;
    Base &m_base;
    Dialogue &m_dialogue;
};

Champs champs(const FicheEmployeur &fiche)
{
    return {{u"num_emp"_s, Trim(fiche.num_empmask)},
            {u"rais_soc"_s, fiche.Rais_SocEdit},
            {u"adresse"_s, fiche.AdresseEdit},
            {u"tel"_s, fiche.telEdit},
            {u"Mail"_s, fiche.mailEdit}};
}

/// A sorted list keeps its order by itself at the change of a row, and sorting thousands again would be felt.
void relire(Recordset &employeurs)
{
    if (employeurs.tri().isEmpty())
        employeurs.requery();
}

} // namespace

std::optional<Refus> ctrlCleEmployeur(Forme forme, const FicheEmployeur &fiche, Dialogue &dialogue)
{
    if (cleJuste(fiche))
        return {};
    return refuser(dialogue, controlesEmployeur[u"num_empmask"],
                   difference::cleFausseEnQuittant[forme].toString());
}

std::optional<Refus> creerEmployeur(Base &base, FicheEmployeur &fiche, Dialogue &dialogue)
{
    if (Issue refus = Controle(Forme::Creation, fiche, base, dialogue).passer(true))
        return refus;
    base.RsEmployeur.ajouter(champs(fiche));
    relire(base.RsEmployeur);
    return {};
}

FicheEmployeur lireFicheEmployeur(const Enregistrement &ligne)
{
    const QString numero = ligne.texte(u"num_emp");
    const bool aUneCle = numero.size() == chiffresDuNumero && chiffresSeuls(numero);
    return {numero,
            aUneCle ? CleSS(numero) : u"  "_s,
            ligne.texte(u"rais_soc"),
            ligne.texte(u"adresse"),
            ligne.texte(u"tel"),
            ligne.texte(u"Mail")};
}

std::optional<Refus> modifierEmployeur(Base &base, const Enregistrement &ligne, FicheEmployeur &fiche,
                                       const FicheEmployeur &lue, Dialogue &dialogue)
{
    if (fiche == lue)
        return refuser(dialogue, controlesEmployeur[u"num_empmask"], u"Aucun Elément à Modifier"_s);
    const bool autreNumero = fiche.num_empmask != lue.num_empmask;
    if (Issue refus = Controle(Forme::Modification, fiche, base, dialogue).passer(autreNumero))
        return refus;
    base.RsEmployeur.modifier(ligne, champs(fiche));
    relire(base.RsEmployeur);
    return {};
}

bool supprimerEmployeur(Base &base, Dialogue &dialogue)
{
    return confirmerSuppression(dialogue) && supprimerEmployeurCourant(base, dialogue);
}

bool confirmerSuppression(Dialogue &dialogue)
{
    return dialogue.demander(u"confirmer la suppression?"_s, u"confirmation"_s);
}

bool supprimerEmployeurCourant(Base &base, Dialogue &dialogue)
{
    const Enregistrement courant = base.RsEmployeur.courant();
    if (courant.estVide())
        throw ErreurBase(u"Il n'y a pas d'employeur à supprimer."_s);
    if (base.Cnx.existe(u"SELECT 1 FROM entete_das WHERE num_emp = ?"_s, {courant.texte(u"num_emp")})) {
        dialogue.avertir(
            u"Il existe une ou plusieurs en-têtes DAS pour cet employeur, supprimez les d'abord"_s);
        return false;
    }
    base.RsEmployeur.supprimer(courant);
    return true;
}
