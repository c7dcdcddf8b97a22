#include "storage/base.h"
#include "storage/demarrage.h"
#include "storage/installation.h"
#include "storage/lieux.h"
#include "storage/schema.h"
#include "tests/commun/cas.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/commun/enfant.h"
#include "tests/storage/baseessai.h"
#include "tests/storage/foyer.h"
#include "tests/storage/surdisque.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace boites;

namespace {

const Attente incorrecte = critique(u"Format fichier incorrecte !"_s);

/// What the starts tell, one after the other, over a database of years ago.
const QStringList creees{u"tables EnteteCI et Detail_Ci crées"_s,
                         u"table Période crée"_s,
                         u"tables Entete Dac et Ligne_Dac crées"_s,
                         u"table Nationalité crée"_s,
                         u"table Banque crée"_s,
                         u"table communes crée"_s,
                         u"table Wilaya crée"_s};

Attente creee(const QString &groupe)
{
    return information(groupe + u", Veuillez relancer une seconde fois l'application, SVP"_s);
}

/// One start that must show exactly these boxes.
Demarrage demarrerAvec(const Attentes &boites, Base &base)
{
    DialogueScenario dialogue;
    dialogue.attendre(boites);
    return demarrer(base, dialogue);
}

QString cheminVerrou() { return QFileInfo(cheminBase()).absolutePath() + u"/installation.verrou"_s; }

int nombre(Connexion &cnx, const QString &table)
{
    return static_cast<int>(cnx.premiere(u"SELECT count(*) FROM [%1]"_s.arg(table)).entier(0));
}

/// All files of the folder with what is in them.
QMap<QString, QByteArray> contenu(const QString &dossier)
{
    QMap<QString, QByteArray> fichiers;
    QDirIterator parcours(dossier, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (parcours.hasNext()) {
        const QString chemin = parcours.next();
        fichiers.insert(chemin, lireFichier(chemin));
    }
    return fichiers;
}

/// Starts as the shell does, over and over, until nothing is missing. @return the count of starts
int demarrerJusquAuBout()
{
    DialogueOui dialogue;
    for (int fois = 1; fois < 20; ++fois) {
        Base base;
        if (demarrer(base, dialogue) == Demarrage::Complet)
            return fois;
    }
    return -1;
}

} // namespace

class TestDemarrage : public QObject
{
    Q_OBJECT

    /// What is done to a new database, the table that can't be created, why, and whether the next start gets
    /// by.
    using CasGroupe = std::tuple<const char *, QString, QString, QString, bool>;

    /// A reference table and its file, none when null; then absent, incorrecte, or the rows and the first
    /// name.
    using CasFichier = std::tuple<const char *, QString, QByteArray, QString>;

    /// How the file is damaged, and what is told.
    using CasBase = std::tuple<const char *, std::function<void(QByteArray &)>, QString>;

    /// Starts on a table of employees with so many columns.
    static void elargir(int colonnes, bool connu)
    {
        Foyer foyer;
        poserAncienneBase(colonnes, 50);
        Base base;
        const Demarrage resultat = demarrerAvec({connu ? creee(creees[0]) : incorrecte}, base);
        QCOMPARE(base.RsSalarie.nombre(), 50);
        QCOMPARE(base.RsSalarie.ligne(49).texte(u"Num_Salarie"), u"000000000050"_s);
        QCOMPARE(base.RsSalarie.columnCount(), connu ? 28 : colonnes);
        if (!connu) {
            QCOMPARE(resultat, Demarrage::Interrompu);
            QVERIFY(!base.RsEmployeur.estOuvert() && !base.RsLigneDas.estOuvert());
            QVERIFY(echecDe([&] { base.RsEmployeur.vide(); }).contains(u"« employeur » n'est pas ouverte"));
            return;
        }
        QCOMPARE(resultat, Demarrage::FinProgramme);
        for (int i = 0; i < 28; ++i)
            QCOMPARE(base.RsSalarie.nomColonne(i), tableDuSchema(u"salarie").colonnes[i].nom);
        // The added columns have the widths of the new ones.
        const auto ecrire = [&](int chiffres) {
            base.RsSalarie.modifier(base.RsSalarie.courant(), {{u"NIN"_s, QString(chiffres, u'1')}});
        };
        QVERIFY(echecDe([&] { ecrire(19); }).contains(u"18 caractères au plus"));
        ecrire(18);
    }

private slots:
    void premierDemarrage()
    {
        Foyer foyer;
        ecrireFichier(cheminWilayas(), "01LA MIENNE\r\nEnd\r\n"); // what is there stays
        ecrireFichier(cheminBase() + u"-wal"_s, "rows of a database that is gone");
        for (const QString &reste : {cheminBase() + u".nouveau"_s, cheminVerrou()})
            ecrireFichier(reste, "left by a kill");
        QElapsedTimer temps;
        temps.start();
        {
            Base base;
            QCOMPARE(demarrerAvec({}, base), Demarrage::Complet);
            QVERIFY2(temps.elapsed() < 25'000, "it waits for a program that is gone");
            QVERIFY(!base.declarationsPossibles());
            QCOMPARE(base.RsBanque.nombre(), 24);
            QCOMPARE(base.RsCommune.nombre(), 1541);
            QCOMPARE(base.RsWilaya.nombre(), 1);
            QCOMPARE(base.RsWilaya.texte(u"Libelle"), u"LA MIENNE"_s);
            QCOMPARE(base.RsBanque.ligne(0).texte(u"Libelle"), u"Banque Nationale d'Algérie"_s);
            QVERIFY(base.RsNationalite.vide());
            QCOMPARE(base.RsSalarie.columnCount(), 28);
            QCOMPARE(base.Cnx.premiere(u"PRAGMA journal_mode"_s).texte(0), u"wal"_s);
            base.RsAnnee.ajouter({{u"annee"_s, 2024}});
            base.RsAnnee.ajouter({{u"annee"_s, 2023}});
            base.RsEmployeur.ajouter({{u"num_emp"_s, u"12345678"}});
            // The order of entry is kept for campaigns too, whose key is a number.
            QCOMPARE(base.Cnx.premiere(u"SELECT annee FROM annee ORDER BY rowid"_s).entier(0), 2024);

            // With the journals of the open database.
            constexpr auto autres = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                    QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
            QDirIterator tout(foyer.chemin(), QDir::AllEntries | QDir::NoDotAndDotDot,
                              QDirIterator::Subdirectories);
            while (tout.hasNext()) {
                const QString chemin = tout.next();
                QVERIFY2(!(QFile::permissions(chemin) & autres), qPrintable(chemin));
            }
        }
        for (const QString &chemin : {foyer.chemin(), dossierDas(), QFileInfo(cheminBase()).absolutePath(),
                                      QString(cheminBanques() + u".nouveau"_s)})
            QVERIFY2(misSurDisque().contains(chemin), qPrintable(chemin));
        QCOMPARE(lireFichier(cheminBase() + u"-wal.ancien"_s), "rows of a database that is gone");
        QVERIFY(QFileInfo(dossierExpor()).isDir());
        QCOMPARE(lireFichier(cheminCountry()).size(), 11861);
        QVERIFY(!QFileInfo::exists(cheminBase() + u".nouveau"_s));

        const QByteArray avant = lireFichier(cheminBanques());
        Base base;
        QCOMPARE(demarrerAvec({}, base), Demarrage::Complet);
        QVERIFY(base.declarationsPossibles());
        QCOMPARE(base.RsBanque.nombre(), 24);
        QCOMPARE(lireFichier(cheminBanques()), avant);
    }

    /// Nobody is installing: that is not what is told.
    void verrouImpossible()
    {
        Foyer foyer;
        QVERIFY(QDir().mkpath(cheminVerrou()));
        const QString texte = echecDe(installerSiAbsente);
        QVERIFY2(texte.contains(cheminVerrou()) && texte.contains(u"Un dossier porte déjà ce nom"),
                 qPrintable(texte));
    }

    /// Each one gets through at once, whichever lays down the files and fills the tables.
    void premiersDemarragesEnsemble()
    {
        for (int essai = 0; essai < 4; ++essai) {
            Foyer foyer;
            for (const enfant::Fin &fin : enfant::faireEnsemble(6, {}))
                QCOMPARE(fin.sortie, 1);
        }
    }

    void colonnesDeSalarie()
    {
        for (const int colonnes : {16, 17, 18, 19, 22, 28, 29})
            elargir(colonnes, colonnes != 16 && colonnes != 19 && colonnes != 29);
    }

    void septGroupes()
    {
        Foyer foyer;
        poserAncienneBase(17, 3);
        for (const QString &groupe : creees) {
            Base base;
            QCOMPARE(demarrerAvec({creee(groupe)}, base), Demarrage::FinProgramme);
        }
        Base base;
        QCOMPARE(demarrerAvec({}, base), Demarrage::Complet);
        for (const Recordset *rs : {&base.RsBanque, &base.RsCommune, &base.RsWilaya})
            QCOMPARE(rs->nombre(), 1);
        // The indexes came with the tables or at the end of the start.
        const QStringList presents =
            BaseEssai::lignes(base.Cnx, u"SELECT name FROM sqlite_master WHERE type = 'index'"_s);
        for (const Table &table : tablesDuSchema()) {
            for (const Index &un : table.index)
                QVERIFY2(presents.contains(un.nom), qPrintable(un.nom));
        }
    }

    void groupesEnDefaut_data()
    {
        lignesDuTest<CasGroupe>({{"annee absente", u"DROP TABLE annee"_s, u"Entete_CI"_s,
                                  u"table « annee » n'existe pas."_s, false},
                                 {"second du groupe absent", u"DROP TABLE Ligne_Dac"_s, u"Entete_Dac"_s,
                                  u"table « Ligne_Dac » n'existe pas."_s, false},
                                 {"premier du groupe absent", u"DROP TABLE Entete_CI"_s, u"Detail_CI"_s,
                                  u"table « Entete_CI » n'existe pas."_s, true}, // what was created stays
                                 {"autre colonne", u"ALTER TABLE Periode RENAME COLUMN Code TO Kode"_s,
                                  u"Periode"_s, u"colonne « Code » n'existe pas."_s, false},
                                 {"livree absente",
                                  u"DROP TABLE entete_das"_s,
                                  {},
                                  u"table « entete_das » n'existe pas."_s,
                                  false}});
    }

    void groupesEnDefaut()
    {
        QFETCH(CasGroupe, cas);
        const auto &[nom, sql, table, cause, ensuite] = cas;
        Foyer foyer;
        installerSiAbsente();
        {
            Connexion autre;
            autre.ouvrir(cheminBase());
            autre.definir(sql);
        }
        Base base;
        const QString debut =
            table.isEmpty()
                ? u"La "_s + cause
                : u"La table « %1 » n'a pas pu être créée.\nLa table « %1 » existe déjà."_s.arg(table);
        QString texte;
        try {
            demarrerAvec({}, base);
        } catch (const ErreurFatale &erreur) {
            texte = erreur.texte();
            QVERIFY(!table.isEmpty());
        } catch (const ErreurBase &erreur) { // no end of the program
            texte = erreur.texte();
            QVERIFY(table.isEmpty() && base.RsLigneDas.estOuvert() && !base.RsAnnee.estOuvert());
        }
        QVERIFY2(texte.startsWith(debut) && texte.contains(cause), qPrintable(texte));
        Base suivante;
        QCOMPARE(echecDe([&] { demarrerAvec({}, suivante); }).isEmpty(), ensuite);
    }

    void fichiersDeReference_data()
    {
        const auto lignes = [](int combien, const QByteArray &fin) {
            QByteArray octets;
            for (int i = 1; i <= combien; ++i)
                octets += QByteArray::number(100 + i) + "AB        Une banque \xE9\x9C'\r\n";
            return QByteArray(octets + fin);
        };
        const QByteArray deux = "101A         Un   \r\n102B         Deux\r\nEnd\r\n";
        const auto change = [deux](const char *par) { return QByteArray(deux).replace("102B", par); };
        const QString banque = u"Banque"_s;
        const QString commune = u"Commune"_s;
        const QString wilaya = u"Wilaya"_s;
        const QString fautive = u"incorrecte"_s;
        lignesDuTest<CasFichier>(
            {{"absent", banque, {}, u"absent"_s},
             {"vide", banque, "", u"absent"_s},
             {"dix lignes", banque, lignes(10, "End\r\n"), u"10 Une banque éœ'"_s},
             {"End sans fin de ligne", banque, lignes(10, "End"), u"10 Une banque éœ'"_s},
             {"sans End", banque, lignes(10, {}), u"9 Une banque éœ'"_s},
             {"suite après End", banque, lignes(2, "Endive\r\n999X\r\n"), u"2 Une banque éœ'"_s},
             {"end en minuscules", banque, lignes(2, "end\r\nEnd\r\n"), u"3 Une banque éœ'"_s},
             {"fins LF", banque, QByteArray(deux).replace("\r\n", "\n"), u"2 Un"_s},
             {"End seul", banque, "End\r\n", u"0"_s},
             {"code répété", banque, change("101B"), fautive},
             {"ligne vide", banque, change("\r\n102B"), fautive},
             {"commune, ligne vide", commune, "0101ADRAR\r\n\r\n   X\r\n0102TAMEST\r\nEnd\r\n", u"2 ADRAR"_s},
             {"commune, code répété", commune, "0101ADRAR\r\n0101TAMEST\r\nEnd\r\n", fautive},
             {"commune, absent", commune, {}, u"absent"_s},
             {"wilaya, ligne blanche", wilaya, "   \r\n01ADRAR\r\nEnd\r\n", u"1 ADRAR"_s},
             {"wilaya, code vide", wilaya, "01ADRAR\r\n  X\r\nEnd\r\n", fautive},
             {"wilaya, absent", wilaya, {}, u"absent"_s}});
    }

    void fichiersDeReference()
    {
        QFETCH(CasFichier, cas);
        const auto &[nom, table, octets, issue] = cas;
        Foyer foyer;
        installerSiAbsente();
        const QString chemin = dossierDas() + u"/%1s.txt"_s.arg(table);
        QVERIFY(QFile::remove(chemin));
        if (!octets.isNull())
            ecrireFichier(chemin, octets);

        Attentes boites;
        if (issue == u"absent")
            boites += avertissement(
                u"Fichier %1s Inexistant! Veuillez réinstaller l'application DAS SVP!!"_s.arg(table));
        else if (issue == u"incorrecte")
            boites += incorrecte;
        Base base;
        const Demarrage resultat = demarrerAvec(boites, base);
        Recordset &rs = table == u"Banque"    ? base.RsBanque
                        : table == u"Commune" ? base.RsCommune
                                              : base.RsWilaya;
        QVERIFY(!base.Cnx.enTransaction());
        if (boites.isEmpty()) {
            QCOMPARE(resultat, Demarrage::Complet);
            const QString premier = rs.vide() ? QString() : u' ' + rs.ligne(0).texte(u"Libelle");
            QCOMPARE(QString(QString::number(rs.nombre()) + premier), issue);
            return;
        }
        QCOMPARE(resultat, Demarrage::Interrompu);
        QVERIFY(rs.vide());
        QCOMPARE(nombre(base.Cnx, table), 0);
        QCOMPARE(base.RsWilaya.estOuvert(), table == u"Wilaya"); // the later steps were not reached
        // The next start tries again.
        ecrireFichier(chemin, "1234567890123Libelle\r\nEnd\r\n");
        Base suivante;
        QCOMPARE(demarrerAvec({}, suivante), Demarrage::Complet);
        QCOMPARE(nombre(suivante.Cnx, table), 1);
    }

    void basesInutilisables_data()
    {
        const QString autre = u"file is not a database"_s;
        const QString malForme = u"database disk image is malformed"_s;
        lignesDuTest<CasBase>({
            {"vide", [](QByteArray &octets) { octets.clear(); }, autre},
            {"un octet", [](QByteArray &octets) { octets.truncate(1); }, autre},
            {"bruit", [](QByteArray &octets) { octets = QByteArray("\x93\x07\xFE\x41").repeated(4096); },
             autre},
            {"autre format",
             [](QByteArray &octets) { octets.replace(0, 20, QByteArray("\0\1\0\0Standard Jet DB\0", 20)); },
             autre},
            {"tête seule", [](QByteArray &octets) { octets.truncate(60); }, malForme},
            {"tronquée", [](QByteArray &octets) { octets.truncate(octets.size() / 2); }, malForme},
            {"page abîmée",
             [](QByteArray &octets) { octets.replace(octets.size() / 2, 6000, QByteArray(6000, 'Z')); },
             u"endommagé"_s},
            {"lecture seule", {}, u"Permission denied"_s},
            {"dossier en lecture seule", {}, u"Permission denied"_s},
            {"dossier à sa place", {}, u"Is a directory"_s},
        });
    }

    void basesInutilisables()
    {
        QFETCH(CasBase, cas);
        const auto &[nom, abimer, texte] = cas;
        Foyer foyer;
        poserAncienneBase(17, 2000);
        const QString base = cheminBase();
        const QString dossier = QFileInfo(base).absolutePath();
        if (abimer) {
            QByteArray octets = lireFichier(base);
            abimer(octets);
            ecrireFichier(base, octets);
        } else if (qstrcmp(nom, "dossier à sa place") == 0) {
            QVERIFY(QFile::remove(base) && QDir().mkpath(base));
        } else {
            QVERIFY(QFile::setPermissions(qstrcmp(nom, "lecture seule") == 0 ? base : dossier,
                                          QFile::ReadOwner | QFile::ExeOwner));
        }
        const auto avant = contenu(foyer.chemin());
        QString fatale;
        try {
            Base essai;
            demarrerAvec({}, essai);
        } catch (const ErreurFatale &erreur) {
            fatale = erreur.texte();
        }
        const auto apres = contenu(foyer.chemin());
        QFile::setPermissions(dossier, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QVERIFY2(fatale.contains(QDir::toNativeSeparators(base)) && fatale.contains(texte),
                 qPrintable(fatale));
        QCOMPARE(apres.keys(), avant.keys());
        QVERIFY(apres == avant);
    }

    void baseVerrouillee()
    {
        Foyer foyer;
        poserAncienneBase(17, 10);
        const QByteArray avant = lireFichier(cheminBase());
        Connexion autre;
        autre.ouvrir(cheminBase());
        autre.executer(u"BEGIN EXCLUSIVE"_s);
        Base base;
        base.Cnx.setAttente(20);
        const QString texte = echecDe([&] { base.OuvrirBase(cheminBase()); });
        QVERIFY2(texte.contains(cheminBase()) && texte.contains(u"database is locked"), qPrintable(texte));
        QCOMPARE(lireFichier(cheminBase()), avant);
        autre.executer(u"ROLLBACK"_s);
        base.OuvrirBase(cheminBase());
    }

    /// Kills the start at moments spread over its whole length, twice in a row, and lets the next ones go on.
    void tue_data()
    {
        QTest::addColumn<bool>("ancienne");
        QTest::newRow("dossier vierge") << false;
        QTest::newRow("base ancienne") << true;
    }

    void tue()
    {
        QFETCH(bool, ancienne);
        constexpr int coups = 10;
        constexpr int salaries = 5000;
        qint64 duree = 0;
        QSet<QStringList> etats;
        for (int coup = -1; coup < coups; ++coup) {
            Foyer foyer;
            if (ancienne)
                poserAncienneBase(17, salaries);
            if (coup < 0) {
                duree = enfant::faire({}).microsecondes;
                continue;
            }
            enfant::faire({}, duree * coup / coups);
            etats += QStringList(contenu(foyer.chemin()).keys()).replaceInStrings(foyer.chemin(), QString());
            enfant::faire({}, duree * (coups - coup) / coups / 3);

            QVERIFY(demarrerJusquAuBout() > 0);
            Base base;
            base.OuvrirBase(cheminBase());
            QCOMPARE(base.Cnx.premiere(u"PRAGMA integrity_check"_s).texte(0), u"ok"_s);
            for (const Table &table : tablesDuSchema())
                QVERIFY2(base.Cnx.existe(u"SELECT 1 FROM sqlite_master WHERE name = ?"_s, {table.nom}),
                         qPrintable(table.nom));
            QCOMPARE(nombre(base.Cnx, u"Wilaya"_s), ancienne ? 1 : 48);
            QCOMPARE(nombre(base.Cnx, u"Commune"_s), ancienne ? 1 : 1541);
            QCOMPARE(nombre(base.Cnx, u"Banque"_s), ancienne ? 1 : 24);
            QCOMPARE(nombre(base.Cnx, u"salarie"_s), ancienne ? salaries : 0);
            if (!ancienne) {
                for (const QString &nom : {u"Banques"_s, u"Communes"_s, u"Wilayas"_s, u"Country"_s})
                    QCOMPARE(lireFichier(dossierDas() + u"/%1.txt"_s.arg(nom)),
                             lireFichier(u":/reference/%1.txt"_s.arg(nom)));
            }
        }
        QVERIFY2(etats.size() > 1, "no kill fell into the start");
    }
};

/// A child starts until nothing is missing, and gives the count of its starts.
int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (enfant::mots(argc, argv)) {
        enfant::commencer();
        return demarrerJusquAuBout();
    }
    TestDemarrage test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_demarrage.moc"
