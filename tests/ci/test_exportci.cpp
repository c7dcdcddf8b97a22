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
const QString abandon = u"Abandon de la génération du fichier"_s;
const QString succes = u"Fichier Liste Nominative exportée avec succès vers "_s;

QString fige() { return dossierExpor() + u"/123456780000000001_CI .txt"_s; }

} // namespace

/// The stops before the export, the file byte for byte, and its failures.
class TestExportCi : public QObject
{
    Q_OBJECT

private slots:
    void refus()
    {
        const QString compte = u"NCompteBnq"_s, agence = u"LibAgBnq"_s, telephone = u"Telephone"_s;
        const QString sansCompte = u" Veuillez saisir le numéro de compte bancaire SVP !"_s;
        const QString mauvais = u" Numèro de compte bancaire incorrecte  SVP !"_s;
        const QString vide = u"libellé agence bancaire vide SVP !"_s;
        const QString joindre =
            u"Veuillez saisir votre numéro de telephone au niveau du masque affiliation employeur SVP !"_s;
        const QString sommes =
            u"La somme des montants brut déclarés ou le nombre d'employé saisis dans l'en-tête ne "
            u"correspondent "
            "pas aux sommes calculées sur les lignes de cette déclaration CI.\nVerifiez vos lignes CI   SVP  "
            "!!!!"_s;
        const Valeur rien;
        const struct
        {
            Champs champs;
            QString refus;
        } cas[] = {
            {{{compte, rien}, {agence, rien}}, sansCompte},
            {{{compte, u""}, {telephone, rien}}, sansCompte},
            {{{compte, u"00100123012345678939"}, {agence, rien}}, mauvais},
            {{{compte, u"abc"}}, mauvais},
            {{{agence, rien}, {telephone, rien}}, u"libellé agence bancaire non saisi SVP !"_s},
            {{{agence, u"  "}, {telephone, rien}}, vide},
            {{{telephone, rien}}, joindre},
            {{{telephone, u""}}, joindre},
            {{{u"Montant_Indemnise"_s, Currency::deTexte(u"750.0001")}}, sommes},
            {{{u"Effect_Mis_arret"_s, 2}}, sommes},
            {{{u"sum_calc"_s, rien}}, sommes},
        };
        BaseCi essai;
        essai.entete();
        essai.ligne();
        for (const auto &[champs, refus] : cas) {
            essai.accorder();
            Transaction transaction(essai.base.Cnx);
            essai.base.RsEnteteCi.modifier(essai.base.RsEnteteCi.courant(), champs);
            DialogueScenario dialogue;
            dialogue.attendreAvertissement(
                refus, refus == sommes ? u" Intérruption de génération du Bordereau de paiement"_s : abandon);
            QVERIFY(!exporterCi(essai.base, true, dialogue));
        }
        DialogueScenario dialogue;
        dialogue.attendreDestination(nomPropose, {});
        dialogue.attendreAvertissement(u"Nom de fichier incorrect"_s, abandon);
        QVERIFY(!exporterCi(essai.base, false, dialogue));
    }

    void fichier()
    {
        const Foyer foyer;
        QVERIFY(QDir().mkpath(dossierExpor()));
        BaseCi essai;
        essai.entete({{u"ChargeCi"_s, Currency::deTexte(u"0.0001")}, {u"LibAgBnq"_s, u"  L'AGENCE; n° €Ł"}});
        essai.ajouter(u"000000000000"_s, 3,
                      {{u"nom"_s, u" ÉTÉ "}, {u"prenom"_s, {}}, {u"date_naiss"_s, {}}, {u"profes"_s, {}}});
        // Entered in this order, which is not that of the numbers; the last one is of nobody.
        essai.ligne(BaseCi::autreSalarie, 1, {{u"Mt_Indemnise"_s, Currency::deTexte(u"2591.64")}});
        essai.ligne(BaseCi::salarie, 1,
                    {{u"Salaire_Horaire"_s, Currency::deTexte(u"103.1501")}, {u"Nb_Heure"_s, 2147483647}});
        essai.ligne(u"000000000000", 3,
                    {{u"Date_embauche"_s, {}},
                     {u"date_arret"_s, {}},
                     {u"Date_reprise"_s, {}},
                     {u"Nb_Heure"_s, {}},
                     {u"Salaire_Horaire"_s, {}},
                     {u"Mt_Indemnise"_s, {}}});
        essai.ligne(u"000000000000", 9);
        essai.ligne(BaseCi::salarie, 1, {{u"N_Identif"_s, u"another claim"}});
        essai.accorder();
        const QByteArray attendu = encoder(
            u"DECLARATION CHOMAGE INTEMPERIE KORVANDEL VER 2.0\r\n"
            "123456780000000001;05/01/2024;12/01/2024;4091,64;4;390;183,15;0,0001;40;00100123012345678938;"
            "L'AGENCE; n° €?;0660112233;\r\n"
            "882345000253;D'ARC;JEAN;04/03/1988;MAÇON;01/09/2020;05/01/2024;12/01/2024;10;100;2591,64;\r\n"
            "882345000154;BENALI;JEAN;04/03/1988;MAÇON;01/09/2020;05/01/2024;12/01/2024;2147483647;103,1501;"
            "750;\r\n"
            "000000000000;ÉTÉ;;;;;;;;;;\r\n");
        for (const bool auDossierFixe : {true, false}) {
            const QString chemin = auDossierFixe ? fige() : foyer.chemin() + u"/ailleurs.txt"_s;
            ecrireFichier(chemin, QByteArray(10'000, 'x')); // replaced, not overwritten in part
            DialogueScenario dialogue;
            if (!auDossierFixe)
                dialogue.attendreDestination(nomPropose, chemin);
            dialogue.attendreInformation(succes + QDir::toNativeSeparators(chemin));
            QVERIFY(exporterCi(essai.base, auDossierFixe, dialogue));
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
        essai.entete({{u"HTS"_s, {}}});
        essai.ligne();
        essai.ligne(BaseCi::autreSalarie);
        essai.base.Cnx.executer(u"PRAGMA ignore_check_constraints = ON"_s);
        essai.base.Cnx.executer(u"UPDATE Detail_CI SET Date_reprise = 'hier' WHERE N_SecSoc = ?"_s,
                                {BaseCi::autreSalarie});
        essai.accorder();
        const QString choisi = foyer.chemin() + u"/choisi.txt"_s;
        DialogueScenario dialogue;
        dialogue.attendreDestination(nomPropose, choisi);
        for (const bool auDossierFixe : {true, false}) {
            const QString texte = echecDe([&] { exporterCi(essai.base, auDossierFixe, dialogue); });
            QVERIFY2(texte.contains(u"Date_reprise"), qPrintable(texte));
            QCOMPARE(lireFichier(auDossierFixe ? fige() : choisi).count("\r\n"), 3);
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
