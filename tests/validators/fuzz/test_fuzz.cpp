#include "tests/fuzz/epreuves.h"

#include <QDir>
#include <QtTest>

using namespace Qt::StringLiterals;

/// The files that fuzzing kept, one for each turn that the code can take, and any that once broke a rule.
class TestFuzz : public QObject
{
    Q_OBJECT

private slots:
    void decoupe_data() { fichiers(u"decoupe"_s); }
    void decoupe() { eprouver(eprouverDecoupe); }
    void validateur_data() { fichiers(u"validateur"_s); }
    void validateur() { eprouver(eprouverValidateur); }

private:
    static void fichiers(const QString &dossier)
    {
        QTest::addColumn<QString>("chemin");
        const QDir place(QStringLiteral(DOSSIER_FUZZ "/") + dossier);
        const QStringList noms = place.entryList(QDir::Files);
        QVERIFY2(!noms.isEmpty(), qPrintable(place.path()));
        for (const QString &nom : noms)
            QTest::newRow(qPrintable(nom)) << place.filePath(nom);
    }

    static void eprouver(void (*epreuve)(QByteArrayView))
    {
        QFETCH(QString, chemin);
        QFile fichier(chemin);
        QVERIFY2(fichier.open(QIODevice::ReadOnly), qPrintable(fichier.errorString()));
        try {
            epreuve(fichier.readAll());
        } catch (const EpreuveManquee &manquee) {
            QFAIL(manquee.what());
        }
    }
};

QTEST_GUILESS_MAIN(TestFuzz)
#include "test_fuzz.moc"
