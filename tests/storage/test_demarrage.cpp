#include "storage/base.h"
#include "storage/demarrage.h"
#include "storage/installation.h"
#include "storage/lieux.h"
#include "storage/schema.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/storage/foyer.h"
#include "tests/storage/surdisque.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QProcess>
#include <QTest>
#include <QThread>

#include <array>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

const QString incorrecte = u"Format fichier incorrecte !"_s;

const QString creees[] = {
    u"tables EnteteCI et Detail_Ci crées, Veuillez relancer une seconde fois l'application, SVP"_s,
    u"table Période crée, Veuillez relancer une seconde fois l'application, SVP"_s,
    u"tables Entete Dac et Ligne_Dac crées, Veuillez relancer une seconde fois l'application, SVP"_s,
    u"table Nationalité crée, Veuillez relancer une seconde fois l'application, SVP"_s,
    u"table Banque crée, Veuillez relancer une seconde fois l'application, SVP"_s,
    u"table communes crée, Veuillez relancer une seconde fois l'application, SVP"_s,
    u"table Wilaya crée, Veuillez relancer une seconde fois l'application, SVP"_s};

/// One start that must show exactly the boxes of the scenario.
Demarrage demarrerAvec(DialogueScenario &dialogue, Base &base)
{
    const Demarrage resultat = demarrer(base, dialogue);
    dialogue.acheve();
    return resultat;
}

QString cheminVerrou() { return QFileInfo(cheminBase()).absolutePath() + u"/installation.verrou"_s; }

/// Changes the database as another tool would.
void changerBase(const QStringList &ordres)
{
    Connexion cnx;
    cnx.ouvrir(cheminBase());
    for (const QString &ordre : ordres)
        cnx.definir(ordre);
}

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
    class Muet : public Dialogue
    {
    public:
        QString choisirFichier(const QString &, const QString &) override { return {}; }
        QString choisirDestination(const QString &, const QString &, const QString &) override { return {}; }

    protected:
        bool montrer(const Boite &) override { return true; }
    } muet;
    for (int fois = 1; fois < 20; ++fois) {
        Base base;
        if (demarrer(base, muet) == Demarrage::Complet)
            return fois;
    }
    return -1;
}

} // namespace

class TestDemarrage : public QObject
{
    Q_OBJECT

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
            DialogueScenario dialogue;
            Base base;
            const Demarrage resultat = demarrerAvec(dialogue, base);
            QCOMPARE(resultat, Demarrage::Complet);
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
        DialogueScenario dialogue;
        Base base;
        const Demarrage resultat = demarrerAvec(dialogue, base);
        QCOMPARE(resultat, Demarrage::Complet);
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
            std::array<QProcess, 6> enfants;
            for (QProcess &enfant : enfants)
                enfant.start(QCoreApplication::applicationFilePath(), {u"--enfant"_s});
            for (QProcess &enfant : enfants) {
                QByteArray dit;
                while (!dit.contains("end") && enfant.waitForReadyRead())
                    dit += enfant.readAll();
                QCOMPARE(dit, "start\nend after 1\n");
                enfant.kill();
                enfant.waitForFinished();
            }
        }
    }

    void colonnesDeSalarie_data()
    {
        QTest::addColumn<int>("colonnes");
        QTest::addColumn<bool>("connu");
        for (const int colonnes : {17, 18, 22, 28})
            QTest::addRow("%d", colonnes) << colonnes << true;
        for (const int colonnes : {16, 19, 29})
            QTest::addRow("%d", colonnes) << colonnes << false;
    }

    void colonnesDeSalarie()
    {
        QFETCH(int, colonnes);
        QFETCH(bool, connu);
        Foyer foyer;
        poserAncienneBase(colonnes, 50);
        DialogueScenario dialogue;
        if (connu)
            dialogue.attendreInformation(creees[0]);
        else
            dialogue.attendreCritique(incorrecte);
        Base base;
        const Demarrage resultat = demarrerAvec(dialogue, base);
        QCOMPARE(base.RsSalarie.nombre(), 50);
        QCOMPARE(base.RsSalarie.ligne(49).texte(u"Num_Salarie"), u"000000000050"_s);
        QCOMPARE(base.RsSalarie.columnCount(), connu ? 28 : colonnes);
        if (!connu) {
            QCOMPARE(resultat, Demarrage::Interrompu);
            QVERIFY(!base.RsEmployeur.estOuvert());
            QVERIFY(!base.RsLigneDas.estOuvert());
            QVERIFY(echecDe([&] { base.RsEmployeur.vide(); }).contains(u"« employeur » n'est pas ouverte"));
            return;
        }
        QCOMPARE(resultat, Demarrage::FinProgramme);
        for (int i = 0; i < 28; ++i)
            QCOMPARE(base.RsSalarie.nomColonne(i), tableDuSchema(u"salarie").colonnes[i].nom);
        // The added columns have the widths of the new ones.
        QVERIFY(echecDe([&] {
                    base.RsSalarie.modifier(base.RsSalarie.courant(), {{u"NIN"_s, QString(19, u'1')}});
                }).contains(u"18 caractères au plus"));
        base.RsSalarie.modifier(base.RsSalarie.courant(), {{u"NIN"_s, QString(18, u'1')}});
        QCOMPARE(base.RsSalarie.texte(u"NIN"), QString(18, u'1'));
    }

    void septGroupes()
    {
        Foyer foyer;
        poserAncienneBase(17, 3);
        for (const QString &message : creees) {
            DialogueScenario dialogue;
            dialogue.attendreInformation(message);
            Base base;
            QCOMPARE(demarrerAvec(dialogue, base), Demarrage::FinProgramme);
        }
        DialogueScenario dialogue;
        Base base;
        QCOMPARE(demarrerAvec(dialogue, base), Demarrage::Complet);
        for (const Recordset *rs : {&base.RsBanque, &base.RsCommune, &base.RsWilaya})
            QCOMPARE(rs->nombre(), 1);
        // The indexes came with the tables or at the end of the start.
        QStringList indexPresents;
        Requete noms = base.Cnx.lire(u"SELECT name FROM sqlite_master WHERE type = 'index' AND sql > ''"_s);
        while (noms.suivante())
            indexPresents += noms.texte(0);
        for (const Table &table : tablesDuSchema()) {
            for (const Index &un : table.index)
                QVERIFY2(indexPresents.contains(un.nom), qPrintable(un.nom));
        }
    }

    void groupesEnDefaut_data()
    {
        QTest::addColumn<QStringList>("ordres");
        QTest::addColumn<QString>("table"); // that can't be created
        QTest::addColumn<QString>("cause");
        QTest::addColumn<bool>("ensuite"); // whether the next start gets by

        QTest::newRow("annee absente") << QStringList{u"DROP TABLE annee"_s} << u"Entete_CI"_s
                                       << u"La table « annee » n'existe pas."_s << false;
        QTest::newRow("second du groupe absent") << QStringList{u"DROP TABLE Ligne_Dac"_s} << u"Entete_Dac"_s
                                                 << u"La table « Ligne_Dac » n'existe pas."_s << false;
        QTest::newRow("premier du groupe absent")
            << QStringList{u"DROP TABLE Entete_CI"_s} << u"Detail_CI"_s
            << u"La table « Entete_CI » n'existe pas."_s << true; // what was created stays
        QTest::newRow("autre colonne")
            << QStringList{u"DROP TABLE Periode"_s, u"CREATE TABLE Periode (Kode char(6))"_s} << u"Periode"_s
            << u"La colonne « Code » n'existe pas."_s << false;
    }

    void groupesEnDefaut()
    {
        QFETCH(QStringList, ordres);
        QFETCH(QString, table);
        QFETCH(QString, cause);
        QFETCH(bool, ensuite);
        Foyer foyer;
        installerSiAbsente();
        changerBase(ordres);
        {
            DialogueScenario dialogue;
            Base base;
            QString texte;
            try {
                demarrer(base, dialogue);
            } catch (const ErreurFatale &erreur) {
                texte = erreur.texte();
            }
            QVERIFY2(
                texte.startsWith(
                    u"La table « %1 » n'a pas pu être créée.\nLa table « %1 » existe déjà."_s.arg(table)),
                qPrintable(texte));
            QVERIFY2(texte.contains(cause), qPrintable(texte));
        }
        DialogueScenario dialogue;
        Base base;
        QCOMPARE(echecDe([&] { demarrer(base, dialogue); }).isEmpty(), ensuite);
    }

    void livreeAbsente()
    {
        Foyer foyer;
        installerSiAbsente();
        changerBase({u"DROP TABLE entete_das"_s});
        DialogueScenario dialogue;
        Base base;
        bool deBase = false;
        try {
            demarrer(base, dialogue);
        } catch (const ErreurBase &erreur) { // no end of the program
            deBase = erreur.texte().startsWith(u"La table « entete_das » n'existe pas.");
        }
        QVERIFY(deBase);
        QVERIFY(base.RsLigneDas.estOuvert());
        QVERIFY(!base.RsAnnee.estOuvert());
    }

    void fichiersDeReference_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QByteArray>("octets"); // null: no file
        QTest::addColumn<QString>("issue");     // absent, incorrecte, or the rows
        const auto lignes = [](int combien, const QByteArray &fin) {
            QByteArray octets;
            for (int i = 1; i <= combien; ++i)
                octets += QByteArray::number(100 + i) + "AB        Une banque \xE9\x9C'\r\n";
            return QByteArray(octets + fin);
        };
        const QByteArray deux = "101A         Un   \r\n102B         Deux\r\nEnd\r\n";
        QTest::newRow("absent") << u"Banque"_s << QByteArray() << u"absent"_s;
        QTest::newRow("vide") << u"Banque"_s << QByteArray("") << u"absent"_s;
        QTest::newRow("dix lignes") << u"Banque"_s << lignes(10, "End\r\n") << u"10 Une banque éœ'"_s;
        QTest::newRow("End sans fin de ligne") << u"Banque"_s << lignes(10, "End") << u"10 Une banque éœ'"_s;
        QTest::newRow("sans End") << u"Banque"_s << lignes(10, {}) << u"9 Une banque éœ'"_s;
        QTest::newRow("suite après End")
            << u"Banque"_s << lignes(2, "Endive\r\n999X\r\n") << u"2 Une banque éœ'"_s;
        QTest::newRow("end en minuscules")
            << u"Banque"_s << lignes(2, "end\r\nEnd\r\n") << u"3 Une banque éœ'"_s;
        QTest::newRow("fins LF") << u"Banque"_s << QByteArray(deux).replace("\r\n", "\n") << u"2 Un"_s;
        QTest::newRow("End seul") << u"Banque"_s << QByteArray("End\r\n") << u"0"_s;
        QTest::newRow("code répété") << u"Banque"_s << QByteArray(deux).replace("102B", "101B")
                                     << u"incorrecte"_s;
        QTest::newRow("ligne vide") << u"Banque"_s << QByteArray(deux).replace("102B", "\r\n102B")
                                    << u"incorrecte"_s;
        QTest::newRow("commune, ligne vide")
            << u"Commune"_s << QByteArray("0101ADRAR\r\n\r\n   X\r\n0102TAMEST\r\nEnd\r\n") << u"2 ADRAR"_s;
        QTest::newRow("commune, code répété")
            << u"Commune"_s << QByteArray("0101ADRAR\r\n0101TAMEST\r\nEnd\r\n") << u"incorrecte"_s;
        QTest::newRow("commune, absent") << u"Commune"_s << QByteArray() << u"absent"_s;
        QTest::newRow("wilaya, ligne blanche")
            << u"Wilaya"_s << QByteArray("   \r\n01ADRAR\r\nEnd\r\n") << u"1 ADRAR"_s;
        QTest::newRow("wilaya, code vide")
            << u"Wilaya"_s << QByteArray("01ADRAR\r\n  X\r\nEnd\r\n") << u"incorrecte"_s;
        QTest::newRow("wilaya, absent") << u"Wilaya"_s << QByteArray() << u"absent"_s;
    }

    void fichiersDeReference()
    {
        QFETCH(QString, table);
        QFETCH(QByteArray, octets);
        QFETCH(QString, issue);
        Foyer foyer;
        installerSiAbsente();
        const QString chemin = dossierDas() + u"/%1s.txt"_s.arg(table);
        QVERIFY(QFile::remove(chemin));
        if (!octets.isNull())
            ecrireFichier(chemin, octets);

        DialogueScenario dialogue;
        if (issue == u"absent") {
            dialogue.attendreAvertissement(
                u"Fichier %1s Inexistant! Veuillez réinstaller l'application DAS SVP!!"_s.arg(table));
        } else if (issue == u"incorrecte") {
            dialogue.attendreCritique(incorrecte);
        }
        Base base;
        const Demarrage resultat = demarrerAvec(dialogue, base);
        Recordset &rs = table == u"Banque"    ? base.RsBanque
                        : table == u"Commune" ? base.RsCommune
                                              : base.RsWilaya;
        QVERIFY(!base.Cnx.enTransaction());
        if (issue != u"absent" && issue != u"incorrecte") {
            QCOMPARE(resultat, Demarrage::Complet);
            QCOMPARE(rs.nombre(), issue.section(u' ', 0, 0).toInt());
            if (!rs.vide())
                QCOMPARE(rs.ligne(0).texte(u"Libelle"), issue.section(u' ', 1));
            return;
        }
        QCOMPARE(resultat, Demarrage::Interrompu);
        QVERIFY(rs.vide());
        QCOMPARE(nombre(base.Cnx, table), 0);
        QCOMPARE(base.RsWilaya.estOuvert(), table == u"Wilaya"); // the later steps were not reached
        // The next start tries again.
        ecrireFichier(chemin, "1234567890123Libelle\r\nEnd\r\n");
        Base suivante;
        DialogueScenario muet;
        QCOMPARE(demarrerAvec(muet, suivante), Demarrage::Complet);
        QCOMPARE(nombre(suivante.Cnx, table), 1);
    }

    void basesInutilisables_data()
    {
        QTest::addColumn<QString>("faute");
        QTest::addColumn<QString>("texte");
        QTest::newRow("vide") << u"vide"_s << u"file is not a database"_s;
        QTest::newRow("un octet") << u"un octet"_s << u"file is not a database"_s;
        QTest::newRow("bruit") << u"bruit"_s << u"file is not a database"_s;
        QTest::newRow("autre format") << u"autre format"_s << u"file is not a database"_s;
        QTest::newRow("tête seule") << u"tête seule"_s << u"database disk image is malformed"_s;
        QTest::newRow("tronquée") << u"tronquée"_s << u"database disk image is malformed"_s;
        QTest::newRow("page abîmée") << u"page abîmée"_s << u"endommagé"_s;
        QTest::newRow("lecture seule") << u"lecture seule"_s << u"Permission denied"_s;
        QTest::newRow("dossier en lecture seule") << u"dossier en lecture seule"_s << u"Permission denied"_s;
        QTest::newRow("dossier à sa place") << u"dossier"_s << u"Is a directory"_s;
    }

    void basesInutilisables()
    {
        QFETCH(QString, faute);
        QFETCH(QString, texte);
        Foyer foyer;
        poserAncienneBase(17, 2000);
        QByteArray octets = lireFichier(cheminBase());
        if (faute == u"vide")
            octets.clear();
        else if (faute == u"un octet")
            octets.truncate(1);
        else if (faute == u"bruit")
            octets = QByteArray("\x93\x07\xFE\x41").repeated(4096);
        else if (faute == u"autre format")
            octets = QByteArray("\0\1\0\0Standard Jet DB\0", 20) + QByteArray(8192, '\0');
        else if (faute == u"tête seule")
            octets.truncate(60);
        else if (faute == u"tronquée")
            octets.truncate(octets.size() / 2);
        else if (faute == u"page abîmée")
            octets.replace(octets.size() / 2, 6000, QByteArray(6000, '\x5A'));
        const QString base = cheminBase();
        const QString dossier = QFileInfo(base).absolutePath();
        if (faute == u"dossier") {
            QVERIFY(QFile::remove(base) && QDir().mkpath(base));
        } else {
            ecrireFichier(base, octets);
        }
        const auto ouvrirEnEcriture = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
        const auto lectureSeule = QFile::ReadOwner | QFile::ExeOwner;
        if (faute == u"lecture seule")
            QVERIFY(QFile::setPermissions(base, lectureSeule));
        if (faute == u"dossier en lecture seule")
            QVERIFY(QFile::setPermissions(dossier, lectureSeule));
        const auto avant = contenu(foyer.chemin());

        DialogueScenario dialogue;
        QString fatale;
        {
            Base essai;
            try {
                demarrer(essai, dialogue);
            } catch (const ErreurFatale &erreur) {
                fatale = erreur.texte();
            }
        }
        const auto apres = contenu(foyer.chemin());
        QFile::setPermissions(dossier, ouvrirEnEcriture);
        QVERIFY2(fatale.contains(QDir::toNativeSeparators(base)), qPrintable(fatale));
        QVERIFY2(fatale.contains(texte), qPrintable(fatale));
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
        constexpr int coups = 16;
        constexpr int salaries = 5000;
        const auto preparer = [ancienne] {
            if (ancienne)
                poserAncienneBase(17, salaries);
        };
        // Runs the starts in a process of their own and kills it. @return how long it lived, in microseconds
        const auto tuer = [](qint64 microsecondes) {
            QProcess enfant;
            enfant.start(QCoreApplication::applicationFilePath(), {u"--enfant"_s});
            if (!enfant.waitForReadyRead()) // it is about to start
                qFatal("no child");
            QElapsedTimer temps;
            temps.start();
            enfant.readAll();
            if (microsecondes < 0) {
                enfant.waitForReadyRead(); // it is through
            } else {
                QThread::usleep(static_cast<unsigned long>(microsecondes));
            }
            const qint64 duree = temps.nsecsElapsed() / 1000;
            enfant.kill();
            enfant.waitForFinished();
            return duree;
        };
        qint64 duree = 0;
        {
            Foyer foyer;
            preparer();
            duree = tuer(-1);
        }
        QSet<QString> etats;
        for (int coup = 0; coup < coups; ++coup) {
            Foyer foyer;
            preparer();
            tuer(duree * coup / coups);
            etats += QStringList(contenu(foyer.chemin()).keys())
                         .replaceInStrings(foyer.chemin(), QString())
                         .join(u' ');
            tuer(duree * (coups - coup) / coups / 3);

            const int demarrages = demarrerJusquAuBout();
            QVERIFY(demarrages > 0);
            etats += QString::number(demarrages);
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
                for (const QString &nom :
                     {u"Banques.txt"_s, u"Communes.txt"_s, u"Wilayas.txt"_s, u"Country.txt"_s})
                    QCOMPARE(lireFichier(dossierDas() + u"/"_s + nom), lireFichier(u":/reference/"_s + nom));
            }
        }
        qInfo("one run %.0f ms; %d different states found after the kills", static_cast<double>(duree) / 1000,
              static_cast<int>(etats.size()));
    }
};

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    if (application.arguments().contains(u"--enfant"_s)) {
        std::puts("start");
        std::fflush(stdout);
        std::printf("end after %d\n", demarrerJusquAuBout());
        std::fflush(stdout);
        return application.exec(); // until it is killed
    }
    TestDemarrage test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_demarrage.moc"
