#include "screens/etatsfenetres.h"
#include "screens/fenetresaisie.h"
#include "screens/fenetretable.h"
#include "screens/focus.h"
#include "storage/listerequete.h"
#include "tests/screens/banc.h"
#include "tests/storage/baseessai.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace boites;

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

    std::unique_ptr<BancSur<BaseEssai>> m_banc;

    Recordset &employeurs() { return m_banc->base.RsEmployeur; }

    void employeur(const QString &numero, const QString &nom)
    {
        employeurs().ajouter({{u"num_emp"_s, numero}, {u"rais_soc"_s, nom}});
    }

    std::unique_ptr<Fenetre> ouvrir(const QString &nom = u"Frm_essai"_s)
    {
        return m_banc->ouvrir(new Fenetre(m_banc->contexte, nom));
    }

    /// The selected row must be the current one of the grid and of the recordset.
    bool unSeulCourant(const Grille &grille)
    {
        const QModelIndexList choisies = grille.selectionModel()->selectedRows();
        return choisies.size() == 1 && choisies.first().row() == grille.currentIndex().row() &&
               grille.currentIndex().row() == employeurs().ligneCourante();
    }

    static QPoint milieuLigne(const Grille &grille, int ligne)
    {
        return grille.visualRect(grille.model()->index(ligne, 1)).center();
    }

private slots:
    void init()
    {
        reglages().clear();
        m_banc = std::make_unique<BancSur<BaseEssai>>();
        employeur(u"00000002"_s, u"Charpentes du Sud"_s);
        employeur(u"00000003"_s, u"Atelier"_s);
        employeur(u"00000001"_s, u"Bâtir"_s);
    }

    void cleanup() { QVERIFY(m_banc->dialogue.acheve()); }

    void colonnesChoisies()
    {
        const auto fenetre = ouvrir();
        const QHeaderView *tete = fenetre->grille->horizontalHeader();
        const auto titres = [&] {
            QString vus;
            for (int place = 0; place < tete->count(); ++place) {
                const int section = tete->logicalIndex(place);
                if (!tete->isSectionHidden(section))
                    vus += tete->model()->headerData(section, Qt::Horizontal).toString() + u'|';
            }
            return vus;
        };
        const QString attendus = u"Raison sociale|N° employeur|"_s;
        QCOMPARE(titres(), attendus);
        employeurs().ouvrir(commencePar(u"rais_soc"_s, u"b"));
        QCOMPARE(titres(), attendus);
        QVERIFY(unSeulCourant(*fenetre->grille));
        employeurs().fermer();
        employeurs().ouvrir();
        QCOMPARE(titres(), attendus);
        employeurs().fermer();
        QVERIFY_THROWS_EXCEPTION(ErreurBase, Fenetre(m_banc->contexte));
    }

    void ligneCourante()
    {
        const auto fenetre = ouvrir();
        Grille &grille = *fenetre->grille;
        // The current row, "?" when the selected one or the recordset's is another.
        const auto vu = [&] { return unSeulCourant(grille) ? courante(grille).last(1) : u"?"_s; };
        QCOMPARE(vu(), u"1"_s);
        QCOMPARE(grille.currentIndex().column(), 1); // the first that is seen

        // Held keys, drags and clicks beside the rows leave a row selected.
        const auto cliquerLigne = [&](int ligne, Qt::KeyboardModifiers avec = {}) {
            QTest::mouseClick(grille.viewport(), Qt::LeftButton, avec, milieuLigne(grille, ligne));
            return vu();
        };
        QCOMPARE(cliquerLigne(1), u"3"_s);
        QCOMPARE(cliquerLigne(1, Qt::ControlModifier), u"3"_s);
        QCOMPARE(cliquerLigne(0, Qt::ShiftModifier), u"2"_s);
        QTest::mousePress(grille.viewport(), Qt::LeftButton, {}, milieuLigne(grille, 0));
        QTest::mouseMove(grille.viewport(), milieuLigne(grille, 2));
        QTest::mouseRelease(grille.viewport(), Qt::LeftButton, {}, milieuLigne(grille, 2));
        QCOMPARE(vu(), u"2"_s);
        QTest::mouseClick(grille.viewport(), Qt::LeftButton, {}, {5, grille.viewport()->height() - 5});
        QCOMPARE(vu(), u"2"_s);

        QTest::keyClick(&grille, Qt::Key_Down);
        QTest::keyClick(&grille, Qt::Key_Down);
        QCOMPARE(vu(), u"1"_s);
        QTest::keyClick(&grille, Qt::Key_Home);
        QCOMPARE(vu(), u"2"_s);

        employeurs().allerA(1);
        QCOMPARE(vu(), u"3"_s);
        employeurs().trier(u"num_emp"_s);
        QCOMPARE(vu(), u"3"_s);
        employeur(u"00000009"_s, u"Zinc"_s);
        QCOMPARE(vu(), u"9"_s);
        QTest::keyClick(&grille, Qt::Key_Delete);
        QCOMPARE(vu(), u"3"_s);
        employeurs().allerA(0);
        employeurs().supprimer(employeurs().courant());
        QCOMPARE(vu(), u"2"_s);
        employeurs().requery();
        QCOMPARE(vu(), u"2"_s);
        QCOMPARE(employeurs().nombre(), 2);
    }

    void tri()
    {
        const auto fenetre = ouvrir();
        Grille &grille = *fenetre->grille;
        const QHeaderView *tete = grille.horizontalHeader();
        QVERIFY(!tete->isSortIndicatorShown());
        QTest::mouseClick(grille.viewport(), Qt::LeftButton, {}, milieuLigne(grille, 2));

        // The arrow in the head, and the row that comes first.
        const auto vu = [&] {
            return u"%1 %2 %3"_s.arg(tete->sortIndicatorSection())
                .arg(tete->sortIndicatorOrder() == Qt::AscendingOrder ? u"+"_s : u"-"_s)
                .arg(grille.model()->index(0, 1).data().toString());
        };
        cliquerTete(grille, 0);
        QCOMPARE(vu(), u"1 + Atelier"_s);
        cliquerTete(grille, 0);
        QCOMPARE(vu(), u"1 - Charpentes du Sud"_s);
        cliquerTete(grille, 1);
        QCOMPARE(vu(), u"0 + Bâtir"_s);
        // The row stays the current one through all of it.
        QCOMPARE(courante(grille), u"00000001"_s);
        QVERIFY(unSeulCourant(grille));

        // A refusal of the database is told, and the order stays.
        m_banc->base.Cnx.fermer();
        m_banc->dialogue.attendre({critique(u"La base de données n'est pas ouverte."_s)});
        cliquerTete(grille, 1);
        QCOMPARE(vu().left(3), u"0 +"_s);
    }

    void touchesEtBoutons()
    {
        const auto fenetre = ouvrir();
        Grille &grille = *fenetre->grille;
        QTest::keyClick(&grille, Qt::Key_Return);
        QTest::keyClick(&grille, Qt::Key_Enter);
        QTest::mouseClick(grille.viewport(), Qt::LeftButton, {}, milieuLigne(grille, 1));
        QTest::mouseDClick(grille.viewport(), Qt::LeftButton, {}, milieuLigne(grille, 1));
        QCOMPARE(fenetre->modifications, 3);
        QTest::mouseDClick(grille.viewport(), Qt::LeftButton, {}, {5, grille.viewport()->height() - 5});
        QCOMPARE(fenetre->modifications, 3);

        const auto actifs = [&] { return fenetre->modifier->isEnabled() + fenetre->supprimer->isEnabled(); };
        for (int reste = 3; reste > 0; --reste) {
            QCOMPARE(actifs(), 2);
            QTest::keyClick(&grille, Qt::Key_Delete);
            QCOMPARE(employeurs().nombre(), reste - 1);
        }
        QCOMPARE(actifs(), 0);
        for (const Qt::Key touche : {Qt::Key_Delete, Qt::Key_Return, Qt::Key_Home, Qt::Key_End, Qt::Key_Down})
            QTest::keyClick(&grille, touche);
        QCOMPARE(fenetre->modifications, 3);
        employeur(u"00000007"_s, u"Neuf"_s);
        QCOMPARE(actifs(), 2);
        QVERIFY(unSeulCourant(grille));
    }

    void largeurs()
    {
        int propre = 0;
        {
            const auto fenetre = ouvrir();
            Grille &grille = *fenetre->grille;
            propre = grille.columnWidth(1);
            const auto texte = grille.fontMetrics().horizontalAdvance(u"Charpentes du Sud"_s);
            QVERIFY(propre > texte && propre < 2 * texte);
            // The last column fills the grid.
            QCOMPARE(propre + grille.columnWidth(0), grille.viewport()->width());

            QHeaderView *tete = grille.horizontalHeader();
            const QPoint bord(tete->sectionViewportPosition(1) + propre - 1, tete->height() / 2);
            QTest::mousePress(tete->viewport(), Qt::LeftButton, {}, bord);
            QTest::mouseMove(tete->viewport(), bord + QPoint(20, 0));
            QTest::mouseMove(tete->viewport(), bord + QPoint(57, 0));
            QTest::mouseRelease(tete->viewport(), Qt::LeftButton, {}, bord + QPoint(57, 0));
            QCOMPARE(grille.columnWidth(1), propre + 57);
            fenetre->close();
        }
        QCOMPARE(ouvrir()->grille->columnWidth(1), propre + 57);
        QCOMPARE(ouvrir(u"Frm_autre"_s)->grille->columnWidth(1), propre);
    }

    /// In a list longer than the grid the current row is in sight, wherever a key or another order puts it.
    void courantePresente()
    {
        for (int i = 0; i < 200; ++i)
            employeur(u"1%1"_s.arg(i, 7, 10, QChar(u'0')), u"Entreprise"_s);
        employeurs().allerA(0);
        const auto fenetre = ouvrir();
        Grille &grille = *fenetre->grille;
        const auto presente = [&] {
            return grille.viewport()->rect().contains(grille.visualRect(grille.currentIndex()));
        };
        QTest::keyClick(&grille, Qt::Key_End);
        QCOMPARE(courante(grille), u"10000199"_s);
        QVERIFY(presente());
        cliquerTete(grille, 1);
        cliquerTete(grille, 1);
        QCOMPARE(grille.currentIndex().row(), 0);
        QVERIFY(presente());
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
        Banc::activer(ecran);

        int sorties = 0;
        int sortiesSuivant = 0;
        surSortie(*suivant, m_banc->recours, [&] { ++sortiesSuivant; });
        surSortie(*champ, m_banc->recours, [&] {
            ++sorties;
            if (champ->text() == u"faux")
                reprendreSaisie(*champ);
            if (champ->text() == u"panne")
                throw ErreurBase(u"panne"_s);
        });
        QSignalSpy clics(bouton, &QPushButton::clicked);
        // How often the field and the next one were left, and the button pressed.
        const auto vu = [&] { return u"%1 %2 %3"_s.arg(sorties).arg(sortiesSuivant).arg(clics.size()); };

        champ->setFocus();
        touche(Qt::Key_Tab);
        QTest::mouseClick(champ, Qt::LeftButton);
        QCOMPARE(vu(), u"1 1 0"_s);
        // A refused text: the focus comes back, the text selected, and nobody else was left by that.
        champ->setText(u"faux"_s);
        touche(Qt::Key_Tab);
        QCOMPARE(vu() + u' ' + marque(), u"2 1 0 faux"_s);
        // The click that left it does not press its button, the next one does.
        QTest::mouseClick(bouton, Qt::LeftButton);
        QCOMPARE(vu(), u"3 1 0"_s);
        QCoreApplication::processEvents();
        champ->setText(u"bon"_s);
        QTest::mouseClick(bouton, Qt::LeftButton);
        QCOMPARE(vu(), u"4 1 1"_s);
        // Neither another window nor the closing button.
        champ->setFocus();
        autre.show();
        Banc::activer(autre);
        Banc::activer(ecran);
        QCOMPARE(vu(), u"4 1 1"_s);
        champ->setText(u"panne"_s);
        m_banc->dialogue.attendre({critique(u"panne"_s)});
        touche(Qt::Key_Tab);
        QCOMPARE(vu(), u"5 1 1"_s);
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
            m_banc->base.Cnx.inserer(u"Entete_CI"_s, {{u"N_Identifiant"_s, QString(numero + u"01"_s)},
                                                      {u"N_employeur"_s, numero},
                                                      {u"date_arret"_s, QDate(2024, 2, 9)},
                                                      {u"sum_calc"_s, Currency::deTexte(u"1234567.5")}});
        ListeRequete resultat(m_banc->base.Cnx,
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
        grille.lier(resultat, {{u"nom"_s, u"Nom"_s}, {u"somme"_s, u"Cumul"_s}}, m_banc->recours);
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
        m_banc->base.Cnx.executer(u"DELETE FROM employeur WHERE num_emp = '12345678'"_s);
        resultat.requery();
        QCOMPARE(grille.currentIndex().row(), 0);
        QCOMPARE(resultat.ligne(0).texte(u"numero"), u"87654321"_s);
    }
};

QTEST_MAIN(TestGrille)
#include "test_grille.moc"
