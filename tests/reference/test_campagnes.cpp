#include "reference/campagnes.h"
#include "reference/periodes.h"
#include "reference/screens/frmannee.h"
#include "reference/screens/frmperiode.h"
#include "rules/date.h"
#include "tests/commun/cas.h"
#include "tests/commun/horloge.h"
#include "tests/screens/banc.h"
#include "tests/storage/baseessai.h"

#include <QComboBox>

using namespace Qt::StringLiterals;
using namespace boites;

namespace {

const QString choisir = u"Veuillez selectionner une année à ajouter"_s;
const QString incorrecte = u"Saisissez une année correcte."_s;
const QString nonConforme =
    u"Année non conforme!\nSaisissez une année superieure à 1997 et inferieure ou égale "
    "à l'année en cours."_s;
const QString dejaCreee = u"Année déja créée!"_s;
const QString autrePeriode = u"Veuillez une autre période"_s;

/// Fills the file to its last byte and forbids it to grow.
void remplirDisque(Connexion &cnx)
{
    limiterPages(cnx, 0);
    // What is free inside the pages of the two tables goes too.
    for (const int taille : {1500, 20}) {
        for (const QString &sql :
             {u"INSERT INTO annee VALUES (%1, '%2')"_s, u"INSERT INTO Periode (Code) VALUES ('b%1')"_s}) {
            try {
                for (int i = taille; i < 5000 + taille; ++i)
                    cnx.executer(sql.contains(u"%2")
                                     ? sql.arg(100'000 * taille + i).arg(QString(taille, u'x'))
                                     : sql.arg(i));
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

    /// What is typed, the refusal, or the row that is added.
    using CasAnnee = std::tuple<const char *, QString, QString, QString>;

    /// Year and quarter, the refusal, and the rows that are added.
    using CasTrimestre = std::tuple<const char *, QString, QString, QString, QStringList>;

    static constexpr int cetteAnnee = 2024;

    std::unique_ptr<BancSur<BaseEssai>> m_banc;

    Base &base() { return m_banc->base; }
    QStringList annees() { return m_banc->lignes(u"SELECT * FROM annee ORDER BY rowid"_s); }
    QStringList periodes() { return m_banc->lignes(u"SELECT Code || Etat FROM Periode ORDER BY rowid"_s); }

private slots:
    void initTestCase() { arreterHorloge(QDate(cetteAnnee, 12, 31)); }

    void init() { m_banc = std::make_unique<BancSur<BaseEssai>>(); }
    void cleanup() { QVERIFY(m_banc->dialogue.acheve()); }

    void annee_data()
    {
        lignesDuTest<CasAnnee>({{"nothing", {}, choisir, {}},
                                {"blanks", u"    "_s, incorrecte, {}},
                                {"letters", u"deux"_s, incorrecte, {}},
                                {"an exponent", u"2e03"_s, incorrecte, {}},
                                {"five digits", u"20211"_s, incorrecte, {}},
                                {"three digits", u"999"_s, incorrecte, {}},
                                {"a decimal", u"20.5"_s, nonConforme, {}},
                                {"negative", u"-999"_s, nonConforme, {}},
                                {"before the first", u"1997"_s, nonConforme, {}},
                                {"next year", u"2025"_s, nonConforme, {}},
                                {"there already", u"2010"_s, dejaCreee, {}},
                                {"the first", u"1998"_s, {}, u"1998|du 01/07/1997 au 30/06/1998"_s},
                                {"blanks around", u" 2021 "_s, {}, u"2021|du 01/07/2020 au 30/06/2021"_s},
                                {"this year", u"2024"_s, {}, u"2024|du 01/07/2023 au 30/06/2024"_s}});
    }

    void annee()
    {
        QFETCH(CasAnnee, cas);
        const auto &[nom, saisie, refus, ligne] = cas;
        QStringList attendu{u"2010|à la main"_s};
        base().RsAnnee.ajouter({{u"annee"_s, 2010}, {u"compagne"_s, u"à la main"}});
        if (!refus.isEmpty())
            m_banc->dialogue.attendreAvertissement(refus);
        else
            attendu += ligne;
        QCOMPARE(ajouterCampagne(base(), saisie, m_banc->dialogue), refus.isEmpty());
        QCOMPARE(annees(), attendu);
        QCOMPARE(base().RsAnnee.entier(u"annee"), attendu.last().left(4).toInt());
    }

    void trimestre_data()
    {
        const QString t1 = u"T1"_s;
        lignesDuTest<CasTrimestre>(
            {{"no year", {}, t1, u"Veuillez selectionner l'exercice SVP"_s, {}},
             {"no quarter", u"2022"_s, {}, u"Veuillez selectionner le trimestre SVP"_s, {}},
             {"there already", u"2019"_s, t1, u"la période est déja créée!"_s, {}},
             {"T3", u"2022"_s, u"T3"_s, {}, {u"202207N"_s, u"202208N"_s, u"202209N"_s, u"2022T3N"_s}},
             {"T4", u"2022"_s, u"T4"_s, {}, {u"202210N"_s, u"202211N"_s, u"202212N"_s, u"2022T4N"_s}},
             // A month that an older database has by itself: what was added before it stays.
             {"a month alone", u"2020"_s, t1, autrePeriode, {u"202001N"_s}}});
    }

    void trimestre()
    {
        QFETCH(CasTrimestre, cas);
        const auto &[nom, an, trimestre, refus, ajoutees] = cas;
        base().RsPeriode.ajouter({{u"Code"_s, u"202002"}, {u"Etat"_s, u"N"}});
        base().RsPeriode.ajouter({{u"Code"_s, u"2019T1"}, {u"Etat"_s, u"O"}});
        if (!refus.isEmpty())
            m_banc->dialogue.attendreAvertissement(refus);
        QCOMPARE(ajouterPeriodes(base(), an, trimestre, m_banc->dialogue), refus.isEmpty());
        QCOMPARE(periodes(), (QStringList{u"202002N"_s, u"2019T1O"_s} + ajoutees));
        QCOMPARE(base().RsPeriode.nombre(), periodes().size());
    }

    /// A full disk and another program's lock are told behind the words of the form; nothing is written.
    void empechements()
    {
        const auto ajouter = [this] {
            return ajouterCampagne(base(), u"2021"_s, m_banc->dialogue) &&
                   ajouterPeriodes(base(), u"2021"_s, u"T2"_s, m_banc->dialogue);
        };
        const auto refuses = [this](const QString &cause) {
            const QStringList avant = annees() + periodes();
            m_banc->dialogue.attendre({avertissement(u"Veuillez ne pas choisir une année existante"_s),
                                       critique(cause.arg(m_banc->chemin())), avertissement(autrePeriode),
                                       critique(cause.arg(m_banc->chemin()))});
            QVERIFY(!ajouterCampagne(base(), u"2021"_s, m_banc->dialogue));
            QVERIFY(!ajouterPeriodes(base(), u"2021"_s, u"T2"_s, m_banc->dialogue));
            QCOMPARE(annees() + periodes(), avant);
            QCOMPARE(base().RsAnnee.nombre(), annees().size());
        };
        Connexion autre;
        autre.ouvrir(m_banc->chemin());
        // What the other one has added is seen, although the list here did not show it.
        autre.inserer(u"annee"_s, {{u"annee"_s, 2015}});
        m_banc->dialogue.attendreAvertissement(dejaCreee);
        QVERIFY(!ajouterCampagne(base(), u"2015"_s, m_banc->dialogue));
        QCOMPARE(base().RsAnnee.nombre(), 1);
        {
            base().Cnx.existe(u"PRAGMA busy_timeout = 20"_s);
            Transaction tenue(autre);
            refuses(u"La base de données « %1 » est occupée par un autre programme.\n(database is locked)"_s);
        }
        remplirDisque(base().Cnx);
        base().RsAnnee.requery();
        base().RsPeriode.requery();
        refuses(u"Le disque qui porte « %1 » est plein : rien n'a été enregistré.\n"
                "(database or disk is full)"_s);
        limiterPages(base().Cnx);
        QVERIFY(ajouter());
    }

    void fenetreCampagnes()
    {
        for (const int an : {2010, 2012})
            base().RsAnnee.ajouter({{u"annee"_s, an}});
        const auto fenetre = m_banc->ouvrir(new frmannee(m_banc->contexte));
        QCOMPARE(fenetre->objectName(), u"frmannee"_s);
        auto &liste = *champ<QComboBox>(*fenetre, u"cmbannee"_s);
        const auto &grille = *champ<QTableView>(*fenetre, u"DataGrid1"_s);
        QCOMPARE(liste.count(), 6);
        QCOMPARE(liste.itemText(5), u"2019"_s);
        QCOMPARE(focus() + u'|' + liste.currentText(), u"cmbannee|2024"_s);

        // Typed over what is offered, and never completed to it.
        taper(u"202"_s);
        m_banc->dialogue.attendre({avertissement(incorrecte), avertissement(incorrecte)});
        cliquer(*fenetre, u"cmb_add"_s);
        QVERIFY(liste.hasFocus());
        QCOMPARE(liste.lineEdit()->selectedText(), u"202"_s);
        coller(u"20211"_s);
        touche(Qt::Key_Return);
        QCOMPARE(m_banc->menu.accords, 0);

        saisir(*fenetre, u"cmbannee"_s, u"2011"_s);
        touche(Qt::Key_Return);
        QCOMPARE(annees().last(), u"2011|du 01/07/2010 au 30/06/2011"_s);
        QCOMPARE(courante(grille), u"2011"_s);
        QCOMPARE(grille.currentIndex().row(), 1); // the newest stands first
        QCOMPARE(liste.lineEdit()->selectedText(), u"2011"_s);
        QCOMPARE(m_banc->menu.accords, 1);
        // There is no employer yet, and the declarations need one.
        QVERIFY(!base().declarationsPossibles());
        base().RsEmployeur.ajouter({{u"num_emp"_s, u"12345678"}});
        QVERIFY(base().declarationsPossibles());
        liste.setCurrentIndex(1);
        cliquer(*fenetre, u"cmb_add"_s);
        QCOMPARE(annees().last().left(4), u"2023"_s);

        cliquer(*fenetre, u"Command1"_s);
        QVERIFY(!fenetre->isVisible());
    }

    void fenetrePeriodes()
    {
        const auto fenetre = m_banc->ouvrir(new frmPeriode(m_banc->contexte));
        QCOMPARE(fenetre->objectName(), u"frmPeriode"_s);
        auto &annee = *champ<QComboBox>(*fenetre, u"cmbannee"_s);
        auto &mois = *champ<QComboBox>(*fenetre, u"CmbMois"_s);
        QCOMPARE(annee.count(), 11);
        QCOMPARE(annee.itemText(10), u"2014"_s);
        m_banc->dialogue.attendre({avertissement(u"Veuillez selectionner l'exercice SVP"_s),
                                   avertissement(u"Veuillez selectionner le trimestre SVP"_s)});
        cliquer(*fenetre, u"cmb_add"_s);
        QVERIFY(annee.hasFocus());
        annee.setCurrentIndex(2);
        cliquer(*fenetre, u"cmb_add"_s);
        QVERIFY(mois.hasFocus());
        mois.setCurrentIndex(3);
        cliquer(*fenetre, u"cmb_add"_s);
        QCOMPARE(periodes().join(u' '), u"202210N 202211N 202212N 2022T4N"_s);
        auto &grille = *champ<QTableView>(*fenetre, u"DataGrid1"_s);
        QCOMPARE(courante(grille), u"2022T4"_s);
        cliquerTete(grille, 0);
        QCOMPARE(grille.model()->index(0, 0).data().toString(), u"202210"_s);
        // Nothing removes a period.
        QTest::keyClick(&grille, Qt::Key_Delete);
        QCOMPARE(periodes().size(), 4);
    }

    void tableFermee()
    {
        for (Recordset *rs : {&base().RsAnnee, &base().RsPeriode})
            rs->fermer();
        QVERIFY_THROWS_EXCEPTION(ErreurBase, frmannee{m_banc->contexte});
        QVERIFY_THROWS_EXCEPTION(ErreurBase, frmPeriode{m_banc->contexte});
    }
};

QTEST_MAIN(TestCampagnes)
#include "test_campagnes.moc"
