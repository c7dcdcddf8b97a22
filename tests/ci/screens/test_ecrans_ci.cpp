#include "ci/screens/champsenteteci.h"
#include "ci/screens/frmentci.h"
#include "screens/etatsfenetres.h"
#include "tests/ci/baseci.h"
#include "tests/screens/banc.h"

#include <QComboBox>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString entete =
    u"MskReference MskDateArret MskDateReprise total_salEdit sumEdit SS26 SS1221 SS0375 CmbHS "
    "CmbBnq LibBnq MskAgbnq MskNCompteBnq txtAgBnq TxtTelephone"_s;
const QString boutons = u"cmddetail Frame5 cmdmod cmdDelete cmdexpor"_s;
const QString ligne = u"num_saledit mskcle Lab_nom MskDateEmbauche MskDateArret MskDateReprise TxtNbHeure "
                      "TxtMtHoraire LblMontantIndemnise"_s;

QWidget &ouvrirLignes(FrmEntCi &entetes)
{
    cliquer(entetes, u"cmddetail"_s);
    auto *lignes = champ(entetes, u"frmlnCi"_s);
    Banc::activer(*lignes);
    return *lignes;
}

} // namespace

/// The windows of the claim as a clerk uses them, hands on the keys. The demonstration's test walks them from
/// the header to the file.
class TestEcransCi : public QObject
{
    Q_OBJECT

    std::unique_ptr<BancSur<BaseCi>> m_banc;

private slots:
    void init()
    {
        reglages().clear();
        m_banc = std::make_unique<BancSur<BaseCi>>();
    }

    void cleanup() { QVERIFY(m_banc->dialogue.acheve()); }

    void nouvelEntete()
    {
        const auto entetes = m_banc->ouvrir(new FrmEntCi(m_banc->contexte));
        QCOMPARE(actifs(*entetes, boutons), QString());
        const QString vide = u"                  |__/__/____|__/__/____|00000|0.00|0.00|0.00|0.00|||--|_____|"
                             "____________________||"_s;
        QCOMPARE(textes(*entetes, entete), vide);
        FicheEnteteCi fiche = ficheEnteteCi();
        fiche.SS26 = fiche.SS1221 = u"0"_s;
        champ<ChampsEnteteCi>(*entetes, u"champs"_s)->ecrire(fiche);
        QCOMPARE(textes(*entetes, u"LibBnq TxtTelephone"_s), u"BNA|0660112233"_s);

        // What a charge should be follows the amount; F4 and the button bring it.
        saisir(*entetes, u"sumEdit"_s, u"2250"_s);
        QVERIFY(champ(*entetes, u"SS26"_s)->toolTip().contains(u"585.00"));
        taper(u"\r"_s);
        touche(Qt::Key_F4);
        cliquer(*entetes, u"cmdSS1221"_s);
        saisir(*entetes, u"SS0375"_s, u"8,44"_s);
        QCOMPARE(textes(*entetes, u"sumEdit SS26 SS1221 SS0375"_s), u"2 250.00|585.00|274.73|8,44"_s);
        cliquer(*entetes, u"cmdajt"_s);
        QCOMPARE(m_banc->lignes(u"SELECT ChargePat, ChargeCp, ChargeCi, HTS FROM Entete_CI"_s),
                 QStringList{u"5850000|2747300|84400|44"_s});
        QCOMPARE(textes(*entetes, entete), vide);
        QCOMPARE(actifs(*entetes, boutons), boutons);
    }

    void ligneParLigne()
    {
        m_banc->entete();
        DialogueScenario &dialogue = m_banc->dialogue;
        const auto entetes = m_banc->ouvrir(new FrmEntCi(m_banc->contexte));
        QWidget &lignes = ouvrirLignes(*entetes);
        QCOMPARE(textes(lignes, u"LabCampagne LabRaison"_s),
                 u" Référence     :   123456780000000001|SARL L'Étoile"_s);
        dansLaFenetre(lignes, u"cmdajt"_s, u"frm_add_LnCi"_s, [&](QWidget &saisie) {
            QCOMPARE(textes(saisie, ligne),
                     u"0000000000|  ||__/__/____|05/01/2024|12/01/2024||00000000.00|00000000.00"_s);
            taper(u"8823450001\r54\r01092020\r\r\r20,"_s);
            QCOMPARE(textes(saisie, u"Lab_nom TxtNbHeure"_s), u"BENALI|20."_s);
            taper(u"\rx"_s);
            dialogue.attendreAvertissement(u"le montant saisi est incorrecte !"_s);
            touche(Qt::Key_Tab);
            saisir(saisie, u"TxtMtHoraire"_s, u"1"_s);
            QCOMPARE(texte(saisie, u"LblMontantIndemnise"_s), u"15.00"_s);
            dialogue.attendreInformation(u"Ligne Ci ajoutée avec succès !"_s);
            taper(u"00\r"_s);
            QCOMPARE(textes(saisie, ligne) + u'|' + focus(),
                     u"0000000000|  ||__/__/____|__/__/____|__/__/____|20.|100|1 500.00|num_saledit"_s);
        });
        QCOMPARE(textes(*entetes, u"calcsumEdit calcsalEdit"_s), u"1 500.00|1"_s);

        // Under another reference the open list follows.
        Banc::activer(*entetes);
        dansLaFenetre(*entetes, u"cmdmod"_s, u"frm_mod_entci"_s, [&](QWidget &saisie) {
            cliquer(saisie, u"cmdcancel"_s);
            QVERIFY(!saisie.isVisible());
        });
        dansLaFenetre(*entetes, u"cmdmod"_s, u"frm_mod_entci"_s, [&](QWidget &saisie) {
            QCOMPARE(textes(saisie, u"Mskreference sumedit totaledit SS26 CmbHS"_s),
                     u"123456780000000001|1 500.00|2    |390.00|40"_s);
            QVERIFY(champ(saisie, u"CmbBnq"_s)->isHidden());
            saisir(saisie, u"Mskreference"_s, u"12345678000000002"_s);
            dialogue.attendreAvertissement(u"le numéro de référence est incorrecte"_s);
            cliquer(saisie, u"cmdok"_s);
            QCOMPARE(focus(), u"Mskreference"_s);
            taper(u"123456780000000002\r"_s);
            QVERIFY(!saisie.isVisible());
        });
        QCOMPARE(texte(lignes, u"LabCampagne"_s), u" Référence     :   123456780000000002"_s);
        QVERIFY(champ(lignes, u"LabCCP"_s)->isHidden());
        QCOMPARE(m_banc->base.RsDetailCi.nombre(), 1);
    }

    /// What leaving a field tells holds nobody back.
    void champsQuittes()
    {
        const auto entetes = m_banc->ouvrir(new FrmEntCi(m_banc->contexte));
        for (const QStringList &cas : table(QFINDTESTDATA("quittes.txt"))) {
            saisir(*entetes, cas[0], cas[1]);
            m_banc->dialogue.attendreAvertissement(cas[3]);
            touche(Qt::Key_Tab);
            QCOMPARE(focus(), cas[2]);
            QVERIFY(m_banc->dialogue.acheve());
        }
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
        QWidget &lignes = ouvrirLignes(*entetes);
        dansLaFenetre(lignes, u"cmdajt"_s, u"frm_add_LnCi"_s, [&](QWidget &saisie) {
            cnx.executer(u"DELETE FROM Nationalite"_s); // the entry of employees can't open
            dialogue.attendreQuestion(u"Ce salarié n'existe pas, voulez vous le créer?"_s, true);
            dialogue.attendreAvertissement(u"Veuillez importer la table nationalité en premier"_s);
            taper(u"8823450009\r46\r01092020\r\r\r8\r100\r"_s);
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
        for (const QString &liste : {u"CmbBnq"_s, u"cmbemp"_s}) {
            champ(*entetes, liste)->setFocus();
            touche(Qt::Key_Down);
        }
        QCOMPARE(textes(*entetes, u"CmbBnq LibBnq TxtTelephone"_s), u"001|--|"_s);
        dialogue.attendreAvertissement(u"Il n'y a pas d'employeur!"_s);
        cliquer(*entetes, u"cmdajt"_s);
        dialogue.attendreConfirmation(u"Confirmez la suppression ? "_s, true, u"Confirmation"_s);
        cliquer(*entetes, u"cmdDelete"_s);
        QCOMPARE(actifs(*entetes, boutons), QString());
    }
};

QTEST_MAIN(TestEcransCi)
#include "test_ecrans_ci.moc"
