#include "reference/campagnes.h"
#include "reference/periodes.h"
#include "reference/screens/frmannee.h"
#include "reference/screens/frmperiode.h"
#include "rules/calendrier.h"
#include "rules/date.h"
#include "screens/dernierrecours.h"
#include "screens/grille.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/commun/horloge.h"
#include "tests/commun/menutemoin.h"
#include "tests/reference/basereference.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

const QString choisir = u"Veuillez selectionner une année à ajouter"_s;
const QString incorrecte = u"Saisissez une année correcte."_s;
const QString nonConforme =
    u"Année non conforme!\nSaisissez une année superieure à 1997 et inferieure ou égale "
    "à l'année en cours."_s;
const QString existante = u"Veuillez ne pas choisir une année existante"_s;
const QString autrePeriode = u"Veuillez une autre période"_s;

/// Fills the file to its last byte and forbids it to grow.
void remplirDisque(Connexion &cnx)
{
    cnx.existe(u"PRAGMA max_page_count = %1"_s.arg(cnx.premiere(u"PRAGMA page_count"_s).entier(0)));
    // What is free inside the pages of the two tables goes too.
    for (const int taille : {1500, 20}) {
        for (const QString &table : {u"annee"_s, u"Periode"_s}) {
            try {
                for (int i = 0; i < 5000; ++i) {
                    if (table == u"annee")
                        cnx.inserer(table, {{u"annee"_s, 100'000 * taille + i},
                                            {u"compagne"_s, u"x"_s.repeated(taille)}});
                    else
                        cnx.inserer(table, {{u"Code"_s, QString(u"b%1"_s.arg(i + taille))}});
                }
            } catch (const ErreurBase &) {
            }
        }
    }
}

} // namespace

/// Campaigns and periods, from the rule to the window.
class TestCampagnes : public QObject
{
    Q_OBJECT

    std::unique_ptr<BaseReference> m_essai;
    std::unique_ptr<DialogueScenario> m_dialogue;
    std::unique_ptr<DernierRecours> m_recours;
    std::unique_ptr<Contexte> m_contexte;
    std::unique_ptr<QWidget> m_fenetre;
    MenuTemoin m_menu;
    BornesDePeriode m_bornes;

    Base &base() { return m_essai->base; }
    QStringList annees()
    {
        return m_essai->lignes(u"SELECT annee || ' ' || compagne FROM annee ORDER BY rowid"_s);
    }
    QStringList periodes() { return m_essai->lignes(u"SELECT Code || Etat FROM Periode ORDER BY rowid"_s); }

    template <typename Ecran>
    QWidget &ouvrir()
    {
        m_fenetre = std::make_unique<Ecran>(*m_contexte);
        m_fenetre->show();
        if (!QTest::qWaitForWindowActive(m_fenetre.get()))
            qFatal("the window does not become active");
        return *m_fenetre;
    }

    template <typename T>
    T &trouver(const char16_t *nom)
    {
        T *controle = m_fenetre->findChild<T *>(QString::fromUtf16(nom));
        if (!controle)
            qFatal("no control %s", qPrintable(QString::fromUtf16(nom)));
        return *controle;
    }

    void cliquer(const char16_t *bouton) { QTest::mouseClick(&trouver<QPushButton>(bouton), Qt::LeftButton); }

    static constexpr int cetteAnnee = 2024;

private slots:
    void initTestCase() { arreterHorloge(QDate(cetteAnnee, 12, 31)); }

    void init()
    {
        m_essai = std::make_unique<BaseReference>();
        m_dialogue = std::make_unique<DialogueScenario>();
        m_recours =
            std::make_unique<DernierRecours>(*m_dialogue, [this] { base().Cnx.annulerTransaction(); });
        m_contexte = std::make_unique<Contexte>(Contexte{base(), *m_dialogue, *m_recours, m_bornes, m_menu});
        m_menu.accords = 0;
    }

    void cleanup()
    {
        m_fenetre.reset();
        QVERIFY(m_dialogue->acheve());
    }

    void annee_data()
    {
        QTest::addColumn<QString>("saisie");
        QTest::addColumn<QString>("refus");
        QTest::addColumn<QString>("ligne");
        QTest::newRow("nothing") << QString() << choisir << QString();
        QTest::newRow("blanks") << u"    "_s << incorrecte << QString();
        QTest::newRow("letters") << u"deux"_s << incorrecte << QString();
        QTest::newRow("a quote") << u"20'1"_s << incorrecte << QString();
        QTest::newRow("an exponent") << u"2e03"_s << incorrecte << QString();
        QTest::newRow("five digits") << u"20211"_s << incorrecte << QString();
        QTest::newRow("three digits") << u"999"_s << incorrecte << QString();
        QTest::newRow("a decimal") << u"20.5"_s << nonConforme << QString();
        QTest::newRow("negative") << u"-999"_s << nonConforme << QString();
        QTest::newRow("before the first") << u"1997"_s << nonConforme << QString();
        QTest::newRow("next year") << QString::number(cetteAnnee + 1) << nonConforme << QString();
        QTest::newRow("there already") << u"2010"_s << u"Année déja créée!"_s << QString();
        QTest::newRow("the first") << u"1998"_s << QString() << u"1998 du 01/07/1997 au 30/06/1998"_s;
        QTest::newRow("blanks around") << u" 2021 "_s << QString() << u"2021 du 01/07/2020 au 30/06/2021"_s;
        QTest::newRow("this year") << QString::number(cetteAnnee) << QString()
                                   << u"%1 du 01/07/%2 au 30/06/%1"_s.arg(cetteAnnee).arg(cetteAnnee - 1);
    }

    void annee()
    {
        QFETCH(QString, saisie);
        QFETCH(QString, refus);
        QFETCH(QString, ligne);
        QStringList attendu{u"2010 à la main"_s};
        base().RsAnnee.ajouter({{u"annee"_s, 2010}, {u"compagne"_s, u"à la main"}});
        if (!refus.isEmpty())
            m_dialogue->attendreAvertissement(refus);
        else
            attendu += ligne;
        QCOMPARE(ajouterCampagne(base(), saisie, *m_dialogue), refus.isEmpty());
        QCOMPARE(annees(), attendu);
        if (refus.isEmpty())
            QCOMPARE(base().RsAnnee.entier(u"annee"), ligne.left(4).toInt());
    }

    void trimestre_data()
    {
        QTest::addColumn<QString>("annee");
        QTest::addColumn<QString>("trimestre");
        QTest::addColumn<QString>("refus");
        QTest::addColumn<QStringList>("lignes");
        const QStringList deja{u"202002N"_s, u"2019T1O"_s};
        QTest::newRow("no year") << QString() << u"T1"_s << u"Veuillez selectionner l'exercice SVP"_s << deja;
        QTest::newRow("no quarter") << u"2022"_s << QString() << u"Veuillez selectionner le trimestre SVP"_s
                                    << deja;
        QTest::newRow("there already") << u"2019"_s << u"T1"_s << u"la période est déja créée!"_s << deja;
        QTest::newRow("T3") << u"2022"_s << u"T3"_s << QString()
                            << deja + QStringList{u"202207N"_s, u"202208N"_s, u"202209N"_s, u"2022T3N"_s};
        QTest::newRow("T4") << u"2022"_s << u"T4"_s << QString()
                            << deja + QStringList{u"202210N"_s, u"202211N"_s, u"202212N"_s, u"2022T4N"_s};
        // A month that an older database has by itself: what was added before it stays.
        QTest::newRow("a month alone")
            << u"2020"_s << u"T1"_s << autrePeriode << deja + QStringList{u"202001N"_s};
    }

    void trimestre()
    {
        QFETCH(QString, annee);
        QFETCH(QString, trimestre);
        QFETCH(QString, refus);
        QFETCH(QStringList, lignes);
        base().RsPeriode.ajouter({{u"Code"_s, u"202002"}, {u"Etat"_s, u"N"}});
        base().RsPeriode.ajouter({{u"Code"_s, u"2019T1"}, {u"Etat"_s, u"O"}});
        if (!refus.isEmpty())
            m_dialogue->attendreAvertissement(refus);
        QCOMPARE(ajouterPeriodes(base(), annee, trimestre, *m_dialogue), refus.isEmpty());
        QCOMPARE(periodes(), lignes);
        QCOMPARE(base().RsPeriode.nombre(), lignes.size());
    }

    void disquePlein()
    {
        remplirDisque(base().Cnx);
        base().RsAnnee.requery();
        base().RsPeriode.requery();
        const QStringList anneesAvant = annees();
        const QStringList periodesAvant = periodes();
        const QString plein = u"Le disque qui porte « %1 » est plein : rien n'a été enregistré.\n"
                              "(database or disk is full)"_s.arg(m_essai->chemin());
        m_dialogue->attendreAvertissement(existante);
        m_dialogue->attendreCritique(plein);
        QVERIFY(!ajouterCampagne(base(), u"2021"_s, *m_dialogue));
        m_dialogue->attendreAvertissement(autrePeriode);
        m_dialogue->attendreCritique(plein);
        QVERIFY(!ajouterPeriodes(base(), u"2021"_s, u"T2"_s, *m_dialogue));
        QCOMPARE(annees(), anneesAvant);
        QCOMPARE(periodes(), periodesAvant);
        QCOMPARE(base().RsAnnee.nombre(), anneesAvant.size());

        base().Cnx.existe(u"PRAGMA max_page_count = 1000000"_s);
        QVERIFY(ajouterCampagne(base(), u"2021"_s, *m_dialogue));
        QVERIFY(ajouterPeriodes(base(), u"2021"_s, u"T2"_s, *m_dialogue));
    }

    void deuxProgrammes()
    {
        Connexion autre;
        autre.ouvrir(m_essai->chemin());
        // What the other one has added is seen, although the list here did not show it.
        autre.inserer(u"annee"_s, {{u"annee"_s, 2015}});
        m_dialogue->attendreAvertissement(u"Année déja créée!"_s);
        QVERIFY(!ajouterCampagne(base(), u"2015"_s, *m_dialogue));
        QCOMPARE(base().RsAnnee.nombre(), 1);

        base().Cnx.existe(u"PRAGMA busy_timeout = 20"_s);
        const QString occupee =
            u"La base de données « %1 » est occupée par un autre programme.\n(database is locked)"_s.arg(
                m_essai->chemin());
        {
            Transaction tenue(autre);
            m_dialogue->attendreAvertissement(existante);
            m_dialogue->attendreCritique(occupee);
            QVERIFY(!ajouterCampagne(base(), u"2021"_s, *m_dialogue));
            m_dialogue->attendreAvertissement(autrePeriode);
            m_dialogue->attendreCritique(occupee);
            QVERIFY(!ajouterPeriodes(base(), u"2021"_s, u"T2"_s, *m_dialogue));
        }
        QVERIFY(periodes().isEmpty());
        QVERIFY(ajouterCampagne(base(), u"2021"_s, *m_dialogue));
    }

    void fenetreCampagnes()
    {
        base().RsAnnee.ajouter({{u"annee"_s, 2010}, {u"compagne"_s, u"du 01/07/2009 au 30/06/2010"}});
        base().RsAnnee.ajouter({{u"annee"_s, 2012}, {u"compagne"_s, u"du 01/07/2011 au 30/06/2012"}});
        ouvrir<frmannee>();
        QCOMPARE(m_fenetre->objectName(), u"frmannee"_s);
        auto &liste = trouver<QComboBox>(u"cmbannee");
        auto &grille = trouver<Grille>(u"DataGrid1");
        QCOMPARE(liste.count(), 6);
        QCOMPARE(liste.itemText(5), QString::number(cetteAnnee - 5));
        QCOMPARE(liste.currentText(), QString::number(cetteAnnee));
        QVERIFY(liste.hasFocus());

        // Typed over what is offered, and never completed to it.
        QTest::keyClicks(liste.lineEdit(), u"202"_s);
        m_dialogue->attendreAvertissement(incorrecte);
        cliquer(u"cmb_add");
        QVERIFY(liste.hasFocus());
        QCOMPARE(liste.lineEdit()->selectedText(), u"202"_s);
        QGuiApplication::clipboard()->setText(u"20211"_s);
        QTest::keyClick(liste.lineEdit(), Qt::Key_V, Qt::ControlModifier);
        m_dialogue->attendreAvertissement(incorrecte);
        QTest::keyClick(&liste, Qt::Key_Return);
        QCOMPARE(m_menu.accords, 0);

        liste.lineEdit()->selectAll();
        QTest::keyClicks(liste.lineEdit(), u"2011"_s);
        QTest::keyClick(&liste, Qt::Key_Return);
        QCOMPARE(annees().last(), u"2011 du 01/07/2010 au 30/06/2011"_s);
        QCOMPARE(grille.currentIndex().siblingAtColumn(0).data().toString(), u"2011"_s);
        QCOMPARE(grille.currentIndex().row(), 1); // the newest stands first
        QCOMPARE(liste.lineEdit()->selectedText(), u"2011"_s);
        QCOMPARE(m_menu.accords, 1);
        // There is no employer yet, and the declarations need one.
        QVERIFY(!base().declarationsPossibles());
        base().RsEmployeur.ajouter({{u"num_emp"_s, u"12345678"}});
        QVERIFY(base().declarationsPossibles());
        liste.setCurrentIndex(1);
        cliquer(u"cmb_add");
        QCOMPARE(annees().last().left(4), QString::number(cetteAnnee - 1));

        cliquer(u"Command1");
        QVERIFY(!m_fenetre->isVisible());
    }

    void fenetrePeriodes()
    {
        ouvrir<frmPeriode>();
        QCOMPARE(m_fenetre->objectName(), u"frmPeriode"_s);
        auto &annee = trouver<QComboBox>(u"cmbannee");
        auto &mois = trouver<QComboBox>(u"CmbMois");
        QCOMPARE(annee.count(), 11);
        QCOMPARE(annee.itemText(10), QString::number(cetteAnnee - 10));
        m_dialogue->attendreAvertissement(u"Veuillez selectionner l'exercice SVP"_s);
        cliquer(u"cmb_add");
        QVERIFY(annee.hasFocus());
        annee.setCurrentIndex(2);
        m_dialogue->attendreAvertissement(u"Veuillez selectionner le trimestre SVP"_s);
        cliquer(u"cmb_add");
        QVERIFY(mois.hasFocus());
        QTest::keyClicks(&mois, u"T"_s);
        mois.setCurrentIndex(3);
        cliquer(u"cmb_add");
        const QString an = annee.currentText();
        QCOMPARE(periodes(), (QStringList{an + u"10N"_s, an + u"11N"_s, an + u"12N"_s, an + u"T4N"_s}));
        auto &grille = trouver<Grille>(u"DataGrid1");
        QCOMPARE(grille.currentIndex().siblingAtColumn(0).data().toString(), an + u"T4"_s);
        QTest::mouseClick(grille.horizontalHeader()->viewport(), Qt::LeftButton, {}, {10, 8});
        QCOMPARE(grille.model()->index(0, 0).data().toString(), an + u"10"_s);
        // Nothing removes a period.
        QTest::keyClick(&grille, Qt::Key_Delete);
        QCOMPARE(periodes().size(), 4);
    }

    void tableFermee()
    {
        for (Recordset *rs : {&base().RsAnnee, &base().RsPeriode})
            rs->fermer();
        QVERIFY_THROWS_EXCEPTION(ErreurBase, frmannee{*m_contexte});
        QVERIFY_THROWS_EXCEPTION(ErreurBase, frmPeriode{*m_contexte});
    }
};

QTEST_MAIN(TestCampagnes)
#include "test_campagnes.moc"
