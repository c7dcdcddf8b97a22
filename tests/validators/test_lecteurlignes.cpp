#include "rules/erreurs.h"
#include "rules/lecteurlignes.h"
#include "validators/marque.h"

#include <QBuffer>
#include <QTest>

namespace {

/// A file that gives so many bytes a read.
class SourceLente : public QBuffer
{
public:
    explicit SourceLente(qint64 parLecture) : m_parLecture(parLecture) {}

protected:
    qint64 readData(char *data, qint64 taille) override
    {
        return QBuffer::readData(data, std::min(taille, m_parLecture));
    }

private:
    qint64 m_parLecture;
};

QByteArrayList lignesDe(QIODevice &source)
{
    LecteurLignes lecteur(source);
    QByteArrayList lignes;
    while (!lecteur.finie())
        lignes.append(lecteur.lire().toByteArray());
    return lignes;
}

} // namespace

class TestLecteurLignes : public QObject
{
    Q_OBJECT

private slots:
    void fins_data()
    {
        QTest::addColumn<QByteArray>("octets");
        QTest::addColumn<QByteArrayList>("lignes");

        QTest::newRow("rien") << QByteArray() << QByteArrayList{};
        QTest::newRow("CR LF") << QByteArray("a\r\nb\r\n") << QByteArrayList{"a", "b"};
        QTest::newRow("LF") << QByteArray("a\nb\n") << QByteArrayList{"a", "b"};
        QTest::newRow("derniere sans fin") << QByteArray("a\r\nb") << QByteArrayList{"a", "b"};
        QTest::newRow("lignes vides") << QByteArray("\n\r\n\n") << QByteArrayList{"", "", ""};
        QTest::newRow("un seul CR tombe") << QByteArray("a\r\r\nb") << QByteArrayList{"a\r", "b"};
        QTest::newRow("CR ailleurs") << QByteArray("a\rb\n\rc\r") << QByteArrayList{"a\rb", "\rc\r"};
        QTest::newRow("octet nul") << QByteArray("a\0b\n", 4) << QByteArrayList{QByteArray("a\0b", 3)};
        QTest::newRow("rang 1A") << QByteArray("a\n\x1A") << QByteArrayList{"a", "\x1A"};
    }

    void fins()
    {
        QFETCH(QByteArray, octets);
        QFETCH(QByteArrayList, lignes);
        for (const qint64 parLecture : {1, 2, 1000}) {
            SourceLente source(parLecture);
            source.setData(octets);
            QVERIFY(source.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
            QCOMPARE(lignesDe(source), lignes);
        }
    }

    // The reader's blocks are of one MiB: ends that fall on both sides of a border, and lines beyond a block.
    void bordsDeBloc()
    {
        constexpr int bloc = 1024 * 1024;
        for (int ecart = -3; ecart <= 3; ++ecart) {
            for (const int taille : {bloc + ecart, 2 * bloc + ecart, 5 * bloc + ecart}) {
                const QByteArrayList attendues{"tete", QByteArray(taille - 6, 'x') + 'y', "", "queue"};
                QBuffer source;
                source.setData(attendues.join("\r\n"));
                QVERIFY(source.open(QIODevice::ReadOnly));
                QVERIFY2(lignesDe(source) == attendues, qPrintable(QString::number(taille)));
            }
        }
    }

    void octetsLus()
    {
        QBuffer source;
        source.setData("ab\r\nc\n\nd");
        QVERIFY(source.open(QIODevice::ReadOnly));
        LecteurLignes lecteur(source);
        for (const int lus : {4, 6, 7, 8}) {
            lecteur.lire();
            QCOMPARE(lecteur.octetsLus(), lus);
        }
        QVERIFY_THROWS_EXCEPTION(ErreurFichier, lecteur.lire());
    }

    void marques_data()
    {
        QTest::addColumn<QByteArray>("ligne");
        QTest::addColumn<QString>("marque");

        QTest::newRow("blancs autour") << QByteArray("  das ver 3.0 ") << QStringLiteral("DAS VER 3.0");
        QTest::newRow("tabulations partout") << QByteArray("\td\tas\t") << QStringLiteral("DAS");
        // Blanks go first: those that only the tabs hid stay.
        QTest::newRow("blanc sous tabulation") << QByteArray("das \t") << QStringLiteral("DAS ");
        QTest::newRow("accents") << QByteArray("\xE9\xDF\xFF") << QStringLiteral("Éß\u0178");
    }

    void marques()
    {
        QFETCH(QByteArray, ligne);
        QFETCH(QString, marque);
        QCOMPARE(marqueDe(ligne), marque);
        QVERIFY(marqueDe(QByteArray(5'000'000, '\t') + QByteArray(5'000'000, 'x')).size() < 10'000);
    }
};

QTEST_GUILESS_MAIN(TestLecteurLignes)
#include "test_lecteurlignes.moc"
