#include "rules/erreurs.h"
#include "storage/recordset.h"
#include "tests/storage/baseessai.h"
#include "tests/storage/foyer.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

class TestRecordset : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_essai = std::make_unique<BaseEssai>(); }

    void vieDUneTable()
    {
        Recordset rs(cnx(), u"Periode"_s, {{u"Code"_s, Qt::DescendingOrder}});
        QVERIFY(echecDe([&] { rs.vide(); }).contains(u"« Periode » n'est pas ouverte"));
        QVERIFY(echecDe([&] { rs.ajouter({{u"Code"_s, u"202001"}}); }).contains(u"n'est pas ouverte"));
        QCOMPARE(rs.rowCount(), 0);
        QAbstractItemModelTester verificateur(&rs, QAbstractItemModelTester::FailureReportingMode::QtTest);

        rs.ouvrir();
        QVERIFY(rs.vide());
        QCOMPARE(rs.ligneCourante(), -1);
        QVERIFY(!echecDe([&] { rs.texte(u"Code"); }).isEmpty());

        QSignalSpy changements(&rs, &Recordset::ligneCouranteChangee);
        for (const auto *code : {u"202003", u"202001", u"202002"})
            rs.ajouter({{u"code"_s, code}, {u"Etat"_s, u"N"}});
        QCOMPARE(codes(rs), u"202003,202002*,202001"_s); // the new row is current, where the order puts it
        QCOMPARE(rs.texte(u"CODE"), u"202002"_s);
        QCOMPARE(changements.last().first().toInt(), 1);

        rs.trier(u"code"_s);
        QCOMPARE(codes(rs), u"202001,202002*,202003"_s);
        rs.allerA(0);
        cnx().executer(u"INSERT INTO Periode VALUES ('201912', 'N')"_s);
        rs.requery();
        QCOMPARE(codes(rs), u"201912,202001*,202002,202003"_s);

        rs.modifier(rs.courant(), {{u"Etat"_s, u"O"}});
        QCOMPARE(rs.texte(u"Etat"), u"O"_s);
        rs.modifier(rs.courant(), {{u"Code"_s, u"202012"}}); // the order follows
        QCOMPARE(codes(rs), u"201912,202002,202003,202012*"_s);

        rs.supprimer(rs.courant()); // the last row's neighbour is the one before, any other's the one behind
        QCOMPARE(codes(rs), u"201912,202002,202003*"_s);
        rs.allerA(0);
        rs.supprimer(rs.courant());
        QCOMPARE(codes(rs), u"202002*,202003"_s);
        QCOMPARE(rs.chercher({{u"Code"_s, u"202003"}}), 1);
        QCOMPARE(rs.chercher({{u"Code"_s, u"202003"}, {u"Etat"_s, nullptr}}), -1);

        QVERIFY(!echecDe([&] { rs.ajouter({{u"Code"_s, u"202003"}}); }).isEmpty());
        QVERIFY(!echecDe([&] { rs.modifier(rs.courant(), {{u"Code"_s, u"2020030"}}); }).isEmpty());
        QCOMPARE(codes(rs), u"202002*,202003"_s);
        rs.supprimer(rs.courant());
        rs.supprimer(rs.courant());
        QVERIFY(rs.vide());
        QCOMPARE(rs.ligneCourante(), -1);

        cnx().definir(u"DROP TABLE Periode"_s);
        QVERIFY(echecDe([&] { rs.ouvrir(); }).startsWith(u"La table « Periode » n'existe pas."));
        QVERIFY(!rs.estOuvert());
    }

    void sousCondition()
    {
        Recordset rs(cnx(), u"ligne_das"_s);
        QAbstractItemModelTester verificateur(&rs, QAbstractItemModelTester::FailureReportingMode::QtTest);
        rs.ouvrir(Condition{u"annee = ? OR annee = ?"_s, {2023, 2024}} &&
                  Condition{u"num_emp = ?"_s, {u"12345678"}});
        const auto ligne = [](int salarie, int annee, QStringView employeur) {
            return Champs{{u"num_salarie"_s, QString::number(salarie)},
                          {u"cpt_z"_s, 1},
                          {u"annee"_s, annee},
                          {u"num_emp"_s, employeur},
                          {u"type_das"_s, 1}};
        };
        rs.ajouter(ligne(1, 2024, u"12345678"));
        rs.ajouter(ligne(2, 2023, u"12345678"));
        rs.ajouter(ligne(3, 2022, u"12345678")); // not to be seen here
        rs.ajouter(ligne(4, 2024, u"87654321"));
        QCOMPARE(rs.nombre(), 2);
        QCOMPARE(rs.texte(u"num_salarie"), u"2"_s);
        QCOMPARE(rs.chercher({{u"num_salarie"_s, u"3"}}), -1);
        rs.modifier(rs.courant(), {{u"annee"_s, 2020}}); // leaves the list
        QCOMPARE(rs.nombre(), 1);
        QCOMPARE(rs.texte(u"num_salarie"), u"1"_s);
        rs.ouvrir();
        QCOMPARE(rs.nombre(), 4);
        // The current row stays, or the first one is; behind one that another program took comes the next.
        rs.allerA(2);
        rs.filtrer({u"num_emp = ?"_s, {u"12345678"}});
        QCOMPARE(rs.texte(u"num_salarie"), u"3"_s);
        rs.filtrer({u"annee <> ?"_s, {2022}});
        QCOMPARE(rs.texte(u"num_salarie"), u"1"_s);
        cnx().executer(u"DELETE FROM ligne_das WHERE num_salarie = '1'"_s);
        rs.requery();
        QCOMPARE(rs.texte(u"num_salarie"), u"2"_s);
    }

    void changeParAilleurs()
    {
        Connexion autre;
        autre.ouvrir(cnx().chemin());
        peupler(cnx(), 3);
        Recordset rs(cnx(), u"salarie"_s);
        rs.ouvrir();
        rs.allerA(1);
        const QString nom = rs.texte(u"nom");

        // Another column than the one that we change: both changes stay.
        autre.executer(u"UPDATE salarie SET ville = 'ORAN' WHERE Num_Salarie = '000000000002'"_s);
        rs.modifier(rs.courant(), {{u"profes"_s, u"MACON"}});
        QCOMPARE(rs.texte(u"ville"), u"ORAN"_s);
        // The same column: refused, and the list shows what is there.
        autre.executer(u"UPDATE salarie SET nom = 'AUTRE' WHERE Num_Salarie = '000000000002'"_s);
        QCOMPARE(rs.texte(u"nom"), nom);
        // As often as it is tried: what is there now was not shown. Capitals count.
        const Enregistrement lue = rs.courant();
        for (const auto *autreNom : {u"AUTRE", u"Autre"}) {
            autre.executer(u"UPDATE salarie SET nom = ? WHERE Num_Salarie = '000000000002'"_s, {autreNom});
            for (int fois = 0; fois < 2; ++fois) {
                QVERIFY(echecDe([&] {
                            rs.modifier(lue, {{u"nom"_s, u"NOTRE"}});
                        }).contains(u"modifiée ou supprimée"));
                QCOMPARE(rs.texte(u"nom"), QString::fromUtf16(autreNom));
            }
        }

        // The row that was shown is written, wherever the list stands; it stays there.
        const Enregistrement premiere = rs.ligne(0);
        rs.modifier(premiere, {{u"nom"_s, u"UN"}});
        QCOMPARE(rs.ligne(0).texte(u"nom"), u"UN"_s);
        QCOMPARE(rs.ligneCourante(), 1);
        QVERIFY(!echecDe([&] { rs.modifier(premiere, {{u"nom"_s, u"DEUX"}}); }).isEmpty());
        rs.modifier(autre.premiere(u"SELECT * FROM salarie WHERE nom = 'UN'"_s), {{u"ville"_s, u"ICI"}});
        QCOMPARE(rs.ligne(0).texte(u"ville"), u"ICI"_s);

        // Gone behind our back: empty cells, no change, no crash.
        Recordset nonLu(cnx(), u"salarie"_s);
        nonLu.ouvrir();
        autre.executer(u"DELETE FROM salarie WHERE Num_Salarie = '000000000003'"_s);
        QVERIFY(!nonLu.index(2, 0).data(Qt::EditRole).isValid());
        QVERIFY(nonLu.ligne(2).estVide());
        rs.allerA(2);
        QVERIFY(echecDe([&] { rs.supprimer(rs.courant()); }).contains(u"modifiée ou supprimée"));
        QCOMPARE(rs.nombre(), 2);
        QCOMPARE(rs.ligneCourante(), 1);

        // Gone, and its rowid taken by somebody else: that one must not be deleted in its stead.
        QCOMPARE(rs.texte(u"Num_Salarie"), u"000000000002"_s);
        autre.executer(u"DELETE FROM salarie WHERE Num_Salarie = '000000000002'"_s);
        autre.executer(u"INSERT INTO salarie (Num_Salarie, cpt_z) VALUES ('000000000009', 1)"_s);
        QVERIFY(!echecDe([&] { rs.supprimer(rs.courant()); }).isEmpty());
        QVERIFY(autre.existe(u"SELECT 1 FROM salarie WHERE Num_Salarie = '000000000009'"_s));
        // The same, and we are the ones who add: one row in the list, not two.
        autre.executer(u"DELETE FROM salarie WHERE Num_Salarie = '000000000009'"_s);
        rs.ajouter({{u"Num_Salarie"_s, u"000000000010"}, {u"cpt_z"_s, 1}});
        QCOMPARE(rs.nombre(), 2);
        QCOMPARE(rs.texte(u"Num_Salarie"), u"000000000010"_s);
    }

    void annulation()
    {
        Recordset rs(cnx(), u"Wilaya"_s);
        rs.ouvrir();
        for (const auto *code : {u"01", u"02", u"03"})
            rs.ajouter({{u"Code"_s, code}, {u"Libelle"_s, u"ADRAR"}});
        Recordset autre(cnx(), u"Wilaya"_s);
        autre.ouvrir();
        for (const int courante : {0, 1, 2}) {
            rs.allerA(courante);
            autre.allerA(courante);
            {
                Transaction transaction(cnx());
                rs.modifier(rs.courant(), {{u"Libelle"_s, u"X"}});
                rs.ajouter({{u"Code"_s, u"00"}});
                rs.supprimer(rs.ligne(courante));
                autre.allerA(2 - courante);
                if (courante == 0) {
                    autre.trier(u"Code"_s);
                    QCOMPARE(autre.nombre(), 3);
                }
            }
            // Without a requery, and on the row of before.
            QCOMPARE(codes(rs), u"01,02,03"_s.insert(3 * courante + 2, u'*'));
            QCOMPARE(codes(autre), codes(rs));
            QCOMPARE(rs.texte(u"Libelle"), u"ADRAR"_s);
        }
    }

    /// A table larger than what is kept of it in memory.
    void grandeTable()
    {
        constexpr int nombre = 5000;
        peupler(cnx(), nombre);
        Recordset rs(cnx(), u"salarie"_s);
        rs.ouvrir();
        QCOMPARE(rs.nombre(), nombre);
        for (const int ligne : {0, 63, 64, 3999, 5, nombre - 1}) // in the order of entry, from any page
            QCOMPARE(rs.ligne(ligne).texte(u"Num_Salarie").toInt(), ligne + 1);

        rs.allerA(3000);
        for (const QString &colonne : {u"nom"_s, u"Num_Salarie"_s, u"date_naiss"_s}) {
            rs.trier(colonne, Qt::DescendingOrder);
            const QString attendu =
                u"SELECT rowid FROM salarie ORDER BY [%1] DESC, rowid LIMIT 1 OFFSET 1234"_s.arg(colonne);
            QCOMPARE(rs.ligne(1234).texte(u"Num_Salarie").toInt(),
                     static_cast<int>(cnx().premiere(attendu).entier(0)));
            QCOMPARE(rs.texte(u"Num_Salarie").toInt(), 3001);
        }
        rs.trier(u"nom"_s);
        rs.ajouter({{u"Num_Salarie"_s, u"999999999999"}, {u"cpt_z"_s, 1}, {u"nom"_s, u"A"}});
        QCOMPARE(rs.ligneCourante(), 0);
        rs.modifier(rs.courant(), {{u"nom"_s, u"ZZZ"}});
        QCOMPARE(rs.ligneCourante(), nombre);
        rs.supprimer(rs.courant());
        rs.ouvrir(commencePar(u"Num_Salarie"_s, u"000000001"));
        QCOMPARE(rs.nombre(), 1000);
    }

private:
    Connexion &cnx() { return m_essai->base.Cnx; }

    /// The codes of the rows, the current one with a star.
    static QString codes(const Recordset &rs)
    {
        QStringList codes;
        for (int ligne = 0; ligne < rs.nombre(); ++ligne)
            codes += rs.ligne(ligne).texte(u"Code") + (ligne == rs.ligneCourante() ? u"*"_s : QString());
        return codes.join(u',');
    }

    std::unique_ptr<BaseEssai> m_essai;
};

QTEST_GUILESS_MAIN(TestRecordset)
#include "test_recordset.moc"
