#include "employees/choixsalarie.h"
#include "employees/importsalaries.h"
#include "employees/salaries.h"
#include "rules/texte.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/employees/basesalaries.h"

#include <QTest>

using namespace Qt::StringLiterals;

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

QStringList noms(Recordset &salaries)
{
    QStringList liste;
    for (int i = 0; i < salaries.nombre(); ++i)
        liste += salaries.ligne(i).texte(u"nom");
    return liste;
}

} // namespace

class TestSalaries : public QObject
{
    Q_OBJECT

private slots:
    void recherche_data()
    {
        QTest::addColumn<CritereSalarie>("critere");
        QTest::addColumn<QString>("texte");
        QTest::addColumn<QString>("trouves"); // "tous" when nothing is done

        QTest::newRow("debut") << CritereSalarie::Nom << u" dup "_s << u"DUPONT DUP%NT DUP_NT"_s;
        QTest::newRow("pour cent") << CritereSalarie::Nom << u"DUP%"_s << u"DUP%NT"_s;
        QTest::newRow("souligne") << CritereSalarie::Nom << u"dup_"_s << u"DUP_NT"_s;
        QTest::newRow("apostrophe") << CritereSalarie::Nom << u"d'"_s << u"D'ARC"_s;
        QTest::newRow("injection") << CritereSalarie::Nom << u"' OR '1'='1"_s << u""_s;
        QTest::newRow("accent") << CritereSalarie::Nom << u"élo"_s << u"ÉLOI"_s;
        QTest::newRow("milieu") << CritereSalarie::Nom << u"PONT"_s << u""_s;
        QTest::newRow("numero") << CritereSalarie::Numero << u"000"_s << u"DUP%NT ÉLOI"_s;
        QTest::newRow("numero, pour cent") << CritereSalarie::Numero << u"%"_s << u""_s;
        QTest::newRow("vide") << CritereSalarie::Nom << u"  "_s << u"tous"_s;
        QTest::newRow("sans critere") << CritereSalarie::Aucun << u"dup"_s << u"tous"_s;
    }

    void recherche()
    {
        QFETCH(CritereSalarie, critere);
        QFETCH(QString, texte);
        QFETCH(QString, trouves);
        BaseSalaries donnees;
        Recordset &salaries = donnees.base.RsSalarie;
        QVERIFY(!chercherSalaries(salaries, CritereSalarie::Nom, u"DUP")); // an empty table
        const QList<std::pair<QString, QString>> employes{{u"110000000000"_s, u"DUPONT"_s},
                                                          {u"000000000000"_s, u"DUP%NT"_s},
                                                          {u"120000000000"_s, u"DUP_NT"_s},
                                                          {u"130000000000"_s, u"D'ARC"_s},
                                                          {u"000123456789"_s, u"ÉLOI"_s}};
        for (const auto &[numero, nom] : employes)
            donnees.ajouter(numero, 1, {{u"nom"_s, nom}});
        salaries.allerA(4);
        QCOMPARE(chercherSalaries(salaries, critere, texte), trouves != u"tous");
        if (trouves == u"tous")
            QCOMPARE(salaries.ligneCourante(), 4);
        else
            QCOMPARE(noms(salaries).join(u' '), trouves);

        const QString courant = salaries.vide() ? u"DUPONT"_s : salaries.texte(u"nom");
        montrerTousSalaries(salaries);
        QCOMPARE(salaries.nombre(), 5);
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
        base.Cnx.inserer(u"ligne_das"_s, {{u"num_salarie"_s, u"000000000000"},
                                          {u"cpt_z"_s, 1},
                                          {u"annee"_s, 1999},
                                          {u"num_emp"_s, u"12345678"},
                                          {u"type_das"_s, 1}});
        base.Cnx.inserer(u"Detail_CI"_s,
                         {{u"N_Identif"_s, u"C1"}, {u"N_SecSoc"_s, u"000000000000"}, {u"Cpt_z"_s, 2}});
        DialogueScenario dialogue;
        const QString question = u"Confirmer la Suppression?"_s;
        dialogue.attendreQuestion(question, false, u"Confirmation"_s);
        supprimerSalarie(base, dialogue);
        dialogue.attendreQuestion(question, true, u"Confirmation"_s);
        dialogue.attendreAvertissement(
            u"Il Existe Une ou Plusieurs Lignes DAS pour ce Salarié, Supprimez Les d'abord"_s);
        supprimerSalarie(base, dialogue);
        QCOMPARE(base.RsSalarie.nombre(), 2);

        base.RsSalarie.allerA(1);
        QCOMPARE(choisirSalarie(base.RsSalarie.courant()).cpt_z, 2);
        dialogue.attendreQuestion(question, true, u"Confirmation"_s);
        supprimerSalarie(base, dialogue);
        QCOMPARE(donnees.lignes(u"SELECT cpt_z FROM salarie"_s), QStringList{u"1"_s});
        QCOMPARE(donnees.lignes(u"SELECT count(*) FROM Detail_CI"_s), QStringList{u"1"_s});

        base.Cnx.executer(u"DELETE FROM salarie"_s);
        base.RsSalarie.requery();
        supprimerSalarie(base, dialogue); // without a row, without a word
        QVERIFY(dialogue.acheve());
    }

    void importation_data()
    {
        QTest::addColumn<QByteArray>("fichier");
        QTest::addColumn<QString>("issue"); // added/skipped, "incorrect" or "rien"
        QTest::addColumn<QStringList>("salaries");

        const QByteArray tete = marque + employeur;
        const QByteArray bon = salarie("882345678911", "DUPONT");
        const QStringList dupont{u"882345678911|1|DUPONT"_s};
        const QStringList aucun;

        QTest::newRow("sans salarie") << tete << u"0/0"_s << aucun;
        QTest::newRow("un salarie") << tete + bon << u"1/0"_s << dupont;
        QTest::newRow("derniere ligne sans fin") << tete + bon.chopped(2) << u"1/0"_s << dupont;
        QTest::newRow("fins LF") << QByteArray(tete + bon).replace("\r\n", "\n") << u"1/0"_s << dupont;
        QTest::newRow("deux fois le meme")
            << tete + bon + salarie("882345678911", "AUTRE", "pas") << u"1/1"_s << dupont;
        QTest::newRow("deja la") << tete + salarie("999999999999", "AUTRE") << u"0/1"_s << aucun;
        QTest::newRow("deux sans numero")
            << tete + salarie("000000000000", "UN") + salarie("000000000000", "DEUX") << u"1/1"_s
            << QStringList{u"000000000000|1|UN"_s};
        QTest::newRow("apostrophe et accent") << tete + salarie("882345678911", "D'\xC9T\xC9 %_") << u"1/0"_s
                                              << QStringList{u"882345678911|1|D'ÉTÉ %_"_s};
        QTest::newRow("ligne coupee derriere la date") << tete + bon.left(60) + "\r\n" << u"1/0"_s << dupont;
        QTest::newRow("ligne de 4 Ko")
            << tete + bon.chopped(2) + QByteArray(4096, 'x') + "\r\n" + salarie("1", "B") << u"2/0"_s
            << (dupont + QStringList{u"1|1|B"_s});

        QTest::newRow("premiere ligne avec blanc")
            << QByteArray(marque).insert(25, ' ') + employeur << u"incorrect"_s << aucun;
        QTest::newRow("autre premiere ligne")
            << QByteArray("DAS KORVANDEL VER 3.0\r\n") << u"incorrect"_s << aucun;
        QTest::newRow("premiere ligne sans fin") << QByteArray(8192, 'K') << u"incorrect"_s << aucun;
        QTest::newRow("UTF-8 avec marque") << "\xEF\xBB\xBF" + tete + bon << u"incorrect"_s << aucun;
        QTest::newRow("UTF-16") << QByteArray("K\0O\0R\0V\0\r\0\n\0", 12) << u"incorrect"_s << aucun;

        QTest::newRow("fichier vide") << QByteArray() << u"rien"_s << aucun;
        QTest::newRow("une ligne") << marque << u"rien"_s << aucun;
        QTest::newRow("date fausse") << tete + bon + salarie("880000000000", "B", "31/02/1988") << u"rien"_s
                                     << aucun;
        QTest::newRow("sans date") << tete + bon + salarie("880000000000", "B", "") << u"rien"_s << aucun;
        QTest::newRow("ligne courte") << tete + bon + "880000000000COURT\r\n" << u"rien"_s << aucun;
        QTest::newRow("ligne vide a la fin") << tete + bon + "\r\n" << u"rien"_s << aucun;
        // Every accent takes two bytes there, so the date stands elsewhere.
        QTest::newRow("UTF-8")
            << tete + QString(u"882345678911ÉLOÏSE         "_s + QString::fromLatin1(bon.mid(27))).toUtf8()
            << u"rien"_s << aucun;
    }

    void importation()
    {
        QFETCH(QByteArray, fichier);
        QFETCH(QString, issue);
        QFETCH(QStringList, salaries);
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
