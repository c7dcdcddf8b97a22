#include "ci/screens/frmentci.h"
#include "rules/texte.h"
#include "screens/etatsfenetres.h"
#include "storage/lieux.h"
#include "tests/ci/baseci.h"
#include "tests/screens/banc.h"
#include "tests/storage/foyer.h"

#include <QComboBox>
#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString ajoutee = u"Ligne Ci ajoutée avec succès !"_s;
const QString entete =
    u"MskReference MskDateArret MskDateReprise total_salEdit sumEdit SS26 SS1221 SS0375 CmbHS "
    "CmbBnq LibBnq MskAgbnq MskNCompteBnq txtAgBnq TxtTelephone"_s;
const QString boutons = u"cmddetail Frame5 cmdmod cmdDelete cmdexpor"_s;
const QString ligne = u"num_saledit mskcle Lab_nom MskDateEmbauche MskDateArret MskDateReprise TxtNbHeure "
                      "TxtMtHoraire LblMontantIndemnise"_s;

void choisirPremier(const QWidget &ecran, const QString &liste)
{
    champ(ecran, liste)->setFocus();
    touche(Qt::Key_Down);
}

} // namespace

/// The windows of the claim as a clerk uses them, hands on the keys.
class TestEcransCi : public QObject
{
    Q_OBJECT

    std::unique_ptr<BancSur<BaseCi>> m_banc;

    QWidget &lignesDe(FrmEntCi &entetes)
    {
        cliquer(entetes, u"cmddetail"_s);
        auto *lignes = champ(entetes, u"frmlnCi"_s);
        Banc::activer(*lignes);
        return *lignes;
    }

private slots:
    void init()
    {
        reglages().clear();
        m_banc = std::make_unique<BancSur<BaseCi>>();
    }

    void cleanup() { QVERIFY(m_banc->dialogue.acheve()); }

    /// From an empty list to the bytes of the file.
    void route()
    {
        const Foyer foyer;
        QVERIFY(QDir().mkpath(dossierExpor()));
        m_banc->ajouter(u"000000000000"_s, 4, {{u"nom"_s, u"NOUVEAU"}});
        DialogueScenario &dialogue = m_banc->dialogue;
        const auto entetes = m_banc->ouvrir(new FrmEntCi(m_banc->contexte));
        QCOMPARE(actifs(*entetes, boutons), QString());
        const QString vide = u"                  |__/__/____|__/__/____|00000|0.00|0.00|0.00|0.00|||--|_____|"
                             "____________________||"_s;
        QCOMPARE(textes(*entetes, entete), vide);

        choisirPremier(*entetes, u"cmbemp"_s);
        QCOMPARE(texte(*entetes, u"TxtTelephone"_s), u"0660112233"_s);
        taper(u"\r\r123456780000000001\r05012024\r12012024\r2\r"_s);
        QCOMPARE(focus(), u"sumEdit"_s);
        taper(u"2250"_s);
        QVERIFY(champ(*entetes, u"SS26"_s)->toolTip().contains(u"585.00"));
        touche(Qt::Key_Return);
        QCOMPARE(texte(*entetes, u"sumEdit"_s), u"2 250.00"_s);
        touche(Qt::Key_F4);
        cliquer(*entetes, u"cmdSS1221"_s);
        champ(*entetes, u"SS0375"_s)->setFocus();
        touche(Qt::Key_F4);
        choisirPremier(*entetes, u"CmbHS"_s);
        choisirPremier(*entetes, u"CmbBnq"_s);
        touche(Qt::Key_Return);
        taper(u"00123\r"_s + BaseCi::compte + u"\rAgence centre"_s);
        QCOMPARE(
            textes(*entetes, entete),
            u"123456780000000001|05/01/2024|12/01/2024|2    |2 250.00|585.00|274.73|8.44|40|001|BNA|00123|"
            "00100123012345678938|Agence centre|0660112233"_s);
        touche(Qt::Key_Return);
        QCOMPARE(m_banc->base.RsEnteteCi.nombre(), 1);
        QCOMPARE(textes(*entetes, entete), vide);
        QCOMPARE(actifs(*entetes, boutons), boutons);

        QWidget &lignes = lignesDe(*entetes);
        QCOMPARE(textes(lignes, u"LabCampagne LabRaison"_s),
                 u" Référence     :   123456780000000001|SARL L'Étoile"_s);
        dansLaFenetre(lignes, u"cmdajt"_s, u"frm_add_LnCi"_s, [&](QWidget &saisie) {
            QCOMPARE(textes(saisie, ligne),
                     u"0000000000|  ||__/__/____|05/01/2024|12/01/2024||00000000.00|00000000.00"_s);
            taper(u"8823450001\r54\r"_s);
            QCOMPARE(texte(saisie, u"Lab_nom"_s), u"BENALI"_s);
            taper(u"01092020\r\r\r20,"_s);
            QCOMPARE(texte(saisie, u"TxtNbHeure"_s), u"20."_s);
            taper(u"\r1"_s);
            QCOMPARE(texte(saisie, u"LblMontantIndemnise"_s), u"15.00"_s);
            taper(u"00"_s);
            dialogue.attendreInformation(ajoutee);
            touche(Qt::Key_Return);
            QCOMPARE(textes(saisie, ligne) + u'|' + focus(),
                     u"0000000000|  ||__/__/____|__/__/____|__/__/____|20.|100|1 500.00|num_saledit"_s);
            dansLaFenetre(saisie, u"cmdins"_s, u"frm_ins_num_sal"_s, [](QWidget &liste) {
                QTest::keyClick(champ(liste, u"DataGrid1"_s), Qt::Key_End, Qt::ControlModifier);
                cliquer(liste, u"cmdok"_s);
            });
            QCOMPARE(textes(saisie, u"num_saledit mskcle Lab_nom"_s), u"0000000000|00|NOUVEAU"_s);
            taper(u"01092023\r06012024\r11012024\r"_s);
            saisir(saisie, u"TxtNbHeure"_s, u"10"_s);
            dialogue.attendreInformation(ajoutee);
            cliquer(saisie, u"cmdok"_s);
        });
        QCOMPARE(textes(*entetes, u"calcsumEdit calcsalEdit"_s), u"2 250.00|2"_s);

        // Under another reference the open list follows, and so does the file.
        Banc::activer(*entetes);
        dansLaFenetre(*entetes, u"cmdmod"_s, u"frm_mod_entci"_s, [&](QWidget &saisie) {
            QCOMPARE(textes(saisie, u"Mskreference sumedit totaledit SS26 CmbHS"_s),
                     u"123456780000000001|2 250.00|2    |585.00|40"_s);
            QVERIFY(champ(saisie, u"CmbBnq"_s)->isHidden());
            saisir(saisie, u"Mskreference"_s, u"12345678000000002"_s);
            dialogue.attendreAvertissement(u"le numéro de référence est incorrecte"_s);
            cliquer(saisie, u"cmdok"_s);
            QCOMPARE(focus(), u"Mskreference"_s);
            saisir(saisie, u"Mskreference"_s, u"123456780000000002"_s);
            cliquer(saisie, u"cmdok"_s);
            QVERIFY(!saisie.isVisible());
        });
        QCOMPARE(texte(lignes, u"LabCampagne"_s), u" Référence     :   123456780000000002"_s);
        QVERIFY(champ(lignes, u"LabCCP"_s)->isHidden());
        QCOMPARE(m_banc->base.RsDetailCi.nombre(), 2);
        cliquer(*entetes, u"chkChemin"_s);
        const QString chemin = dossierExpor() + u"/123456780000000002_CI .txt"_s;
        dialogue.attendreInformation(u"Fichier Liste Nominative exportée avec succès vers "_s +
                                     QDir::toNativeSeparators(chemin));
        cliquer(*entetes, u"cmdexpor"_s);
        QCOMPARE(lireFichier(chemin),
                 encoder(u"DECLARATION CHOMAGE INTEMPERIE KORVANDEL VER 2.0\r\n"
                         "123456780000000002;05/01/2024;12/01/2024;2250;2;585;274,73;8,44;40;"
                         "00100123012345678938;Agence centre;0660112233;\r\n"
                         "882345000154;BENALI;JEAN;04/03/1988;MAÇON;01/09/2020;05/01/2024;12/01/2024;20;100;"
                         "1500;\r\n"
                         "000000000000;NOUVEAU;JEAN;04/03/1988;MAÇON;01/09/2023;06/01/2024;11/01/2024;10;100;"
                         "750;\r\n"));
    }

    /// What leaving a field tells holds nobody back.
    void champsQuittes()
    {
        DialogueScenario &dialogue = m_banc->dialogue;
        const auto entetes = m_banc->ouvrir(new FrmEntCi(m_banc->contexte));
        const QString nul = u"Erreur, le montant du brut à payer ne peut être nul ou négatif!"_s;
        for (const auto &[nom, saisie, suivant, boite] :
             {std::tuple{u"sumEdit"_s, u"1.2.3"_s, u"SS26"_s,
                         u"Veuillez saisir un nombre, comme montant total des salaires annuels SVP !"_s},
              {u"sumEdit"_s, u"-5"_s, u"SS26"_s, nul},
              {u"sumEdit"_s, u"0"_s, u"SS26"_s, nul},
              {u"SS26"_s, u"x"_s, u"SS1221"_s,
               u"Veuillez saisir un nombre, comme montant total des charges SS 26% SVP !"_s},
              {u"SS1221"_s, u""_s, u"SS0375"_s,
               u"Veuillez saisir un nombre, comme montant total des charges KORVANDEL 12.21% SVP !"_s},
              {u"SS0375"_s, u"1,2,3"_s, u"CmbHS"_s,
               u"Veuillez saisir un nombre, comme montant total des charges SS 0.375% SVP !"_s},
              {u"MskAgbnq"_s, u"123"_s, u"MskNCompteBnq"_s,
               u"Le code agence bancaire doit être sur 5 positions, compléter par des 0 à gauche SVP"_s}}) {
            saisir(*entetes, nom, saisie);
            dialogue.attendreAvertissement(boite);
            touche(Qt::Key_Tab);
            QCOMPARE(focus(), suivant);
            QVERIFY(dialogue.acheve());
            entetes->setFocus();
        }
        saisir(*entetes, u"sumEdit"_s, u"x"_s);
        QVERIFY(!champ(*entetes, u"cmdSS26"_s)->isEnabled() &&
                champ(*entetes, u"SS26"_s)->toolTip().isEmpty());
    }

    /// Employees, employers and banks may go while their window is open.
    void disparus()
    {
        m_banc->entete();
        m_banc->ligne();
        DialogueScenario &dialogue = m_banc->dialogue;
        Connexion &cnx = m_banc->base.Cnx;
        const auto entetes = m_banc->ouvrir(new FrmEntCi(m_banc->contexte));
        QWidget &lignes = lignesDe(*entetes);
        dansLaFenetre(lignes, u"cmdajt"_s, u"frm_add_LnCi"_s, [&](QWidget &saisie) {
            taper(u"8823450009\r46\r01092020\r\r\r8\r100"_s);
            dialogue.attendreQuestion(u"Ce salarié n'existe pas, voulez vous le créer?"_s, true);
            dialogue.attendreAvertissement(u"Veuillez importer la table nationalité en premier"_s);
            cnx.executer(u"DELETE FROM Nationalite"_s); // and the entry of employees can't open
            touche(Qt::Key_Return);
            QCOMPARE(texte(saisie, u"num_saledit"_s) + focus(), u"8823450009num_saledit"_s);
        });
        cnx.executer(u"DELETE FROM salarie"_s);
        dansLaFenetre(lignes, u"cmdmod"_s, u"frm_modif_lnCi"_s, [&](QWidget &saisie) {
            QCOMPARE(textes(saisie, u"LabNumero Lab_nom TxtNbHeure TxtMtHoraire LblMontantIndemnise"_s),
                     u"882345000154||10|100|750.00"_s);
            saisir(saisie, u"TxtNbHeure"_s, u"12"_s);
            dialogue.attendreInformation(u"Ligne CI modifiée avec succès!"_s);
            cliquer(saisie, u"cmdok"_s);
            QVERIFY(!saisie.isVisible());
        });
        QCOMPARE(textes(*entetes, u"calcsumEdit calcsalEdit"_s), u"900.00|1"_s);
        dialogue.attendreConfirmation(u"Confirmez la suppression de cette déclaration ?"_s, true,
                                      u"Suppression"_s);
        cliquer(lignes, u"cmdsup"_s);

        Banc::activer(*entetes);
        cnx.executer(u"DELETE FROM employeur"_s);
        cnx.executer(u"DELETE FROM Banque"_s);
        choisirPremier(*entetes, u"CmbBnq"_s);
        choisirPremier(*entetes, u"cmbemp"_s);
        QCOMPARE(textes(*entetes, u"LibBnq TxtTelephone"_s), u"--|"_s);
        dialogue.attendreAvertissement(u"Il n'y a pas d'employeur!"_s);
        cliquer(*entetes, u"cmdajt"_s);
        dialogue.attendreConfirmation(u"Confirmez la suppression ? "_s, true, u"Confirmation"_s);
        cliquer(*entetes, u"cmdDelete"_s);
        QCOMPARE(actifs(*entetes, boutons), QString());
    }
};

QTEST_MAIN(TestEcransCi)
#include "test_ecrans_ci.moc"
