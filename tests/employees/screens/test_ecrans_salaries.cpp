#include "employees/screens/frm_add_sal.h"
#include "employees/screens/frm_ins_num_sal.h"
#include "employees/screens/frm_mod_sal.h"
#include "employees/screens/frmimpsal.h"
#include "employees/screens/frmsalarie.h"
#include "screens/etatsfenetres.h"
#include "tests/employees/basesalaries.h"
#include "tests/screens/banc.h"

#include <QComboBox>
#include <QPlainTextEdit>

using namespace Qt::StringLiterals;
using namespace boites;

/// The windows of the employees as a clerk's hands meet them.
class TestEcransSalaries : public QObject
{
    Q_OBJECT

    std::unique_ptr<BancSur<BaseSalaries>> m_banc;

    Recordset &salaries() { return m_banc->base.RsSalarie; }
    void attendre(const Attente &boite) { m_banc->dialogue.attendre({boite}); }

    template <typename Ecran>
    std::unique_ptr<Ecran> ouvrirSaisie()
    {
        return m_banc->ouvrir(new Ecran(m_banc->contexte, nullptr));
    }

private slots:
    void init()
    {
        reglages().clear();
        m_banc = std::make_unique<BancSur<BaseSalaries>>();
    }

    void cleanup() { QVERIFY(m_banc->dialogue.acheve()); }

    /// A whole employee by the keyboard alone, field after field in reading order.
    void saisieAuClavier()
    {
        const auto ecran = ouvrirSaisie<frm_add_sal>();
        QVERIFY(ecran->width() <= 1366 && ecran->height() <= 700);
        const QString saisie = u"num_salmask=8823456789 clemask=11 nomedit=dupont prenomedit=Élie CmbSexe=M "
                               "mskdate=4/3/1988 presumeCheck=~ CmbWilaya=16 CmbCommune=1601 "
                               "lieu_naissedit=ici sfedit=m etrangerCheck= MskNumActeNaiss=12345 "
                               "MskNin=109880123123450006 TxtPIN=77 PrenomPere=paul NomMere=durand "
                               "PrenomMere=marie profesedit=macon adredit=12~rue~des~rosiers villeEdit=alger "
                               "c_postalEdit=16000 MskNTel=0550112233 TxtEmail= num_cpt_ccpedit=123456768 "
                               "cle_ccpmask=68 num_cpt_bancedit="_s;
        for (const QString &un : saisie.split(u' ')) { // "~" is a blank
            QCOMPARE(focus(), un.section(u'=', 0, 0));
            taper(un.section(u'=', 1).replace(u'~', u' ') + u'\t');
        }
        QCOMPARE(focus() + u'|' + textes(*ecran, u"nomedit prenomedit"_s), u"cmdok|DUPONT|ÉLIE"_s);
        attendre(information(u"Salarié Ajouté Avec Succès!"_s));
        touche(Qt::Key_Return);
        QCOMPARE(
            m_banc->lignes(u"SELECT * FROM salarie"_s),
            QStringList{u"882345678911|1|DUPONT|ÉLIE|M|1988-03-04|12 RUE DES ROSIERS|ALGER|16000|123456768|"
                        "00000000000000000000|MACON|||N|   ALGER CENTRE|O|M|0550112233||000000000000077|004|"
                        "12345|109880123123450006|1601|PAUL|DURAND|MARIE"_s});
        // Emptied for the next one.
        QCOMPARE(focus(), u"num_salmask"_s);
        QCOMPARE(textes(*ecran, u"num_salmask mskdate MskNin lieu_naissedit cle_ccpmask MskNTel CmbWilaya "
                                "CmbNationalite"_s),
                 u"          |__/__/____|000000000000000000||  |0000000000||Algérie"_s);
        QVERIFY(!champ(*ecran, u"presumeCheck"_s)->property("checked").toBool());
    }

    void casesACocher()
    {
        const auto ecran = ouvrirSaisie<frm_add_sal>();
        auto *commune = champ<QComboBox>(*ecran, u"CmbCommune"_s);
        champ<QComboBox>(*ecran, u"CmbWilaya"_s)->setCurrentIndex(0);
        commune->setCurrentIndex(1);
        const QString numero = u"num_salmask clemask"_s;
        cliquer(*ecran, u"blancCheck"_s);
        QCOMPARE(textes(*ecran, numero) + u'|' + focus(), u"0000000000|00|nomedit"_s);
        QCOMPARE(actifs(*ecran, numero), QString());
        cliquer(*ecran, u"blancCheck"_s);
        QCOMPARE(textes(*ecran, numero) + u'|' + focus(), u"          |  |num_salmask"_s);
        QCOMPARE(actifs(*ecran, numero), numero);

        cliquer(*ecran, u"etrangerCheck"_s);
        QCOMPARE(textes(*ecran, u"MskNumActeNaiss MskNin"_s) + u'|' + focus(),
                 u"00000|000000000000000000|profesedit"_s);
        const QString listes = u"MskNumActeNaiss MskNin CmbWilaya CmbCommune CmbNationalite"_s;
        QCOMPARE(actifs(*ecran, listes), u"CmbNationalite"_s);
        QCOMPARE(textes(*ecran, u"CmbNationalite CmbCommune"_s), u"|"_s);
        cliquer(*ecran, u"etrangerCheck"_s);
        QCOMPARE(texte(*ecran, u"CmbNationalite"_s), u"Algérie"_s);
        QCOMPARE(actifs(*ecran, listes), u"MskNumActeNaiss MskNin CmbWilaya CmbCommune"_s);

        // The communes of the last wilaya are still there to choose from, though none is chosen.
        attendre(avertissement(u"Veuillez sélectionner la wilaya en premier !"_s));
        commune->setFocus();
        touche(Qt::Key_Down);
    }

    /// A refused field gets the focus with its text selected: what is typed replaces it.
    void champRefuse()
    {
        const auto ecran = ouvrirSaisie<frm_add_sal>();
        coller(u"88 2345 6789"_s); // a pasted number may be grouped
        QCOMPARE(texte(*ecran, u"num_salmask"_s), u"8823456789"_s);

        champ(*ecran, u"mskdate"_s)->setFocus();
        taper(u"31021988"_s);
        attendre(avertissement(u"Veuillez saisir une date correcte SVP"_s));
        cliquer(*ecran, u"cmdok"_s); // the click that leaves the field does nothing else
        QCOMPARE(focus(), u"mskdate"_s);
        taper(u"04031989"_s);
        QCOMPARE(texte(*ecran, u"mskdate"_s), u"04/03/1989"_s);
        attendre(avertissement(
            u"Pas de concordance entre le numéro SS et la l'année de naissance, veuillez corriger SVP!"_s,
            u"Controle sasie"_s));
        touche(Qt::Key_Return);
        QCOMPARE(focus(), u"num_salmask"_s);
        taper(u"1"_s);
        QCOMPARE(texte(*ecran, u"num_salmask"_s), u"1         "_s);

        // Fifty characters: more is not taken, and nothing that stood there is lost.
        auto *adresse = champ<QPlainTextEdit>(*ecran, u"adredit"_s);
        adresse->setPlainText(QString(48, u'A'));
        adresse->moveCursor(QTextCursor::Start);
        adresse->insertPlainText(u"123456"_s);
        QCOMPARE(adresse->toPlainText(), u"12"_s + QString(48, u'A'));
        QVERIFY(salaries().vide());
    }

    void modification()
    {
        m_banc->ajouter(u"882345678911"_s, 3, {{u"sf"_s, u"V"}});
        const auto ecran = ouvrirSaisie<frm_mod_sal>();
        QVERIFY(!ecran->findChild<QWidget *>(u"lieu_naissedit"_s));
        QCOMPARE(textes(*ecran, u"cmdok LblCpt_z sfedit CmbCommune"_s), u"Enregistrer|3|V|0101   ADRAR"_s);

        champ<QComboBox>(*ecran, u"CmbWilaya"_s)->setCurrentIndex(-1);
        attendre(information(u"Veuillez sélectionnez la wilaya en premier !"_s));
        champ(*ecran, u"CmbCommune"_s)->setFocus();
        QTRY_COMPARE(focus(), u"CmbWilaya"_s);
        taper(u"01"_s);
        champ<QComboBox>(*ecran, u"CmbCommune"_s)->setCurrentIndex(0);

        // A change of the number that the clerk takes back is taken back on the screen.
        saisir(*ecran, u"num_salmask"_s, u"8823456780"_s);
        saisir(*ecran, u"clemask"_s, u"20"_s);
        attendre(question(u"confirmez vous le changement du numéro SS de cet employé (Oui/Non) ? "_s, false));
        cliquer(*ecran, u"cmdok"_s);
        QCOMPARE(textes(*ecran, u"num_salmask clemask"_s), u"8823456789|11"_s);
        attendre(information(u"Salarié Modifié avec Succès!"_s));
        cliquer(*ecran, u"cmdok"_s);
        QVERIFY(!ecran->isVisible());
        QCOMPARE(salaries().texte(u"sf"), u"C"_s);
    }

    void table()
    {
        m_banc->ajouter(u"882345678911"_s, 1, {{u"lieu_naiss"_s, u"   ADRAR"}});
        m_banc->ajouter(u"000000000000"_s, 1, {{u"nom"_s, u"D'ARC"}, {u"IdNat"_s, u"005"}});
        m_banc->ajouter(u"000000000000"_s, 2, {{u"nom"_s, u"ÉLOI"}});
        const auto ecran = m_banc->ouvrir(new frmsalarie(m_banc->contexte));
        auto *grille = champ<QTableView>(*ecran, u"DataGrid1"_s);
        // The frame with its count, name, birth and nationality; the number of rows is what stands last.
        const auto vu = [&] { return textes(*ecran, u"Frame3 lab1 lab5 Lab13"_s); };
        QCOMPARE(vu(), u"Liste Salariés  :  1   Sur 3|DUPONT|04/03/1988|Algérie"_s);
        QCOMPARE(grille->model()->headerData(0, Qt::Horizontal).toString(), u"N° SS"_s);
        grille->setFocus();
        touche(Qt::Key_End); // the nationality is that of the first without a number
        QCOMPARE(vu(), u"Liste Salariés  :  3   Sur 3|ÉLOI|04/03/1988|Allemagne"_s);

        const QString boutons = u"Cmdchr cmdmodif cmdsup"_s;
        QCOMPARE(actifs(*ecran, boutons), u"cmdmodif cmdsup"_s);
        cliquer(*ecran, u"Optionnom"_s);
        QCOMPARE(focus(), u"cherchedit"_s);
        taper(u"d'"_s);
        touche(Qt::Key_Return);
        QCOMPARE(texte(*ecran, u"Frame3"_s), u"Liste Salariés  :  1   Sur 1"_s);
        saisir(*ecran, u"cherchedit"_s, u"personne"_s);
        cliquer(*ecran, u"Cmdchr"_s);
        QCOMPARE(vu(), u"Liste Salariés  :  0   Sur 0|||"_s);
        QCOMPARE(actifs(*ecran, boutons), u"Cmdchr"_s);
        cliquer(*ecran, u"cmdend"_s);
        QCOMPARE(salaries().nombre(), 3);
        QVERIFY(champ(*ecran, u"cmdmodif"_s)->isEnabled());

        // A change seen at once, at the same place.
        salaries().allerA(1);
        dansLaFenetre(*ecran, u"cmdmodif"_s, u"frm_mod_sal"_s,
                      [&](QWidget &fenetre) { QCOMPARE(texte(fenetre, u"nomedit"_s), u"D'ARC"_s); });
        QCOMPARE(salaries().ligneCourante(), 1);

        attendre(question(u"Confirmer la Suppression?"_s, true, u"Confirmation"_s));
        grille->setFocus();
        touche(Qt::Key_Delete);
        // The first one is gone.
        QCOMPARE(vu(), u"Liste Salariés  :  2   Sur 2|ÉLOI|04/03/1988|Algérie"_s);
        saisir(*ecran, u"cherchedit"_s, u"dup"_s);
        cliquer(*ecran, u"Cmdchr"_s);
        QCOMPARE(salaries().nombre(), 1);
        cliquer(*ecran, u"cmdclose"_s);
        QCOMPARE(salaries().nombre(), 2); // whole again for the other screens
    }

    void ajoutDepuisLaTable()
    {
        const auto ecran = m_banc->ouvrir(new frmsalarie(m_banc->contexte));
        const QString boutons = u"cmdmodif cmdend"_s;
        QCOMPARE(actifs(*ecran, boutons), QString());
        dansLaFenetre(*ecran, u"cmdajt"_s, u"frm_add_sal"_s,
                      [&](QWidget &) { m_banc->ajouter(u"882345678911"_s, 1); });
        QCOMPARE(texte(*ecran, u"Frame3"_s), u"Liste Salariés  :  1   Sur 1"_s);
        QCOMPARE(actifs(*ecran, boutons), boutons);

        m_banc->base.Cnx.executer(u"DELETE FROM Nationalite"_s);
        for (const QString &bouton : {u"cmdajt"_s, u"cmdmodif"_s}) {
            attendre(avertissement(u"Veuillez importer la table nationalité en premier"_s));
            cliquer(*ecran, bouton);
            QVERIFY(m_banc->dialogue.acheve());
        }
    }

    void choix()
    {
        m_banc->ajouter(u"882345678911"_s, 1);
        m_banc->ajouter(u"000000000000"_s, 7, {{u"nom"_s, u"ÉLOI"}});
        auto ecran = ouvrirSaisie<frm_ins_num_sal>();
        cliquer(*ecran, u"Optionnum_salarie"_s);
        taper(u"000"_s);
        touche(Qt::Key_Return); // searches, and does not confirm
        QVERIFY(ecran->isVisible() && !ecran->choix().choisi);
        auto *grille = champ<QTableView>(*ecran, u"DataGrid1"_s);
        QCOMPARE(grille->model()->rowCount(), 1);
        const QPoint ligne = grille->visualRect(grille->model()->index(0, 2)).center();
        QTest::mouseClick(grille->viewport(), Qt::LeftButton, {}, ligne);
        QTest::mouseDClick(grille->viewport(), Qt::LeftButton, {}, ligne);
        QVERIFY(!ecran->isVisible() && ecran->choix().choisi);
        QCOMPARE(ecran->choix().Num_Salarie + ecran->choix().nom + ecran->choix().prenom,
                 u"000000000000ÉLOIJEAN"_s);
        QCOMPARE(ecran->choix().cpt_z, 7);
        QCOMPARE(salaries().nombre(), 2); // the shared list is another

        ecran = ouvrirSaisie<frm_ins_num_sal>();
        touche(Qt::Key_Escape);
        QVERIFY(!ecran->isVisible() && !ecran->choix().choisi && ecran->choix().cpt_z == 1);
        m_banc->base.Cnx.executer(u"DELETE FROM salarie"_s);
        ecran = ouvrirSaisie<frm_ins_num_sal>();
        QCOMPARE(actifs(*ecran, u"cmdok"_s), QString());
    }

    void importation()
    {
        m_banc->base.RsAnnee.ajouter({{u"annee"_s, 2020}});
        const auto ecran = m_banc->ouvrir(new FrmImpSal(m_banc->contexte));
        const QByteArray salarie = QByteArray("882345678911DUPONT").leftJustified(27) +
                                   QByteArray("JEAN").leftJustified(15) + "M04/03/1988\n";
        const QByteArray fichier = "KORVANDEL SALARIE VER 1.0\n12345678BATIR\n" + salarie + salarie;
        m_banc->dialogue.attendreFichier(m_banc->fichier(u"s.txt"_s, fichier));
        attendre(information(u"Employeur: 12345678\nBATIR\najouté."_s));
        QString sousLesBoites; // the first box stands before the rows, the other behind them
        m_banc->dialogue.aChaqueBoite = [&] { sousLesBoites += focus() + u' '; };
        attendre(information(u"Lecture Du Fichier Effectuée Avec Succès !  Résultat Affiché !"_s));
        cliquer(*ecran, u"CmdImport"_s);
        QCOMPARE(textes(*ecran, u"LabSalAdd LabSalIgn LabTot"_s),
                 u"Salariés Ajoutés : 1|Salariés Ignorés : 1|Total : 2"_s);
        QCOMPARE(m_banc->menu.accords, 1);
        m_banc->dialogue.aChaqueBoite = {};
        QCOMPARE(sousLesBoites, u"Command1 CmdArreter "_s);

        m_banc->dialogue.attendreFichier(m_banc->fichier(u"s.txt"_s, "autre"));
        attendre(avertissement(u"Fichier incorrect! Importation échouée!!"_s));
        cliquer(*ecran, u"CmdImport"_s);
        QVERIFY(champ(*ecran, u"CmdImport"_s)->isEnabled() && !champ(*ecran, u"ProgressBar1"_s)->isVisible());
        QCOMPARE(texte(*ecran, u"LabTot"_s), u"Total :"_s);
        cliquer(*ecran, u"Command1"_s);
        QVERIFY(!ecran->isVisible());
    }
};

QTEST_MAIN(TestEcransSalaries)
#include "test_ecrans_salaries.moc"
