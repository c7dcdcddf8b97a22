#include "rules/date.h"
#include "rules/identite.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/commun/horloge.h"
#include "tests/employees/basesalaries.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTest>

#include <memory>
#include <type_traits>

using namespace Qt::StringLiterals;

using Faute = std::function<void(FicheSalarie &)>;
using Attendu = std::function<void(DialogueScenario &, Forme)>;

namespace {

constexpr auto Creation = Forme::Creation;
constexpr auto Modification = Forme::Modification;

const QString accordErreurs = u"Des erreurs existent pour cet affilié, voulez vous tous de même enregistrer "
                              "l'affiliation de cet employé ?"_s;
const QString prisNin =
    u"Le numéro NIN en cours est déja affecté à un autre employé !   MARTIN   LÉA   , Veuillez "
    "rectifier SVP !"_s;

template <typename T>
Faute mis(T FicheSalarie::*champ, const std::type_identity_t<T> &valeur)
{
    return [=](FicheSalarie &fiche) { fiche.*champ = valeur; };
}

Faute tous(const QList<Faute> &fautes)
{
    return [=](FicheSalarie &fiche) {
        for (const Faute &faute : fautes)
            faute(fiche);
    };
}

Faute etranger(const Faute &faute = tous({}))
{
    return [=](FicheSalarie &fiche) {
        fiche = ficheEtrangere();
        faute(fiche);
    };
}

constexpr int cetteAnnee = 2024;

/// The same person, born that many calendar years ago, with the number that goes with it.
Faute ne(const QString &jourMois, int ans)
{
    return [=](FicheSalarie &fiche) {
        fiche.mskdate = jourMois + QString::number(cetteAnnee - ans);
        fiche.num_salmask.replace(0, 2, fiche.mskdate.right(2));
        fiche.clemask = CleSS(fiche.num_salmask);
    };
}

void attendreSansNumero(DialogueScenario &dialogue, bool oui)
{
    dialogue.attendreInformation(
        u"Il est préférable d'affecté à cet employé son numéro de sécurité sociale!"_s);
    dialogue.attendreQuestion(
        u"Voulez vous effectuer ces changements pour cet employé, même sans numéro SS ?"_s, oui, {}, false);
}

/// A screen that keeps what it was shown.
struct EcranNote
{
    QList<FicheSalarie> montrees;
    int termine = 0;
    SuiviAffiliation suivi{[this](const FicheSalarie &fiche) { montrees += fiche; }, [this] { ++termine; }};
};

/// What stands in the four tables of the number "8823456789" with cpt_z 3, before and after its change.
const QString clesSalarie = u"SELECT Num_Salarie, cpt_z FROM salarie ORDER BY rowid"_s;
const QString clesLignes = u"SELECT 'DAS', num_salarie, cpt_z FROM ligne_das UNION ALL "
                           "SELECT 'CI', N_SecSoc, Cpt_z FROM Detail_CI UNION ALL "
                           "SELECT 'DAC', NumSalarie, cpt_z FROM Ligne_Dac ORDER BY 1 DESC, 2, 3"_s;

void poserLignes(Connexion &cnx, const QString &numero, qint64 cpt_z)
{
    cnx.inserer(u"ligne_das"_s, {{u"num_salarie"_s, numero},
                                 {u"cpt_z"_s, cpt_z},
                                 {u"annee"_s, 2020},
                                 {u"num_emp"_s, u"12345678"},
                                 {u"type_das"_s, 1}});
    cnx.inserer(u"Detail_CI"_s, {{u"N_Identif"_s, u"C1"}, {u"N_SecSoc"_s, numero}, {u"Cpt_z"_s, cpt_z}});
    cnx.inserer(u"Ligne_Dac"_s, {{u"NumSalarie"_s, numero},
                                 {u"cpt_z"_s, cpt_z},
                                 {u"Periode"_s, u"202001"},
                                 {u"Type_dac"_s, 1},
                                 {u"NumEmployeur"_s, u"12345678"}});
}

/// Changes the first employee's number, as the change screen does.
std::optional<Refus> changerNumero(Base &base, const QString &chiffres, const QString &cle,
                                   Dialogue &dialogue, EcranNote &note)
{
    const FicheRemplie remplie = remplirFiche(base.RsSalarie.courant(), base.Cnx);
    FicheSalarie fiche = ficheNationale();
    fiche.num_salmask = chiffres;
    fiche.clemask = cle;
    return modifierSalarie(fiche, remplie.ancien, base, dialogue, note.suivi);
}

/// The child of the kill test: changes the number, saying when it begins and when it is done.
int changerDansUnEnfant(const QString &chemin)
{
    Base base;
    ouvrirPourSalaries(base, chemin);
    DialogueOui dialogue;
    EcranNote note;
    QFile sortie;
    if (!sortie.open(stdout, QIODevice::WriteOnly))
        return 2;
    sortie.write("debut\n");
    sortie.flush();
    changerNumero(base, u"8823456780"_s, u"20"_s, dialogue, note);
    sortie.write("fin\n");
    return 0;
}

} // namespace

class TestAffiliation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { arreterHorloge(QDate(cetteAnnee, 12, 31)); }

    void controle_data()
    {
        QTest::addColumn<Faute>("faute");
        QTest::addColumn<Attendu>("attendu");
        QTest::addColumn<bool>("passe");
        QTest::addColumn<QString>("champ");

        using F = FicheSalarie;
        const auto bon = [](const char *nom, const Faute &faute) {
            QTest::newRow(nom) << faute << Attendu([](auto &, Forme) {}) << true << u""_s;
        };
        // A stop: one warning, the same on both screens.
        const auto arret = [](const char *nom, const Faute &faute, const QString &texte,
                              const QString &champ = {}, const QString &titre = {}) {
            const Attendu attendu = [=](DialogueScenario &d, Forme) {
                d.attendreAvertissement(texte, titre);
            };
            QTest::newRow(nom) << faute << attendu << false << champ;
        };
        // A stop that each screen tells in its own way.
        const auto arrets = [](const char *nom, const Faute &faute, const Attendu &attendu) {
            QTest::newRow(nom) << faute << attendu << false << u""_s;
        };
        // Faults that are listed: the list, then the clerk's accord.
        const auto liste = [](const char *nom, const Faute &faute, const QString &textes,
                              const QString &boite = {}) {
            for (const bool oui : {false, true}) {
                const Attendu attendu = [=](DialogueScenario &d, Forme) {
                    if (!boite.isEmpty())
                        d.attendreAvertissement(boite);
                    d.attendreAvertissement(textes);
                    d.attendreQuestion(accordErreurs, oui);
                };
                QTest::addRow("%s, %s", nom, oui ? "oui" : "non") << faute << attendu << oui << u""_s;
            }
        };

        bon("tout est bon", tous({}));
        bon("etranger", etranger());
        bon("presume", mis(&F::presumeCheck, true));

        // The number
        const QString taille = u"la taille du numéro SS, sans la clés de control  est égal à 10!"_s;
        arret("numero court", mis(&F::num_salmask, u"882345678 "_s), taille, u"num_salmask"_s);
        arret("numero absent", mis(&F::num_salmask, QString(10, u' ')), taille, u"num_salmask"_s);
        const QString annee =
            u"Pas de concordance entre le numéro SS et la l'année de naissance, veuillez corriger SVP!"_s;
        const QString titreAnnee = u"Controle sasie"_s;
        arret("autre annee", mis(&F::mskdate, u"04/03/1989"_s), annee, u"num_salmask"_s, titreAnnee);
        arret("autre annee, etranger", etranger(mis(&F::mskdate, u"__/__/____"_s)), annee, u"num_salmask"_s,
              titreAnnee);
        const Attendu acteManquant = [](DialogueScenario &d, Forme a) {
            d.attendreInformation(a == Creation ? u"Numéro d'acte de naissance est obligatoire !"_s
                                                : u"Numéro d'acte de naissance non fournie, il est "
                                                  "obligatoire pour la DAC Nominatif !"_s);
        };
        arrets("acte a zeros", mis(&F::MskNumActeNaiss, u"00000"_s), acteManquant);
        arrets("acte absent", mis(&F::MskNumActeNaiss, u"_____"_s), acteManquant);
        arret("autre acte", mis(&F::MskNumActeNaiss, u"12346"_s),
              u"Le numéro d'acte de naissance ou numéro SS erroné, veuillez revérifier SVP !"_s);
        const QString cle = u"Numéro SS ou clés de controle incorrecte, Veuillez corriger SVP!!!"_s;
        const QString titreCle = u"control de clés SS"_s;
        arret("autre cle", mis(&F::clemask, u"12"_s), cle, u"num_salmask"_s, titreCle);
        arret("blanc dans le numero", mis(&F::num_salmask, u"882345 789"_s), cle, u"num_salmask"_s, titreCle);
        arret("cle negative", // "0-33": no key of two digits is right
              etranger(tous({mis(&F::num_salmask, u"8899999999"_s), mis(&F::clemask, u"33"_s)})), cle,
              u"num_salmask"_s, titreCle);

        // Nationality, NIN and place of birth
        const QString choisir = u"Veuillez choisir la nationalité SVP !"_s;
        const QString autreNat =
            u"Nationalité choisie autre que algérienne pour personnel nationaux , veuillez "
            "réctifier SVP !"_s;
        arrets("national sans nationalite", mis(&F::CmbNationalite, -1), [=](DialogueScenario &d, Forme a) {
            d.attendreAvertissement(a == Creation ? choisir : autreNat);
        });
        arret("etranger sans nationalite", etranger(mis(&F::CmbNationalite, -1)), choisir);
        arret("national d'ailleurs", mis(&F::CmbNationalite, 2), autreNat);
        arret("etranger national", etranger(mis(&F::CmbNationalite, 3)),
              u"Erreur, nationalité algérienne choisie pour personnel etranger , veuillez réctifier SVP !"_s);
        liste("NIN incomplet", mis(&F::MskNin, u"10988012312345000_"_s),
              u"Le Numéro d'Identification National : NIN est Incorrecte"_s);
        const QString concordance =
            u"Pas de concordance entre le NIn et le numéro de l'acte de naissance !"_s;
        liste("NIN d'un autre acte", mis(&F::MskNin, u"109880123123460006"_s), concordance);
        bon("NIN d'etranger", etranger(mis(&F::MskNin, u"_________000000000"_s)));
        const Faute ninMartin = mis(&F::MskNin, u"222222222123452222"_s);
        liste("NIN d'un autre", ninMartin, prisNin, prisNin);
        // Stored in capitals and without the blank behind.
        const Faute martin = tous({ninMartin, mis(&F::nomedit, u"martin"_s), mis(&F::prenomedit, u"Léa "_s)});
        bon("NIN sien", martin);
        liste("NIN sien, autre date", tous({martin, mis(&F::mskdate, u"05/03/1988"_s)}), prisNin, prisNin);
        // Eighteen zeros are a number on the entry, and none on the change.
        const Attendu zerosPris = [=](DialogueScenario &d, Forme a) {
            if (a == Modification)
                return;
            d.attendreAvertissement(prisNin);
            d.attendreAvertissement(concordance + u"\n"_s + prisNin);
            d.attendreQuestion(accordErreurs, true);
        };
        QTest::newRow("NIN a zeros") << mis(&F::MskNin, QString(18, u'0')) << zerosPris << true << u""_s;
        arret("sans commune", mis(&F::CmbCommune, u""_s),
              u"Veuillez sélectionner la commune de naissance SVP!"_s, u"CmbCommune"_s);

        // The person
        arret("fonction courte", mis(&F::profesedit, u" CHEF  "_s),
              u"la taille autorisée pour la fonction est de 5 caractères au minimum !"_s, u"profesedit"_s);
        const QString saisirNom = u"Veuillez saisir le nom de l'employé SVP !"_s;
        arret("sans nom", mis(&F::nomedit, u"  "_s), saisirNom, u"nomedit"_s);
        arret("chiffre dans le nom", mis(&F::nomedit, u"DUPONT2"_s),
              u"le nom de l'employé ne peut contenir que des caractères alphabétiques !"_s, u"nomedit"_s);
        arret("sans prenom", mis(&F::prenomedit, u""_s), saisirNom, u"prenomedit"_s);
        arret("point dans le prenom", mis(&F::prenomedit, u"J.P"_s),
              u"le prénom de l'employé ne peut contenir que des caractères alphabétiques !"_s,
              u"prenomedit"_s);
        arret("date fausse", mis(&F::mskdate, u"31/02/1988"_s),
              u"Veuillez Saisir une Date de naissance Correcte SVP!!!"_s, u"mskdate"_s);
        arret("15 ans cette annee", ne(u"01/01/"_s, 15),
              u"Salarié de moins de 16 ans, veuillez saisir une date de naissance valide SVP"_s,
              u"mskdate"_s);
        bon("16 ans cette annee", ne(u"31/12/"_s, 16));
        bon("85 ans cette annee", ne(u"01/01/"_s, 85));
        arret("86 ans cette annee", ne(u"31/12/"_s, 86),
              u" Cette Date de Naissance est trop Ancienne, Veuillez Saisir une Date Valide SVP!!!"_s,
              u"mskdate"_s);

        // What is listed, and the sex, which is not
        const auto parents = [](const QString &nomMere, const QString &prenomMere,
                                const QString &prenomPere) {
            return tous({mis(&F::NomMere, nomMere), mis(&F::PrenomMere, prenomMere),
                         mis(&F::PrenomPere, prenomPere)});
        };
        liste("sans parents", parents({}, {}, {}),
              u"le nom de la mère de l'employé n'est pas saisi !\n"
              "le prénom de la mère de l'employé n'est pas saisi!\n"
              "le prénom du père de l'employé n'est pas saisi !"_s);
        liste("chiffres aux parents", parents(u"D1"_s, u"M2"_s, u"P,"_s),
              u"le nom de la mère de l'employé ne peut contenir que des caractères alphabétiques !\n"
              "le prénom de la mère de l'employé ne peut contenir que des caractères alphabétiques !\n"
              "le prénom du père de l'employé ne peut contenir que des caractères alphabétiques !"_s);
        const QString adresse = u"Le champ adresse doit contenir 15 caractères au minimum !"_s;
        liste("adresse courte", mis(&F::adredit, u" 12 RUE ROSIERS "_s), adresse);
        arret("sans sexe", mis(&F::CmbSexe, -1), u"Veuillez indiquer le sexe de ce salarié SVP!"_s,
              u"CmbSexe"_s);
        const QString mail = u"Format du mail incorrecte !"_s;
        liste("mail", mis(&F::TxtEmail, u"jean.dupont@exemple.dz"_s), mail);
        liste("telephone", mis(&F::MskNTel, u"0160112233"_s), u"Format du Telephone incorrecte !"_s,
              u"le deuxième chiffre doit impérativement etre égal à zéro pour les lignes fixe "_s);
        liste("telephone illisible", mis(&F::MskNTel, u"0 60112233"_s),
              u"Format du Telephone incorrecte !"_s);
        liste("code postal", mis(&F::c_postalEdit, u"16A00"_s), u"Code postal incorrect !"_s,
              u"Code postal incorrect!"_s);

        // In one pass: what is listed waits, what stops goes first.
        const Faute ninIncomplet = mis(&F::MskNin, u"1_9880123123450006"_s);
        liste(
            "liste entiere",
            tous({ninIncomplet, mis(&F::NomMere, u""_s), mis(&F::adredit, u""_s), mis(&F::TxtEmail, u"x"_s)}),
            QStringList{u"Le Numéro d'Identification National : NIN est Incorrecte"_s,
                        u"le nom de la mère de l'employé n'est pas saisi !"_s, adresse, mail}
                .join(u'\n'));
        arret("arret avant la liste", tous({ninIncomplet, mis(&F::nomedit, u""_s)}), saisirNom, u"nomedit"_s);
    }

    void controle()
    {
        QFETCH(Faute, faute);
        QFETCH(Attendu, attendu);
        QFETCH(bool, passe);
        QFETCH(QString, champ);
        if (!m_autres) {
            m_autres = std::make_unique<BaseSalaries>();
            for (const auto &[numero, nin] : {std::pair{u"880001000100"_s, u"222222222123452222"},
                                              {u"880001000101"_s, u"000000000000000000"}}) {
                m_autres->ajouter(numero, 1, {{u"nom"_s, u"MARTIN"}, {u"prenom"_s, u"LÉA"}, {u"NIN"_s, nin}});
            }
        }
        for (const Forme ecran : {Creation, Modification}) {
            FicheSalarie fiche = ficheNationale();
            faute(fiche);
            DialogueScenario dialogue;
            attendu(dialogue, ecran);
            const std::optional<Refus> refus =
                ControleAffiliation(ecran, fiche, m_autres->base.Cnx, dialogue);
            QVERIFY(dialogue.acheve());
            QCOMPARE(!refus.has_value(), passe);
            if (refus)
                QCOMPARE(refus->controle.toString(), champ);
        }
    }

    /// Without a number the entry goes on, and the change asks at every save, with Non as the default.
    void controleSansNumero()
    {
        BaseSalaries donnees;
        FicheSalarie fiche = ficheNationale();
        cocherBlanc(fiche, true);
        fiche.MskNumActeNaiss = u"12346"_s; // the rules of the number are not asked for
        fiche.MskNin = u"109880123123460006"_s;
        DialogueScenario dialogue;
        QVERIFY(!ControleAffiliation(Creation, fiche, donnees.base.Cnx, dialogue));
        for (const bool oui : {false, true}) {
            attendreSansNumero(dialogue, oui);
            QCOMPARE(ControleAffiliation(Modification, fiche, donnees.base.Cnx, dialogue).has_value(), !oui);
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
        dialogue.attendreInformation(u"Salarié Ajouté Avec Succès!"_s);
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
        dialogue.attendreAvertissement(u"Ce Numéro de Salarié Existe Déja!"_s);
        QVERIFY((creerSalarie(encore, donnees.base, dialogue, note.suivi) ==
                 Refus{{}, u"Ce Numéro de Salarié Existe Déja!"_s}));

        // A foreigner's place of birth is not stored, nor are certificate and NIN asked for.
        FicheSalarie etranger = ficheEtrangere();
        etranger.num_salmask = u"8899999999"_s; // its key is "0-33"
        etranger.clemask = u"33"_s;
        etranger.CmbNationalite = 4;
        etranger.CmbSexe = 1;
        etranger.num_cpt_ccpedit = u" "_s;
        const QString cleFausse = u"Numéro SS ou clés de controle incorrecte, Veuillez corriger SVP!!!"_s;
        dialogue.attendreAvertissement(cleFausse, u"control de clés SS"_s);
        QVERIFY(
            (creerSalarie(etranger, donnees.base, dialogue, note.suivi) == Refus{u"num_salmask", cleFausse}));
        etranger.num_salmask = u"8800000000"_s;
        etranger.clemask = CleSS(etranger.num_salmask);
        dialogue.attendreInformation(u"Ce salarié ne possède pas de numéros de compte CCP ou bancaire"_s);
        dialogue.attendreInformation(u"Salarié Ajouté Avec Succès!"_s);
        QVERIFY(!creerSalarie(etranger, donnees.base, dialogue, note.suivi));
        QCOMPARE(donnees.lignes(u"SELECT etranger, lieu_naiss, CommuneNaiss, IdNat, sexe, NIN, NumActeNaiss "
                                "FROM salarie WHERE rowid = 2"_s),
                 QStringList{u"O|||005|F|000000000000000000|00000"_s});
    }

    void sansNumero()
    {
        BaseSalaries donnees;
        donnees.ajouter(u"110000000000"_s, 9); // another number's cpt_z counts for nothing
        DialogueScenario dialogue;
        EcranNote note;
        const QString permis =
            u"le numéro SS à blanc ou 000000000000 n'est permis que pour une  nouvelle recrue de "
            "moins d'un mois à la date de dépot de la DAS , merci"_s;
        for (int i = 0; i < 3; ++i) {
            FicheSalarie fiche = ficheNationale();
            cocherBlanc(fiche, true);
            dialogue.attendreInformation(permis);
            dialogue.attendreInformation(u"Salarié Ajouté Avec Succès!"_s);
            QVERIFY(!creerSalarie(fiche, donnees.base, dialogue, note.suivi));
        }
        QCOMPARE(donnees.lignes(clesSalarie), (QStringList{u"110000000000|9"_s, u"000000000000|1"_s,
                                                           u"000000000000|2"_s, u"000000000000|3"_s}));

        // Zeros typed by hand keep cpt_z 1 and escape the test of duplicates; the table refuses them.
        FicheSalarie fiche = ficheNationale();
        fiche.num_salmask = u"0000000000"_s;
        fiche.clemask = u"00"_s;
        dialogue.attendreInformation(permis);
        QVERIFY_THROWS_EXCEPTION(ErreurSql, creerSalarie(fiche, donnees.base, dialogue, note.suivi));
        QCOMPARE(note.termine, 3);
        QCOMPARE(donnees.base.RsSalarie.nombre(), 4);
    }

    void comptes_data()
    {
        QTest::addColumn<QString>("banc");
        QTest::addColumn<QString>("ccp");
        QTest::addColumn<Attendu>("attendu");
        QTest::addColumn<QString>("issue"); // the stored accounts, or the control of the refusal

        const auto ligne = [](const char *nom, const QString &banc, const QString &ccp,
                              const Attendu &attendu, const QString &issue) {
            QTest::newRow(nom) << banc << ccp << attendu << issue;
        };
        const auto avertir = [](const QString &creation, const QString &modification = {}) {
            return Attendu([=](DialogueScenario &d, Forme a) {
                d.attendreAvertissement(a == Creation || modification.isEmpty() ? creation : modification);
            });
        };
        const auto modifie = [](const QString &chiffres, const QString &refus = {}) {
            return Attendu([=](DialogueScenario &d, Forme) {
                d.attendreInformation(u"Numéro ccp modifié en: "_s + chiffres);
                if (!refus.isEmpty())
                    d.attendreAvertissement(refus);
            });
        };
        const Attendu rien = [](DialogueScenario &, Forme) {};
        const QString zeros(20, u'0');
        const QString surBanc = u"refus num_cpt_bancedit"_s;
        const QString surCcp = u"refus num_cpt_ccpedit"_s;
        const QString rib = u"00112345678901234561"_s;
        const QString rip = u"00712345678901234561"_s;

        for (const bool oui : {false, true}) {
            const Attendu question = [=](DialogueScenario &d, Forme a) {
                d.attendreQuestion(a == Creation
                                       ? u"Etes vous sur que ce salarié ne possède pas de numéros de "
                                         "compte CCP ou bancaire ?"_s
                                       : u" Etes vous sur que ce salarié ne possède pas de numéro de "
                                         "compte CCP ou bancaire ?"_s,
                                   oui);
            };
            QTest::addRow("aucun compte, %s", oui ? "oui" : "non")
                << QString(20, u'_') << u""_s << question << (oui ? QString(u"|"_s + zeros) : u"refus "_s);
        }
        ligne("banque bonne", rib, u""_s, rien, QString(u"|"_s + rib));
        ligne("banque incomplete", u"0011234567890123456_"_s, u""_s,
              avertir(u"Veuillez compléter le numéro de compte bancaire SVP"_s,
                      u"Veuillez compléter le numéro de compte RIB bancaire SVP"_s),
              surBanc);
        const Attendu errone =
            avertir(u"Votre compte bancaire est erroné !"_s,
                    u"Votre compte RIB bancaire est incorrecte, veuillez le corriger SVP !"_s);
        ligne("banque fausse", u"00112345678901234562"_s, u""_s, errone, surBanc);
        ligne("banque a blanc", u"001 2345678901234561"_s, u""_s, errone, surBanc);
        ligne("RIP en banque", rip, u""_s,
              avertir(u"Il s'agit d'un compte RIP CCP, veuillez le saisir dans la bonne case SVP"_s),
              surBanc);
        // It reads as zero, so it counts as none.
        ligne("banque ouverte par autre chose", u"_0112345678901234561"_s, u"123456768"_s, rien,
              QString(u"123456768|"_s + zeros));

        ligne("ccp bon", zeros, u"123456768"_s, rien, QString(u"123456768|"_s + zeros));
        ligne("ccp a nettoyer", zeros, u"0012-3456 768"_s, modifie(u"123456768"_s),
              QString(u"123456768|"_s + zeros));
        const QString incorrect = u"Numéro de compte CCP incorrect !\nVerifiez le numéro ccp!"_s;
        ligne("ccp court", zeros, u"00123"_s, modifie(u"123"_s, incorrect), surCcp);
        ligne("ccp sans chiffre", zeros, u"neant"_s, avertir(incorrect), surCcp);
        const QString fauxCcp = u"Compte CCP Incorrecte, veuillez rectifiez SVP"_s;
        ligne("ccp a zeros", zeros, u"00000"_s, avertir(fauxCcp), surCcp);
        ligne("ccp faux", zeros, u"123456769"_s, avertir(fauxCcp), surCcp);
        ligne("rip bon", zeros, rip, rien, QString(rip + u"|"_s + zeros));
        const QString fauxRip = u"Compte RIP CCP Incorrecte, veuillez rectifiez SVP"_s;
        ligne("rip faux", zeros, u"00712345678901234562"_s, avertir(fauxRip), surCcp);
        ligne("rip d'une banque", zeros, rib, avertir(fauxRip), surCcp);

        ligne(
            "ccp pris", zeros, u"765432124"_s,
            avertir(
                u"Ce compte CCP est affecté à un autre employé, vous ne pouvez l'affecter à cet employé !"_s),
            u"refus "_s);
        ligne(
            "banque prise", u"00300000000000000097"_s, u""_s,
            avertir(
                u"Ce compte bancaire est affecté à un autre employé, vous ne pouvez l'affecter à cet employé !"_s),
            u"refus "_s);
        // Who shares the name is no other employee.
        ligne("banque d'un homonyme", u"00400000000000000194"_s, u""_s, rien, u"|00400000000000000194"_s);
    }

    void comptes()
    {
        QFETCH(QString, banc);
        QFETCH(QString, ccp);
        QFETCH(Attendu, attendu);
        QFETCH(QString, issue);
        for (const Forme ecran : {Creation, Modification}) {
            BaseSalaries donnees;
            donnees.ajouter(u"880001000100"_s, 1,
                            {{u"nom"_s, u"MARTIN"},
                             {u"prenom"_s, u"LÉA"},
                             {u"NIN"_s, u"1"},
                             {u"num_cpt_ccp"_s, u"765432124"},
                             {u"num_cpt_banc"_s, u"00300000000000000097"}});
            donnees.ajouter(
                u"880001000101"_s, 1,
                {{u"prenom"_s, u"LUC"}, {u"NIN"_s, u"1"}, {u"num_cpt_banc"_s, u"00400000000000000194"}});
            FicheSalarie fiche = ficheNationale();
            AncienNumero ancien;
            if (ecran == Modification) {
                donnees.ajouter(u"882345678911"_s, 1);
                donnees.base.RsSalarie.allerA(2);
                ancien = remplirFiche(donnees.base.RsSalarie.courant(), donnees.base.Cnx).ancien;
            }
            fiche.num_cpt_bancedit = banc;
            fiche.num_cpt_ccpedit = ccp;
            DialogueScenario dialogue;
            attendu(dialogue, ecran);
            const bool refuse = issue.startsWith(u"refus ");
            if (!refuse)
                dialogue.attendreInformation(ecran == Creation ? u"Salarié Ajouté Avec Succès!"_s
                                                               : u"Salarié Modifié avec Succès!"_s);
            const QStringList avant = donnees.lignes(u"SELECT * FROM salarie"_s);
            EcranNote note;
            const auto refus = ecran == Creation
                                   ? creerSalarie(fiche, donnees.base, dialogue, note.suivi)
                                   : modifierSalarie(fiche, ancien, donnees.base, dialogue, note.suivi);
            QVERIFY(dialogue.acheve());
            QCOMPARE(refus.has_value(), refuse);
            QCOMPARE(note.termine, refuse ? 0 : 1);
            if (refuse) {
                QCOMPARE(refus->controle.toString(), issue.mid(6));
                QCOMPARE(donnees.lignes(u"SELECT * FROM salarie"_s), avant);
                QCOMPARE(note.montrees.last(), fiche); // what was normalised is seen
            } else {
                QCOMPARE(donnees.lignes(u"SELECT num_cpt_ccp, num_cpt_banc FROM salarie WHERE rowid = 3"_s),
                         QStringList{issue});
            }
        }
    }

    void remplissage()
    {
        BaseSalaries donnees;
        Base &base = donnees.base;
        donnees.ajouter(u"882345678911"_s, 3,
                        {{u"sf"_s, u"V"},
                         {u"telephone"_s, u"550112233"},
                         {u"num_cpt_banc"_s, u"97"},
                         {u"presume"_s, u"O"},
                         {u"Email"_s, u"a@b.c"}});
        FicheRemplie remplie = remplirFiche(base.RsSalarie.courant(), base.Cnx);
        QCOMPARE(remplie.ancien.chiffres, u"8823456789"_s);
        QCOMPARE(remplie.ancien.cle, u"11"_s);
        QCOMPARE(remplie.ancien.cpt_z, 3);
        FicheSalarie attendue = ficheNationale();
        attendue.sfedit = u"V"_s;
        attendue.presumeCheck = true;
        attendue.TxtEmail = u"a@b.c"_s;
        attendue.num_cpt_bancedit = u"00000000000000000097"_s;
        attendue.TxtPIN.clear();
        attendue.villeEdit.clear();
        attendue.c_postalEdit.clear();
        QCOMPARE(remplie.fiche, attendue);

        // A row as the imports leave it: nothing but the number.
        base.Cnx.executer(u"DELETE FROM salarie"_s);
        base.Cnx.inserer(u"salarie"_s, {{u"Num_Salarie"_s, u"1234567"}, {u"cpt_z"_s, 1}});
        base.RsSalarie.requery();
        remplie = remplirFiche(base.RsSalarie.courant(), base.Cnx);
        attendue = ficheALOuverture();
        attendue.num_salmask = u"12345     "_s;
        attendue.clemask = u"67"_s;
        QCOMPARE(remplie.fiche, attendue);

        // Foreigners: zeros in place of what they have not; a nationality out of the list is no choice.
        for (const auto &[IdNat, rang] : {std::pair{u"002", 1}, {u"246", -1}, {u"", -1}, {u"00x", -1}}) {
            base.Cnx.executer(u"DELETE FROM salarie"_s);
            donnees.ajouter(u"882345678911"_s, 1,
                            {{u"etranger"_s, u"O"}, {u"IdNat"_s, IdNat}, {u"CommuneNaiss"_s, u""}});
            const FicheSalarie fiche = remplirFiche(base.RsSalarie.courant(), base.Cnx).fiche;
            QCOMPARE(fiche.CmbNationalite, rang);
            QCOMPARE(fiche.MskNin, QString(18, u'0'));
            QCOMPARE(fiche.MskNumActeNaiss, u"00000"_s);
            QVERIFY(fiche.etrangerCheck && fiche.CmbCommune.isEmpty());
        }
        QCOMPARE(listeWilayas(base.Cnx), (QStringList{u"01   ADRAR"_s, u"16   ALGER"_s}));
        QCOMPARE(listeCommunes(base.Cnx, u" 01   ADRAR"),
                 (QStringList{u"0101   ADRAR"_s, u"0102   TIMIMOUN"_s}));
        QCOMPARE(listeNationalites(base.Cnx).value(RangNational), u"Algérie"_s);
    }

    void modification()
    {
        BaseSalaries donnees;
        Base &base = donnees.base;
        donnees.ajouter(u"882345678911"_s, 1,
                        {{u"sf"_s, u"V"},
                         {u"banque"_s, u"001"},
                         {u"agence_banque"_s, u"00012"},
                         {u"adresse"_s, u"A0123456789 B0123456789 C0123456789 D01234567"}});
        FicheRemplie remplie = remplirFiche(base.RsSalarie.courant(), base.Cnx);
        remplie.fiche.PrenomPere = u" PAUL "_s;
        DialogueScenario dialogue;
        EcranNote note;
        dialogue.attendreInformation(u"Salarié Modifié avec Succès!"_s);
        QVERIFY(!modifierSalarie(remplie.fiche, remplie.ancien, base, dialogue, note.suivi));
        QCOMPARE(donnees.lignes(
                     u"SELECT sf, banque, agence_banque, adresse, PrenomPere, CinNumber FROM salarie"_s),
                 QStringList{u"C|||A0123456789 B0123456789 C0123456789 D012|PAUL|000000000000000"_s});

        // Who changes both names keeps no account: his own row counts as another employee.
        remplie = remplirFiche(base.RsSalarie.courant(), base.Cnx);
        remplie.fiche.nomedit = u"AUTRE"_s;
        remplie.fiche.prenomedit = u"NOM"_s;
        remplie.fiche.MskNin = QString(18, u'0');
        dialogue.attendreAvertissement(
            u"Ce compte CCP est affecté à un autre employé, vous ne pouvez l'affecter à cet employé !"_s);
        QVERIFY(modifierSalarie(remplie.fiche, remplie.ancien, base, dialogue, note.suivi));

        // Without rows there is nothing to change.
        base.Cnx.executer(u"DELETE FROM salarie"_s);
        base.RsSalarie.requery();
        FicheSalarie fiche = ficheNationale();
        dialogue.attendreAvertissement(u"Aucun Elément à Modifier"_s);
        QVERIFY(modifierSalarie(fiche, remplie.ancien, base, dialogue, note.suivi));
        QCOMPARE(note.termine, 1);
    }

    void numero_data()
    {
        QTest::addColumn<QString>("ancien");
        QTest::addColumn<QString>("nouveau");
        QTest::addColumn<Attendu>("attendu");
        QTest::addColumn<QString>("salarie"); // the row behind, or empty when the change is refused
        QTest::addColumn<QString>("lignes");

        const auto ligne = [](const char *nom, const QString &ancien, const QString &nouveau,
                              const Attendu &attendu, const QString &salarie, const QString &lignes) {
            QTest::newRow(nom) << ancien << nouveau << attendu << salarie << lignes;
        };
        const QString confirmer = u"confirmez vous le changement du numéro SS de cet employé (Oui/Non) ? "_s;
        const QString supprimer =
            u"Cet employé posséde déja un numéro SS, voulez vous lui supprimer le N° de sécurité sociale ? "_s;
        const auto sans = [](DialogueScenario &d) {
            attendreSansNumero(d, true);
            d.attendreInformation(u"le numéro SS à blanc ou 000000000000 n'est permis que pour une  nouvelle "
                                  "recrue de moins d'un mois, merci"_s);
        };
        const auto questions = [](const QString &texte, bool oui) {
            return Attendu([=](DialogueScenario &d, Forme) { d.attendreQuestion(texte, oui); });
        };
        const Attendu rien = [](DialogueScenario &, Forme) {};

        ligne("autre numero", u"882345678911"_s, u"882345678020"_s, questions(confirmer, true),
              u"882345678020|3"_s, u"882345678020|3"_s);
        ligne("autre numero, non", u"882345678911"_s, u"882345678020"_s, questions(confirmer, false), u""_s,
              u"882345678911|3"_s);
        ligne("numero pris", u"882345678911"_s, u"882345678218"_s, Attendu([=](DialogueScenario &d, Forme) {
                  d.attendreQuestion(confirmer, true);
                  d.attendreAvertissement(u"Ce numéro est déja affecté à un autre employé, "
                                          "modification N° SS non autorisée!"_s);
              }),
              u""_s, u"882345678911|3"_s);
        ligne("cle seule", u"882345678999"_s, u"882345678911"_s, rien, u"882345678911|3"_s,
              u"882345678999|3"_s);
        ligne("numero supprime", u"882345678911"_s, u"000000000000"_s,
              Attendu([=](DialogueScenario &d, Forme) {
                  sans(d);
                  d.attendreQuestion(supprimer, true);
              }),
              u"000000000000|3"_s, u"000000000000|3"_s);
        ligne("numero supprime, non", u"882345678911"_s, u"000000000000"_s,
              Attendu([=](DialogueScenario &d, Forme) {
                  sans(d);
                  d.attendreQuestion(supprimer, false);
              }),
              u""_s, u"882345678911|3"_s);
        ligne("premier numero", u"000000000000"_s, u"882345678020"_s, rien, u"882345678020|3"_s,
              u"882345678020|3"_s);
        ligne("toujours sans", u"000000000000"_s, u"000000000000"_s,
              Attendu([=](DialogueScenario &d, Forme) { sans(d); }), u"000000000000|3"_s,
              u"000000000000|3"_s);
    }

    void numero()
    {
        QFETCH(QString, ancien);
        QFETCH(QString, nouveau);
        QFETCH(Attendu, attendu);
        QFETCH(QString, salarie);
        QFETCH(QString, lignes);
        BaseSalaries donnees;
        Connexion &cnx = donnees.base.Cnx;
        // The employee in question, and others next to whom he must not be mistaken.
        donnees.ajouter(ancien, 3);
        const QStringList autres{u"000000000000|1"_s, u"000000000000|2"_s, u"882345678218|1"_s,
                                 u"882345678911|1"_s};
        for (const QString &autre : autres) {
            donnees.ajouter(autre.section(u'|', 0, 0), autre.section(u'|', 1).toInt());
            poserLignes(cnx, autre.section(u'|', 0, 0), autre.section(u'|', 1).toInt());
        }
        poserLignes(cnx, ancien, 3);
        donnees.base.RsSalarie.allerA(0);
        donnees.base.RsLigneDas.requery();

        DialogueScenario dialogue;
        attendu(dialogue, Modification);
        if (!salarie.isEmpty())
            dialogue.attendreInformation(u"Salarié Modifié avec Succès!"_s);
        EcranNote note;
        const auto refus = changerNumero(donnees.base, nouveau.left(10), nouveau.mid(10), dialogue, note);
        QVERIFY(dialogue.acheve());
        QCOMPARE(!refus.has_value(), !salarie.isEmpty());
        QCOMPARE(donnees.lignes(clesSalarie),
                 QStringList{salarie.isEmpty() ? QString(ancien + u"|3"_s) : salarie} + autres);
        QStringList toutes;
        for (const QString &table : {u"DAS|"_s, u"DAC|"_s, u"CI|"_s}) {
            QStringList des;
            for (const QString &une : autres + QStringList{lignes})
                des += table + une;
            des.sort();
            toutes += des;
        }
        QCOMPARE(donnees.lignes(clesLignes), toutes);
        if (refus) {
            QCOMPARE(note.montrees.last().num_salmask + note.montrees.last().clemask, ancien);
        } else {
            QCOMPARE(donnees.base.RsSalarie.ligneCourante(), 0);
            QCOMPARE(donnees.base.RsLigneDas.ligne(4).texte(u"num_salarie"), lignes.section(u'|', 0, 0));
        }
    }

    /// Whatever statement fails, nothing of the change stays.
    void echec_data()
    {
        QTest::addColumn<QString>("table");
        for (const char *table : {"salarie", "ligne_das", "Detail_CI", "Ligne_Dac"})
            QTest::newRow(table) << QString::fromLatin1(table);
    }

    void echec()
    {
        QFETCH(QString, table);
        BaseSalaries donnees;
        donnees.ajouter(u"882345678911"_s, 3);
        poserLignes(donnees.base.Cnx, u"882345678911"_s, 3);
        donnees.base.Cnx.definir(
            u"CREATE TRIGGER refus BEFORE UPDATE ON [%1] BEGIN SELECT RAISE(ABORT, 'non'); END"_s.arg(table));
        const QStringList avant = donnees.lignes(clesSalarie) + donnees.lignes(clesLignes);
        DialogueOui dialogue;
        EcranNote note;
        QVERIFY_THROWS_EXCEPTION(ErreurSql,
                                 changerNumero(donnees.base, u"8823456780"_s, u"20"_s, dialogue, note));
        QCOMPARE(donnees.lignes(clesSalarie) + donnees.lignes(clesLignes), avant);
        QCOMPARE(donnees.base.RsSalarie.texte(u"Num_Salarie"), u"882345678911"_s);
        QCOMPARE(note.termine, 0);
    }

    /// Another program deletes the employee while his change screen is open: told, and his neighbour's row is
    /// not written in his place at the next try.
    void supprimeAilleurs()
    {
        BaseSalaries donnees;
        donnees.ajouter(u"882345678911"_s, 1);
        donnees.ajouter(u"000000000000"_s, 1);
        FicheRemplie remplie = remplirFiche(donnees.base.RsSalarie.courant(), donnees.base.Cnx);
        Connexion ailleurs;
        ailleurs.ouvrir(donnees.chemin());
        ailleurs.executer(u"DELETE FROM salarie WHERE Num_Salarie = '882345678911'"_s);
        DialogueScenario dialogue;
        EcranNote note;
        for (int i = 0; i < 2; ++i) {
            QVERIFY_THROWS_EXCEPTION(ErreurBase, modifierSalarie(remplie.fiche, remplie.ancien, donnees.base,
                                                                 dialogue, note.suivi));
        }
        QCOMPARE(donnees.lignes(clesSalarie), QStringList{u"000000000000|1"_s});
        QCOMPARE(note.termine, 0);
    }

    /// The program is killed at moments spread over the change: either all tables hold the new number or
    /// none.
    void tue()
    {
        BaseSalaries donnees;
        donnees.ajouter(u"882345678911"_s, 3);
        poserLignes(donnees.base.Cnx, u"882345678911"_s, 3);
        // Each statement takes its time, so that a kill falls into it or behind it.
        donnees.base.Cnx.definir(u"CREATE TABLE lent (n)"_s);
        donnees.base.Cnx.executer(
            u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 120) "
            "INSERT INTO lent SELECT i FROM n"_s);
        for (const QString &table : {u"salarie"_s, u"ligne_das"_s, u"Detail_CI"_s, u"Ligne_Dac"_s})
            donnees.base.Cnx.definir(u"CREATE TRIGGER lent_%1 AFTER UPDATE ON [%1] BEGIN "
                                     "SELECT count(*) FROM lent a, lent b, lent c; END"_s.arg(table));
        const QStringList rien = donnees.lignes(clesSalarie) + donnees.lignes(clesLignes);
        QStringList tout = rien;
        tout.replaceInStrings(u"882345678911"_s, u"882345678020"_s);
        donnees.base.Cnx.fermer();
        const QString chemin = donnees.chemin();
        QVERIFY(QFile::copy(chemin, chemin + u".intacte"_s));

        const auto etatApres = [&](qint64 delai, qint64 *duree) {
            for (const QString &suite : {u""_s, u"-wal"_s, u"-shm"_s})
                QFile::remove(chemin + suite);
            QFile::copy(chemin + u".intacte"_s, chemin);
            QProcess enfant;
            enfant.setProcessChannelMode(QProcess::ForwardedErrorChannel);
            enfant.start(QCoreApplication::applicationFilePath(), {u"--changer"_s, chemin});
            if (!enfant.waitForReadyRead())
                return QStringList{u"l'enfant n'a pas commencé"_s};
            QElapsedTimer horloge;
            horloge.start();
            if (delai >= 0) {
                QTest::qSleep(static_cast<int>(delai));
                enfant.kill();
            }
            enfant.waitForFinished();
            if (duree)
                *duree = horloge.elapsed();
            Connexion apres;
            apres.ouvrir(chemin);
            return BaseSalaries::lignes(apres, clesSalarie) + BaseSalaries::lignes(apres, clesLignes);
        };
        qint64 duree = 0;
        QCOMPARE(etatApres(-1, &duree), tout);
        int sansRien = 0;
        constexpr int coups = 10;
        for (int i = 0; i < coups; ++i) {
            const QStringList etat = etatApres(duree * (2 * i + 1) / (2 * coups), nullptr);
            sansRien += etat == rien;
            QVERIFY2(etat == rien || etat == tout, qPrintable(etat.join(u' ')));
        }
        QVERIFY2(sansRien >= 3,
                 qPrintable(
                     u"%1 kills of %2 fell into the change of %3 ms"_s.arg(sansRien).arg(coups).arg(duree)));
    }

private:
    /// Other employees for the control, which writes nothing.
    std::unique_ptr<BaseSalaries> m_autres;
};

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && arguments[1] == u"--changer")
        return changerDansUnEnfant(arguments[2]);
    TestAffiliation test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_affiliation.moc"
