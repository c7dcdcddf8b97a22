#include "employees/affiliation.h"

#include "employees/salaries.h"
#include "rules/date.h"
#include "rules/dialogue.h"
#include "rules/identite.h"
#include "rules/nombre.h"
#include "rules/saisie.h"
#include "rules/texte.h"
#include "storage/base.h"

using namespace Qt::StringLiterals;

namespace {

using Issue = std::optional<Refus>;

constexpr QStringView sansFocus;
const Refus pasDAccord;

QString numeroComplet(const FicheSalarie &fiche) { return Trim(fiche.num_salmask) + fiche.clemask; }

bool numeroPris(Connexion &cnx, const QString &numero)
{
    return cnx.existe(u"SELECT 1 FROM salarie WHERE Num_Salarie = ?"_s, {Valeur(numero)});
}

/// The discriminator of one more employee without a number.
qint64 cptSuivant(Connexion &cnx)
{
    const Enregistrement haut = cnx.premiere(
        u"SELECT max(cpt_z) AS maxcpt FROM salarie WHERE Num_Salarie = ?"_s, {Valeur(NumeroBlanc)});
    return haut.entier(u"maxcpt", 0) + 1;
}

void direSansNumeroPermis(Forme ecran, const FicheSalarie &fiche, Dialogue &dialogue)
{
    if (fiche.sansNumero())
        dialogue.informer(difference::sansNumeroPermis[ecran].toString());
}

void completerSituation(Forme ecran, FicheSalarie &fiche)
{
    const QString sf = fiche.sfedit.toLower();
    const bool autre = sf != u"c" && sf != u"m";
    if (sf.isEmpty() || (difference::autreSituationRefusee[ecran] && autre))
        fiche.sfedit = u"C"_s;
}

// The accounts

class Comptes
{
public:
    Comptes(Forme ecran, FicheSalarie &fiche, Connexion &cnx, Dialogue &dialogue,
            const SuiviAffiliation &suivi)
        : m_ecran(ecran), m_fiche(fiche), m_banc(fiche.num_cpt_bancedit), m_ccp(fiche.num_cpt_ccpedit),
          m_cnx(cnx), m_dialogue(dialogue), m_suivi(suivi)
    {
    }

    Issue passer()
    {
        if (Val(m_banc) == 0)
            reecrire(m_banc, CompteBlanc.toString());
        if (Issue refus = sansCompte())
            return refus;
        if (Issue refus = bancaire())
            return refus;
        normaliserCcp();
        if (Issue refus = ccp())
            return refus;
        return uniques();
    }

private:
    Refus arreter(QStringView controle, QStringView texte)
    {
        return refuser(m_dialogue, controle, texte.toString());
    }

    void reecrire(QString &champ, const QString &valeur)
    {
        champ = valeur;
        m_suivi.montrer(m_fiche);
    }

    Issue sansCompte()
    {
        if (!Trim(m_ccp).isEmpty() || m_banc != CompteBlanc)
            return {};
        if (m_fiche.etrangerCheck) {
            m_dialogue.informer(u"Ce salarié ne possède pas de numéros de compte CCP ou bancaire"_s);
            return {};
        }
        if (m_dialogue.demander(difference::sansCompte[m_ecran].toString()))
            return {};
        return pasDAccord;
    }

    Issue bancaire()
    {
        constexpr QStringView surBancaire = controlesSalarie[u"num_cpt_bancedit"];
        if (m_banc.contains(u'_'))
            return arreter(surBancaire, difference::compteIncomplet[m_ecran]);
        if (m_banc == CompteBlanc)
            return {};
        if (CleRIB(QStringView(m_banc).mid(3)) != u"0")
            return arreter(surBancaire, difference::compteErrone[m_ecran]);
        if (m_banc.startsWith(u"007")) {
            return arreter(surBancaire,
                           u"Il s'agit d'un compte RIP CCP, veuillez le saisir dans la bonne case SVP");
        }
        return {};
    }

    void normaliserCcp()
    {
        QString chiffres;
        for (const QChar c : std::as_const(m_ccp)) {
            if (estChiffre(c))
                chiffres += c;
        }
        if (chiffres.size() != 20) {
            while (chiffres.startsWith(u'0'))
                chiffres.remove(0, 1);
        }
        // A field without any digit but zeros keeps its text and is refused as it stands.
        if (chiffres.isEmpty() || chiffres == m_ccp)
            return;
        m_dialogue.informer(u"Numéro ccp modifié en: %1"_s.arg(chiffres));
        reecrire(m_ccp, chiffres);
    }

    Issue ccp()
    {
        constexpr QStringView surCcp = controlesSalarie[u"num_cpt_ccpedit"];
        const QStringView compte = Trim(m_ccp);
        if (compte.isEmpty())
            return {};
        if (!EstNumerique(compte) || compte.size() < 5 || compte.size() > 20)
            return arreter(surCcp, u"Numéro de compte CCP incorrect !\nVerifiez le numéro ccp!");
        if (compte.size() == 20) {
            if (!compte.startsWith(u"007") || CleRIB(compte.mid(3)) != u"0")
                return arreter(surCcp, u"Compte RIP CCP Incorrecte, veuillez rectifiez SVP");
            return {};
        }
        QString corps = compte.chopped(2).toString();
        if (CleCCP(corps) != compte.last(2))
            return arreter(surCcp, u"Compte CCP Incorrecte, veuillez rectifiez SVP");
        return {};
    }

    Issue uniques()
    {
        if (autreTitulaire(u"num_cpt_ccp"_s, m_ccp)) {
            return arreter(
                sansFocus,
                u"Ce compte CCP est affecté à un autre employé, vous ne pouvez l'affecter à cet employé !");
        }
        if (autreTitulaire(u"num_cpt_banc"_s, m_banc)) {
            return arreter(sansFocus,
                           u"Ce compte bancaire est affecté à un autre employé, vous ne pouvez l'affecter à "
                           "cet employé !");
        }
        return {};
    }

    /// Whether an employee holds the account who shares neither the name nor the first name: one who shares
    /// either counts as the same person, that is required.
    bool autreTitulaire(const QString &colonne, const QString &compte) const
    {
        if (Trim(compte).isEmpty() || compte == CompteBlanc)
            return false;
        Requete titulaires =
            m_cnx.lire(u"SELECT nom, prenom FROM salarie WHERE [%1] = ?"_s.arg(colonne), {Valeur(compte)});
        while (titulaires.suivante()) {
            if (!titulaires.estNul(u"nom") && !memeNom(titulaires.texte(u"nom"), m_fiche.nomedit) &&
                !titulaires.estNul(u"prenom") && !memeNom(titulaires.texte(u"prenom"), m_fiche.prenomedit))
                return true;
        }
        return false;
    }

    const Forme m_ecran;
    FicheSalarie &m_fiche;
    QString &m_banc;
    QString &m_ccp;
    Connexion &m_cnx;
    Dialogue &m_dialogue;
    const SuiviAffiliation &m_suivi;
};

/// The steps of both saves behind the number: what is completed, and all rules of the accounts.
Issue completer(Forme ecran, FicheSalarie &fiche, Connexion &cnx, Dialogue &dialogue,
                const SuiviAffiliation &suivi)
{
    completerSituation(ecran, fiche);
    suivi.montrer(fiche);
    if (Issue refus = Comptes(ecran, fiche, cnx, dialogue, suivi).passer())
        return refus;
    if (fiche.TxtPIN.size() != 15)
        fiche.TxtPIN = ZerosGauche(Trim(fiche.TxtPIN));
    suivi.montrer(fiche);
    return {};
}

// The row

QString adresseStockee(Forme ecran, QString texte)
{
    texte = majuscules(texte.replace(u"\r\n"_s, u"\n"_s).replace(u'\n', u' '));
    return difference::adresseA40[ecran] ? Trim(texte).left(40).toString() : texte;
}

Champs champsSalarie(Forme ecran, const FicheSalarie &fiche, qint64 cpt_z)
{
    const auto parent = [ecran](const QString &nom) {
        return difference::parentsRognes[ecran] ? Trim(nom).toString() : nom;
    };
    const bool national = !fiche.etrangerCheck;
    // The blanks behind the code in the list stay in the place of birth: that is required.
    const QString commune = national ? fiche.CmbCommune.left(4) : QString();
    const QString lieu = national ? majuscules(fiche.CmbCommune.mid(4)) : QString();
    return {
        {u"Num_Salarie"_s, numeroComplet(fiche)},
        {u"cpt_z"_s, cpt_z},
        {u"nom"_s, majuscules(fiche.nomedit)},
        {u"prenom"_s, majuscules(fiche.prenomedit)},
        {u"sf"_s, fiche.sfedit},
        {u"date_naiss"_s, lireDate(fiche.mskdate)},
        {u"adresse"_s, adresseStockee(ecran, fiche.adredit)},
        {u"ville"_s, majuscules(fiche.villeEdit)},
        {u"c_postal"_s, fiche.c_postalEdit},
        {u"num_cpt_ccp"_s, fiche.num_cpt_ccpedit},
        {u"num_cpt_banc"_s, fiche.num_cpt_bancedit},
        {u"profes"_s, majuscules(fiche.profesedit)},
        {u"banque"_s, u""_s},
        {u"agence_banque"_s, u""_s},
        {u"etranger"_s, national ? u"N"_s : u"O"_s},
        {u"lieu_naiss"_s, lieu},
        {u"CommuneNaiss"_s, commune},
        {u"presume"_s, fiche.presumeCheck ? u"O"_s : u"N"_s},
        {u"sexe"_s, fiche.CmbSexe == 0 ? u"M"_s : u"F"_s},
        {u"telephone"_s, fiche.MskNTel.left(10)},
        {u"CinNumber"_s, fiche.TxtPIN},
        {u"Email"_s, fiche.TxtEmail.left(40)},
        {u"IdNat"_s, Zeros3(QString::number(fiche.CmbNationalite + 1))},
        {u"NumActeNaiss"_s, fiche.MskNumActeNaiss},
        {u"NIN"_s, fiche.MskNin},
        {u"PrenomPere"_s, parent(fiche.PrenomPere)},
        {u"NomMere"_s, parent(fiche.NomMere)},
        {u"PrenomMere"_s, parent(fiche.PrenomMere)},
    };
}

// The number of a changed employee

/// Whether the clerk and the table agree to the new ten digits; cpt_z is given anew to one who loses his
/// number, and kept by one who gets his first.
Issue ctrlChangement(const FicheSalarie &fiche, const AncienNumero &ancien, qint64 &cpt_z, Connexion &cnx,
                     Dialogue &dialogue)
{
    if (fiche.sansNumero()) {
        if (!dialogue.demander(u"Cet employé posséde déja un numéro SS, voulez vous lui supprimer le N° de "
                               "sécurité sociale ? "_s))
            return pasDAccord;
        cpt_z = cptSuivant(cnx);
        return {};
    }
    if (ancien.chiffres != ChiffresBlancs &&
        !dialogue.demander(u"confirmez vous le changement du numéro SS de cet employé (Oui/Non) ? "_s))
        return pasDAccord;
    if (!numeroPris(cnx, numeroComplet(fiche)))
        return {};
    return refuser(dialogue, sansFocus,
                   u"Ce numéro est déja affecté à un autre employé, modification N° SS non autorisée!"_s);
}

/// The declaration lines follow the employee, whatever key they carry.
void suivreNumero(Connexion &cnx, const AncienNumero &ancien, const QString &numero, qint64 cpt_z)
{
    // The range is that of the digits again, so that the index of the column serves.
    const auto lignes = [&](const QString &table, const QString &colonne) {
        const Condition debut = commencePar(colonne, ancien.chiffres);
        cnx.executer(u"UPDATE [%1] SET [%2] = ?, cpt_z = ? WHERE (%3) AND substr([%2], 1, 10) = ? "
                     "AND cpt_z = ?"_s.arg(table, colonne, debut.sql),
                     Valeurs{Valeur(numero), cpt_z} + debut.valeurs +
                         Valeurs{Valeur::brute(ancien.chiffres), ancien.cpt_z},
                     {colonne, u"cpt_z"_s});
    };
    lignes(u"ligne_das"_s, u"num_salarie"_s);
    lignes(u"Detail_CI"_s, u"N_SecSoc"_s);
    lignes(u"Ligne_Dac"_s, u"NumSalarie"_s);
}

void relireLignes(Base &base)
{
    for (Recordset *lignes : {&base.RsLigneDas, &base.RsDetailCi, &base.RsLigneDac}) {
        if (lignes->estOuvert())
            lignes->requery();
    }
}

} // namespace

std::optional<Refus> creerSalarie(FicheSalarie &fiche, Base &base, Dialogue &dialogue,
                                  const SuiviAffiliation &suivi)
{
    constexpr auto creation = Forme::Creation;
    if (Issue refus = ControleAffiliation(creation, fiche, base.Cnx, dialogue))
        return refus;
    direSansNumeroPermis(creation, fiche, dialogue);

    if (!fiche.sansNumero() && numeroPris(base.Cnx, numeroComplet(fiche)))
        return refuser(dialogue, sansFocus, u"Ce Numéro de Salarié Existe Déja!"_s);
    const qint64 cpt_z = fiche.blancCheck ? cptSuivant(base.Cnx) : 1;

    montrerTousSalaries(base.RsSalarie);
    if (Issue refus = completer(creation, fiche, base.Cnx, dialogue, suivi))
        return refus;

    base.RsSalarie.ajouter(champsSalarie(creation, fiche, cpt_z));
    base.RsSalarie.requery();
    fiche = ficheApresCreation();
    suivi.terminer();
    dialogue.informer(difference::succes[creation].toString());
    return {};
}

std::optional<Refus> modifierSalarie(FicheSalarie &fiche, const AncienNumero &ancien, Base &base,
                                     Dialogue &dialogue, const SuiviAffiliation &suivi)
{
    constexpr auto modification = Forme::Modification;
    qint64 cpt_z = ancien.cpt_z;
    if (Issue refus = ControleAffiliation(modification, fiche, base.Cnx, dialogue))
        return refus;
    direSansNumeroPermis(modification, fiche, dialogue);

    // The ten digits alone: a new key changes the employee and no line, that is required.
    const bool autreNumero = fiche.num_salmask != ancien.chiffres;
    if (autreNumero) {
        if (Issue refus = ctrlChangement(fiche, ancien, cpt_z, base.Cnx, dialogue)) {
            fiche.num_salmask = ancien.chiffres;
            fiche.clemask = ancien.cle;
            suivi.montrer(fiche);
            return refus;
        }
    }
    if (base.RsSalarie.vide())
        return refuser(dialogue, sansFocus, u"Aucun Elément à Modifier"_s);
    if (Issue refus = completer(modification, fiche, base.Cnx, dialogue, suivi))
        return refus;

    Transaction transaction(base.Cnx);
    base.RsSalarie.modifier(ancien.ligne, champsSalarie(modification, fiche, cpt_z));
    if (autreNumero)
        suivreNumero(base.Cnx, ancien, numeroComplet(fiche), cpt_z);
    transaction.commit();

    base.RsSalarie.requery();
    if (autreNumero)
        relireLignes(base);
    suivi.terminer();
    dialogue.informer(difference::succes[modification].toString());
    return {};
}
