#include "ci/exportci.h"
#include "rules/texte.h"
#include "storage/lieux.h"
#include "tests/ci/baseci.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/storage/foyer.h"
#include "tests/storage/surdisque.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString nomPropose = u"123456780000000001_CI.txt"_s;

QString fige() { return dossierExpor() + u"/123456780000000001_CI .txt"_s; }

} // namespace

/// The stops before the export, the file byte for byte, and its failures.
class TestExportCi : public QObject
{
    Q_OBJECT

private slots:
    void refus()
    {
        BaseCi essai;
        DialogueScenario dialogue;
        for (const QStringList &cas : table(QFINDTESTDATA("exports.txt"))) {
            essai.base.Cnx.executer(u"DELETE FROM Entete_CI"_s);
            essai.entete(cas[0]);
            dialogue.attendreAvertissement(QString(cas[1]).replace(u"\\n"_s, u"\n"_s), cas[2]);
            QVERIFY(!exporterCi(essai.base, true, dialogue));
        }
        essai.base.Cnx.executer(u"DELETE FROM Entete_CI"_s);
        essai.entete();
        dialogue.attendreDestination(nomPropose, {});
        dialogue.attendreAvertissement(u"Nom de fichier incorrect"_s,
                                       u"Abandon de la génération du fichier"_s);
        QVERIFY(!exporterCi(essai.base, false, dialogue));
    }

    void fichier()
    {
        const Foyer foyer;
        QVERIFY(QDir().mkpath(dossierExpor()));
        BaseCi essai;
        essai.entete(u"ChargeCi = 1, LibAgBnq = '  L''AGENCE; n° €Ł'"_s);
        essai.ajouter(BaseCi::sansNumero, 3,
                      {{u"nom"_s, u" ÉTÉ "}, {u"prenom"_s, {}}, {u"date_naiss"_s, {}}, {u"profes"_s, {}}});
        // Entered in this order, which is not that of the numbers; the fourth one is of nobody.
        essai.ligne(BaseCi::autreSalarie, 1, u"Mt_Indemnise = 25916400"_s);
        essai.ligne(BaseCi::salarie, 1, u"Salaire_Horaire = 1031501, Nb_Heure = 2147483647"_s);
        essai.ligne(BaseCi::sansNumero, 3,
                    u"Date_embauche = NULL, date_arret = NULL, Date_reprise = NULL, Nb_Heure = NULL, "
                    "Salaire_Horaire = NULL, Mt_Indemnise = NULL"_s);
        essai.ligne(BaseCi::sansNumero, 9);
        essai.ligne(BaseCi::salarie, 2, u"N_Identif = 'another claim'"_s);
        const QByteArray attendu = encoder(
            u"DECLARATION CHOMAGE INTEMPERIE KORVANDEL VER 2.0\r\n"
            "123456780000000001;05/01/2024;12/01/2024;1500;2;390;183,15;0,0001;40;00100123012345678938;"
            "L'AGENCE; n° €?;0660112233;\r\n"
            "882345000253;D'ARC;JEAN;04/03/1988;MAÇON;01/09/2020;05/01/2024;12/01/2024;10;100;2591,64;\r\n"
            "882345000154;BENALI;JEAN;04/03/1988;MAÇON;01/09/2020;05/01/2024;12/01/2024;2147483647;103,1501;"
            "750;\r\n"
            "000000000000;ÉTÉ;;;;;;;;;;\r\n");
        DialogueScenario dialogue;
        for (const QString &chemin : {fige(), QString(foyer.chemin() + u"/ailleurs.txt"_s)}) {
            ecrireFichier(chemin, QByteArray(10'000, 'x')); // replaced, not overwritten in part
            if (chemin != fige())
                dialogue.attendreDestination(nomPropose, chemin);
            dialogue.attendreInformation(u"Fichier Liste Nominative exportée avec succès vers "_s +
                                         QDir::toNativeSeparators(chemin));
            QVERIFY(exporterCi(essai.base, chemin == fige(), dialogue));
            QCOMPARE(lireFichier(chemin), attendu);
        }
        QCOMPARE(essai.base.RsDetailCi.nombre(), 4);
    }

    /// On both routes the last handler is told, and the part that was written stays.
    void echecs()
    {
        const Foyer foyer;
        QVERIFY(QDir().mkpath(dossierExpor()));
        BaseCi essai;
        essai.entete();
        essai.ligne();
        essai.base.Cnx.executer(u"PRAGMA ignore_check_constraints = ON"_s);
        essai.ligne(BaseCi::autreSalarie, 1, u"Date_reprise = 'hier'"_s);
        DialogueScenario dialogue;
        const QString choisi = foyer.chemin() + u"/choisi.txt"_s;
        dialogue.attendreDestination(nomPropose, choisi);
        for (const QString &chemin : {fige(), choisi}) {
            const QString texte = echecDe([&] { exporterCi(essai.base, chemin == fige(), dialogue); });
            QVERIFY2(texte.contains(u"Date_reprise"), qPrintable(texte));
            QCOMPARE(lireFichier(chemin).count("\r\n"), 3);
        }
        essai.base.Cnx.executer(u"UPDATE Detail_CI SET Date_reprise = NULL"_s);
        dialogue.attendreDestination(nomPropose, u"/dev/full"_s);
        QVERIFY_THROWS_EXCEPTION(ErreurFichier, exporterCi(essai.base, false, dialogue));
        refuserLeDisque(ENOSPC);
        QVERIFY_THROWS_EXCEPTION(ErreurFichier, exporterCi(essai.base, true, dialogue));
        refuserLeDisque(0);
        QVERIFY(QFile::remove(fige()) && QDir().rmdir(dossierExpor()));
        QVERIFY_THROWS_EXCEPTION(ErreurFichier, exporterCi(essai.base, true, dialogue));
    }
};

QTEST_GUILESS_MAIN(TestExportCi)
#include "test_exportci.moc"
