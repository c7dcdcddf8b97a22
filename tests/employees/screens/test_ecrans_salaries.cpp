#include "employees/screens/frm_add_sal.h"
#include "employees/screens/frm_ins_num_sal.h"
#include "employees/screens/frm_mod_sal.h"
#include "employees/screens/frmimpsal.h"
#include "employees/screens/frmsalarie.h"
#include "rules/calendrier.h"
#include "screens/champmasque.h"
#include "screens/etatsfenetres.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/commun/gestes.h"
#include "tests/commun/menutemoin.h"
#include "tests/employees/basesalaries.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// Runs in the window that the next action opens modally.
void dansLaFenetre(const std::function<void(QWidget &)> &action)
{
    QTimer::singleShot(0, qApp, [action] {
        QWidget *fenetre = QApplication::activeModalWidget();
        if (!fenetre)
            return QTest::qFail("no window has opened", __FILE__, __LINE__);
        action(*fenetre);
        if (fenetre->isVisible())
            fenetre->close();
    });
}

} // namespace

class TestEcransSalaries : public QObject
{
    Q_OBJECT

    std::unique_ptr<BaseSalaries> m_donnees;
    DialogueScenario m_dialogue;
    DernierRecours m_recours{m_dialogue, [this] { m_donnees->base.Cnx.annulerTransaction(); }};
    MenuTemoin m_menu;
    BornesDePeriode m_bornes;
    std::unique_ptr<Contexte> m_contexte;

    Recordset &salaries() { return m_donnees->base.RsSalarie; }

    template <typename Ecran>
    std::unique_ptr<Ecran> ouvrir(Ecran *ecran)
    {
        ecran->show();
        if (!QTest::qWaitForWindowActive(ecran))
            qFatal("the window is not active");
        return std::unique_ptr<Ecran>(ecran);
    }

private slots:
    void init()
    {
        reglages().clear();
        m_donnees = std::make_unique<BaseSalaries>();
        m_contexte.reset(new Contexte{m_donnees->base, m_dialogue, m_recours, m_bornes, m_menu});
    }

    void cleanup() { QVERIFY(m_dialogue.acheve()); }

    /// A whole employee by the keyboard alone, field after field in reading order.
    void saisieAuClavier()
    {
        const auto ecran = ouvrir(new frm_add_sal(*m_contexte, nullptr));
        QVERIFY(ecran->width() <= 1366 && ecran->height() <= 700);
        QCOMPARE(focus(), u"num_salmask"_s);
        const QList<std::pair<QString, QString>> saisie{{u"num_salmask"_s, u"8823456789"_s},
                                                        {u"clemask"_s, u"11"_s},
                                                        {u"nomedit"_s, u"dupont"_s},
                                                        {u"prenomedit"_s, u"Élie"_s},
                                                        {u"CmbSexe"_s, u"M"_s},
                                                        {u"mskdate"_s, u"4/3/1988"_s},
                                                        {u"presumeCheck"_s, u" "_s},
                                                        {u"CmbWilaya"_s, u"16"_s},
                                                        {u"CmbCommune"_s, u"1601"_s},
                                                        {u"lieu_naissedit"_s, u"ici"_s},
                                                        {u"sfedit"_s, u"m"_s},
                                                        {u"etrangerCheck"_s, u""_s},
                                                        {u"MskNumActeNaiss"_s, u"12345"_s},
                                                        {u"MskNin"_s, u"109880123123450006"_s},
                                                        {u"TxtPIN"_s, u"77"_s},
                                                        {u"PrenomPere"_s, u"paul"_s},
                                                        {u"NomMere"_s, u"durand"_s},
                                                        {u"PrenomMere"_s, u"marie"_s},
                                                        {u"profesedit"_s, u"macon"_s},
                                                        {u"adredit"_s, u"12 rue des rosiers"_s},
                                                        {u"villeEdit"_s, u"alger"_s},
                                                        {u"c_postalEdit"_s, u"16000"_s},
                                                        {u"MskNTel"_s, u"0550112233"_s},
                                                        {u"TxtEmail"_s, u""_s},
                                                        {u"num_cpt_ccpedit"_s, u"123456768"_s},
                                                        {u"cle_ccpmask"_s, u"68"_s},
                                                        {u"num_cpt_bancedit"_s, u""_s},
                                                        {u"cmdok"_s, u""_s}};
        for (const auto &[nom, touches] : saisie) {
            QCOMPARE(focus(), nom);
            taper(touches);
            if (nom != u"cmdok")
                touche(Qt::Key_Tab);
        }
        QCOMPARE(texte(*ecran, u"nomedit"_s), u"DUPONT"_s);
        QCOMPARE(texte(*ecran, u"prenomedit"_s), u"ÉLIE"_s);
        m_dialogue.attendreInformation(u"Salarié Ajouté Avec Succès!"_s);
        touche(Qt::Key_Return);
        QCOMPARE(
            m_donnees->lignes(u"SELECT * FROM salarie"_s),
            QStringList{u"882345678911|1|DUPONT|ÉLIE|M|1988-03-04|12 RUE DES ROSIERS|ALGER|16000|123456768|"
                        "00000000000000000000|MACON|||N|   ALGER CENTRE|O|M|0550112233||000000000000077|004|"
                        "12345|109880123123450006|1601|PAUL|DURAND|MARIE"_s});
        // Emptied for the next one.
        QCOMPARE(focus(), u"num_salmask"_s);
        for (const auto &[nom, vide] : {std::pair{u"num_salmask"_s, QString(10, u' ')},
                                        {u"mskdate"_s, u"__/__/____"_s},
                                        {u"MskNin"_s, QString(18, u'0')},
                                        {u"lieu_naissedit"_s, QString()},
                                        {u"cle_ccpmask"_s, u"  "_s},
                                        {u"MskNTel"_s, u"0000000000"_s}})
            QCOMPARE(texte(*ecran, nom), vide);
        QVERIFY(!champ<QCheckBox>(*ecran, u"presumeCheck"_s)->isChecked());
        QCOMPARE(champ<QComboBox>(*ecran, u"CmbWilaya"_s)->currentIndex(), -1);
        QCOMPARE(champ<QComboBox>(*ecran, u"CmbNationalite"_s)->currentText(), u"Algérie"_s);
    }

    void casesACocher()
    {
        const auto ecran = ouvrir(new frm_add_sal(*m_contexte, nullptr));
        auto *commune = champ<QComboBox>(*ecran, u"CmbCommune"_s);
        champ<QComboBox>(*ecran, u"CmbWilaya"_s)->setCurrentIndex(0);
        commune->setCurrentIndex(1);
        cliquer(*ecran, u"blancCheck"_s);
        QCOMPARE(texte(*ecran, u"num_salmask"_s) + texte(*ecran, u"clemask"_s), u"000000000000"_s);
        QVERIFY(!champ(*ecran, u"num_salmask"_s)->isEnabled() && !champ(*ecran, u"clemask"_s)->isEnabled());
        QCOMPARE(focus(), u"nomedit"_s);
        cliquer(*ecran, u"blancCheck"_s);
        QCOMPARE(texte(*ecran, u"num_salmask"_s), QString(10, u' '));
        QCOMPARE(focus(), u"num_salmask"_s);

        cliquer(*ecran, u"etrangerCheck"_s);
        QCOMPARE(focus(), u"profesedit"_s);
        QCOMPARE(texte(*ecran, u"MskNumActeNaiss"_s) + texte(*ecran, u"MskNin"_s), QString(23, u'0'));
        const QStringList duNational{u"MskNumActeNaiss"_s, u"MskNin"_s, u"CmbWilaya"_s, u"CmbCommune"_s};
        for (const QString &nom : duNational)
            QVERIFY(!champ(*ecran, nom)->isEnabled());
        auto *nationalite = champ<QComboBox>(*ecran, u"CmbNationalite"_s);
        QVERIFY(nationalite->isEnabled() && nationalite->currentIndex() == -1 &&
                commune->currentIndex() == -1);
        cliquer(*ecran, u"etrangerCheck"_s);
        QCOMPARE(nationalite->currentIndex(), 3);
        QVERIFY(!nationalite->isEnabled());
        for (const QString &nom : duNational)
            QVERIFY(champ(*ecran, nom)->isEnabled());

        // The communes of the last wilaya are still there to choose from, though none is chosen.
        m_dialogue.attendreAvertissement(u"Veuillez sélectionner la wilaya en premier !"_s);
        commune->setFocus();
        touche(Qt::Key_Down);
    }

    /// A refused field gets the focus with its text selected: what is typed replaces it.
    void champRefuse()
    {
        const auto ecran = ouvrir(new frm_add_sal(*m_contexte, nullptr));
        // A pasted number may be grouped.
        QGuiApplication::clipboard()->setText(u"88 2345 6789"_s);
        champ<QLineEdit>(*ecran, u"num_salmask"_s)->paste();
        QCOMPARE(texte(*ecran, u"num_salmask"_s), u"8823456789"_s);

        champ(*ecran, u"mskdate"_s)->setFocus();
        taper(u"31021988"_s);
        m_dialogue.attendreAvertissement(u"Veuillez saisir une date correcte SVP"_s);
        cliquer(*ecran, u"cmdok"_s); // the click that leaves the field does nothing else
        QCOMPARE(focus(), u"mskdate"_s);
        taper(u"04031989"_s);
        QCOMPARE(texte(*ecran, u"mskdate"_s), u"04/03/1989"_s);
        m_dialogue.attendreAvertissement(
            u"Pas de concordance entre le numéro SS et la l'année de naissance, veuillez corriger SVP!"_s,
            u"Controle sasie"_s);
        touche(Qt::Key_Return);
        QCOMPARE(focus(), u"num_salmask"_s);
        taper(u"1"_s);
        QCOMPARE(texte(*ecran, u"num_salmask"_s), u"1         "_s);

        // Fifty characters: more is not taken, and nothing that stood there is lost.
        auto *adresse = champ<QPlainTextEdit>(*ecran, u"adredit"_s);
        adresse->setPlainText(QString(48, u'A'));
        adresse->moveCursor(QTextCursor::Start);
        adresse->insertPlainText(u"123456"_s);
        QCOMPARE(adresse->toPlainText(), QString(u"12"_s + QString(48, u'A')));
        QVERIFY(m_donnees->lignes(u"SELECT * FROM salarie"_s).isEmpty());
    }

    void modification()
    {
        m_donnees->ajouter(u"882345678911"_s, 3, {{u"sf"_s, u"V"}});
        const auto ecran = ouvrir(new frm_mod_sal(*m_contexte, nullptr));
        QVERIFY(!ecran->findChild<QWidget *>(u"lieu_naissedit"_s));
        QCOMPARE(champ<QPushButton>(*ecran, u"cmdok"_s)->text(), u"Enregistrer"_s);
        QCOMPARE(champ<QLabel>(*ecran, u"LblCpt_z"_s)->text(), u"3"_s);
        QCOMPARE(champ<QComboBox>(*ecran, u"sfedit"_s)->currentText(), u"V"_s);
        QCOMPARE(champ<QComboBox>(*ecran, u"CmbCommune"_s)->currentText(), u"0101   ADRAR"_s);

        champ<QComboBox>(*ecran, u"CmbWilaya"_s)->setCurrentIndex(-1);
        m_dialogue.attendreInformation(u"Veuillez sélectionnez la wilaya en premier !"_s);
        champ(*ecran, u"CmbCommune"_s)->setFocus();
        QTRY_COMPARE(focus(), u"CmbWilaya"_s);
        taper(u"01"_s);
        champ<QComboBox>(*ecran, u"CmbCommune"_s)->setCurrentIndex(0);

        // A change of the number that the clerk takes back is taken back on the screen.
        champ<QLineEdit>(*ecran, u"num_salmask"_s)->setText(u"8823456780"_s);
        champ<QLineEdit>(*ecran, u"clemask"_s)->setText(u"20"_s);
        m_dialogue.attendreQuestion(
            u"confirmez vous le changement du numéro SS de cet employé (Oui/Non) ? "_s, false);
        cliquer(*ecran, u"cmdok"_s);
        QCOMPARE(texte(*ecran, u"num_salmask"_s) + texte(*ecran, u"clemask"_s), u"882345678911"_s);
        m_dialogue.attendreInformation(u"Salarié Modifié avec Succès!"_s);
        cliquer(*ecran, u"cmdok"_s);
        QVERIFY(!ecran->isVisible());
        QCOMPARE(salaries().texte(u"sf"), u"C"_s);
    }

    void table()
    {
        m_donnees->ajouter(u"882345678911"_s, 1, {{u"lieu_naiss"_s, u"   ADRAR"}});
        m_donnees->ajouter(u"000000000000"_s, 1, {{u"nom"_s, u"D'ARC"}, {u"IdNat"_s, u"005"}});
        m_donnees->ajouter(u"000000000000"_s, 2, {{u"nom"_s, u"ÉLOI"}});
        const auto ecran = ouvrir(new frmsalarie(*m_contexte));
        auto *cadre = champ<QGroupBox>(*ecran, u"Frame3"_s);
        auto *grille = champ<QTableView>(*ecran, u"DataGrid1"_s);
        QCOMPARE(cadre->title(), u"Liste Salariés  :  1   Sur 3"_s);
        QCOMPARE(champ<QLabel>(*ecran, u"lab5"_s)->text(), u"04/03/1988"_s);
        QCOMPARE(champ<QLabel>(*ecran, u"Lab13"_s)->text(), u"Algérie"_s);
        QCOMPARE(grille->model()->headerData(0, Qt::Horizontal).toString(), u"N° SS"_s);
        grille->setFocus();
        touche(Qt::Key_End);
        QCOMPARE(cadre->title(), u"Liste Salariés  :  3   Sur 3"_s);
        QCOMPARE(champ<QLabel>(*ecran, u"lab1"_s)->text(), u"ÉLOI"_s);
        QCOMPARE(champ<QLabel>(*ecran, u"Lab13"_s)->text(),
                 u"Allemagne"_s); // that of the first without a number

        QVERIFY(!champ(*ecran, u"Cmdchr"_s)->isEnabled());
        cliquer(*ecran, u"Optionnom"_s);
        QCOMPARE(focus(), u"cherchedit"_s);
        taper(u"d'"_s);
        touche(Qt::Key_Return);
        QCOMPARE(cadre->title(), u"Liste Salariés  :  1   Sur 1"_s);
        champ<QLineEdit>(*ecran, u"cherchedit"_s)->setText(u"personne"_s);
        cliquer(*ecran, u"Cmdchr"_s);
        QCOMPARE(cadre->title(), u"Liste Salariés  :  0   Sur 0"_s);
        QCOMPARE(champ<QLabel>(*ecran, u"lab1"_s)->text(), QString());
        QVERIFY(!champ(*ecran, u"cmdmodif"_s)->isEnabled() && !champ(*ecran, u"cmdsup"_s)->isEnabled());
        cliquer(*ecran, u"cmdend"_s);
        QCOMPARE(salaries().nombre(), 3);
        QVERIFY(champ(*ecran, u"cmdmodif"_s)->isEnabled());

        // A change seen at once, at the same place.
        salaries().allerA(1);
        dansLaFenetre([&](QWidget &fenetre) {
            QCOMPARE(fenetre.objectName(), u"frm_mod_sal"_s);
            QCOMPARE(texte(fenetre, u"nomedit"_s), u"D'ARC"_s);
        });
        grille->setFocus();
        touche(Qt::Key_Return);
        QCOMPARE(salaries().ligneCourante(), 1);
        ecran->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(ecran.get()));

        m_dialogue.attendreQuestion(u"Confirmer la Suppression?"_s, true, u"Confirmation"_s);
        touche(Qt::Key_Delete);
        QCOMPARE(cadre->title(), u"Liste Salariés  :  2   Sur 2"_s);
        QCOMPARE(champ<QLabel>(*ecran, u"Lab13"_s)->text(), u"Algérie"_s); // the first one is gone
        champ<QLineEdit>(*ecran, u"cherchedit"_s)->setText(u"dup"_s);
        cliquer(*ecran, u"Cmdchr"_s);
        QCOMPARE(salaries().nombre(), 1);
        cliquer(*ecran, u"cmdclose"_s);
        QCOMPARE(salaries().nombre(), 2); // whole again for the other screens
    }

    void ajoutDepuisLaTable()
    {
        const auto ecran = ouvrir(new frmsalarie(*m_contexte));
        QVERIFY(!champ(*ecran, u"cmdmodif"_s)->isEnabled() && !champ(*ecran, u"cmdend"_s)->isEnabled());
        dansLaFenetre([&](QWidget &fenetre) {
            QCOMPARE(fenetre.objectName(), u"frm_add_sal"_s);
            m_donnees->ajouter(u"882345678911"_s, 1);
        });
        cliquer(*ecran, u"cmdajt"_s);
        QCOMPARE(champ<QGroupBox>(*ecran, u"Frame3"_s)->title(), u"Liste Salariés  :  1   Sur 1"_s);
        QVERIFY(champ(*ecran, u"cmdmodif"_s)->isEnabled() && champ(*ecran, u"cmdend"_s)->isEnabled());

        m_donnees->base.Cnx.executer(u"DELETE FROM Nationalite"_s);
        for (const QString &bouton : {u"cmdajt"_s, u"cmdmodif"_s}) {
            m_dialogue.attendreAvertissement(u"Veuillez importer la table nationalité en premier"_s);
            cliquer(*ecran, bouton);
            QVERIFY(m_dialogue.acheve());
        }
    }

    void choix()
    {
        m_donnees->ajouter(u"882345678911"_s, 1);
        m_donnees->ajouter(u"000000000000"_s, 7, {{u"nom"_s, u"ÉLOI"}});
        auto ecran = ouvrir(new frm_ins_num_sal(*m_contexte, nullptr));
        cliquer(*ecran, u"Optionnum_salarie"_s);
        taper(u"000"_s);
        touche(Qt::Key_Return); // searches, and does not confirm
        QVERIFY(ecran->isVisible() && !ecran->choix().choisi);
        auto *grille = champ<QTableView>(*ecran, u"DataGrid1"_s);
        QCOMPARE(grille->model()->rowCount(), 1);
        const QPoint ligne = grille->visualRect(grille->model()->index(0, 2)).center();
        QTest::mouseClick(grille->viewport(), Qt::LeftButton, {}, ligne);
        QTest::mouseDClick(grille->viewport(), Qt::LeftButton, {}, ligne);
        QVERIFY(!ecran->isVisible());
        QCOMPARE(ecran->choix().Num_Salarie + ecran->choix().nom + ecran->choix().prenom,
                 u"000000000000ÉLOIJEAN"_s);
        QCOMPARE(ecran->choix().cpt_z, 7);
        QVERIFY(ecran->choix().choisi);
        QCOMPARE(salaries().nombre(), 2); // the shared list is another

        ecran = ouvrir(new frm_ins_num_sal(*m_contexte, nullptr));
        touche(Qt::Key_Escape);
        QVERIFY(!ecran->isVisible() && !ecran->choix().choisi && ecran->choix().cpt_z == 1);
        m_donnees->base.Cnx.executer(u"DELETE FROM salarie"_s);
        ecran = ouvrir(new frm_ins_num_sal(*m_contexte, nullptr));
        QVERIFY(!champ(*ecran, u"cmdok"_s)->isEnabled());
    }

    void importation()
    {
        m_donnees->base.Cnx.inserer(u"annee"_s, {{u"annee"_s, 2020}});
        m_donnees->base.RsAnnee.requery();
        const auto ecran = ouvrir(new FrmImpSal(*m_contexte));
        const QByteArray salarie = QByteArray("882345678911DUPONT").leftJustified(27) +
                                   QByteArray("JEAN").leftJustified(15) + "M04/03/1988";
        m_dialogue.attendreFichier(m_donnees->fichier(
            u"s.txt"_s, "KORVANDEL SALARIE VER 1.0\n12345678BATIR\n" + salarie + "\n" + salarie + "\n"));
        m_dialogue.attendreInformation(u"Employeur: 12345678\nBATIR\najouté."_s);
        m_dialogue.attendreInformation(u"Lecture Du Fichier Effectuée Avec Succès !  Résultat Affiché !"_s);
        cliquer(*ecran, u"CmdImport"_s);
        QCOMPARE(champ<QLabel>(*ecran, u"LabSalAdd"_s)->text(), u"Salariés Ajoutés : 1"_s);
        QCOMPARE(champ<QLabel>(*ecran, u"LabSalIgn"_s)->text(), u"Salariés Ignorés : 1"_s);
        QCOMPARE(champ<QLabel>(*ecran, u"LabTot"_s)->text(), u"Total : 2"_s);
        QCOMPARE(m_menu.accords, 1);

        m_dialogue.attendreFichier(m_donnees->fichier(u"s.txt"_s, "autre"));
        m_dialogue.attendreAvertissement(u"Fichier incorrect! Importation échouée!!"_s);
        cliquer(*ecran, u"CmdImport"_s);
        QVERIFY(champ(*ecran, u"CmdImport"_s)->isEnabled() && !champ(*ecran, u"ProgressBar1"_s)->isVisible());
        QCOMPARE(champ<QLabel>(*ecran, u"LabTot"_s)->text(), u"Total :"_s);
        cliquer(*ecran, u"Command1"_s);
        QVERIFY(!ecran->isVisible());
    }
};

QTEST_MAIN(TestEcransSalaries)
#include "test_ecrans_salaries.moc"
