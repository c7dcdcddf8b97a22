#include "rules/erreurs.h"
#include "rules/lecteurlignes.h"
#include "tests/fuzz/epreuves.h"
#include "validators/marque.h"

#include <QBuffer>
#include <QDir>
#include <QtTest>

using namespace Qt::StringLiterals;

/// The reading of lines, and the files that fuzzing kept: one for each turn that the code can take, and any
/// that once broke a rule.
class TestFuzz : public QObject
{
    Q_OBJECT

private slots:
    void decoupe_data() { fichiers(u"decoupe"_s); }
    void decoupe()
    {
        QFETCH(QByteArray, octets);
        eprouver(eprouverDecoupe, octets);
    }
    void das_data() { fichiers(u"das"_s); }
    void das()
    {
        QFETCH(QByteArray, octets);
        eprouver(eprouverDas, octets);
    }
    void dac_data() { fichiers(u"dac"_s); }
    void dac()
    {
        QFETCH(QByteArray, octets);
        eprouver(eprouverDac, octets);
    }
    void ci_data() { fichiers(u"ci"_s); }
    void ci()
    {
        QFETCH(QByteArray, octets);
        eprouver(eprouverCi, octets);
    }

    void finsDeLigne()
    {
        for (const QByteArray &octets :
             {QByteArray(), QByteArray("a\r\nb\r\n"), QByteArray("a\nb\n"), QByteArray("a\r\nb"),
              QByteArray("\n\r\n\n"), QByteArray("a\r\r\nb"), QByteArray("a\rb\n\rc\r"),
              QByteArray("a\0b\n", 4), QByteArray("a\n\x1A")})
            eprouver(eprouverDecoupe, octets);
    }

    // The reader's blocks are of one MiB: ends that fall on both sides of a border, and lines beyond a block.
    void bordsDeBloc()
    {
        constexpr int bloc = 1024 * 1024;
        for (int ecart = -3; ecart <= 3; ++ecart) {
            for (const int taille : {bloc + ecart, 2 * bloc + ecart, 5 * bloc + ecart}) {
                const QByteArray milieu = QByteArray(taille - 6, 'x') + 'y';
                QByteArray octets = "tete\r\n" + milieu + "\r\n\r\nqueue";
                QBuffer source(&octets);
                QVERIFY(source.open(QIODevice::ReadOnly));
                LecteurLignes lecteur(source);
                qsizetype lus = 0;
                for (const QByteArray &ligne :
                     {QByteArray("tete"), milieu, QByteArray(), QByteArray("queue")}) {
                    QVERIFY2(lecteur.lire() == ligne, qPrintable(QString::number(taille)));
                    lus = std::min(lus + ligne.size() + 2, octets.size());
                    QCOMPARE(lecteur.octetsLus(), lus);
                }
                QVERIFY(lecteur.finie());
            }
        }
    }

    void marques()
    {
        QCOMPARE(marqueDe("  das ver 3.0 "), u"DAS VER 3.0"_s);
        QCOMPARE(marqueDe("\td\tas\t"), u"DAS"_s);
        QCOMPARE(marqueDe("das \t"), u"DAS "_s); // blanks go first: those that only the tabs hid stay
        QCOMPARE(marqueDe("\xE9\xDF\xFF"), u"Éß\u0178"_s);
        QVERIFY(marqueDe(QByteArray(5'000'000, '\t') + QByteArray(5'000'000, 'x')).size() < 10'000);
    }

private:
    static void fichiers(const QString &dossier)
    {
        QTest::addColumn<QByteArray>("octets");
        const QDir place(QStringLiteral(DOSSIER_FUZZ "/") + dossier);
        const QStringList noms = place.entryList(QDir::Files);
        QVERIFY2(!noms.isEmpty(), qPrintable(place.path()));
        for (const QString &nom : noms) {
            QFile fichier(place.filePath(nom));
            QVERIFY2(fichier.open(QIODevice::ReadOnly), qPrintable(fichier.errorString()));
            QTest::newRow(qPrintable(nom)) << fichier.readAll();
        }
    }

    static void eprouver(void (*epreuve)(QByteArrayView), const QByteArray &octets)
    {
        try {
            epreuve(octets);
        } catch (const EpreuveManquee &manquee) {
            QFAIL(manquee.what());
        }
    }
};

QTEST_GUILESS_MAIN(TestFuzz)
#include "test_fuzz.moc"
