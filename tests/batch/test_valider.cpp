#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;

namespace {

struct Fin
{
    int code = -1;
    QByteArray sortie;
    QByteArray erreurs;

    QList<QJsonObject> objets() const
    {
        QList<QJsonObject> objets;
        for (const QByteArray &ligne : sortie.split('\n'))
            objets.append(QJsonDocument::fromJson(ligne).object());
        if (sortie.endsWith('\n') || sortie.isEmpty())
            objets.removeLast();
        return objets;
    }
};

const QByteArray marque = "DAS KORVANDEL VER 3.0\r\n";
const QByteArray entete = "12345678;2024;1;1000.50;1;\r\n";

/// A line whose fields a test may spoil; as it stands it has no fault.
QByteArray ligne(const QByteArray &nom = "BENALI", const QByteArray &adresse = "Cit\xE9 des \xC9rables",
                 const QByteArray &situation = "M")
{
    return "801234000168;" + nom + ";Karim;" + situation + ";15/03/1980;;" + adresse +
           ";;;N;N;123456768;;;;;1000.50;12;M;01/09/"
           "2010;E;M;;;;004;Ali;ZIANI;Lou;119800315012340001;01234;\r\n";
}

const QByteArray bon = marque + entete + ligne();
const QByteArray rejete = marque + entete + ligne("N'GO\"M\\A\t", "");
const QByteArray interrompu = marque + entete + ligne("BENALI", "Cite des Erables", "x") + ";;\r\n";

} // namespace

/// The batch validator as it is run: arguments in, text and exit code out.
class TestValider : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dossier;

    QString ecrire(const QString &nom, const QByteArray &octets)
    {
        const QString chemin = m_dossier.filePath(nom);
        QDir().mkpath(QFileInfo(chemin).path());
        QFile fichier(chemin);
        if (!fichier.open(QIODevice::WriteOnly) || fichier.write(octets) != octets.size())
            qFatal("cannot write %s", qPrintable(chemin));
        return chemin;
    }

    static Fin lancer(const QStringList &arguments)
    {
        QProcess outil;
        outil.start(QStringLiteral(VALIDER), arguments);
        if (!outil.waitForFinished(60'000) || outil.exitStatus() != QProcess::NormalExit)
            return {};
        return {outil.exitCode(), outil.readAllStandardOutput(), outil.readAllStandardError()};
    }

private slots:
    void json()
    {
        const Fin fin = lancer({u"--json"_s, ecrire(u"json/12345678_das_2024.txt"_s, rejete)});
        QCOMPARE(fin.code, 1);
        QCOMPARE(fin.sortie.count('\n'), 1);
        QVERIFY(fin.sortie.endsWith("}\n"));

        const QString numero = u"Ligne N°:1  -  N° SS: 801234000168"_s;
        const QJsonObject rejet{{u"entree"_s, QString(numero + u"  -  Adresse :   Vide ou non valide"_s)},
                                {u"ligne"_s, 1},
                                {u"numero"_s, u"801234000168"_s},
                                {u"nom"_s, u"N GO\"M\\A\t Karim"_s},
                                {u"mots"_s, u"Adresse Vide ou non valide"_s}};
        const auto boite = [](const QString &texte, const QString &icone) {
            return QJsonObject{{u"titre"_s, u"DAS KORVANDEL"_s}, {u"texte"_s, texte}, {u"icone"_s, icone}};
        };
        const QJsonObject attendu{
            {u"fichier"_s, u"12345678_DAS_2024.TXT"_s},
            {u"format"_s, u"DAS"_s},
            {u"messages"_s,
             QJsonArray{
                 boite(
                     u"Extraction Terminée avec Nombre Erreurs : \n  - De Rejet : 1\n  - Sans Incidence : 0"_s,
                     u"aucune"_s),
                 boite(u"Votre Das Contient des Erreurs !!!\nElle sera retournée par la KORVANDEL !!!\n"
                       u"Veuillez Corriger votre Fichier avant envoi, S.V.P!!!"_s,
                       u"avertissement"_s)}},
            {u"rejets"_s, QJsonArray{rejet}},
            {u"sansIncidence"_s, QJsonArray{}},
            {u"nbErrRejet"_s, 1},
            {u"nbErrOK"_s, 0},
            {u"nbLignes"_s, 1},
            {u"totalSalaires"_s, 1000.5},
            {u"libelles"_s,
             QJsonObject{{u"LabDAS"_s, u"Nbre Erreurs De Rejet : 1 ,  Sans Incidence : 0\n"_s},
                         {u"LabDAS2"_s,
                          u"Total Lignes DAS = Entête DAS\nTotal Nb Salariés Lignes DAS = Entête DAS\n"_s}}},
            {u"verdict"_s, u"rejetee"_s}};
        QCOMPARE(fin.objets().value(0), attendu);
    }

    // Many more files than cores, the longest first: the outputs keep the order of the arguments, and each is
    // what the file gives alone.
    void ordre()
    {
        QStringList fichiers;
        QByteArray seuls;
        for (int i = 0; i < 24; ++i) {
            QByteArray contenu = marque + entete;
            for (int j = 0; j < (i % 6 == 0 ? 20'000 : i); ++j)
                contenu += ligne("BENALI", "Cite des Erables", j % 7 == 0 ? "x" : "M");
            fichiers.append(ecrire(u"ordre/%1/12345678_DAS_2024.txt"_s.arg(i), contenu));
            seuls += lancer({u"--json"_s, fichiers.last()}).sortie;
        }
        QCOMPARE(seuls.count('\n'), 24);
        QVERIFY(lancer(QStringList{u"--json"_s} + fichiers).sortie == seuls);
    }

    void codes_data()
    {
        QTest::addColumn<QByteArray>("sorte"); // b good, r returned, i interrupted, a absent, d folder
        QTest::addColumn<int>("code");
        QTest::addColumn<QStringList>("verdicts");
        const QString a = u"acceptee"_s, r = u"rejetee"_s, i = u"interrompue"_s;
        QTest::newRow("bons") << QByteArray("bb") << 0 << QStringList{a, a};
        QTest::newRow("un rejete") << QByteArray("brb") << 1 << QStringList{a, r, a};
        QTest::newRow("interrompu l'emporte") << QByteArray("irb") << 2 << QStringList{i, r, a};
        QTest::newRow("dans les deux sens") << QByteArray("ri") << 2 << QStringList{r, i};
        QTest::newRow("absent") << QByteArray("ab") << 2 << QStringList{i, a};
        QTest::newRow("dossier") << QByteArray("dr") << 2 << QStringList{i, r};
    }

    void codes()
    {
        QFETCH(QByteArray, sorte);
        QFETCH(QStringList, verdicts);
        QStringList arguments{u"--json"_s};
        for (const char c : sorte) {
            const QString nom = u"codes/%1/12345678_DAS_2024.txt"_s.arg(QLatin1Char(c));
            if (c == 'a')
                arguments.append(m_dossier.filePath(nom));
            else if (c == 'd')
                arguments.append(m_dossier.path() + u'/');
            else
                arguments.append(ecrire(nom, c == 'b' ? bon : c == 'r' ? rejete : interrompu));
        }
        const Fin fin = lancer(arguments);
        QTEST(fin.code, "code");
        QStringList venus;
        for (const QJsonObject &objet : fin.objets())
            venus.append(objet[u"verdict"].toString());
        QCOMPARE(venus, verdicts);
        arguments.removeFirst(); // the report for people ends alike
        QTEST(lancer(arguments).code, "code");
    }

    void usage()
    {
        const QString fichier = ecrire(u"12345678_DAS_2024.txt"_s, bon);
        for (const QStringList &arguments : {QStringList{},
                                             {u"--json"_s},
                                             {u"--format"_s},
                                             {u"--format"_s, u"xml"_s, fichier},
                                             {u"--bidule"_s, fichier}}) {
            const Fin fin = lancer(arguments);
            QCOMPARE(fin.code, 64);
            QCOMPARE(fin.sortie, QByteArray());
            QVERIFY(fin.erreurs.contains("Usage : das-korvandel-valider"));
        }
    }

    void formats_data()
    {
        QTest::addColumn<QString>("impose");
        QTest::addColumn<QByteArray>("contenu");
        QTest::addColumn<QString>("format");
        QTest::addColumn<QStringList>("messages"); // how each begins
        const QString anomalie = u"Votre fichier présente des anomalies"_s;
        const QString premiere = u"Erreur Première Ligne différente de   DAS KORVANDEL VER 3.0   \n"_s;
        const QString inconnu = u"Format inconnu"_s;
        QTest::newRow("marque du DAS")
            << u""_s << QByteArray("\t das korvandel ver 3.0 \n") << u""_s << QStringList{inconnu};
        QTest::newRow("tabulation derriere") << u""_s << QByteArray(" das korvandel ver 3.0\t\n") << u"DAS"_s
                                             << QStringList{u"FICHIER INCOMPLET !!!!!!!!!!!"_s};
        QTest::newRow("marque du DAC") << u""_s << QByteArray("DAC NOMINATIVE KORVANDEL VER 1.0\r\n")
                                       << u"DAC"_s << QStringList{u"Le format DAC n'a pas de validateur."_s};
        for (const char *version : {"1.0", "2.0"}) {
            QTest::addRow("marque du CI %s", version)
                << u""_s << QByteArray("DECLARATION CHOMAGE INTEMPERIE KORVANDEL VER ") + version << u"CI"_s
                << QStringList{u"Le format CI n'a pas de validateur."_s};
        }
        QTest::newRow("DAC impose") << u"Dac"_s << bon << u"DAC"_s << QStringList{u"Le format DAC n'a pas"_s};
        QTest::newRow("DAS impose") << u"das"_s << QByteArray("autre\n") << u"DAS"_s
                                    << QStringList{premiere, anomalie};
        QTest::newRow("vide, DAS impose")
            << u"DAS"_s << QByteArray() << u"DAS"_s << QStringList{u"FICHIER VIDE !!!!!!!!!!!"_s};
        QTest::newRow("vide") << u""_s << QByteArray() << u""_s << QStringList{inconnu};
        QTest::newRow("un octet") << u""_s << QByteArray("D") << u""_s << QStringList{inconnu};
        QByteArray bruit;
        for (unsigned i = 0, x = 1; i < 100'000; ++i, x = x * 1103515245u + 12345u)
            bruit += static_cast<char>(x >> 16);
        QTest::newRow("bruit") << u""_s << bruit << u""_s << QStringList{inconnu};
        QTest::newRow("bruit derriere l'entete")
            << u""_s << marque + entete + bruit << u"DAS"_s << QStringList{anomalie};
        const QString texte = QString::fromLatin1(bon);
        QTest::newRow("UTF-16") << u"das"_s
                                << QByteArray(reinterpret_cast<const char *>(texte.utf16()), texte.size() * 2)
                                << u"DAS"_s << QStringList{premiere, anomalie};
    }

    // Every bad file gets its message, and the good one behind it is validated all the same.
    void formats()
    {
        QFETCH(QString, impose);
        QFETCH(QByteArray, contenu);
        QFETCH(QStringList, messages);
        QStringList arguments{u"--json"_s, ecrire(u"formats/1/12345678_DAS_2024.txt"_s, contenu),
                              ecrire(u"formats/2/12345678_DAS_2024.txt"_s, bon)};
        if (!impose.isEmpty())
            arguments += {u"--format"_s, impose};
        const Fin fin = lancer(arguments);
        QCOMPARE(fin.code, 2);
        QCOMPARE(fin.objets().size(), 2);
        QCOMPARE(fin.objets()[1][u"verdict"].toString(), impose == u"Dac" ? u"interrompue"_s : u"acceptee"_s);

        const QJsonObject objet = fin.objets()[0];
        QTEST(objet[u"format"].toString(), "format");
        QCOMPARE(objet[u"verdict"].toString(), u"interrompue"_s);
        const QJsonArray venus = objet[u"messages"].toArray();
        QCOMPARE(venus.size(), messages.size());
        for (int i = 0; i < venus.size(); ++i) {
            const QString texte = venus[i].toObject()[u"texte"].toString();
            QVERIFY2(texte.startsWith(messages[i]), qPrintable(texte));
        }
    }

    void noms()
    {
        // Other cases, accents and marks in the name: the rules look at capitals of windows-1252.
        const QString bizarre = ecrire(u"12345678éDASß2024 ł'\"; .TxT"_s, bon);
        const Fin fin = lancer({u"--json"_s, bizarre});
        QCOMPARE(fin.code, 0);
        QCOMPARE(fin.objets()[0][u"fichier"].toString(), u"12345678ÉDASß2024 ł'\"; .TXT"_s);

        const QString illisible = ecrire(u"12345678_DAS_2024.txt"_s, bon);
        QFile::setPermissions(illisible, {});
        if (QFileInfo(illisible).isReadable())
            QSKIP("this user may read any file");
        const Fin refuse = lancer({u"--json"_s, illisible});
        QFile::remove(illisible);
        QCOMPARE(refuse.code, 2);
        QCOMPARE(refuse.objets()[0][u"messages"][0][u"icone"].toString(), u"critique"_s);
    }

    // A name made elsewhere is no UTF-8; it opens all the same, and the rules see its characters.
    void nomEnOctets()
    {
#ifdef Q_OS_UNIX
        const QByteArray chemin = QFile::encodeName(ecrire(u"octets/12345678_DAS_2024.txt"_s, bon));
        const QByteArray nomme = QByteArray(chemin).replace("2024.", "2024_\xE9t\xE9.");
        QCOMPARE(std::rename(chemin.constData(), nomme.constData()), 0);
        QProcess outil;
        outil.start(u"/bin/sh"_s, {u"-c"_s, u"exec \"$0\" --json \"$1\"/octets/*.txt"_s,
                                   QStringLiteral(VALIDER), m_dossier.path()});
        QVERIFY(outil.waitForFinished());
        std::remove(nomme.constData()); // Qt would not find it
        const Fin fin{outil.exitCode(), outil.readAllStandardOutput(), {}};
        QCOMPARE(fin.code, 0);
        QCOMPARE(fin.objets()[0][u"fichier"].toString(), u"12345678_DAS_2024_ÉTÉ.TXT"_s);
#endif
    }

    // Neither waits for somebody who writes.
    void pasDesFichiers()
    {
#ifdef Q_OS_UNIX
        const QString tube = m_dossier.filePath(u"12345678_DAS_2024.TXT"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(tube).constData(), 0600), 0);
        for (const QStringList &arguments : {QStringList{u"--json"_s, tube},
                                             {u"--json"_s, u"--format"_s, u"das"_s, tube},
                                             { u"--json"_s,
                                               u"/dev/zero"_s }}) {
            const Fin fin = lancer(arguments);
            QCOMPARE(fin.code, 2);
            const QString texte = fin.objets().value(0)[u"messages"][0][u"texte"].toString();
            QVERIFY2(texte.endsWith(u"c'est un tube ou un périphérique, et non un fichier."),
                     qPrintable(texte));
        }
#endif
    }

    void ressources_data()
    {
        QTest::addColumn<bool>("memoire"); // or threads
        QTest::newRow("memoire") << true;
        QTest::newRow("fils") << false;
    }

    // What can't be had is told at the end; what was validated before it stands whole.
    void ressources()
    {
#if !defined(Q_OS_LINUX) || defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
        QSKIP("the limits need Linux, and a program without sanitizer");
#else
        QFETCH(bool, memoire);
        const QString premier = ecrire(u"ressources/1/12345678_DAS_2024.txt"_s, bon);
        const QString immense = ecrire(u"ressources/2/12345678_DAS_2024.txt"_s, marque + entete);
        QVERIFY(QFile(immense).resize(250'000'000)); // one endless line
        QProcess outil;
        outil.setChildProcessModifier([memoire] {
            // A thread's stack is as large as the limit says, and finds no room.
            const rlimit place{400'000'000, 400'000'000}, pile{1'000'000'000, RLIM_INFINITY};
            ::setrlimit(RLIMIT_AS, &place);
            if (!memoire)
                ::setrlimit(RLIMIT_STACK, &pile);
        });
        outil.start(QStringLiteral(VALIDER), {u"--json"_s, premier, immense, premier});
        QVERIFY(outil.waitForFinished());
        QCOMPARE(outil.exitStatus(), QProcess::NormalExit);
        QCOMPARE(outil.exitCode(), 70);
        QCOMPARE(outil.readAllStandardOutput(),
                 memoire ? lancer({u"--json"_s, premier}).sortie : QByteArray());
        QVERIFY(outil.readAllStandardError().startsWith(memoire ? "Mémoire insuffisante" : "Aucun fil"));
#endif
    }

    void texte()
    {
        QString sortie =
            QString::fromUtf8(lancer({ecrire(u"texte/12345678_DAS_2024.txt"_s, interrompu)}).sortie);
        for (const QString &morceau :
             {u"12345678_DAS_2024.TXT (DAS) : interrompue\n"_s,
              u"0 de rejet, 1 sans incidence, 1 lignes, total des salaires 1000.50"_s,
              u"[DAS KORVANDEL] Votre fichier présente des anomalies"_s,
              u"Situation Familiale = X est Différente de M(Marié) ou C(Célibataire)"_s})
            QVERIFY2(sortie.contains(morceau), qPrintable(sortie));

        // The totals stand in the labels alone; what could steer the terminal is shown by its rank.
        const QByteArray faux = marque + "12345678;2024;1;1000;1;\r\n" + ligne("\x1B[2J\x9D\x80", "");
        sortie = QString::fromUtf8(lancer({ecrire(u"texte/12345678_DAS_2024.txt"_s, faux)}).sortie);
        for (
            const QString &morceau :
            {u"  LabDAS : Nbre Erreurs De Rejet : 2 ,  Sans Incidence : 0\n"_s,
             u"  LabDAS2 : Total Lignes DAS > Entête DAS de  0.5\n      Total Nb Salariés Lignes DAS = Entête DAS\n"_s,
             u"  -  Nom : \\u001b[2J\\u009d€  - Prénom: Karim"_s})
            QVERIFY2(sortie.contains(morceau), qPrintable(sortie));
    }
};

QTEST_GUILESS_MAIN(TestValider)
#include "test_valider.moc"
