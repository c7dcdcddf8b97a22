#include "employees/choixsalarie.h"
#include "employees/importsalaries.h"
#include "employees/salaries.h"
#include "tests/commun/cas.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/employees/basesalaries.h"

using namespace Qt::StringLiterals;
using namespace boites;

namespace {

const QByteArray marque = "KORVANDEL SALARIE VER 1.0\r\n";

QByteArray bloc(const char *texte, int longueur) { return QByteArray(texte).leftJustified(longueur, ' '); }

const QByteArray employeur =
    bloc("12345678", 8) + bloc("BATIR & FILS", 40) + bloc("1 RUE HAUTE", 40) + "\r\n";

QByteArray salarie(const char *numero, const char *nom, const char *date = "04/03/1988")
{
    return bloc(numero, 12) + bloc(nom, 15) + bloc("JEAN", 15) + "M" + bloc(date, 10) + bloc("ADRAR", 40) +
           bloc("12 RUE DES ROSIERS", 40) + bloc("MA\xC7ON", 20) + bloc("ADRAR", 50) + bloc("01000", 5) +
           "NN\r\n";
}

} // namespace

class TestSalaries : public QObject
{
    Q_OBJECT

    /// What is looked for, and who is found; "tous" when nothing is done.
    using CasRecherche = std::tuple<const char *, CritereSalarie, QString, QString>;

    /// The file, then added/skipped, "incorrect" or "rien", and the employees.
    using CasImport = std::tuple<const char *, QByteArray, QString, QStringList>;

private slots:
    void recherche_data()
    {
        lignesDuTest<CasRecherche>({{"debut", CritereSalarie::Nom, u" dup "_s, u"DUPONT DUPIN"_s},
                                    {"milieu", CritereSalarie::Nom, u"PONT"_s, {}},
                                    {"numero", CritereSalarie::Numero, u"000"_s, u"DUPIN ÉLOI"_s},
                                    {"vide", CritereSalarie::Nom, u"  "_s, u"tous"_s},
                                    {"sans critere", CritereSalarie::Aucun, u"dup"_s, u"tous"_s}});
    }

    void recherche()
    {
        QFETCH(CasRecherche, cas);
        const auto &[nom, critere, texte, trouves] = cas;
        BaseSalaries donnees;
        Recordset &salaries = donnees.base.RsSalarie;
        QVERIFY(!chercherSalaries(salaries, CritereSalarie::Nom, u"DUP")); // an empty table
        donnees.ajouter(u"110000000000"_s, 1);
        donnees.ajouter(u"000000000000"_s, 1, {{u"nom"_s, u"DUPIN"}});
        donnees.ajouter(u"000123456789"_s, 1, {{u"nom"_s, u"ÉLOI"}});
        salaries.allerA(2);
        QCOMPARE(chercherSalaries(salaries, critere, texte), trouves != u"tous");
        if (trouves == u"tous") {
            QCOMPARE(salaries.ligneCourante(), 2);
        } else {
            QStringList noms;
            for (int i = 0; i < salaries.nombre(); ++i)
                noms += salaries.ligne(i).texte(u"nom");
            QCOMPARE(noms.join(u' '), trouves);
        }
        const QString courant = salaries.vide() ? u"DUPONT"_s : salaries.texte(u"nom");
        montrerTousSalaries(salaries);
        QCOMPARE(salaries.nombre(), 3);
        QCOMPARE(salaries.texte(u"nom"), courant);
    }

    void nationalite()
    {
        BaseSalaries donnees;
        Connexion &cnx = donnees.base.Cnx;
        donnees.ajouter(u"000000000000"_s, 2, {{u"IdNat"_s, nullptr}});
        donnees.ajouter(u"000000000000"_s, 3, {{u"IdNat"_s, u"005"}});
        donnees.ajouter(u"000000000000"_s, 1, {{u"IdNat"_s, u"004"}});
        donnees.ajouter(u"110000000000"_s, 1, {{u"IdNat"_s, u"099"}});
        QCOMPARE(nationaliteSalarie(cnx, u" 000000000000 "),
                 u"Allemagne"_s); // the first entered, for all of them
        QCOMPARE(nationaliteSalarie(cnx, u"110000000000"), QString());
        QCOMPARE(nationaliteSalarie(cnx, u"1' OR '1'='1"), QString());
    }

    void suppression()
    {
        BaseSalaries donnees;
        Base &base = donnees.base;
        donnees.ajouter(u"000000000000"_s, 1);
        donnees.ajouter(u"000000000000"_s, 2);
        base.RsLigneDas.ajouter({{u"num_salarie"_s, u"000000000000"},
                                 {u"cpt_z"_s, 1},
                                 {u"annee"_s, 1999},
                                 {u"num_emp"_s, u"12345678"},
                                 {u"type_das"_s, 1}});
        base.RsDetailCi.ajouter({{u"N_Identif"_s, u"C1"}, {u"N_SecSoc"_s, u"000000000000"}, {u"Cpt_z"_s, 2}});
        DialogueScenario dialogue;
        const auto confirmer = [](bool oui) {
            return question(u"Confirmer la Suppression?"_s, oui, u"Confirmation"_s);
        };
        dialogue.attendre(
            {confirmer(false), confirmer(true),
             avertissement(
                 u"Il Existe Une ou Plusieurs Lignes DAS pour ce Salarié, Supprimez Les d'abord"_s)});
        for (int fois = 0; fois < 2; ++fois)
            supprimerSalarie(base, dialogue);
        QCOMPARE(base.RsSalarie.nombre(), 2);

        base.RsSalarie.allerA(1);
        QCOMPARE(choisirSalarie(base.RsSalarie.courant()).cpt_z, 2);
        dialogue.attendre({confirmer(true)});
        supprimerSalarie(base, dialogue);
        QCOMPARE(donnees.lignes(u"SELECT cpt_z FROM salarie"_s), QStringList{u"1"_s});
        QCOMPARE(base.RsDetailCi.nombre(), 1);

        base.Cnx.executer(u"DELETE FROM salarie"_s);
        base.RsSalarie.requery();
        supprimerSalarie(base, dialogue); // without a row, without a word
        QVERIFY(dialogue.acheve());
    }

    void importation_data()
    {
        const QByteArray tete = marque + employeur;
        const QByteArray bon = salarie("882345678911", "DUPONT");
        const QStringList dupont{u"882345678911|1|DUPONT"_s};

        const QString incorrect = u"incorrect"_s;
        const QString rien = u"rien"_s;
        lignesDuTest<CasImport>(
            {{"sans salarie", tete, u"0/0"_s, {}},
             {"un salarie", tete + bon, u"1/0"_s, dupont},
             {"derniere ligne sans fin", tete + bon.chopped(2), u"1/0"_s, dupont},
             {"fins LF", QByteArray(tete + bon).replace("\r\n", "\n"), u"1/0"_s, dupont},
             {"deux fois le meme", tete + bon + salarie("882345678911", "AUTRE", "pas"), u"1/1"_s, dupont},
             {"deja la", tete + salarie("999999999999", "AUTRE"), u"0/1"_s, {}},
             {"deux sans numero",
              tete + salarie("000000000000", "UN") + salarie("000000000000", "DEUX"),
              u"1/1"_s,
              {u"000000000000|1|UN"_s}},
             {"apostrophe et accent",
              tete + salarie("882345678911", "D'\xC9T\xC9 %_"),
              u"1/0"_s,
              {u"882345678911|1|D'ÉTÉ %_"_s}},
             {"coupe derriere la date", tete + bon.left(60) + "\r\n", u"1/0"_s, dupont},
             {"ligne de 4 Ko", tete + bon.chopped(2) + QByteArray(4096, 'x') + "\r\n" + salarie("1", "B"),
              u"2/0"_s, dupont + QStringList{u"1|1|B"_s}},
             {"premiere ligne avec blanc", QByteArray(marque).insert(25, ' ') + employeur, incorrect, {}},
             {"autre premiere ligne", "DAS KORVANDEL VER 3.0\r\n", incorrect, {}},
             {"premiere ligne sans fin", QByteArray(8192, 'K'), incorrect, {}},
             {"UTF-8 avec marque", "\xEF\xBB\xBF" + tete + bon, incorrect, {}},
             {"UTF-16", QByteArray("K\0O\0R\0V\0\r\0\n\0", 12), incorrect, {}},
             {"fichier vide", {}, rien, {}},
             {"une ligne", marque, rien, {}},
             {"date fausse", tete + bon + salarie("880000000000", "B", "31/02/1988"), rien, {}},
             {"sans date", tete + bon + salarie("880000000000", "B", ""), rien, {}},
             {"ligne courte", tete + bon + "880000000000COURT\r\n", rien, {}},
             {"ligne vide a la fin", tete + bon + "\r\n", rien, {}},
             // Every accent takes two bytes there, so the date stands elsewhere.
             {"UTF-8",
              tete + QString(u"882345678911ÉLOÏSE         "_s + QString::fromLatin1(bon.mid(27))).toUtf8(),
              rien,
              {}}});
    }

    void importation()
    {
        QFETCH(CasImport, cas);
        const auto &[nom, fichier, issue, salaries] = cas;
        BaseSalaries donnees;
        Base &base = donnees.base;
        donnees.ajouter(u"999999999999"_s, 1);
        const bool fait = issue.contains(u'/');

        for (int fois = 1; fois <= 2; ++fois) {
            DialogueScenario dialogue;
            dialogue.attendreFichier(donnees.fichier(u"salaries.txt"_s, fichier));
            const bool entame = issue == u"rien" && fichier.startsWith(marque + employeur);
            if ((fait && fois == 1) || entame)
                dialogue.attendreInformation(u"Employeur: 12345678\nBATIR & FILS\najouté."_s);
            if (fait)
                dialogue.attendreInformation(
                    u"Lecture Du Fichier Effectuée Avec Succès !  Résultat Affiché !"_s);
            if (issue == u"incorrect")
                dialogue.attendreAvertissement(u"Fichier incorrect! Importation échouée!!"_s);
            QString comptes;
            qint64 derniere = -1;
            const ImportSalaries resultat = importerSalaries(
                base, dialogue,
                {[&](qint64 lignes) {
                     derniere = lignes;
                     return true;
                 },
                 [&](const ImportSalaries &r) { comptes = u"%1/%2"_s.arg(r.ajoutes).arg(r.ignores); }});
            QVERIFY(dialogue.acheve());
            QVERIFY(!base.Cnx.enTransaction());
            QCOMPARE(resultat.fait, fait);
            QCOMPARE(donnees.lignes(
                         u"SELECT Num_Salarie, cpt_z, nom FROM salarie WHERE rowid > 1 ORDER BY rowid"_s),
                     salaries);
            QCOMPARE(donnees.lignes(u"SELECT * FROM employeur"_s),
                     fait ? QStringList{u"12345678|BATIR & FILS|1 RUE HAUTE||"_s} : QStringList());
            QCOMPARE(base.RsSalarie.nombre(), salaries.size() + 1);
            QCOMPARE(base.RsEmployeur.nombre(), fait ? 1 : 0);
            if (!fait)
                continue;
            // The second time nothing is added.
            const qint64 total = resultat.ajoutes + resultat.ignores;
            QCOMPARE(comptes, fois == 1 ? issue : u"0/%1"_s.arg(total));
            QCOMPARE(derniere, total);
            QCOMPARE(resultat.employeurAjoute, fois == 1);
        }
    }

    void colonnesImportees()
    {
        BaseSalaries donnees;
        DialogueScenario dialogue;
        dialogue.attendreFichier(u""_s); // abandoned: without a word
        const SuiviImport rien{[](qint64) { return true; }, [](const ImportSalaries &) {}};
        QVERIFY(!importerSalaries(donnees.base, dialogue, rien).fait);
        dialogue.attendreFichier(u"/introuvable/salaries.txt"_s);
        QVERIFY(!importerSalaries(donnees.base, dialogue, rien).fait);

        dialogue.attendreFichier(
            donnees.fichier(u"s.txt"_s, marque + employeur + salarie("882345678911", "DUPONT")));
        dialogue.attendreInformation(u"Employeur: 12345678\nBATIR & FILS\najouté."_s);
        dialogue.attendreInformation(u"Lecture Du Fichier Effectuée Avec Succès !  Résultat Affiché !"_s);
        QVERIFY(importerSalaries(donnees.base, dialogue, rien).fait);
        QCOMPARE(
            donnees.lignes(u"SELECT * FROM salarie"_s),
            QStringList{
                u"882345678911|1|DUPONT|JEAN|M|1988-03-04|12 RUE DES ROSIERS|ADRAR|01000|NULL|NULL|MAÇON|"
                "NULL|NULL|N|ADRAR|N|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL|NULL"_s});
    }
};

QTEST_GUILESS_MAIN(TestSalaries)
#include "test_salaries.moc"
