#include "rules/erreurs.h"
#include "storage/connexion.h"
#include "storage/recordset.h"
#include "storage/schema.h"
#include "tests/storage/foyer.h"

#include <QElapsedTimer>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

/// The schema, the connection and its transactions, on a file with all fourteen tables.
class TestConnexion : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_dossier = std::make_unique<QTemporaryDir>();
        m_cnx.ouvrir(chemin());
        Transaction transaction(m_cnx);
        for (const Table &table : tablesDuSchema()) {
            m_cnx.definir(table.creation());
            for (const QString &ordre : table.creationIndex())
                m_cnx.definir(ordre);
        }
        transaction.commit();
    }

    void cleanup() { m_cnx.fermer(); }

    void colonnesEtCles()
    {
        const QList<std::tuple<QString, qint64, QString>> attendu = {
            {u"employeur"_s, 5, u"num_emp"_s},
            {u"salarie"_s, 28, u"Num_Salarie,cpt_z"_s},
            {u"annee"_s, 2, u"annee"_s},
            {u"Periode"_s, 2, u"Code"_s},
            {u"Banque"_s, 3, u"Code"_s},
            {u"Commune"_s, 2, u"Code"_s},
            {u"Wilaya"_s, 2, u"Code"_s},
            {u"Nationalite"_s, 2, QString()},
            {u"entete_das"_s, 7, u"num_emp,annee,Type"_s},
            {u"ligne_das"_s, 10, u"num_salarie,cpt_z,annee,num_emp,type_das"_s},
            {u"Entete_Dac"_s, 8, u"NumEmployeur,Periode,Type_Dac"_s},
            {u"Ligne_Dac"_s, 10, u"NumSalarie,cpt_z,Periode,Type_dac,NumEmployeur"_s},
            {u"Entete_CI"_s, 15, u"N_Identifiant"_s},
            {u"Detail_CI"_s, 9, u"N_Identif,N_SecSoc,Cpt_z"_s}};
        QCOMPARE(tablesDuSchema().size(), attendu.size());
        for (const auto &[table, colonnes, cle] : attendu) {
            const Enregistrement lu = m_cnx.premiere(
                u"SELECT count(*), (SELECT group_concat(name) FROM (SELECT name FROM pragma_table_info(?) "
                "WHERE pk > 0 ORDER BY pk)), sum(pk > 0 AND [notnull] = 0) FROM pragma_table_info(?)"_s,
                {table, table});
            QVERIFY2(lu.entier(0) == colonnes, qPrintable(table));
            QCOMPARE(lu.texte(1), cle);
            QCOMPARE(lu.entier(2), 0); // no key column takes Null
        }
    }

    void refus_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("colonne");
        QTest::addColumn<QVariant>("valeur");
        QTest::addColumn<QString>("debut"); // of the refusal; empty when the value is taken

        const auto trop =
            u"La valeur « %1 » (%2 caractères) est refusée dans la colonne %3 de la table %4 : %5 "
            "caractères au plus."_s;
        QTest::newRow("largeur exacte")
            << u"salarie"_s << u"nom"_s << QVariant(QString(30, u'É')) << QString();
        QTest::newRow("un de trop") << u"salarie"_s << u"nom"_s << QVariant(QString(31, u'É'))
                                    << trop.arg(QString(31, u'É'), u"31"_s, u"nom"_s, u"salarie"_s, u"30"_s);
        QTest::newRow("blancs finaux") << u"salarie"_s << u"sf"_s << QVariant(u"M    "_s) << QString();
        QTest::newRow("blanc devant") << u"salarie"_s << u"sf"_s << QVariant(u" M"_s)
                                      << trop.arg(u" M"_s, u"2"_s, u"sf"_s, u"salarie"_s, u"1"_s);
        QTest::newRow("colonne ajoutée")
            << u"salarie"_s << u"NIN"_s << QVariant(QString(19, u'1'))
            << trop.arg(QString(19, u'1'), u"19"_s, u"NIN"_s, u"salarie"_s, u"18"_s);
        QTest::newRow("31 février") << u"salarie"_s << u"date_naiss"_s << QVariant(u"2020-02-31"_s)
                                    << u"La valeur « 2020-02-31 » est refusée dans la colonne date_naiss"_s;
        QTest::newRow("date affichée")
            << u"salarie"_s << u"date_naiss"_s << QVariant(u"31/01/2020"_s)
            << u"La valeur « 31/01/2020 » est refusée dans la colonne date_naiss"_s;
        QTest::newRow("maintenant") << u"salarie"_s << u"date_naiss"_s << QVariant(u"now"_s)
                                    << u"La base de données a refusé"_s;
        QTest::newRow("an 100") << u"salarie"_s << u"date_naiss"_s << QVariant(u"0100-01-01"_s) << QString();
        QTest::newRow("29 février") << u"salarie"_s << u"date_naiss"_s << QVariant(u"2020-02-29"_s)
                                    << QString();
        QTest::newRow("entier au bord")
            << u"entete_das"_s << u"total_salarie"_s << QVariant(2147483647LL) << QString();
        QTest::newRow("entier au-delà")
            << u"entete_das"_s << u"total_salarie"_s << QVariant(2147483648LL)
            << u"La valeur « 2147483648 » est refusée dans la colonne total_salarie de la table entete_das"_s;
        QTest::newRow("entier en lettres")
            << u"entete_das"_s << u"total_salarie"_s << QVariant(u"dix"_s)
            << u"La valeur « dix » est refusée dans la colonne total_salarie"_s;
        QTest::newRow("montant au bord") << u"entete_das"_s << u"sum_annuel"_s
                                         << QVariant(std::numeric_limits<qint64>::min()) << QString();
        QTest::newRow("montant flottant") << u"entete_das"_s << u"sum_annuel"_s << QVariant(12.5)
                                          << u"La valeur « 12.5 » est refusée dans la colonne sum_annuel"_s;
        QTest::newRow("clé nulle") << u"annee"_s << u"annee"_s << QVariant()
                                   << u"La colonne annee de la table annee est obligatoire."_s;
        QTest::newRow("code vide") << u"Banque"_s << u"Code"_s << QVariant(u"  "_s)
                                   << u"Le texte vide est refusé dans la colonne Code de la table Banque."_s;
        QTest::newRow("doublon sans la casse")
            << u"Wilaya"_s << u"Code"_s << QVariant(u"AB"_s)
            << u"Une ligne de la table Wilaya porte déjà cette clé : Code « AB »."_s;
    }

    void refus()
    {
        QFETCH(QString, table);
        QFETCH(QString, colonne);
        QFETCH(QVariant, valeur);
        QFETCH(QString, debut);

        m_cnx.inserer(u"Wilaya"_s, {{u"Code"_s, u"ab"}});
        Champs champs;
        for (const QString &cle : tableDuSchema(table).cle) {
            if (cle != colonne)
                champs.append({cle, 1});
        }
        const bool texte = valeur.typeId() == QMetaType::QString;
        champs.append({colonne, texte ? Valeur(valeur.toString()) : Valeur::brute(valeur)});
        const QString echec = echecDe([&] { m_cnx.inserer(table, champs); });
        QVERIFY2(debut.isEmpty() ? echec.isEmpty() : echec.startsWith(debut), qPrintable(echec));
        // The engine's own text follows in brackets.
        QVERIFY2(debut.isEmpty() || (echec.contains(u"\n(") && echec.endsWith(u')')), qPrintable(echec));
    }

    void allerRetour()
    {
        m_cnx.inserer(u"entete_das"_s, {{u"num_emp"_s, u"12345678  "},
                                        {u"annee"_s, 2024},
                                        {u"Type"_s, 1},
                                        {u"sum_annuel"_s, Currency::deTexte(u"-1234,5678")}});
        m_cnx.inserer(u"salarie"_s, {{u"Num_Salarie"_s, u"1"},
                                     {u"cpt_z"_s, 1},
                                     {u"nom"_s, u"D'ÉÀŒ%_\" ; "},
                                     {u"prenom"_s, QString()},
                                     {u"ville"_s, nullptr},
                                     {u"date_naiss"_s, QDate(1970, 2, 28)}});
        const Enregistrement entete =
            m_cnx.premiere(u"SELECT * FROM entete_das WHERE num_emp = ?"_s, {u"12345678 "});
        QCOMPARE(entete.texte(u"NUM_EMP"), u"12345678"_s);
        QCOMPARE(entete.montant(u"sum_annuel"), Currency::deDixMilliemes(-12345678));
        QVERIFY(entete.estNul(u"sum_calc"));
        QCOMPARE(entete.montant(u"sum_calc", Currency()), Currency());
        QCOMPARE(echecDe([&] { entete.entier(u"total_calc"); }),
                 u"La colonne « total_calc » est vide : un nombre y est attendu."_s);
        QCOMPARE(echecDe([&] { entete.texte(u"total"); }), u"La colonne « total » n'existe pas."_s);
        const Enregistrement salarie = m_cnx.premiere(u"SELECT * FROM salarie"_s);
        QCOMPARE(salarie.texte(u"nom"), u"D'ÉÀŒ%_\" ;"_s);
        QVERIFY(!salarie.estNul(u"prenom")); // the empty text is no Null, even when Qt calls it null
        QVERIFY(salarie.estNul(u"ville"));
        QVERIFY(salarie.texte(u"ville").isNull());
        QCOMPARE(salarie.date(u"date_naiss"), QDate(1970, 2, 28));
        QVERIFY(m_cnx.premiere(u"SELECT * FROM Periode"_s).estVide());
    }

    void prefixe()
    {
        const QStringList noms{u"Élan"_s,  u"ÉLAN VITAL"_s, u"élan"_s, u"ELAN"_s,
                               u"é%lan"_s, u"Elan_b"_s,     u"Ela'n"_s};
        for (qsizetype i = 0; i < noms.size(); ++i)
            m_cnx.inserer(u"salarie"_s,
                          {{u"Num_Salarie"_s, QString::number(i)}, {u"cpt_z"_s, 1}, {u"nom"_s, noms[i]}});
        const auto trouves = [&](QStringView texte) {
            const Condition condition = commencePar(u"nom"_s, texte);
            QStringList resultat;
            Requete requete = m_cnx.lire(
                u"SELECT nom FROM salarie WHERE %1 ORDER BY rowid"_s.arg(condition.sql), condition.valeurs);
            while (requete.suivante())
                resultat += requete.texte(0);
            return resultat.join(u'|');
        };
        QCOMPARE(trouves(u"él"), u"Élan|ÉLAN VITAL|élan"_s);
        QCOMPARE(trouves(u"ÉL"), u"Élan|ÉLAN VITAL|élan"_s);
        QCOMPARE(trouves(u"ela"), u"ELAN|Elan_b|Ela'n"_s);
        QCOMPARE(trouves(u"elan_"), u"Elan_b"_s);
        QCOMPARE(trouves(u"é%"), u"é%lan"_s);
        QCOMPARE(trouves(u"ela'"), u"Ela'n"_s);
        // and by the index
        const Condition condition = commencePar(u"nom"_s, u"él");
        const QString plan =
            m_cnx
                .premiere(u"EXPLAIN QUERY PLAN SELECT rowid FROM salarie WHERE %1"_s.arg(condition.sql),
                          condition.valeurs)
                .texte(u"detail");
        QVERIFY2(!plan.startsWith(u"SCAN"), qPrintable(plan));
    }

    void transactions()
    {
        const auto ajouter = [this](const QString &code) {
            m_cnx.inserer(u"Periode"_s, {{u"Code"_s, code}});
        };
        const auto nombre = [this] { return m_cnx.premiere(u"SELECT count(*) FROM Periode"_s).entier(0); };
        {
            Transaction transaction(m_cnx);
            ajouter(u"202001"_s);
            QVERIFY(echecDe([&] { Transaction seconde(m_cnx); }).contains(u"déjà ouverte"));
            QVERIFY(m_cnx.enTransaction());
        }
        QCOMPARE(nombre(), 0);
        {
            Transaction transaction(m_cnx);
            ajouter(u"202001"_s);
            QVERIFY(!echecDe([&] { ajouter(u"202001"_s); }).isEmpty());
            ajouter(u"202002"_s); // a refused row leaves the others
            transaction.commit();
        }
        QCOMPARE(nombre(), 2);
        {
            // The last failure handler ends what is open, with its guard still standing.
            Transaction transaction(m_cnx);
            ajouter(u"202003"_s);
            m_cnx.annulerTransaction();
            QVERIFY(!m_cnx.enTransaction());
            QVERIFY(!echecDe([&] { ajouter(u"202004"_s); }).isEmpty()); // it would stay by itself
        }
        ajouter(u"202005"_s);
        QCOMPARE(nombre(), 3);
    }

    void disquePlein()
    {
        m_cnx.existe(
            u"PRAGMA max_page_count = %1"_s.arg(m_cnx.premiere(u"PRAGMA page_count"_s).entier(0) + 4));
        m_cnx.inserer(u"Periode"_s, {{u"Code"_s, u"202001"}});
        QString echec;
        {
            Transaction transaction(m_cnx);
            m_cnx.inserer(u"Periode"_s, {{u"Code"_s, u"202002"}});
            echec = echecDe([&] { peupler(m_cnx, 1000); });
            // Nothing may be written on its own after the engine gave up.
            QVERIFY(!echecDe([&] { m_cnx.inserer(u"Periode"_s, {{u"Code"_s, u"202003"}}); }).isEmpty());
            QVERIFY(!echecDe([&] { transaction.commit(); }).isEmpty());
        }
        QVERIFY2(echec.contains(u"est plein") && echec.contains(u"database or disk is full"),
                 qPrintable(echec));
        QCOMPARE(m_cnx.premiere(u"SELECT count(*) FROM Periode"_s).entier(0), 1);
        m_cnx.inserer(u"Periode"_s, {{u"Code"_s, u"202004"}});
    }

    void deuxConnexions()
    {
        Connexion autre;
        autre.ouvrir(chemin());
        QElapsedTimer temps;
        {
            Transaction transaction(autre);
            temps.start();
            const QString echec = echecDe([&] { m_cnx.inserer(u"Periode"_s, {{u"Code"_s, u"202001"}}); });
            QVERIFY2(echec.contains(u"occupée par un autre programme") && echec.contains(chemin()),
                     qPrintable(echec));
            QVERIFY(temps.elapsed() >= 4000); // it waited first
            transaction.commit();
        }
        m_cnx.inserer(u"Periode"_s, {{u"Code"_s, u"202001"}});
        QVERIFY(autre.existe(u"SELECT 1 FROM Periode"_s));
    }

    void requetesImbriquees()
    {
        // The same statement under way twice, and a table that changes shape behind a kept statement.
        peupler(m_cnx, 3);
        const QString sql = u"SELECT Num_Salarie FROM salarie WHERE cpt_z = ? ORDER BY Num_Salarie"_s;
        int paires = 0;
        Requete dehors = m_cnx.lire(sql, {1});
        while (dehors.suivante()) {
            Requete dedans = m_cnx.lire(sql, {1});
            while (dedans.suivante())
                ++paires;
        }
        QCOMPARE(paires, 9);
        m_cnx.existe(u"SELECT * FROM Wilaya"_s);
        m_cnx.definir(u"ALTER TABLE Wilaya ADD COLUMN Autre Integer"_s);
        m_cnx.inserer(u"Wilaya"_s, {{u"Code"_s, u"01"}, {u"Autre"_s, 5}});
        QCOMPARE(m_cnx.premiere(u"SELECT * FROM Wilaya"_s).entier(u"Autre"), 5);
        QVERIFY(echecDe([&] {
                    m_cnx.lire(u"SELECT * FROM Absente"_s);
                }).startsWith(u"La table « Absente » n'existe"));
    }

private:
    QString chemin() const { return m_dossier->filePath(QStringLiteral("essai.mdb")); }

    std::unique_ptr<QTemporaryDir> m_dossier;
    Connexion m_cnx;
};

QTEST_GUILESS_MAIN(TestConnexion)
#include "test_connexion.moc"
