#include "demo/route.h"
#include "storage/lieux.h"
#include "tests/commun/horloge.h"
#include "tests/storage/foyer.h"

#include <QDir>
#include <QTest>
#include <QWidget>

using namespace Qt::StringLiterals;

/// The whole program from an empty home folder to the verdict on the file that it exported.
class TestRoute : public QObject
{
    Q_OBJECT

private slots:
    void declarationAnnuelle()
    {
        arreterHorloge(QDate(2024, 9, 15));
        Foyer foyer;
        // The walk ticks entries of the menu, which the settings would keep for the next one.
        qputenv("XDG_CONFIG_HOME", foyer.chemin().toLocal8Bit() + "/.config");
        QStringList ecrans;
        char nom[] = "das-korvandel";
        char *arguments[] = {nom, nullptr};
        const Parcours parcours =
            parcourirRoute(1, arguments, [&](QWidget &ecran) { ecrans += ecran.objectName(); });

        QCOMPARE(parcours.fichier, dossierExpor() + u"/20045017_DAS_2024.txt"_s);
        QVERIFY(parcours.fichier.startsWith(foyer.chemin()));
        for (const auto &[ecrit, voulu] :
             {std::pair{parcours.fichier, QFINDTESTDATA("fichiers/20045017_DAS_2024.txt")},
              std::pair{parcours.fichierDac, QFINDTESTDATA("fichiers/20045017_DAC_NOMINATIVE_2024T2.txt")},
              std::pair{parcours.fichierCi, QFINDTESTDATA("fichiers/200450170000000001_CI.txt")}}) {
            const QByteArray attendu = lireFichier(voulu);
            QVERIFY(!attendu.isEmpty());
            QCOMPARE(lireFichier(ecrit), attendu);
        }

        // A warning would have ended the walk; these are its last boxes.
        const QString ligneCi = u"Ligne Ci ajoutée avec succès !"_s;
        const QStringList fin{
            u"Numéro SS : 000000000000  de l'employé  ZIANE    INÈS n'est pas valide, il sera pris en charge "
            u", "
            "mais vous devez  vous rapprocher des services de la CNAS afin de réclamer son numéro de "
            "sécurité social "_s,
            u"DAS exportée avec succès vers "_s + QDir::toNativeSeparators(parcours.fichier),
            u"Extraction Terminée avec Nombre Erreurs : \n  - De Rejet : 0\n  - Sans Incidence : 1"_s,
            u"Montant DAS Annuelle Egal au Total DACs"_s,
            u"DAC NOMINATIVE exportée avec succès vers "_s + QDir::toNativeSeparators(parcours.fichierDac),
            u"Extraction Terminée avec Nombre Erreurs : \n  - De Rejet : 0\n  - Sans Incidence : 10"_s,
            ligneCi,
            ligneCi,
            ligneCi,
            u"Fichier Liste Nominative exportée avec succès vers "_s +
                QDir::toNativeSeparators(parcours.fichierCi),
            u"Extraction Terminée avec Nombre Erreurs : \n  - De Rejet : 0\n  - Sans Incidence : 1"_s};
        QCOMPARE(parcours.boites.last(fin.size()), fin);
        QCOMPARE(ecrans,
                 u"frmannee add_emp Frm_imp FrmImpNat frm_add_sal frmsalarie frm_ins_num_sal frm_add_lndas "
                 "frmlndas DataReport1 DataReport3 DataReport2 frmentdas MDIForm FrmDasValide FrmDasValide "
                 "FrmDasValide frmPeriode frm_add_Lndac frm_add_Lndac frmlndac frmDecNom FrmDacValide "
                 "FrmEntCi frm_add_LnCi frmlnCi FrmFileCI"_s.split(u' '));
    }
};

QTEST_APPLESS_MAIN(TestRoute)
#include "test_route.moc"
