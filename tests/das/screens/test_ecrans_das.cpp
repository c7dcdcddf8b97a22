#include "das/screens/frmentdas.h"
#include "das/screens/frmimpligne.h"
#include "das/screens/frmlndas.h"
#include "screens/ctrlduree.h"
#include "screens/etatsfenetres.h"
#include "tests/das/basedas.h"
#include "tests/screens/banc.h"

#include <QCalendarWidget>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include <limits>

using namespace Qt::StringLiterals;

/// The screens of the annual declaration as a clerk uses them, hands on the keys.
class TestEcransDas : public QObject
{
    Q_OBJECT

    std::unique_ptr<BancSur<BaseDas>> m_banc;

    Base &base() { return m_banc->base; }
    DialogueScenario &dialogue() { return m_banc->dialogue; }
    std::unique_ptr<frmentdas> ouvrirEntetes() { return m_banc->ouvrir(new frmentdas(m_banc->contexte)); }

    static frmlndas &ouvrirLignes(frmentdas &entetes)
    {
        cliquer(entetes, u"cmddetail"_s);
        auto *lignes = entetes.findChild<frmlndas *>(u"frmlndas"_s);
        if (!lignes)
            qFatal("no lines list");
        Banc::activer(*lignes);
        return *lignes;
    }

private slots:
    void init()
    {
        reglages().clear();
        m_banc = std::make_unique<BancSur<BaseDas>>();
    }

    void cleanup() { QVERIFY(dialogue().acheve()); }

    /// While an import runs only its stop button takes input; whatever ends it, the screen is as before.
    void importation()
    {
        const auto ecran = m_banc->ouvrir(new FrmImpLigne(m_banc->contexte));
        const auto auRepos = [&] {
            return ecran->isVisible() && actifs(*ecran, u"CmdImport Command1"_s) == u"CmdImport Command1"_s &&
                   !champ(*ecran, u"CmdArreter"_s)->isVisible() &&
                   !champ(*ecran, u"ProgressBar1"_s)->isVisible();
        };
        const auto choisir = [&](const QByteArray &lignes) {
            dialogue().attendreFichier(m_banc->fichier(u"das.txt"_s, "DAS KORVANDEL VER 1.0\n876543212023 1" +
                                                                         QByteArray(14, '0') + "1    1\n" +
                                                                         lignes));
        };
        const QByteArray ligne = QByteArray(73, ' ') + "04/03/1988" + QByteArray(256, ' ') + "1    1\n";

        QPushButton autre;
        autre.show();
        int clics = 0;
        connect(&autre, &QPushButton::clicked, this, [&] { ++clics; });
        bool enCours = false;
        QTimer::singleShot(0, this, [&] {
            enCours = champ(*ecran, u"ProgressBar1"_s)->isVisible() && base().Cnx.enTransaction();
            QTest::mouseClick(&autre, Qt::LeftButton);
            QTest::keyClick(&autre, Qt::Key_Space);
            autre.close();
            ecran->close();
            touche(Qt::Key_Space); // on the stop button, which has the focus
        });
        choisir(ligne);
        dialogue().attendreAvertissement(u"Importation arrêtée à la ligne 2 : rien n'a été enregistré."_s,
                                         u"Interruption de l'importation"_s);
        cliquer(*ecran, u"CmdImport"_s);
        QVERIFY(enCours && autre.isVisible() && auRepos());
        QCOMPARE(clics, 0);
        QTest::mouseClick(&autre, Qt::LeftButton);
        QCOMPARE(clics, 1);

        choisir("\n");
        dialogue().attendreCritique(
            u"Ligne 3 : «  » n'est pas une date (jj/mm/aaaa).\nChamp date_naiss, colonnes 74 à 83."_s);
        cliquer(*ecran, u"CmdImport"_s);
        QVERIFY(auRepos() && m_banc->menu.ouvertes.isEmpty());

        choisir(ligne);
        dialogue().attendreInformation(u"Importation du fichier DAS effectuée avec succès!"_s);
        dialogue().attendreInformation(
            u"Veuillez complèter les informations de cet employeur SVP  :  87654321"_s);
        cliquer(*ecran, u"CmdImport"_s);
        QVERIFY(!ecran->isVisible());
        QCOMPARE(m_banc->menu.ouvertes, QStringList{u"wImp"_s});
        QCOMPARE(m_banc->menu.accords, 1);
    }

    /// A header and two lines without a mouse, from empty lists.
    void saisie()
    {
        m_banc->ajouter(BaseDas::numero(1), 1, {{u"nom"_s, u"BENALI"}});
        m_banc->ajouter(BaseDas::numero(2), 1, {{u"nom"_s, u"D'ARC"}});
        base().Cnx.inserer(u"annee"_s,
                           {{u"annee"_s, 2020}, {u"compagne"_s, u"2019/2020"}}); // by another program
        const auto entetes = ouvrirEntetes();
        QCOMPARE(champ<QComboBox>(*entetes, u"cmbannee"_s)->count(), 2);
        QCOMPARE(actifs(*entetes, u"cmdmod cmdDelete cmdsup cmddetail cmdexpor Cmdprint CmdPrintLn CmdCD"_s),
                 QString());
        for (const QString &liste : {u"cmbannee"_s, u"cmbemp"_s}) {
            champ(*entetes, liste)->setFocus();
            touche(Qt::Key_Down);
        }
        champ(*entetes, u"sumedit"_s)->setFocus();
        taper(u"1 250 000.50\r"_s);
        QCOMPARE(focus(), u"total_salEdit"_s);
        taper(u"3\r"_s);
        QCOMPARE(base().RsEnteteDas.nombre(), 1);
        QCOMPARE(textes(*entetes, u"sumedit total_salEdit calcsumEdit"_s), u"|00000|"_s);

        frmlndas &lignes = ouvrirLignes(*entetes);
        QCOMPARE(textes(lignes, u"LabCampagne LabType LabRaison"_s),
                 u" Campagne     :   2024|DAS Principale|SARL L'Étoile"_s);
        QVERIFY(!champ(lignes, u"cmdmod"_s)->isEnabled());
        dansLaFenetre(lignes, u"cmdajt"_s, u"frm_add_lndas"_s, [&](QWidget &saisie) {
            QCOMPARE(textes(saisie, u"sal_annueledit mskdate"_s), u"00000000.00|__/__/____"_s);
            for (int i = 1; i <= 2; ++i) {
                QCOMPARE(focus(), u"num_saledit"_s);
                QCOMPARE(texte(saisie, u"num_saledit"_s), u"0000000000"_s);
                taper(BaseDas::numero(i).left(10) + u'\r');
                QCOMPARE(focus(), u"mskcle"_s);
                taper(BaseDas::numero(i).mid(10) + u'\r');
                QCOMPARE(textes(saisie, u"Lab_nom Lab_date_naiss"_s),
                         (i == 1 ? u"BENALI"_s : u"D'ARC"_s) + u"|04/03/1988"_s);
                QCOMPARE(focus(), u"sal_annueledit"_s);
                taper(u"600000.50\r12m\r"_s);
                QCOMPARE(focus(), u"mskdate"_s);
                taper(u"01072023"_s);
                champ<QRadioButton>(saisie, u"EOption"_s)->click();
                dialogue().attendreQuestion(questionMoyenne(u"50 000.04"_s), true);
                dialogue().attendreInformation(u"Ligne DAS ajoutée avec succès !"_s);
                QString numeroSousLaBoite;
                dialogue().aChaqueBoite = [&] { numeroSousLaBoite = texte(saisie, u"num_saledit"_s); };
                touche(Qt::Key_Return);
                dialogue().aChaqueBoite = {};
                QVERIFY(dialogue().acheve());
                QCOMPARE(numeroSousLaBoite, u"0000000000"_s); // ready for the next line already
                QCOMPARE(champ<QCalendarWidget>(saisie, u"Clend_naiss"_s)->selectedDate(), QDate(2023, 7, 1));
                QVERIFY(!champ<QRadioButton>(saisie, u"EOption"_s)->isChecked());
                QCOMPARE(texte(*entetes, u"calcsalEdit"_s), QString::number(i)); // seen at once
            }
        });
        QCOMPARE(texte(*entetes, u"calcsumEdit"_s), u"1 200 001.00"_s);
        QCOMPARE(base().RsLigneDas.ligneCourante(), 1);
        QCOMPARE(textes(lignes, u"LabNom LabCCP"_s), u"Nom      :D'ARC|N° Compte CCP   : 123456768"_s);
    }

    void entete()
    {
        m_banc->entete(2, Currency::deTexte(u"1234567.5"), 2);
        const auto entetes = ouvrirEntetes();
        champ(*entetes, u"sumedit"_s)->setFocus();
        taper(u"12x"_s);
        dialogue().attendreAvertissement(
            u"Veuillez saisir un nombre, comme montant total des salaires annuels SVP !"_s);
        touche(Qt::Key_Tab);
        QCOMPARE(focus(), u"total_salEdit"_s);
        dialogue().attendreAvertissement(u"Veuillez spécifier une année et un numéro d'employeur SVP"_s);
        cliquer(*entetes, u"cmdajt"_s);
        QCOMPARE(focus(), u"cmbannee"_s);

        dansLaFenetre(*entetes, u"cmdmod"_s, u"frm_mod_ent"_s, [&](QWidget &fenetre) {
            QCOMPARE(texte(fenetre, u"sumedit"_s), u"1 234 567.50"_s);
            dialogue().attendreAvertissement(u"Veuillez saisir un nombre!"_s);
            taper(u"abc\t"_s);
            dialogue().attendreAvertissement(u"Valeurs incorrectes!"_s);
            cliquer(fenetre, u"cmdok"_s);
            QCOMPARE(focus(), u"sumedit"_s);
            taper(u"5\r"_s);
            QVERIFY(!fenetre.isVisible());
        });
        dansLaFenetre(*entetes, u"cmdmod"_s, u"frm_mod_ent"_s, [](QWidget &fenetre) {
            taper(u"6"_s);
            cliquer(fenetre, u"cmdcancel"_s);
            QVERIFY(!fenetre.isVisible());
        });
        QCOMPARE(base().RsEnteteDas.montant(u"sum_annuel"), Currency::deEntier(5));

        dialogue().attendreConfirmation(u"Confirmez la suppression !"_s, true, u"Confirmation"_s);
        cliquer(*entetes, u"cmdsup"_s);
        QCOMPARE(actifs(*entetes, u"cmdsup cmddetail"_s), QString());
    }

    /// The lines list follows the header and what other windows change, and closes with the last header.
    void lignesSuivent()
    {
        m_banc->ajouter(BaseDas::numero(1), 1, {{u"nom"_s, u"AVANT"}});
        m_banc->entete(1);
        m_banc->ligne(BaseDas::numero(1), 1, {}, 1);
        m_banc->ligne(BaseDas::numero(12), 1, {}, 1);
        m_banc->entete(2);
        Recordset &liste = base().RsEnteteDas;
        liste.trier(u"Type"_s, Qt::DescendingOrder);
        liste.allerA(1);
        const auto entetes = ouvrirEntetes(); // in its own order again
        QCOMPARE(liste.ligne(0).entier(u"Type"), 1);
        QCOMPARE(liste.entier(u"Type"), 1);
        const QPointer<frmlndas> lignes = &ouvrirLignes(*entetes);
        QCOMPARE(texte(*lignes, u"LabNom"_s), u"Nom      :AVANT"_s);
        base().RsSalarie.modifier(base().RsSalarie.courant(), {{u"nom"_s, u"APRES"}});
        QCOMPARE(texte(*lignes, u"LabNom"_s), u"Nom      :APRES"_s);
        base().RsSalarie.supprimer(base().RsSalarie.courant());
        QCOMPARE(texte(*lignes, u"LabNom"_s), u"Nom      :"_s);
        base().RsEmployeur.modifier(base().RsEmployeur.courant(), {{u"adresse"_s, u"Ailleurs"}});
        QCOMPARE(texte(*lignes, u"LabAdresse"_s), u"Ailleurs"_s);

        QCOMPARE(base().RsLigneDas.nombre(), 2);
        champ(*lignes, u"num_salarieedit"_s)->setFocus();
        taper(BaseDas::numero(12) + u'\r');
        QCOMPARE(base().RsLigneDas.nombre(), 1);
        cliquer(*lignes, u"cmdend"_s);
        QCOMPARE(base().RsLigneDas.nombre(), 2);
        liste.allerA(1);
        QCOMPARE(base().RsLigneDas.nombre(), 0);
        QCOMPARE(texte(*lignes, u"LabType"_s), u"DAS Complémentaire"_s);
        QVERIFY(!champ(*lignes, u"cmdmod"_s)->isEnabled());
        liste.supprimer(liste.courant());
        QCOMPARE(base().RsLigneDas.nombre(), 2);
        liste.supprimer(liste.courant());
        QTest::qWait(0);
        QVERIFY(!lignes);
    }

    void modification()
    {
        m_banc->ajouter(BaseDas::numero(1), 1);
        m_banc->entete();
        m_banc->ligne(BaseDas::numero(1));
        const auto entetes = ouvrirEntetes();
        frmlndas &lignes = ouvrirLignes(*entetes);
        dansLaFenetre([&](QWidget &fenetre) {
            QCOMPARE(fenetre.objectName(), u"frm_modif_lndas"_s);
            QCOMPARE(focus(), u"sal_annueledit"_s);
            QCOMPARE(texte(fenetre, u"LabNumero"_s), BaseDas::numero(1));
            auto *entree = champ<QRadioButton>(fenetre, u"EOption"_s);
            QVERIFY(entree->isChecked());
            dialogue().attendreAvertissement(u"Date incorrecte !"_s);
            cliquer(fenetre, u"cmdok"_s);
            QCOMPARE(focus(), u"mskdate"_s);
            // A line without a movement is changed once its option is off.
            cliquer(fenetre, u"SOption"_s);
            QVERIFY(!entree->isChecked());
            cliquer(fenetre, u"SOption"_s);
            champ<QLineEdit>(fenetre, u"sal_annueledit"_s)->setText(u"12"_s);
            dialogue().attendreQuestion(questionMoyenne(u"1.00"_s, true), true);
            dialogue().attendreInformation(u"Ligne DAS modifiée avec succès!"_s);
            cliquer(fenetre, u"cmdok"_s);
            QVERIFY(!fenetre.isVisible());
        });
        QTest::keyClick(champ(lignes, u"DataGrid1"_s), Qt::Key_Return);
        QCOMPARE(texte(*entetes, u"calcsumEdit"_s), u"12.00"_s);

        dialogue().attendreConfirmation(u"Confirmez la suppression de cette ligne DAS ?"_s, true,
                                        u"Suppression"_s);
        QTest::keyClick(champ(lignes, u"DataGrid1"_s), Qt::Key_Delete);
        QCOMPARE(textes(*entetes, u"calcsumEdit calcsalEdit"_s), u".00|0"_s);
        QCOMPARE(actifs(lignes, u"cmdmod cmdsup"_s), QString());
    }

    void changeAilleurs_data()
    {
        QTest::addColumn<bool>("ligne");
        QTest::addColumn<QString>("ailleurs");
        QTest::newRow("ligne supprimee") << true << u"DELETE FROM ligne_das WHERE rowid = 1"_s;
        QTest::newRow("ligne modifiee") << true << u"UPDATE ligne_das SET nbj_travail = 3 WHERE rowid = 1"_s;
        QTest::newRow("en-tete") << false << u"UPDATE entete_das SET total_salarie = 9 WHERE Type = 2"_s;
    }

    /// Another program takes the row away under an open change window: neither that row nor a neighbour's is
    /// written, however often the clerk tries.
    void changeAilleurs()
    {
        QFETCH(bool, ligne);
        QFETCH(QString, ailleurs);
        for (int type = 1; type <= 3; ++type)
            m_banc->entete(type, Currency::deEntier(5), 5);
        for (int i = 1; i <= 2; ++i)
            m_banc->ligne(BaseDas::numero(i), 1, {}, 2);
        const auto entetes = ouvrirEntetes();
        base().RsEnteteDas.allerA(1);
        QWidget *feuille = entetes.get();
        if (ligne)
            feuille = &ouvrirLignes(*entetes);
        const auto toutesLesTables = [this] {
            return m_banc->lignes(u"SELECT * FROM ligne_das ORDER BY rowid"_s) +
                   m_banc->lignes(u"SELECT * FROM entete_das ORDER BY rowid"_s);
        };
        dansLaFenetre([&](QWidget &fenetre) {
            Connexion autre;
            autre.ouvrir(m_banc->chemin());
            QCOMPARE(autre.executer(ailleurs), 1);
            const QStringList apres = toutesLesTables();
            if (ligne)
                champ<QRadioButton>(fenetre, u"EOption"_s)->setChecked(false);
            for (int essai = 0; essai < 2; ++essai) {
                champ<QLineEdit>(fenetre, ligne ? u"sal_annueledit"_s : u"sumedit"_s)->setText(u"12"_s);
                if (!ligne) {
                    dialogue().attendreCritique(
                        u"Cette ligne de la table « entete_das » a été modifiée ou supprimée depuis qu'elle "
                        "a été lue. La liste a été relue ; veuillez recommencer."_s);
                } else if (ailleurs.startsWith(u"DELETE")) {
                    dialogue().attendreAvertissement(u"Aucun élément à modifier"_s);
                } else {
                    dialogue().attendreQuestion(questionMoyenne(u"1.00"_s, true), true);
                }
                cliquer(fenetre, u"cmdok"_s);
                QVERIFY(dialogue().acheve() && fenetre.isVisible());
                QCOMPARE(toutesLesTables(), apres);
            }
        });
        cliquer(*feuille, u"cmdmod"_s);
        QCOMPARE(base().RsEnteteDas.entier(u"Type"), 2);
    }

    void champsDeLigne()
    {
        m_banc->entete();
        m_banc->ajouter(u"000000000000"_s, 4, {{u"nom"_s, u"NOUVEAU"}});
        const auto entetes = ouvrirEntetes();
        frmlndas &lignes = ouvrirLignes(*entetes);
        dansLaFenetre(lignes, u"cmdajt"_s, u"frm_add_lndas"_s, [&](QWidget &saisie) {
            dialogue().attendreAvertissement(u"Le numéro de sécurité sociale est incorrecte "_s);
            taper(u"8823450001\r00\r"_s);
            QCOMPARE(focus(), u"num_saledit"_s);

            champ(saisie, u"mskdate"_s)->setFocus();
            touche(Qt::Key_Home);
            taper(u"31022024"_s);
            dialogue().attendreAvertissement(u"Veuillez saisir une date correcte SVP"_s);
            touche(Qt::Key_Return);
            QCOMPARE(focus(), u"mskdate"_s);
            champ<QLineEdit>(saisie, u"mskdate"_s)->setText(u"__/__/____"_s);

            auto *duree = champ<ctrlDuree>(saisie, u"nbj_travailctrl"_s);
            for (const auto &[saisi, nombre, unite] :
                 {std::tuple{u"12m"_s, qint64{12}, u'M'},
                  {u"H-7"_s, qint64{-7}, u'H'},
                  {u"j1x2.3"_s, qint64{123}, u'J'},
                  {u"99999999999999999999"_s, std::numeric_limits<qint64>::max(), u'J'}}) {
                champ<QLineEdit>(*duree, u"nombre"_s)->clear();
                QTest::keyClicks(champ(*duree, u"nombre"_s), saisi);
                QCOMPARE(duree->nombre(), nombre);
                QCOMPARE(duree->unite(), QChar(unite));
            }

            dansLaFenetre(saisie, u"cmdins"_s, u"frm_ins_num_sal"_s,
                          [](QWidget &liste) { cliquer(liste, u"cmdok"_s); });
            QCOMPARE(textes(saisie, u"num_saledit mskcle Lab_nom"_s), u"0000000000|00|NOUVEAU"_s);
            QCOMPARE(focus(), u"cmdok"_s);
        });
    }
};

QTEST_MAIN(TestEcransDas)
#include "test_ecrans_das.moc"
