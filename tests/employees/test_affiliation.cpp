#include "rules/date.h"
#include "rules/identite.h"
#include "tests/commun/cas.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/commun/enfant.h"
#include "tests/commun/horloge.h"
#include "tests/employees/basesalaries.h"
#include "tests/storage/foyer.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace boites;

using F = FicheSalarie;

namespace {

constexpr auto Creation = Forme::Creation;
constexpr auto Modification = Forme::Modification;
constexpr int cetteAnnee = 2024;

const QString numeroFiche = u"882345678911"_s; // that of the national in order
const QString autreNumero = u"882345678020"_s;
const QString numeroPris = u"882345678218"_s;
const QString sansNumero = u"000000000000"_s;

const QString accordErreurs = u"Des erreurs existent pour cet affilié, voulez vous tous de même enregistrer "
                              "l'affiliation de cet employé ?"_s;
/// What the two screens tell in words of their own.
Attente dit(const Selon<QStringView> &texte, Forme ecran) { return information(texte[ecran].toString()); }
Attente averti(const Selon<QStringView> &texte, Forme ecran)
{
    return avertissement(texte[ecran].toString());
}
const Attente ajoute = dit(difference::succes, Creation);
const Attente modifie = dit(difference::succes, Modification);
const Attentes demandeSansNumero{
    information(u"Il est préférable d'affecté à cet employé son numéro de sécurité sociale!"_s),
    question(u"Voulez vous effectuer ces changements pour cet employé, même sans numéro SS ?"_s, true, {},
             false)};

/// Writes "control=text|control=text" into a record, "etranger" before that a foreigner's.
void appliquer(FicheSalarie &fiche, const QString &saisie)
{
    static const QHash<QString, QString F::*> textes{{u"num_salmask"_s, &F::num_salmask},
                                                     {u"clemask"_s, &F::clemask},
                                                     {u"nomedit"_s, &F::nomedit},
                                                     {u"prenomedit"_s, &F::prenomedit},
                                                     {u"mskdate"_s, &F::mskdate},
                                                     {u"CmbCommune"_s, &F::CmbCommune},
                                                     {u"MskNumActeNaiss"_s, &F::MskNumActeNaiss},
                                                     {u"MskNin"_s, &F::MskNin},
                                                     {u"profesedit"_s, &F::profesedit},
                                                     {u"NomMere"_s, &F::NomMere},
                                                     {u"PrenomMere"_s, &F::PrenomMere},
                                                     {u"PrenomPere"_s, &F::PrenomPere},
                                                     {u"adredit"_s, &F::adredit},
                                                     {u"TxtEmail"_s, &F::TxtEmail},
                                                     {u"MskNTel"_s, &F::MskNTel},
                                                     {u"c_postalEdit"_s, &F::c_postalEdit},
                                                     {u"banc"_s, &F::num_cpt_bancedit},
                                                     {u"ccp"_s, &F::num_cpt_ccpedit}};
    static const QHash<QString, int F::*> rangs{{u"CmbSexe"_s, &F::CmbSexe},
                                                {u"CmbNationalite"_s, &F::CmbNationalite}};
    for (const QString &une : saisie.split(u'|', Qt::SkipEmptyParts)) {
        const QString nom = une.section(u'=', 0, 0);
        const QString valeur = une.section(u'=', 1);
        if (nom == u"etranger")
            fiche = ficheEtrangere();
        else if (rangs.contains(nom))
            fiche.*rangs[nom] = valeur.toInt();
        else if (textes.contains(nom))
            fiche.*textes[nom] = valeur;
        else
            qFatal("no control %s", qPrintable(nom));
    }
}

/// The same person, born that many calendar years ago, with the number that goes with it.
QString ne(const QString &jourMois, int ans)
{
    const QString annee = QString::number(cetteAnnee - ans);
    const QString numero = annee.right(2) + u"23456789"_s;
    return u"mskdate=%1%2|num_salmask=%3|clemask=%4"_s.arg(jourMois, annee, numero, CleSS(numero));
}

/// A screen that keeps what it was shown.
struct EcranNote
{
    QList<FicheSalarie> montrees;
    int termine = 0;
    SuiviAffiliation suivi{[this](const FicheSalarie &fiche) { montrees += fiche; }, [this] { ++termine; }};
};

/// The keys in all four tables.
const QString cles = u"SELECT 'salarie', Num_Salarie, cpt_z FROM salarie UNION ALL "
                     "SELECT 'DAS', num_salarie, cpt_z FROM ligne_das UNION ALL "
                     "SELECT 'CI', N_SecSoc, Cpt_z FROM Detail_CI UNION ALL "
                     "SELECT 'DAC', NumSalarie, cpt_z FROM Ligne_Dac ORDER BY 1, 2, 3"_s;

/// Adds an employee with a line in each declaration.
void ajouterDeclare(BaseSalaries &donnees, const QString &numero, qint64 cpt_z)
{
    donnees.ajouter(numero, cpt_z);
    Base &base = donnees.base;
    base.RsLigneDas.ajouter({{u"num_salarie"_s, numero},
                             {u"cpt_z"_s, cpt_z},
                             {u"annee"_s, 2020},
                             {u"num_emp"_s, u"12345678"},
                             {u"type_das"_s, 1}});
    base.RsDetailCi.ajouter({{u"N_Identif"_s, u"C1"}, {u"N_SecSoc"_s, numero}, {u"Cpt_z"_s, cpt_z}});
    base.RsLigneDac.ajouter({{u"NumSalarie"_s, numero},
                             {u"cpt_z"_s, cpt_z},
                             {u"Periode"_s, u"202001"},
                             {u"Type_dac"_s, 1},
                             {u"NumEmployeur"_s, u"12345678"}});
}

/// Changes the first employee's number, as the change screen does.
std::optional<Refus> changerNumero(Base &base, const QString &numero, Dialogue &dialogue, EcranNote &note)
{
    const FicheRemplie remplie = remplirFiche(base.RsSalarie.ligne(0), base.Cnx);
    FicheSalarie fiche = ficheNationale();
    fiche.num_salmask = numero.left(10);
    fiche.clemask = numero.mid(10);
    return modifierSalarie(fiche, remplie.ancien, base, dialogue, note.suivi);
}

/// A save on both screens.
struct CasSaisie
{
    QByteArray nom;
    QString saisie; ///< what differs from a national in order
    Selon<Attentes> boites;
    bool passe;
    QString champ;   ///< that gets the focus
    QString comptes; ///< that are stored then
};

/// The saves that are tried, in the words of the rules.
class Saisies
{
public:
    QList<CasSaisie> toutes;

    void cas(const QString &saisie, const Selon<Attentes> &boites, bool passe, const QString &champ = {},
             const QString &comptes = {})
    {
        toutes.append({saisie.toUtf8() + (passe ? "" : ", refus"), saisie, boites, passe, champ, comptes});
    }
    void bon(const QString &saisie, const Selon<Attentes> &boites = {}, const QString &comptes = {})
    {
        cas(saisie, boites, true, {}, comptes);
    }
    /// A stop that each screen tells in its own words.
    void arrets(const QString &saisie, const Selon<QStringView> &textes, const QString &champ = {},
                Attente dire(const Selon<QStringView> &, Forme) = averti)
    {
        cas(saisie, {{dire(textes, Creation)}, {dire(textes, Modification)}}, false, champ);
    }
    void arret(const QString &saisie, const QString &texte, const QString &champ = {},
               const QString &titre = {})
    {
        const Attentes boite{avertissement(texte, titre)};
        cas(saisie, {boite, boite}, false, champ);
    }
    /// Faults that are listed: a box of their own, the list, then the clerk's accord.
    void liste(const QString &saisie, const QString &textes, const QString &boite = {})
    {
        for (const bool oui : {false, true}) {
            Attentes boites{avertissement(textes), question(accordErreurs, oui)};
            if (!boite.isEmpty())
                boites.prepend(avertissement(boite));
            cas(saisie, {boites, boites}, oui);
        }
    }
};

} // namespace

class TestAffiliation : public QObject
{
    Q_OBJECT

    /// Old and new number, the boxes, then his number behind and that of his lines.
    using CasNumero = std::tuple<const char *, QString, QString, Attentes, QString, QString>;

    BaseSalaries m_autres; ///< for the saves, with two other employees

    static void identite(Saisies &s)
    {
        const QString numero = u"num_salmask"_s;
        s.bon(u"nomedit=DUPONT"_s);
        s.arret(u"num_salmask=882345678 "_s,
                u"la taille du numéro SS, sans la clés de control  est égal à 10!"_s, numero);
        for (const QString &date : {u"mskdate=04/03/1989"_s, u"etranger|mskdate=__/__/____"_s})
            s.arret(
                date,
                u"Pas de concordance entre le numéro SS et la l'année de naissance, veuillez corriger SVP!"_s,
                numero, u"Controle sasie"_s);
        for (const QString &acte : {u"00000"_s, u"_____"_s})
            s.arrets(u"MskNumActeNaiss="_s + acte, difference::acteManquant, {}, dit);
        s.arret(u"MskNumActeNaiss=12346"_s,
                u"Le numéro d'acte de naissance ou numéro SS erroné, veuillez revérifier SVP !"_s);
        for (const QString &faux : {u"clemask=12"_s, u"num_salmask=882345 789"_s})
            s.arret(faux, u"Numéro SS ou clés de controle incorrecte, Veuillez corriger SVP!!!"_s, numero,
                    u"control de clés SS"_s);

        const QString choisir = u"Veuillez choisir la nationalité SVP !"_s;
        const QString autreNat =
            u"Nationalité choisie autre que algérienne pour personnel nationaux , veuillez réctifier SVP !"_s;
        s.arrets(u"CmbNationalite=-1"_s, {choisir, autreNat});
        s.arret(u"etranger|CmbNationalite=-1"_s, choisir);
        s.arret(u"CmbNationalite=2"_s, autreNat);
        s.arret(
            u"etranger|CmbNationalite=3"_s,
            u"Erreur, nationalité algérienne choisie pour personnel etranger , veuillez réctifier SVP !"_s);
        const QString concordance =
            u"Pas de concordance entre le NIn et le numéro de l'acte de naissance !"_s;
        const QString pris =
            u"Le numéro NIN en cours est déja affecté à un autre employé !   %1   , Veuillez rectifier SVP !"_s;
        const QString prisMartin = pris.arg(u"MARTIN   LÉA"_s);
        s.liste(u"MskNin=109880123123460006"_s, concordance);
        s.bon(u"etranger|MskNin=_________000000000"_s);
        const QString nin = u"MskNin=222222222123452222"_s;
        s.liste(nin, prisMartin, prisMartin);
        // Stored in capitals and without the blank behind.
        const QString martin = nin + u"|nomedit=martin|prenomedit=Léa "_s;
        s.bon(martin);
        s.liste(martin + u"|mskdate=05/03/1988"_s, prisMartin, prisMartin);
        s.liste(martin + u"|prenomedit=Luc"_s, prisMartin, prisMartin);
        // Eighteen zeros are a number on the entry, and none on the change.
        const QString prisLuc = pris.arg(u"DUPONT   LUC"_s);
        s.bon(u"MskNin=000000000000000000"_s,
              {{avertissement(prisLuc), avertissement(concordance + u'\n' + prisLuc),
                question(accordErreurs, true)},
               {}});
        s.arret(u"CmbCommune="_s, u"Veuillez sélectionner la commune de naissance SVP!"_s, u"CmbCommune"_s);
    }

    static void personne(Saisies &s)
    {
        s.arret(u"profesedit= CHEF  "_s,
                u"la taille autorisée pour la fonction est de 5 caractères au minimum !"_s, u"profesedit"_s);
        const QString saisirNom = u"Veuillez saisir le nom de l'employé SVP !"_s;
        const QString lettres = u"%1 de l'employé ne peut contenir que des caractères alphabétiques !"_s;
        s.arret(u"nomedit=  "_s, saisirNom, u"nomedit"_s);
        s.arret(u"nomedit=DUPONT2"_s, lettres.arg(u"le nom"_s), u"nomedit"_s);
        s.arret(u"prenomedit="_s, saisirNom, u"prenomedit"_s);
        s.arret(u"prenomedit=J.P"_s, lettres.arg(u"le prénom"_s), u"prenomedit"_s);
        s.arret(u"mskdate=31/02/1988"_s, u"Veuillez Saisir une Date de naissance Correcte SVP!!!"_s,
                u"mskdate"_s);
        s.arret(ne(u"01/01/"_s, 15),
                u"Salarié de moins de 16 ans, veuillez saisir une date de naissance valide SVP"_s,
                u"mskdate"_s);
        s.bon(ne(u"31/12/"_s, 16));
        s.bon(ne(u"01/01/"_s, 85));
        s.arret(ne(u"31/12/"_s, 86),
                u" Cette Date de Naissance est trop Ancienne, Veuillez Saisir une Date Valide SVP!!!"_s,
                u"mskdate"_s);

        // What is listed waits, what stops goes first; the sex is not listed.
        const QString nin = u"MskNin=1_9880123123450006|"_s;
        s.liste(
            nin +
                u"NomMere=|PrenomMere=|PrenomPere=|adredit= 12 RUE ROSIERS |TxtEmail=jean.dupont@exemple.dz"_s,
            u"Le Numéro d'Identification National : NIN est Incorrecte\n"
            "le nom de la mère de l'employé n'est pas saisi !\n"
            "le prénom de la mère de l'employé n'est pas saisi!\n"
            "le prénom du père de l'employé n'est pas saisi !\n"
            "Le champ adresse doit contenir 15 caractères au minimum !\n"
            "Format du mail incorrecte !"_s);
        s.liste(u"NomMere=D1|PrenomMere=M2|PrenomPere=P,"_s,
                QStringList{lettres.arg(u"le nom de la mère"_s), lettres.arg(u"le prénom de la mère"_s),
                            lettres.arg(u"le prénom du père"_s)}
                    .join(u'\n'));
        s.arret(nin + u"nomedit="_s, saisirNom, u"nomedit"_s);
        s.arret(u"CmbSexe=-1"_s, u"Veuillez indiquer le sexe de ce salarié SVP!"_s, u"CmbSexe"_s);
        s.liste(u"MskNTel=0160112233"_s, u"Format du Telephone incorrecte !"_s,
                u"le deuxième chiffre doit impérativement etre égal à zéro pour les lignes fixe "_s);
        s.liste(u"c_postalEdit=16A00"_s, u"Code postal incorrect !"_s, u"Code postal incorrect!"_s);
    }

    static void comptes(Saisies &s)
    {
        const QString surBanc = u"num_cpt_bancedit"_s;
        const QString surCcp = u"num_cpt_ccpedit"_s;
        const QString zeros(20, u'0');
        for (const bool oui : {false, true}) {
            const auto demande = [oui](Forme ecran) {
                return Attentes{question(difference::sansCompte[ecran].toString(), oui)};
            };
            s.cas(u"ccp=|banc="_s + QString(20, u'_'), {demande(Creation), demande(Modification)}, oui, {},
                  u'|' + zeros);
        }
        s.bon(u"ccp=|banc=00112345678901234561"_s, {}, u"|00112345678901234561"_s);
        s.arrets(u"ccp=|banc=0011234567890123456_"_s, difference::compteIncomplet, surBanc);
        s.arrets(u"ccp=|banc=00112345678901234562"_s, difference::compteErrone, surBanc);
        s.arrets(u"ccp=|banc=001 2345678901234561"_s, difference::compteErrone, surBanc);
        s.arret(u"ccp=|banc=00712345678901234561"_s,
                u"Il s'agit d'un compte RIP CCP, veuillez le saisir dans la bonne case SVP"_s, surBanc);
        const QString avecCcp = u"123456768|"_s + zeros;
        s.bon(u"banc=_0112345678901234561"_s, {}, avecCcp); // it reads as zero, so it counts as none

        const QString nettoye = u"Numéro ccp modifié en: "_s;
        const QString refusDuCcp = u"Numéro de compte CCP incorrect !\nVerifiez le numéro ccp!"_s;
        const Attentes corrige{information(nettoye + u"123456768"_s)};
        const Attentes court{information(nettoye + u"123"_s), avertissement(refusDuCcp)};
        s.bon(u"ccp=0012-3456 768"_s, {corrige, corrige}, avecCcp);
        s.cas(u"ccp=00123"_s, {court, court}, false, surCcp);
        s.arret(u"ccp=neant"_s, refusDuCcp, surCcp);
        for (const QString &faux : {u"ccp=00000"_s, u"ccp=123456769"_s})
            s.arret(faux, u"Compte CCP Incorrecte, veuillez rectifiez SVP"_s, surCcp);
        s.bon(u"ccp=00712345678901234561"_s, {}, u"00712345678901234561|"_s + zeros);
        for (const QString &faux : {u"ccp=00712345678901234562"_s, u"ccp=00112345678901234561"_s})
            s.arret(faux, u"Compte RIP CCP Incorrecte, veuillez rectifiez SVP"_s, surCcp);
        const QString pris =
            u"Ce compte %1 est affecté à un autre employé, vous ne pouvez l'affecter à cet employé !"_s;
        s.arret(u"ccp=765432124"_s, pris.arg(u"CCP"_s));
        s.arret(u"ccp=|banc=00300000000000000097"_s, pris.arg(u"bancaire"_s));
        // Who shares the name is no other employee.
        s.bon(u"ccp=|banc=00400000000000000194"_s, {}, u"|00400000000000000194"_s);
    }

private slots:
    void initTestCase() { arreterHorloge(QDate(cetteAnnee, 12, 31)); }

    void saisie_data()
    {
        Saisies saisies;
        identite(saisies);
        personne(saisies);
        comptes(saisies);
        lignesDuTest(saisies.toutes);
    }

    void saisie()
    {
        QFETCH(CasSaisie, cas);
        BaseSalaries &donnees = m_autres;
        Base &base = donnees.base;
        if (base.RsSalarie.vide()) {
            donnees.ajouter(u"880001000100"_s, 1,
                            {{u"nom"_s, u"MARTIN"},
                             {u"prenom"_s, u"LÉA"},
                             {u"NIN"_s, u"222222222123452222"},
                             {u"num_cpt_ccp"_s, u"765432124"},
                             {u"num_cpt_banc"_s, u"00300000000000000097"}});
            donnees.ajouter(u"880001000101"_s, 1,
                            {{u"prenom"_s, u"LUC"},
                             {u"NIN"_s, u"000000000000000000"},
                             {u"num_cpt_ccp"_s, u""},
                             {u"num_cpt_banc"_s, u"00400000000000000194"}});
        }
        for (const Forme ecran : {Creation, Modification}) {
            base.Cnx.executer(u"DELETE FROM salarie WHERE rowid > 2"_s);
            base.RsSalarie.requery();
            FicheSalarie fiche = ficheNationale();
            appliquer(fiche, cas.saisie);
            AncienNumero ancien;
            if (ecran == Modification) {
                donnees.ajouter(fiche.num_salmask + fiche.clemask, 1,
                                {{u"NIN"_s, u""}, {u"num_cpt_ccp"_s, u""}});
                ancien = remplirFiche(base.RsSalarie.ligne(2), base.Cnx).ancien;
            }
            DialogueScenario dialogue;
            dialogue.attendre(cas.boites[ecran]);
            if (cas.passe)
                dialogue.attendre({ecran == Creation ? ajoute : modifie});
            const QStringList avant = donnees.lignes(u"SELECT * FROM salarie"_s);
            EcranNote note;
            const auto refus = ecran == Creation ? creerSalarie(fiche, base, dialogue, note.suivi)
                                                 : modifierSalarie(fiche, ancien, base, dialogue, note.suivi);
            QVERIFY(dialogue.acheve());
            QCOMPARE(!refus.has_value(), cas.passe);
            QCOMPARE(note.termine, cas.passe ? 1 : 0);
            QCOMPARE((refus ? refus->controle : QStringView()).toString(), cas.champ);
            if (refus)
                QCOMPARE(donnees.lignes(u"SELECT * FROM salarie"_s), avant);
            else if (!cas.comptes.isEmpty())
                QCOMPARE(donnees.lignes(u"SELECT num_cpt_ccp, num_cpt_banc FROM salarie WHERE rowid = 3"_s),
                         QStringList{cas.comptes});
            if (cas.champ.startsWith(u"num_cpt"))
                QCOMPARE(note.montrees.last(), fiche); // what was normalised is seen
        }
    }

    void creation()
    {
        BaseSalaries donnees;
        FicheSalarie fiche = ficheNationale();
        fiche.nomedit = u"d'été"_s;
        fiche.adredit = u"12 rue des rosiers\r\nbâtiment 4\nà gauche"_s;
        fiche.sfedit.clear();
        fiche.presumeCheck = true;
        fiche.CmbWilaya = u"16   ALGER"_s;
        fiche.CmbCommune = u"1601   Alger centre"_s;
        DialogueScenario dialogue;
        EcranNote note;
        dialogue.attendre({ajoute});
        QVERIFY(!creerSalarie(fiche, donnees.base, dialogue, note.suivi));

        QCOMPARE(
            donnees.lignes(u"SELECT * FROM salarie"_s),
            QStringList{
                u"882345678911|1|D'ÉTÉ|JEAN|C|1988-03-04|12 RUE DES ROSIERS BÂTIMENT 4 À GAUCHE|ADRAR|01000|"
                "123456768|00000000000000000000|MAÇON|||N|   ALGER CENTRE|O|M|0550112233||"
                "000000000000123|004|12345|109880123123450006|1601|PAUL|DURAND|MARIE"_s});
        QCOMPARE(donnees.base.RsSalarie.texte(u"nom"), u"D'ÉTÉ"_s);
        QCOMPARE(note.termine, 1);
        QCOMPARE(fiche, ficheApresCreation());
        QVERIFY(fiche.MskNin == QString(18, u'0') && ficheALOuverture().MskNin == QString(18, u'_'));

        FicheSalarie encore = ficheNationale();
        encore.nomedit = u"D'été"_s;
        const QString existe = u"Ce Numéro de Salarié Existe Déja!"_s;
        dialogue.attendre({avertissement(existe)});
        QVERIFY((creerSalarie(encore, donnees.base, dialogue, note.suivi) == Refus{{}, existe}));

        // A foreigner's place of birth is not stored, nor are certificate and NIN asked for.
        FicheSalarie etranger = ficheEtrangere();
        etranger.num_salmask = u"8800000000"_s;
        etranger.clemask = CleSS(etranger.num_salmask);
        etranger.CmbNationalite = 4;
        etranger.CmbSexe = 1;
        etranger.num_cpt_ccpedit = u" "_s;
        dialogue.attendre(
            {information(u"Ce salarié ne possède pas de numéros de compte CCP ou bancaire"_s), ajoute});
        QVERIFY(!creerSalarie(etranger, donnees.base, dialogue, note.suivi));
        QCOMPARE(donnees.lignes(u"SELECT etranger, lieu_naiss, CommuneNaiss, IdNat, sexe, NIN, NumActeNaiss "
                                "FROM salarie WHERE rowid = 2"_s),
                 QStringList{u"O|||005|F|000000000000000000|00000"_s});

        // Without a number; another number's cpt_z counts for nothing.
        donnees.ajouter(u"110000000000"_s, 9, {{u"nom"_s, u"D'ÉTÉ"}});
        const Attente permis = dit(difference::sansNumeroPermis, Creation);
        for (int i = 1; i <= 2; ++i) {
            FicheSalarie sans = encore;
            cocherBlanc(sans, true);
            dialogue.attendre({permis, ajoute});
            QVERIFY(!creerSalarie(sans, donnees.base, dialogue, note.suivi));
            QCOMPARE(donnees.base.RsSalarie.entier(u"cpt_z"), i);
        }
        // Zeros typed by hand keep cpt_z 1 and escape the test of duplicates; the table refuses them.
        FicheSalarie zeros = encore;
        zeros.num_salmask = sansNumero.left(10);
        zeros.clemask = u"00"_s;
        dialogue.attendre({permis});
        QVERIFY_THROWS_EXCEPTION(ErreurSql, creerSalarie(zeros, donnees.base, dialogue, note.suivi));
        QCOMPARE(note.termine, 4);
        QCOMPARE(donnees.base.RsSalarie.nombre(), 5);
    }

    void remplissage()
    {
        BaseSalaries donnees;
        const auto remplie = [&](const QString &numero, const Champs &champs) {
            donnees.base.Cnx.executer(u"DELETE FROM salarie"_s);
            donnees.ajouter(numero, 3, champs);
            return remplirFiche(donnees.base.RsSalarie.courant(), donnees.base.Cnx);
        };
        FicheRemplie vue = remplie(numeroFiche, {{u"sf"_s, u"V"},
                                                 {u"telephone"_s, u"550112233"},
                                                 {u"num_cpt_banc"_s, u"97"},
                                                 {u"presume"_s, u"O"},
                                                 {u"Email"_s, u"a@b.c"}});
        QCOMPARE(vue.ancien.chiffres + vue.ancien.cle, numeroFiche);
        QCOMPARE(vue.ancien.cpt_z, 3);
        FicheSalarie attendue = ficheNationale();
        attendue.sfedit = u"V"_s;
        attendue.presumeCheck = true;
        attendue.TxtEmail = u"a@b.c"_s;
        attendue.num_cpt_bancedit = u"00000000000000000097"_s;
        attendue.TxtPIN.clear();
        attendue.villeEdit.clear();
        attendue.c_postalEdit.clear();
        QCOMPARE(vue.fiche, attendue);

        // Foreigners: zeros in place of what they have not; a nationality out of the list is no choice.
        for (const auto &[IdNat, rang] : {std::pair{u"002", 1}, {u"006", -1}, {u"", -1}, {u"00x", -1}}) {
            const FicheSalarie fiche =
                remplie(numeroFiche, {{u"etranger"_s, u"O"}, {u"IdNat"_s, IdNat}, {u"CommuneNaiss"_s, u""}})
                    .fiche;
            QCOMPARE(fiche.CmbNationalite, rang);
            QCOMPARE(fiche.MskNin + fiche.MskNumActeNaiss, QString(23, u'0'));
            QVERIFY(fiche.etrangerCheck && fiche.CmbCommune.isEmpty());
        }

        // A row as the imports leave it: nothing but the number.
        Base &base = donnees.base;
        base.Cnx.executer(u"DELETE FROM salarie"_s);
        base.RsSalarie.ajouter({{u"Num_Salarie"_s, u"1234567"}, {u"cpt_z"_s, 1}});
        attendue = ficheALOuverture();
        attendue.num_salmask = u"12345     "_s;
        attendue.clemask = u"67"_s;
        QCOMPARE(remplirFiche(base.RsSalarie.courant(), base.Cnx).fiche, attendue);

        QCOMPARE(listeWilayas(base.Cnx), (QStringList{u"01   ADRAR"_s, u"16   ALGER"_s}));
        QCOMPARE(listeCommunes(base.Cnx, u" 01   ADRAR"),
                 (QStringList{u"0101   ADRAR"_s, u"0102   TIMIMOUN"_s}));
        QCOMPARE(listeNationalites(base.Cnx).value(RangNational), u"Algérie"_s);
    }

    void modification()
    {
        BaseSalaries donnees;
        Base &base = donnees.base;
        donnees.ajouter(numeroFiche, 1,
                        {{u"sf"_s, u"V"},
                         {u"banque"_s, u"001"},
                         {u"agence_banque"_s, u"00012"},
                         {u"adresse"_s, u"A0123456789 B0123456789 C0123456789 D01234567"}});
        FicheRemplie remplie = remplirFiche(base.RsSalarie.courant(), base.Cnx);
        remplie.fiche.PrenomPere = u" PAUL "_s;
        DialogueScenario dialogue;
        EcranNote note;
        dialogue.attendre({modifie});
        QVERIFY(!modifierSalarie(remplie.fiche, remplie.ancien, base, dialogue, note.suivi));
        QCOMPARE(donnees.lignes(
                     u"SELECT sf, banque, agence_banque, adresse, PrenomPere, CinNumber FROM salarie"_s),
                 QStringList{u"C|||A0123456789 B0123456789 C0123456789 D012|PAUL|000000000000000"_s});

        // Who changes both names keeps no account: his own row counts as another employee.
        remplie = remplirFiche(base.RsSalarie.courant(), base.Cnx);
        FicheSalarie autre = remplie.fiche;
        autre.nomedit = u"AUTRE"_s;
        autre.prenomedit = u"NOM"_s;
        autre.MskNin = QString(18, u'0');
        dialogue.attendreAvertissement(
            u"Ce compte CCP est affecté à un autre employé, vous ne pouvez l'affecter à cet employé !"_s);
        QVERIFY(modifierSalarie(autre, remplie.ancien, base, dialogue, note.suivi));

        // Another program deletes him while his change screen is open: his neighbour's row is not written in
        // his place, at the next try neither.
        donnees.ajouter(sansNumero, 1);
        Connexion ailleurs;
        ailleurs.ouvrir(donnees.chemin());
        ailleurs.executer(u"DELETE FROM salarie WHERE cpt_z = 1 AND Num_Salarie <> ?"_s, {sansNumero});
        for (int i = 0; i < 2; ++i)
            QVERIFY(echecDe([&] {
                        modifierSalarie(remplie.fiche, remplie.ancien, base, dialogue, note.suivi);
                    }).contains(u"modifiée ou supprimée"));
        QCOMPARE(donnees.lignes(cles), QStringList{u"salarie|000000000000|1"_s});

        // Without rows there is nothing to change.
        base.RsSalarie.supprimer(base.RsSalarie.courant());
        FicheSalarie fiche = ficheNationale();
        dialogue.attendreAvertissement(u"Aucun Elément à Modifier"_s);
        QVERIFY(modifierSalarie(fiche, remplie.ancien, base, dialogue, note.suivi));
        QCOMPARE(note.termine, 1);
    }

    void numero_data()
    {
        const auto confirmer = [](bool oui) {
            return question(u"confirmez vous le changement du numéro SS de cet employé (Oui/Non) ? "_s, oui);
        };
        const auto supprimer = [](bool oui) {
            return demandeSansNumero +
                   Attentes{
                       dit(difference::sansNumeroPermis, Modification),
                       question(u"Cet employé posséde déja un numéro SS, voulez vous lui supprimer le N° "
                                "de sécurité sociale ? "_s,
                                oui)};
        };
        const Attente pris = avertissement(
            u"Ce numéro est déja affecté à un autre employé, modification N° SS non autorisée!"_s);
        const QString autreCle = u"882345678999"_s;
        lignesDuTest<CasNumero>({
            {"autre numero", numeroFiche, autreNumero, {confirmer(true), modifie}, autreNumero, autreNumero},
            {"autre numero, non", numeroFiche, autreNumero, {confirmer(false)}, numeroFiche, numeroFiche},
            {"numero pris", numeroFiche, numeroPris, {confirmer(true), pris}, numeroFiche, numeroFiche},
            {"cle seule", autreCle, numeroFiche, {modifie}, numeroFiche, autreCle},
            {"numero supprime", numeroFiche, sansNumero, supprimer(true) + Attentes{modifie}, sansNumero,
             sansNumero},
            {"numero supprime, non", numeroFiche, sansNumero, supprimer(false), numeroFiche, numeroFiche},
            {"premier numero", sansNumero, autreNumero, {modifie}, autreNumero, autreNumero},
            {"toujours sans", sansNumero, sansNumero, supprimer(true).first(3) + Attentes{modifie},
             sansNumero, sansNumero},
        });
    }

    void numero()
    {
        QFETCH(CasNumero, cas);
        const auto &[nom, ancien, nouveau, boites, salarie, lignes] = cas;
        BaseSalaries donnees;
        // The employee in question, and others next to whom he must not be mistaken.
        ajouterDeclare(donnees, ancien, 3);
        QStringList attendu;
        const auto attendre = [&](const QString &sien, const QString &des, int cpt_z) {
            for (const QString &table : {u"DAS"_s, u"DAC"_s, u"CI"_s})
                attendu += u"%1|%2|%3"_s.arg(table, des).arg(cpt_z);
            attendu += u"salarie|%1|%2"_s.arg(sien).arg(cpt_z);
        };
        attendre(salarie, lignes, 3);
        for (const auto &[autre, cpt_z] :
             {std::pair{sansNumero, 1}, {sansNumero, 2}, {numeroPris, 1}, {numeroFiche, 1}}) {
            ajouterDeclare(donnees, autre, cpt_z);
            attendre(autre, autre, cpt_z);
        }
        attendu.sort();

        DialogueScenario dialogue;
        dialogue.attendre(boites);
        EcranNote note;
        const bool refuse = changerNumero(donnees.base, nouveau, dialogue, note).has_value();
        QVERIFY(dialogue.acheve());
        QCOMPARE(refuse, note.termine == 0);
        QCOMPARE(donnees.lignes(cles), attendu);
        if (refuse)
            QCOMPARE(note.montrees.last().num_salmask + note.montrees.last().clemask, ancien);
        else
            QCOMPARE(donnees.base.RsLigneDas.ligne(0).texte(u"num_salarie"), lignes);
    }

    /// The program is killed at moments spread over the change: either all tables hold the new number or
    /// none.
    void tue()
    {
        BaseSalaries donnees;
        ajouterDeclare(donnees, numeroFiche, 3);
        // Each statement takes its time, so that a kill falls into it or behind it.
        Connexion &cnx = donnees.base.Cnx;
        cnx.definir(u"CREATE TABLE lent AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
                    "WHERE i < 120) SELECT i FROM n"_s);
        for (const QString &table : {u"salarie"_s, u"ligne_das"_s, u"Detail_CI"_s, u"Ligne_Dac"_s})
            cnx.definir(u"CREATE TRIGGER lent_%1 AFTER UPDATE ON [%1] BEGIN "
                        "SELECT count(*) FROM lent a, lent b, lent c; END"_s.arg(table));
        const QStringList rien = donnees.lignes(cles);
        QStringList tout = rien;
        tout.replaceInStrings(numeroFiche, autreNumero);
        cnx.fermer();
        const QByteArray intacte = lireFichier(donnees.chemin());

        constexpr int coups = 10;
        qint64 duree = 0;
        int sansRien = 0;
        for (int coup = 0; coup <= coups; ++coup) {
            const QString chemin = donnees.fichier(u"coup%1.mdb"_s.arg(coup), intacte);
            if (coup == 0)
                duree = enfant::faire({chemin}).microsecondes;
            else
                enfant::faire({chemin}, duree * (2 * coup - 1) / (2 * coups));
            Connexion apres;
            apres.ouvrir(chemin);
            const QStringList etat = BaseEssai::lignes(apres, cles);
            QVERIFY2(etat == tout || (coup > 0 && etat == rien), qPrintable(etat.join(u' ')));
            sansRien += etat == rien;
        }
        QVERIFY2(sansRien >= 3,
                 qPrintable(u"%1 kills of %2 fell into the change"_s.arg(sansRien).arg(coups)));
    }
};

/// The child of the kill test changes the number in that database.
int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (const auto mots = enfant::mots(argc, argv)) {
        Base base;
        ouvrirTables(base, mots->first());
        DialogueOui dialogue;
        EcranNote note;
        enfant::commencer();
        changerNumero(base, autreNumero, dialogue, note);
        return 0;
    }
    TestAffiliation test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_affiliation.moc"
