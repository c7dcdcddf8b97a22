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
        for (const QByteArray &ligne : sortie.trimmed().split('\n'))
            objets.append(QJsonDocument::fromJson(ligne).object());
        return objets;
    }
    QString message(int rang = 0) const { return objets().value(0)[u"messages"][rang][u"texte"].toString(); }
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
const QByteArray rejete = marque + entete + ligne("BENALI", "");
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
        return lancer(arguments, outil);
    }

    static Fin lancer(const QStringList &arguments, QProcess &outil,
                      const QString &programme = QStringLiteral(VALIDER))
    {
        outil.start(programme, arguments);
        if (!outil.waitForFinished(60'000) || outil.exitStatus() != QProcess::NormalExit)
            return {};
        return {outil.exitCode(), outil.readAllStandardOutput(), outil.readAllStandardError()};
    }

private slots:
    // Byte for byte, on one line.
    void json()
    {
        const QString fichier =
            ecrire(u"json/12345678_das_2024.txt"_s, marque + entete + ligne("N'GO\"M\\A\t", ""));
        QByteArray attendu =
            "{'fichier': '12345678_DAS_2024.TXT', 'format': 'DAS', 'messages': [{'titre': 'DAS KORVANDEL', "
            "'texte': 'Extraction Terminée avec Nombre Erreurs : \\n  - De Rejet : 1\\n  - Sans Incidence : "
            "0', 'icone': 'aucune'}, {'titre': 'DAS KORVANDEL', 'texte': 'Votre Das Contient des Erreurs "
            "!!!\\nElle sera retournée par la KORVANDEL !!!\\nVeuillez Corriger votre Fichier avant envoi, "
            "S.V.P!!!', 'icone': 'avertissement'}], 'rejets': [{'entree': 'Ligne N°:1  -  N° SS: "
            "801234000168  -  Adresse :   Vide ou non valide', 'ligne': 1, 'numero': '801234000168', 'nom': "
            "'N GO\\'M\\\\A\\u0009 Karim', 'mots': 'Adresse Vide ou non valide'}], 'sansIncidence': [], "
            "'nbErrRejet': 1, 'nbErrOK': 0, 'nbLignes': 1, 'totalSalaires': 1000.5, 'libelles': {'LabDAS': "
            "'Nbre Erreurs De Rejet : 1 ,  Sans Incidence : 0\\n', 'LabDAS2': 'Total Lignes DAS = Entête "
            "DAS\\nTotal Nb Salariés Lignes DAS = Entête DAS\\n'}, 'verdict': 'rejetee'}\n";
        QCOMPARE(lancer({u"--json"_s, fichier}).sortie, attendu.replace('\'', '"'));
    }

    // Labels that are empty are left out; what could steer the terminal is shown by its rank.
    void texte()
    {
        const QByteArray faux = marque + "12345678;2024;1;1000;1;\r\n" + ligne("\x1B[2J\x9D\x80", "");
        QByteArray sortie = lancer({ecrire(u"texte/12345678_DAS_2024.txt"_s, faux)}).sortie;
        QVERIFY2(sortie.startsWith("12345678_DAS_2024.TXT (DAS) : rejetée\n  2 de rejet, 0 sans incidence, 1 "
                                   "lignes, total des salaires 1000.50\n  Messages :\n    [DAS KORVANDEL] "
                                   "Extraction Terminée avec Nombre Erreurs : \n        - De Rejet : 2\n"),
                 sortie);
        QVERIFY2(
            sortie.endsWith("  LabDAS : Nbre Erreurs De Rejet : 2 ,  Sans Incidence : 0\n  LabDAS2 : Total "
                            "Lignes DAS > Entête DAS de  0.5\n      Total Nb Salariés Lignes DAS = Entête "
                            "DAS\n  Erreurs de rejet :\n    Ligne N°:1  -  N° SS: 801234000168  -  Nom : "
                            "\\u001b[2J\\u009d€  - Prénom: Karim  -  Nom est Vide ou incorrecte\n    Ligne "
                            "N°:1  -  N° SS: 801234000168  -  Adresse :   Vide ou non valide\n"),
            sortie);
        sortie = lancer({ecrire(u"texte/12345678_DAS_2024.txt"_s, interrompu)}).sortie;
        QVERIFY2(sortie.contains(" : interrompue\n  0 de rejet, 1 sans incidence, 1 lignes,"), sortie);
        QVERIFY2(sortie.contains(" décimal) !\n  Erreurs sans incidence :\n    Ligne N°:1  -  N° SS: 8"),
                 sortie);
        // Nothing is counted of a file that can't be opened.
        sortie = lancer({u"--format"_s, u"das"_s, m_dossier.filePath(u"absent.txt"_s)}).sortie;
        QVERIFY2(sortie.startsWith("ABSENT.TXT (DAS) : interrompue\n  Messages :\n"), sortie);
    }

    // Many more files than cores, the longest first: the outputs keep the order of the arguments, and each is
    // what the file gives alone.
    void ordre()
    {
        QStringList fichiers;
        QByteArray seuls;
        for (int i = 0; i < 24; ++i) {
            QByteArray contenu = marque + entete;
            for (int j = 0; j < (i % 6 == 0 ? 5'000 : i); ++j)
                contenu += ligne("BENALI", "Cite des Erables", j % 7 == 0 ? "x" : "M");
            fichiers.append(ecrire(u"ordre/%1/12345678_DAS_2024.txt"_s.arg(i), contenu));
            seuls += lancer({u"--json"_s, fichiers.last()}).sortie;
        }
        QCOMPARE(seuls.count('\n'), 24);
        const Fin ensemble = lancer(QStringList{u"--json"_s} + fichiers);
        QCOMPARE(ensemble.code, 0); // nor did the thread sanitizer see a race
        QVERIFY(ensemble.sortie == seuls);
    }

    // Good files (b), returned (r), interrupted (i), absent (a), and a folder (d).
    void codes()
    {
        for (const auto &[sorte, code] :
             {std::pair(QByteArray("bb"), 0), {"brb", 1}, {"irb", 2}, {"ri", 2}, {"ab", 2}, {"dr", 2}}) {
            QStringList arguments{u"--json"_s}, attendus, venus;
            for (const char c : sorte) {
                const QString nom = u"codes/%1/12345678_DAS_2024.txt"_s.arg(QLatin1Char(c));
                if (c == 'a' || c == 'd')
                    arguments += c == 'a' ? m_dossier.filePath(nom) : m_dossier.path() + u'/';
                else
                    arguments += ecrire(nom, c == 'b' ? bon : c == 'r' ? rejete : interrompu);
                attendus += c == 'b' ? u"acceptee"_s : c == 'r' ? u"rejetee"_s : u"interrompue"_s;
            }
            const Fin fin = lancer(arguments);
            for (const QJsonObject &objet : fin.objets())
                venus += objet[u"verdict"].toString();
            QCOMPARE(venus, attendus);
            QVERIFY2(fin.code == code, sorte);
            arguments.removeFirst(); // the report for people ends alike
            QCOMPARE(lancer(arguments).code, code);
        }
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
        QProcess outil;
        outil.setStandardOutputFile(u"/dev/full"_s);
        const Fin fin = lancer({fichier}, outil);
        if (QFile::exists(u"/dev/full"_s))
            QVERIFY2(fin.code == 2 && fin.erreurs == "La sortie n'a pas pu être écrite.\n", fin.erreurs);
    }

    // Every bad file gets its messages, which begin so, and the good one behind it is validated all the same.
    void formats()
    {
        const auto juger = [this](const QString &impose, const QByteArray &contenu, const QString &format,
                                  const QStringList &messages) {
            QStringList arguments{u"--json"_s, ecrire(u"formats/1/12345678_DAS_2024.txt"_s, contenu),
                                  ecrire(u"formats/2/12345678_DAS_2024.txt"_s, bon)};
            if (!impose.isEmpty())
                arguments += {u"--format"_s, impose};
            const Fin fin = lancer(arguments);
            QCOMPARE(fin.code, 2);
            QCOMPARE(fin.objets().size(), 2);
            QCOMPARE(fin.objets()[1][u"verdict"].toString(),
                     impose == u"Dac" ? u"interrompue"_s : u"acceptee"_s);
            QCOMPARE(fin.objets()[0][u"format"].toString(), format);
            QCOMPARE(fin.objets()[0][u"messages"].toArray().size(), messages.size());
            for (int i = 0; i < messages.size(); ++i)
                QVERIFY2(fin.message(i).startsWith(messages[i]), qPrintable(fin.message(i)));
        };
        const QString anomalie = u"Votre fichier présente des anomalies"_s;
        const QString premiere = u"Erreur Première Ligne différente de   DAS KORVANDEL VER 3.0   \n"_s;
        QByteArray bruit;
        for (unsigned i = 0, x = 1; i < 100'000; ++i, x = x * 1103515245u + 12345u)
            bruit += static_cast<char>(x >> 16);
        for (const QByteArray &inconnu :
             {QByteArray("\t das korvandel ver 3.0 \n"), QByteArray(), QByteArray("D"), bruit})
            juger({}, inconnu, {}, {u"Format inconnu"_s});
        juger({}, " das korvandel ver 3.0\t\n", u"DAS"_s, {u"FICHIER INCOMPLET !!!!!!!!!!!"_s});
        juger({}, "DAC NOMINATIVE KORVANDEL VER 1.0\r\n", u"DAC"_s, {u"FICHIER INCOMPLET !!!!!!!!!!!"_s});
        for (const char *version : {"1.0", "2.0"}) {
            juger({}, QByteArray("DECLARATION CHOMAGE INTEMPERIE KORVANDEL VER ") + version, u"CI"_s,
                  {u"FICHIER INCOMPLET !!!!!!!!!!!"_s});
        }
        juger(u"Dac"_s, bon, u"DAC"_s, {u"Erreur Format de la Première Ligne incorrecte   \n"_s, anomalie});
        juger(u"DAS"_s, {}, u"DAS"_s, {u"FICHIER VIDE !!!!!!!!!!!"_s});
        juger({}, marque + entete + bruit, u"DAS"_s, {anomalie});
        const QString texte = QString::fromLatin1(bon);
        for (const QByteArray &autre :
             {QByteArray("autre\n"),
              QByteArray(reinterpret_cast<const char *>(texte.utf16()), texte.size() * 2)})
            juger(u"das"_s, autre, u"DAS"_s, {premiere, anomalie});
    }

    void noms()
    {
        // Other cases, accents and marks in the name: the rules look at capitals of windows-1252.
        const QString bizarre = ecrire(u"12345678éDASß2024 ł'\"; 😀.TxT"_s, bon);
        Fin fin = lancer({u"--json"_s, bizarre});
        QCOMPARE(fin.code, 0);
        QCOMPARE(fin.objets()[0][u"fichier"].toString(), u"12345678ÉDASß2024 ł'\"; 😀.TXT"_s);

        // A name made elsewhere is no UTF-8; it opens all the same, and the rules see its characters.
#ifdef Q_OS_UNIX
        const QByteArray chemin = QFile::encodeName(ecrire(u"octets/12345678_DAS_2024.txt"_s, bon));
        const QByteArray nomme = QByteArray(chemin).replace("2024.", "2024_\xE9t\xE9.");
        QCOMPARE(std::rename(chemin.constData(), nomme.constData()), 0);
        QProcess outil;
        fin = lancer(
            {u"-c"_s, u"exec \"$0\" --json \"$1\"/octets/*.txt"_s, QStringLiteral(VALIDER), m_dossier.path()},
            outil, u"/bin/sh"_s);
        std::remove(nomme.constData()); // Qt would not find it
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
            QVERIFY2(fin.message().endsWith(u"c'est un tube ou un périphérique, et non un fichier."),
                     fin.sortie);
            QCOMPARE(fin.objets()[0][u"messages"][0][u"icone"].toString(), u"critique"_s);
        }
#endif
    }

    // What can't be had is told at the end; what was validated before it stands whole.
    void ressources()
    {
#if !defined(Q_OS_LINUX) || defined(SOUS_CONTROLE)
        QSKIP("the limits need Linux, and a program without sanitizer");
#else
        const QString premier = ecrire(u"ressources/1/12345678_DAS_2024.txt"_s, bon);
        const QString immense = ecrire(u"ressources/2/12345678_DAS_2024.txt"_s, marque + entete);
        QVERIFY(QFile(immense).resize(250'000'000)); // one endless line
        for (const bool memoire : {true, false}) {   // or threads
            QProcess outil;
            outil.setChildProcessModifier([memoire] {
                // A thread's stack is as large as the limit says, and finds no room.
                const rlimit place{400'000'000, 400'000'000}, pile{1'000'000'000, RLIM_INFINITY};
                ::setrlimit(RLIMIT_AS, &place);
                if (!memoire)
                    ::setrlimit(RLIMIT_STACK, &pile);
            });
            const Fin fin = lancer({u"--json"_s, premier, immense, premier}, outil);
            QCOMPARE(fin.code, 70);
            QCOMPARE(fin.sortie, memoire ? lancer({u"--json"_s, premier}).sortie : QByteArray());
            QVERIFY(fin.erreurs.startsWith(memoire ? "Mémoire insuffisante" : "Aucun fil"));
        }
#endif
    }
};

QTEST_GUILESS_MAIN(TestValider)
#include "test_valider.moc"
