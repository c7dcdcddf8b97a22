#include "rules/calendrier.h"
#include "screens/etatsfenetres.h"
#include "screens/fenetresaisie.h"
#include "screens/fenetretable.h"
#include "screens/focus.h"
#include "storage/base.h"
#include "storage/demarrage.h"
#include "storage/resultat.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/commun/menutemoin.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// A table window on the employers, as its screens are built.
class Fenetre : public FenetreTable
{
public:
    explicit Fenetre(Contexte &contexte, const QString &nom = u"Frm_essai"_s)
        : FenetreTable(contexte, contexte.base.RsEmployeur)
    {
        setObjectName(nom);
        auto *disposition = new QVBoxLayout(this);
        for (QWidget *controle : std::initializer_list<QWidget *>{grille, modifier, supprimer, fermer})
            disposition->addWidget(controle);
        relier({.grille = grille, .fermer = fermer, .modifier = modifier, .supprimer = supprimer},
               {{u"rais_soc"_s, u"Raison sociale"_s}, {u"num_emp"_s, u"N° employeur"_s}});
        surClic(modifier, [this] { ++modifications; });
        surClic(supprimer,
                [&contexte] { contexte.base.RsEmployeur.supprimer(contexte.base.RsEmployeur.courant()); });
        resize(500, 400);
    }

    Grille *grille = new Grille;
    QPushButton *modifier = new QPushButton;
    QPushButton *supprimer = new QPushButton;
    QPushButton *fermer = new QPushButton;
    int modifications = 0;
};

} // namespace

class TestGrille : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_foyer;
    std::unique_ptr<Base> m_base;
    DialogueScenario m_dialogue;
    DernierRecours m_recours{m_dialogue, [] {}};
    MenuTemoin m_menu;
    BornesDePeriode m_bornes;
    QByteArray m_foyerDAvant = qgetenv("HOME");

    Contexte contexte() { return {*m_base, m_dialogue, m_recours, m_bornes, m_menu}; }

    void employeur(const QString &numero, const QString &nom)
    {
        m_base->RsEmployeur.ajouter({{u"num_emp"_s, numero}, {u"rais_soc"_s, nom}});
    }

    static QString numeroCourant(const Grille &grille)
    {
        return grille.currentIndex().siblingAtColumn(0).data().toString();
    }

    /// The selected row must be the current one of the grid and of the recordset.
    bool unSeulCourant(const Grille &grille) const
    {
        const QModelIndexList choisies = grille.selectionModel()->selectedRows();
        return choisies.size() == 1 && choisies.first().row() == grille.currentIndex().row() &&
               grille.currentIndex().row() == m_base->RsEmployeur.ligneCourante();
    }

    static void cliquerTete(Grille &grille, int place)
    {
        QHeaderView *tete = grille.horizontalHeader();
        const int section = tete->logicalIndex(place);
        QTest::mouseClick(tete->viewport(), Qt::LeftButton, {},
                          {tete->sectionViewportPosition(section) + 10, tete->height() / 2});
    }

    static QPoint milieuLigne(const Grille &grille, int ligne)
    {
        return grille.visualRect(grille.model()->index(ligne, 1)).center();
    }

private slots:
    void init()
    {
        m_foyer = std::make_unique<QTemporaryDir>();
        qputenv("HOME", m_foyer->path().toUtf8());
        reglages().clear();
        m_base = std::make_unique<Base>();
        demarrer(*m_base, m_dialogue);
        employeur(u"00000002"_s, u"Charpentes du Sud"_s);
        employeur(u"00000003"_s, u"Atelier"_s);
        employeur(u"00000001"_s, u"Bâtir"_s);
    }

    void cleanup()
    {
        m_base.reset();
        qputenv("HOME", m_foyerDAvant);
        QVERIFY(m_dialogue.acheve());
    }

    void colonnesChoisies()
    {
        Contexte c = contexte();
        Fenetre fenetre(c);
        fenetre.show();
        const QHeaderView *tete = fenetre.grille->horizontalHeader();
        const auto titres = [&] {
            QStringList vus;
            for (int place = 0; place < tete->count(); ++place) {
                const int section = tete->logicalIndex(place);
                if (!tete->isSectionHidden(section))
                    vus += tete->model()->headerData(section, Qt::Horizontal).toString();
            }
            return vus;
        };
        const QStringList attendus{u"Raison sociale"_s, u"N° employeur"_s};
        QCOMPARE(titres(), attendus);
        m_base->RsEmployeur.ouvrir(commencePar(u"rais_soc"_s, u"b"));
        QCOMPARE(titres(), attendus);
        QVERIFY(unSeulCourant(*fenetre.grille));
        m_base->RsEmployeur.fermer();
        m_base->RsEmployeur.ouvrir();
        QCOMPARE(titres(), attendus);
    }

    void ligneCourante()
    {
        Contexte c = contexte();
        Fenetre fenetre(c);
        fenetre.show();
        Grille &grille = *fenetre.grille;
        Recordset &employeurs = m_base->RsEmployeur;
        QVERIFY(unSeulCourant(grille));

        QTest::mouseClick(grille.viewport(), Qt::LeftButton, {}, milieuLigne(grille, 1));
        QCOMPARE(numeroCourant(grille), u"00000003"_s);
        QVERIFY(unSeulCourant(grille));
        // Held keys, drags and clicks beside the rows leave a row selected.
        QTest::mouseClick(grille.viewport(), Qt::LeftButton, Qt::ControlModifier, milieuLigne(grille, 1));
        QVERIFY(unSeulCourant(grille));
        QTest::mouseClick(grille.viewport(), Qt::LeftButton, Qt::ShiftModifier, milieuLigne(grille, 0));
        QVERIFY(unSeulCourant(grille));
        QTest::mousePress(grille.viewport(), Qt::LeftButton, {}, milieuLigne(grille, 0));
        QTest::mouseMove(grille.viewport(), milieuLigne(grille, 2));
        QTest::mouseRelease(grille.viewport(), Qt::LeftButton, {}, milieuLigne(grille, 2));
        QVERIFY(unSeulCourant(grille));
        QTest::mouseClick(grille.viewport(), Qt::LeftButton, {}, {5, grille.viewport()->height() - 5});
        QVERIFY(unSeulCourant(grille));

        QTest::keyClick(&grille, Qt::Key_Home);
        QCOMPARE(numeroCourant(grille), u"00000002"_s);
        QTest::keyClick(&grille, Qt::Key_Down);
        QTest::keyClick(&grille, Qt::Key_Down);
        QCOMPARE(numeroCourant(grille), u"00000001"_s);
        QVERIFY(unSeulCourant(grille));

        employeurs.allerA(1);
        QVERIFY(unSeulCourant(grille));
        employeurs.trier(u"num_emp"_s);
        QCOMPARE(numeroCourant(grille), u"00000003"_s);
        QVERIFY(unSeulCourant(grille));
        employeur(u"00000009"_s, u"Zinc"_s);
        QCOMPARE(numeroCourant(grille), u"00000009"_s);
        QVERIFY(unSeulCourant(grille));
        QTest::keyClick(&grille, Qt::Key_Delete);
        QCOMPARE(employeurs.nombre(), 3);
        QVERIFY(unSeulCourant(grille));
        employeurs.allerA(0);
        employeurs.supprimer(employeurs.courant());
        QVERIFY(unSeulCourant(grille));
        employeurs.requery();
        QVERIFY(unSeulCourant(grille));
    }

    void tri()
    {
        Contexte c = contexte();
        Fenetre fenetre(c);
        fenetre.show();
        Grille &grille = *fenetre.grille;
        const QHeaderView *tete = grille.horizontalHeader();
        QVERIFY(!tete->isSortIndicatorShown());
        QTest::mouseClick(grille.viewport(), Qt::LeftButton, {}, milieuLigne(grille, 2));

        const auto premier = [&] { return grille.model()->index(0, 1).data().toString(); };
        cliquerTete(grille, 0);
        QCOMPARE(premier(), u"Atelier"_s);
        QVERIFY(tete->isSortIndicatorShown());
        QCOMPARE(tete->sortIndicatorSection(), 1);
        QCOMPARE(tete->sortIndicatorOrder(), Qt::AscendingOrder);
        cliquerTete(grille, 0);
        QCOMPARE(premier(), u"Charpentes du Sud"_s);
        QCOMPARE(tete->sortIndicatorOrder(), Qt::DescendingOrder);
        cliquerTete(grille, 1);
        QCOMPARE(premier(), u"Bâtir"_s);
        QCOMPARE(tete->sortIndicatorSection(), 0);
        QCOMPARE(tete->sortIndicatorOrder(), Qt::AscendingOrder);
        // The row stays the current one through all of it.
        QCOMPARE(numeroCourant(grille), u"00000001"_s);
        QVERIFY(unSeulCourant(grille));

        // A refusal of the database is told, and the order stays.
        m_base->Cnx.fermer();
        m_dialogue.attendreCritique(u"La base de données n'est pas ouverte."_s);
        cliquerTete(grille, 1);
        QCOMPARE(tete->sortIndicatorOrder(), Qt::AscendingOrder);
    }

    void touchesEtBoutons()
    {
        Contexte c = contexte();
        Fenetre fenetre(c);
        fenetre.show();
        Grille &grille = *fenetre.grille;
        QTest::keyClick(&grille, Qt::Key_Return);
        QTest::keyClick(&grille, Qt::Key_Enter);
        QTest::mouseClick(grille.viewport(), Qt::LeftButton, {}, milieuLigne(grille, 1));
        QTest::mouseDClick(grille.viewport(), Qt::LeftButton, {}, milieuLigne(grille, 1));
        QCOMPARE(fenetre.modifications, 3);
        QTest::mouseDClick(grille.viewport(), Qt::LeftButton, {}, {5, grille.viewport()->height() - 5});
        QCOMPARE(fenetre.modifications, 3);

        for (int reste = 3; reste > 0; --reste) {
            QVERIFY(fenetre.modifier->isEnabled() && fenetre.supprimer->isEnabled());
            QTest::keyClick(&grille, Qt::Key_Delete);
            QCOMPARE(m_base->RsEmployeur.nombre(), reste - 1);
        }
        QVERIFY(!fenetre.modifier->isEnabled() && !fenetre.supprimer->isEnabled());
        for (const Qt::Key touche : {Qt::Key_Delete, Qt::Key_Return, Qt::Key_Home, Qt::Key_End, Qt::Key_Down})
            QTest::keyClick(&grille, touche);
        QCOMPARE(fenetre.modifications, 3);
        employeur(u"00000007"_s, u"Neuf"_s);
        QVERIFY(fenetre.modifier->isEnabled() && fenetre.supprimer->isEnabled());
        QVERIFY(unSeulCourant(grille));
    }

    void tableFermee()
    {
        m_base->RsEmployeur.fermer();
        Contexte c = contexte();
        QVERIFY_THROWS_EXCEPTION(ErreurBase, Fenetre(c, u"Frm_essai"_s));
    }

    void largeurs()
    {
        Contexte c = contexte();
        const auto largeur = [](const Fenetre &fenetre) { return fenetre.grille->columnWidth(1); };
        int propre = 0;
        {
            Fenetre fenetre(c);
            fenetre.show();
            propre = largeur(fenetre);
            const auto texte = fenetre.grille->fontMetrics().horizontalAdvance(u"Charpentes du Sud"_s);
            QVERIFY(propre > texte && propre < 2 * texte);
            // The last column fills the grid.
            QCOMPARE(propre + fenetre.grille->columnWidth(0), fenetre.grille->viewport()->width());

            QHeaderView *tete = fenetre.grille->horizontalHeader();
            const QPoint bord(tete->sectionViewportPosition(1) + propre - 1, tete->height() / 2);
            QTest::mousePress(tete->viewport(), Qt::LeftButton, {}, bord);
            QTest::mouseMove(tete->viewport(), bord + QPoint(20, 0));
            QTest::mouseMove(tete->viewport(), bord + QPoint(57, 0));
            QTest::mouseRelease(tete->viewport(), Qt::LeftButton, {}, bord + QPoint(57, 0));
            QCOMPARE(largeur(fenetre), propre + 57);
            fenetre.close();
        }
        Fenetre encore(c);
        encore.show();
        QCOMPARE(largeur(encore), propre + 57);
        Fenetre autre(c, u"Frm_autre"_s);
        autre.show();
        QCOMPARE(largeur(autre), propre);
    }

    void deuxCentMilleLignes()
    {
        {
            Transaction transaction(m_base->Cnx);
            m_base->Cnx.executer(
                u"WITH RECURSIVE n(i) AS (SELECT 100 UNION ALL SELECT i + 1 FROM n WHERE i < 200099) "
                "INSERT INTO employeur (num_emp, rais_soc) SELECT printf('%08d', i), 'Entreprise ' || i FROM n"_s);
            transaction.commit();
        }
        Contexte c = contexte();
        Fenetre fenetre(c);
        fenetre.show();
        Grille &grille = *fenetre.grille;
        QCOMPARE(grille.model()->rowCount(), 200003);
        QTest::keyClick(&grille, Qt::Key_End);
        QCOMPARE(numeroCourant(grille), u"00200099"_s);
        QVERIFY(grille.viewport()->rect().contains(grille.visualRect(grille.currentIndex())));
        cliquerTete(grille, 1);
        cliquerTete(grille, 1);
        QCOMPARE(grille.currentIndex().row(), 0);
        QVERIFY(grille.viewport()->rect().contains(grille.visualRect(grille.currentIndex())));
    }

    void sortieDeChamp()
    {
        QWidget ecran;
        auto *champ = new QLineEdit;
        auto *suivant = new QLineEdit;
        auto *bouton = new QPushButton;
        auto *fermer = new QPushButton;
        auto *disposition = new QVBoxLayout(&ecran);
        for (QWidget *controle : std::initializer_list<QWidget *>{champ, suivant, bouton, fermer})
            disposition->addWidget(controle);
        fermerPar(*fermer, ecran);
        QWidget autre;
        new QLineEdit(&autre);
        ecran.show();
        QVERIFY(QTest::qWaitForWindowActive(&ecran));

        int sorties = 0;
        int sortiesSuivant = 0;
        surSortie(*suivant, m_recours, [&] { ++sortiesSuivant; });
        surSortie(*champ, m_recours, [&] {
            ++sorties;
            if (champ->text() == u"faux")
                reprendreSaisie(*champ);
            if (champ->text() == u"panne")
                throw ErreurBase(u"panne"_s);
        });
        QSignalSpy clics(bouton, &QPushButton::clicked);

        champ->setFocus();
        QTest::keyClick(champ, Qt::Key_Tab);
        QCOMPARE(sorties, 1);
        QTest::mouseClick(champ, Qt::LeftButton);
        QCOMPARE(sortiesSuivant, 1);
        // A refused text: the focus comes back, the text selected, and nobody else was left by that.
        champ->setText(u"faux"_s);
        QTest::keyClick(champ, Qt::Key_Tab);
        QCOMPARE(sorties, 2);
        QCOMPARE(sortiesSuivant, 1);
        QVERIFY(champ->hasFocus());
        QCOMPARE(champ->selectedText(), u"faux"_s);
        // The click that left it does not press its button, the next one does.
        QTest::mouseClick(bouton, Qt::LeftButton);
        QCOMPARE(sorties, 3);
        QCOMPARE(clics.size(), 0);
        QCoreApplication::processEvents();
        champ->setText(u"bon"_s);
        QTest::mouseClick(bouton, Qt::LeftButton);
        QCOMPARE(sorties, 4);
        QCOMPARE(clics.size(), 1);
        // Neither another window nor the closing button.
        champ->setFocus();
        autre.show();
        autre.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&autre));
        ecran.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&ecran));
        QCOMPARE(sorties, 4);
        champ->setText(u"panne"_s);
        m_dialogue.attendreCritique(u"panne"_s);
        QTest::keyClick(champ, Qt::Key_Tab);
        QCOMPARE(sorties, 5);
        champ->setFocus();
        QTest::mouseClick(fermer, Qt::LeftButton);
        QVERIFY(!ecran.isVisible());
        QCOMPARE(sorties, 5);
    }

    /// A query of two tables: how its values look, in which order they come, and which row stays current.
    void requeteDeDeuxTables()
    {
        employeur(u"12345678"_s, u"Zorn"_s);
        employeur(u"87654321"_s, u"Abel"_s);
        for (const QString &numero : {u"12345678"_s, u"87654321"_s})
            m_base->Cnx.inserer(u"Entete_CI"_s, {{u"N_Identifiant"_s, QString(numero + u"01"_s)},
                                                 {u"N_employeur"_s, numero},
                                                 {u"date_arret"_s, QDate(2024, 2, 9)},
                                                 {u"sum_calc"_s, Currency::deTexte(u"1234567.5")}});
        Resultat resultat(m_base->Cnx,
                          {{u"numero"_s, u"e.num_emp"_s},
                           {u"nom"_s, u"e.rais_soc"_s},
                           {u"arret"_s, u"c.date_arret"_s, Genre::Jour},
                           {u"somme"_s, u"c.sum_calc"_s, Genre::Montant},
                           {u"effectif"_s, u"c.total_calc"_s, Genre::Entier}},
                          1);
        const QString depuis = u"FROM employeur AS e, Entete_CI AS c WHERE c.N_employeur = e.num_emp"_s;
        resultat.ouvrir(depuis, {}, u"e.rais_soc"_s);
        QWidget ecran;
        Grille grille(&ecran);
        grille.lier(resultat, {{u"nom"_s, u"Nom"_s}, {u"somme"_s, u"Cumul"_s}}, m_recours);
        const auto ligne = [&](int rang) {
            QStringList textes;
            for (int colonne = 0; colonne < 5; ++colonne)
                textes += grille.model()->index(rang, colonne).data().toString();
            return textes.join(u'|');
        };
        QCOMPARE(ligne(0), u"87654321|Abel|09/02/2024|1 234 567.50|"_s);
        QCOMPARE(grille.model()->headerData(3, Qt::Horizontal).toString(), u"Cumul"_s);
        const QVariant droite = grille.model()->index(0, 3).data(Qt::TextAlignmentRole);
        QVERIFY(droite.value<Qt::Alignment>() & Qt::AlignRight);

        resultat.trier(u"nom"_s, Qt::DescendingOrder);
        QCOMPARE(ligne(0), u"12345678|Zorn|09/02/2024|1 234 567.50|"_s);
        QCOMPARE(resultat.ligneCourante(), 1);
        m_base->Cnx.executer(u"DELETE FROM employeur WHERE num_emp = '12345678'"_s);
        resultat.requery();
        QCOMPARE(grille.currentIndex().row(), 0);
        QCOMPARE(resultat.ligne(0).texte(u"numero"), u"87654321"_s);
    }
};

QTEST_MAIN(TestGrille)
#include "test_grille.moc"
