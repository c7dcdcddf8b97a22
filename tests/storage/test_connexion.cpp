#include "rules/erreurs.h"
#include "storage/recordset.h"
#include "storage/schema.h"
#include "tests/commun/cas.h"
#include "tests/storage/baseessai.h"
#include "tests/storage/foyer.h"

#include <QElapsedTimer>

#include <limits>

using namespace Qt::StringLiterals;

/// The schema, the connection and its transactions, on a file with all fourteen tables.
class TestConnexion : public QObject
{
    Q_OBJECT

    /// Table and column, the value, and the beginning of its refusal; none when it is taken.
    using CasRefus = std::tuple<const char *, QString, QVariant, QString>;

    std::unique_ptr<BaseEssai> m_essai;

    Connexion &cnx() { return m_essai->base.Cnx; }

private slots:
    void init() { m_essai = std::make_unique<BaseEssai>(); }

    /// The key columns of each table, in the order of the key; none takes Null.
    void colonnesEtCles()
    {
        QCOMPARE(tablesDuSchema().size(), 14);
        for (const Table &table : tablesDuSchema()) {
            const Enregistrement lu = cnx().premiere(
                u"SELECT count(*), (SELECT group_concat(name) FROM (SELECT name FROM pragma_table_info(?) "
                "WHERE pk > 0 AND [notnull] = 1 ORDER BY pk)) FROM pragma_table_info(?)"_s,
                {table.nom, table.nom});
            QCOMPARE(lu.entier(0), table.colonnes.size());
            QCOMPARE(lu.texte(1), table.cle.join(u','));
        }
    }

    void refus_data()
    {
        const auto trop = [](const QString &valeur, const QString &colonne, int largeur) {
            return u"La valeur « %1 » (%2 caractères) est refusée dans la colonne %3 de la table salarie : "
                   u"%4 "
                   "caractères au plus."_s.arg(valeur)
                       .arg(valeur.size())
                       .arg(colonne)
                       .arg(largeur);
        };
        const auto refusee = [](const QString &valeur, const QString &colonne) {
            return u"La valeur « %1 » est refusée dans la colonne %2"_s.arg(valeur, colonne);
        };
        const QString trente(30, u'É');
        const QString naissance = u"salarie.date_naiss"_s;
        const QString effectif = u"entete_das.total_salarie"_s;
        lignesDuTest<CasRefus>(
            {{"largeur exacte", u"salarie.nom"_s, trente, {}},
             {"un de trop", u"salarie.nom"_s, trente + u'É', trop(trente + u'É', u"nom"_s, 30)},
             {"blancs finaux", u"salarie.sf"_s, u"M    "_s, {}},
             {"blanc devant", u"salarie.sf"_s, u" M"_s, trop(u" M"_s, u"sf"_s, 1)},
             {"31 février", naissance, u"2020-02-31"_s, refusee(u"2020-02-31"_s, u"date_naiss"_s)},
             {"date affichée", naissance, u"31/01/2020"_s, refusee(u"31/01/2020"_s, u"date_naiss"_s)},
             {"maintenant", naissance, u"now"_s, u"La base de données a refusé"_s},
             {"an 100", naissance, u"0100-01-01"_s, {}},
             {"29 février", naissance, u"2020-02-29"_s, {}},
             {"entier au bord", effectif, 2147483647LL, {}},
             {"entier au-delà", effectif, 2147483648LL,
              refusee(u"2147483648"_s, u"total_salarie de la table entete_das"_s)},
             {"entier en lettres", effectif, u"dix"_s, refusee(u"dix"_s, u"total_salarie"_s)},
             {"montant au bord", u"entete_das.sum_annuel"_s, std::numeric_limits<qint64>::min(), {}},
             {"montant flottant", u"entete_das.sum_annuel"_s, 12.5, refusee(u"12.5"_s, u"sum_annuel"_s)},
             {"clé nulle", u"annee.annee"_s, {}, u"La colonne annee de la table annee est obligatoire."_s},
             {"code vide", u"Banque.Code"_s, u"  "_s,
              u"Le texte vide est refusé dans la colonne Code de la table Banque."_s},
             {"doublon sans la casse", u"Wilaya.Code"_s, u"AB"_s,
              u"Une ligne de la table Wilaya porte déjà cette clé : Code « AB »."_s}});
    }

    void refus()
    {
        QFETCH(CasRefus, cas);
        const auto &[nom, ou, valeur, debut] = cas;
        const QString table = ou.section(u'.', 0, 0);
        const QString colonne = ou.section(u'.', 1);
        cnx().inserer(u"Wilaya"_s, {{u"Code"_s, u"ab"}});
        Champs champs;
        for (const QString &cle : tableDuSchema(table).cle) {
            if (cle != colonne)
                champs.append({cle, 1});
        }
        const bool texte = valeur.typeId() == QMetaType::QString;
        champs.append({colonne, texte ? Valeur(valeur.toString()) : Valeur::brute(valeur)});
        const QString echec = echecDe([&] { cnx().inserer(table, champs); });
        QVERIFY2(debut.isEmpty() ? echec.isEmpty() : echec.startsWith(debut), qPrintable(echec));
        // The engine's own text follows in brackets.
        QVERIFY2(debut.isEmpty() || (echec.contains(u"\n(") && echec.endsWith(u')')), qPrintable(echec));
    }

    void allerRetour()
    {
        cnx().inserer(u"entete_das"_s, {{u"num_emp"_s, u"12345678  "},
                                        {u"annee"_s, 2024},
                                        {u"Type"_s, 1},
                                        {u"sum_annuel"_s, Currency::deTexte(u"-1234,5678")}});
        cnx().inserer(u"salarie"_s, {{u"Num_Salarie"_s, u"1"},
                                     {u"cpt_z"_s, 1},
                                     {u"nom"_s, u"D'ÉÀŒ%_\" ; "},
                                     {u"prenom"_s, QString()},
                                     {u"ville"_s, nullptr},
                                     {u"date_naiss"_s, QDate(1970, 2, 28)}});
        const Enregistrement entete =
            cnx().premiere(u"SELECT * FROM entete_das WHERE num_emp = ?"_s, {u"12345678 "});
        QCOMPARE(entete.texte(u"NUM_EMP"), u"12345678"_s);
        QCOMPARE(entete.montant(u"sum_annuel"), Currency::deDixMilliemes(-12345678));
        QVERIFY(entete.estNul(u"sum_calc"));
        QCOMPARE(entete.montant(u"sum_calc", Currency()), Currency());
        QCOMPARE(echecDe([&] { entete.entier(u"total_calc"); }),
                 u"La colonne « total_calc » est vide : un nombre y est attendu."_s);
        QCOMPARE(echecDe([&] { entete.texte(u"total"); }), u"La colonne « total » n'existe pas."_s);
        const Enregistrement salarie = cnx().premiere(u"SELECT * FROM salarie"_s);
        QCOMPARE(salarie.texte(u"nom"), u"D'ÉÀŒ%_\" ;"_s);
        QVERIFY(!salarie.estNul(u"prenom")); // the empty text is no Null, even when Qt calls it null
        QVERIFY(salarie.estNul(u"ville"));
        QVERIFY(salarie.texte(u"ville").isNull());
        QCOMPARE(salarie.date(u"date_naiss"), QDate(1970, 2, 28));
        QVERIFY(cnx().premiere(u"SELECT * FROM Periode"_s).estVide());
    }

    void prefixe()
    {
        const QStringList noms{u"Élan"_s,  u"ÉLAN VITAL"_s, u"élan"_s, u"ELAN"_s,
                               u"é%lan"_s, u"Elan_b"_s,     u"Ela'n"_s};
        for (qsizetype i = 0; i < noms.size(); ++i)
            cnx().inserer(u"salarie"_s,
                          {{u"Num_Salarie"_s, QString::number(i)}, {u"cpt_z"_s, 1}, {u"nom"_s, noms[i]}});
        const auto trouves = [&](QStringView texte) {
            const Condition condition = commencePar(u"nom"_s, texte);
            return cnx()
                .premiere(
                    u"SELECT group_concat(nom, '|') FROM (SELECT nom FROM salarie WHERE %1 ORDER BY rowid)"_s
                        .arg(condition.sql),
                    condition.valeurs)
                .texte(0);
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
            cnx()
                .premiere(u"EXPLAIN QUERY PLAN SELECT rowid FROM salarie WHERE %1"_s.arg(condition.sql),
                          condition.valeurs)
                .texte(u"detail");
        QVERIFY2(!plan.startsWith(u"SCAN"), qPrintable(plan));
    }

    void transactions()
    {
        const auto ajouter = [this](const QString &code) {
            cnx().inserer(u"Periode"_s, {{u"Code"_s, code}});
        };
        const auto nombre = [this] { return cnx().premiere(u"SELECT count(*) FROM Periode"_s).entier(0); };
        {
            Transaction transaction(cnx());
            ajouter(u"202001"_s);
            QVERIFY(echecDe([&] { Transaction seconde(cnx()); }).contains(u"déjà ouverte"));
            QVERIFY(cnx().enTransaction());
        }
        QCOMPARE(nombre(), 0);
        {
            Transaction transaction(cnx());
            ajouter(u"202001"_s);
            QVERIFY(!echecDe([&] { ajouter(u"202001"_s); }).isEmpty());
            ajouter(u"202002"_s); // a refused row leaves the others
            transaction.commit();
        }
        QCOMPARE(nombre(), 2);
        {
            // The last failure handler ends what is open, with its guard still standing.
            Transaction transaction(cnx());
            ajouter(u"202003"_s);
            cnx().annulerTransaction();
            QVERIFY(!cnx().enTransaction());
            QVERIFY(!echecDe([&] { ajouter(u"202004"_s); }).isEmpty()); // it would stay by itself
        }
        ajouter(u"202005"_s);
        QCOMPARE(nombre(), 3);
    }

    void disquePlein()
    {
        limiterPages(cnx(), 4);
        cnx().inserer(u"Periode"_s, {{u"Code"_s, u"202001"}});
        QString echec;
        {
            Transaction transaction(cnx());
            cnx().inserer(u"Periode"_s, {{u"Code"_s, u"202002"}});
            echec = echecDe([&] { peupler(cnx(), 1000); });
            // Nothing may be written on its own after the engine gave up.
            QVERIFY(!echecDe([&] { cnx().inserer(u"Periode"_s, {{u"Code"_s, u"202003"}}); }).isEmpty());
            QVERIFY(!echecDe([&] { transaction.commit(); }).isEmpty());
        }
        QVERIFY2(echec.contains(u"est plein") && echec.contains(u"database or disk is full"),
                 qPrintable(echec));
        QCOMPARE(m_essai->lignes(u"SELECT Code FROM Periode"_s), QStringList{u"202001"_s});
        cnx().inserer(u"Periode"_s, {{u"Code"_s, u"202004"}});
    }

    void deuxConnexions()
    {
        constexpr int attente = 60;
        Connexion autre;
        autre.setAttente(attente);
        autre.ouvrir(m_essai->chemin());
        const auto ecrire = [&] { autre.inserer(u"Periode"_s, {{u"Code"_s, u"202001"}}); };
        Transaction transaction(cnx());
        QElapsedTimer temps;
        temps.start();
        const QString echec = echecDe(ecrire);
        QVERIFY2(echec.contains(u"occupée par un autre programme") && echec.contains(m_essai->chemin()),
                 qPrintable(echec));
        // It waited first, and as long as it was told.
        QVERIFY(temps.elapsed() >= attente / 2 && temps.elapsed() < 30 * attente);
        transaction.commit();
        ecrire();
        QVERIFY(cnx().existe(u"SELECT 1 FROM Periode"_s));
        const qsizetype ouvertes = QSqlDatabase::connectionNames().size();
        autre.fermer();
        QCOMPARE(QSqlDatabase::connectionNames().size(), ouvertes - 1);
    }

    void requetesImbriquees()
    {
        // The same statement under way twice, and a table that changes shape behind a kept statement.
        peupler(cnx(), 3);
        const QString sql = u"SELECT Num_Salarie FROM salarie WHERE cpt_z = ? ORDER BY Num_Salarie"_s;
        int paires = 0;
        Requete dehors = cnx().lire(sql, {1});
        while (dehors.suivante()) {
            Requete dedans = cnx().lire(sql, {1});
            while (dedans.suivante())
                ++paires;
        }
        QCOMPARE(paires, 9);
        cnx().existe(u"SELECT * FROM Wilaya"_s);
        cnx().definir(u"ALTER TABLE Wilaya ADD COLUMN Autre Integer"_s);
        cnx().inserer(u"Wilaya"_s, {{u"Code"_s, u"01"}, {u"Autre"_s, 5}});
        QCOMPARE(cnx().premiere(u"SELECT * FROM Wilaya"_s).entier(u"Autre"), 5);
        QVERIFY(echecDe([&] {
                    cnx().lire(u"SELECT * FROM Absente"_s);
                }).startsWith(u"La table « Absente » n'existe"));
    }
};

QTEST_GUILESS_MAIN(TestConnexion)
#include "test_connexion.moc"
