#include "ci/enteteci.h"
#include "ci/ligneci.h"
#include "employees/controleaffiliation.h"
#include "reference/banques.h"
#include "reference/employeurs.h"
#include "screens/champmasque.h"
#include "screens/ctrlduree.h"
#include "screens/etatsfenetres.h"
#include "shell/entreesdemenu.h"
#include "shell/mdiform.h"
#include "tests/das/basedas.h"
#include "tests/screens/banc.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QSet>
#include <QTabWidget>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

/// Agrees to everything, and counts.
class DialogueComplaisant : public DialogueOui
{
public:
    QString choisirFichier(const QString &, const QString &) override { return fichier; }
    QString fichier;
    int boites = 0;

protected:
    bool montrer(const Boite &) override
    {
        ++boites;
        return true;
    }
};

/// The ways to all windows: a menu entry, then the buttons that lead to it.
const QStringList chemins =
    u"wannee|wPeriode|wImp|wImp ajouterBtn|wImp Command1|wbnq|wbnq ajouterBtn|wbnq Command1|"
    "wsal|wsal cmdajt|wsal cmdmodif|wImpFichSal|wImpTabNat|wImpDas|wdas|wdas cmdmod|"
    "wdas cmddetail|wdas cmddetail cmdajt|wdas cmddetail cmdajt cmdins|wdas cmddetail cmdmod|"
    "wTransfLgDas|wTraitDecNom|wTraitDecNom cmdmod|wTraitDecNom cmddetail|"
    "wTraitDecNom cmddetail cmdajt|wTraitDecNom cmddetail cmdajt cmdins|"
    "wTraitDecNom cmddetail cmdmod|wTransLgDac|wTraitCi|wTraitCi cmdmod|wTraitCi cmddetail|"
    "wTraitCi cmddetail cmdajt|wTraitCi cmddetail cmdmod|wvalidate|wValidListNom|wValideDac|"
    "wGen"_s.split(u'|');

/// The fields of one line that hold words; every other one is a number's.
const QSet<QString> champsDeTexte{
    u"nomedit"_s,     u"prenomedit"_s,   u"lieu_naissedit"_s, u"PrenomPere"_s,
    u"NomMere"_s,     u"PrenomMere"_s,   u"profesedit"_s,     u"villeEdit"_s,
    u"TxtEmail"_s,    u"Rais_SocEdit"_s, u"AdresseEdit"_s,    u"mailEdit"_s,
    u"AbreviatBnq"_s, u"LibelleBnq"_s,   u"cherchedit"_s,     u"qt_spinbox_lineedit"_s,
    u"txtAgBnq"_s};

} // namespace

/// What holds for every window of the program, opened from its menu over tables that all have a row.
class TestFenetres : public QObject
{
    Q_OBJECT

    std::unique_ptr<BaseDas> m_donnees;
    DialogueComplaisant m_dialogue;
    DernierRecours m_recours{m_dialogue, [this] { m_donnees->base.Cnx.annulerTransaction(); }};
    BornesDePeriode m_bornes;
    std::unique_ptr<MDIForm> m_principale;

    using Action = std::function<void(QWidget &)>;

    /// Opens a window from the menu. @return its screen
    QWidget &ouvrir(const QString &entree)
    {
        auto *action = m_principale->findChild<QAction *>(entree);
        action->setEnabled(true);
        action->trigger();
        return *m_principale->findChild<QMdiArea *>()->activeSubWindow()->widget();
    }

    /// Goes on through the buttons, and acts in the window behind the last one.
    static void suivre(QWidget &fenetre, QStringList boutons, const Action &action)
    {
        if (boutons.isEmpty())
            return action(fenetre);
        bool arrive = false;
        const auto passer = [&](QWidget &suivante) {
            arrive = true;
            Banc::activer(suivante);
            suivre(suivante, boutons, action);
            suivante.close();
        };
        const QString bouton = boutons.takeFirst();
        QTimer modale;
        connect(&modale, &QTimer::timeout, &modale, [&] {
            QWidget *ouverte = QApplication::activeModalWidget();
            if (!ouverte || ouverte == &fenetre)
                return;
            modale.stop();
            passer(*ouverte);
        });
        modale.start(0);
        cliquer(fenetre, bouton);
        modale.stop();
        if (!arrive) {
            const auto fenetres = QApplication::topLevelWidgets();
            const auto ouverte = std::find_if(fenetres.begin(), fenetres.end(), [&](QWidget *une) {
                return une->isVisible() && une->parentWidget() == &fenetre;
            });
            QVERIFY(ouverte != fenetres.end());
            passer(**ouverte);
        }
    }

    void parcourir(const QString &chemin, const Action &action)
    {
        // The windows of the last path are gone, as they are for a clerk between two clicks.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QStringList boutons = chemin.split(u' ');
        QWidget &feuille = ouvrir(boutons.takeFirst());
        bool fait = false;
        suivre(feuille, boutons, [&](QWidget &fenetre) {
            fait = true;
            action(fenetre);
        });
        QVERIFY(fait);
    }

private slots:
    void init()
    {
        reglages().clear();
        m_donnees = std::make_unique<BaseDas>();
        Base &base = m_donnees->base;
        base.RsBanque.ajouter({{u"Code"_s, u"003"}, {u"Abreviat"_s, u"BNA"}, {u"Libelle"_s, u"Banque"}});
        m_donnees->ajouter(BaseDas::numero(1), 1);
        m_donnees->entete(1, Currency::deEntier(600000), 1);
        m_donnees->ligne(BaseDas::numero(1));
        base.RsEnteteDac.ouvrir();
        base.RsEnteteDac.ajouter({{u"NumEmployeur"_s, BaseDas::employeur},
                                  {u"Periode"_s, u"202401"},
                                  {u"Type_Dac"_s, 1},
                                  {u"Assiette"_s, Currency::deEntier(600000)},
                                  {u"Effectif_total"_s, 1}});
        base.RsLigneDac.ajouter({{u"NumSalarie"_s, BaseDas::numero(1)},
                                 {u"cpt_z"_s, 1},
                                 {u"NumEmployeur"_s, BaseDas::employeur},
                                 {u"Periode"_s, u"202401"},
                                 {u"Type_dac"_s, 1}});
        base.RsEnteteCi.ajouter(
            {{u"N_Identifiant"_s, u"123456780000000001"}, {u"N_employeur"_s, BaseDas::employeur}});
        base.RsDetailCi.ajouter(
            {{u"N_Identif"_s, u"123456780000000001"}, {u"N_SecSoc"_s, BaseDas::numero(1)}, {u"Cpt_z"_s, 1}});
        m_principale = std::make_unique<MDIForm>(base, m_dialogue, m_recours, m_bornes, entreesDeMenu());
        m_principale->show();
        Banc::activer(*m_principale);
        m_dialogue.boites = 0;
    }

    void cleanup() { m_principale.reset(); }

    void cheminsComplets()
    {
        for (const EntreeDeMenu &ligne : entreesDeMenu()) {
            const QString entree = QString::fromUtf16(ligne.nom);
            QCOMPARE(!!ligne.fabrique, chemins.contains(entree));
        }
    }

    void nombresRemplaces_data()
    {
        QTest::addColumn<QString>("chemin");
        for (const QString &chemin : chemins)
            QTest::newRow(qPrintable(chemin)) << chemin;
    }

    /// A number that stands in a field is replaced by what is typed, whichever way the focus came.
    void nombresRemplaces()
    {
        QFETCH(QString, chemin);
        parcourir(chemin, [](QWidget &fenetre) {
            const auto champs = fenetre.findChildren<QLineEdit *>();
            for (QLineEdit *champ : champs) {
                if (champ->isReadOnly() || champ->isHidden() || champsDeTexte.contains(champ->objectName()))
                    continue;
                const auto *masque = qobject_cast<ChampMasque *>(champ);
                QString avant = masque ? masque->vide() : u"600000"_s;
                if (masque)
                    avant.replace(masque->invite(), u"6"_s);
                const QString apres = masque ? u'7' + masque->vide().sliced(1) : u"7"_s;

                for (QWidget *autour = champ; autour != &fenetre; autour = autour->parentWidget()) {
                    autour->setEnabled(true);
                    if (auto *onglets = qobject_cast<QTabWidget *>(autour->parentWidget()->parentWidget()))
                        onglets->setCurrentWidget(autour);
                }
                for (const bool parClic : {true, false}) {
                    if (QWidget *focus = QApplication::focusWidget())
                        focus->clearFocus(); // no field is left for another one, and nothing is told
                    champ->setText(avant);
                    if (parClic)
                        QTest::mouseClick(champ, Qt::LeftButton, {},
                                          {champ->width() / 2, champ->height() / 2});
                    else
                        champ->setFocus();
                    QTest::keyClick(champ, Qt::Key_7);
                    QVERIFY2(champ->text() == apres,
                             qPrintable(champ->objectName() + u": "_s + champ->text()));
                }
            }
        });
    }

    /// What a refusal gives the focus to is there.
    void controlesDesRefus()
    {
        const auto presents = [this](const QStringList &fenetres, const auto &controles) {
            for (const QString &chemin : fenetres) {
                parcourir(chemin, [&](QWidget &fenetre) {
                    for (const QStringView nom : controles.noms)
                        champ(fenetre, nom.toString());
                });
            }
        };
        presents({u"wImp ajouterBtn"_s, u"wImp Command1"_s}, controlesEmployeur);
        presents({u"wbnq ajouterBtn"_s, u"wbnq Command1"_s}, controlesBanque);
        presents({u"wsal cmdajt"_s, u"wsal cmdmodif"_s}, controlesSalarie);
        presents({u"wTraitCi"_s}, controlesEnteteCi);
        presents({u"wTraitCi cmdmod"_s}, controlesModificationEnteteCi);
        presents({u"wTraitCi cmddetail cmdajt"_s, u"wTraitCi cmddetail cmdmod"_s}, controlesLigneCi);
    }

    /// The number of a line: picked, given up behind a save, and handed on to the entry of an employee.
    void numeroDUneLigne()
    {
        m_donnees->ajouter(BaseDas::numero(2), 1);
        parcourir(u"wdas cmddetail cmdajt"_s, [](QWidget &saisie) {
            const QString numero = u"num_saledit mskcle Lab_nom"_s;
            dansLaFenetre(saisie, u"cmdins"_s, u"frm_ins_num_sal"_s, [](QWidget &liste) {
                QTest::keyClick(champ(liste, u"DataGrid1"_s), Qt::Key_End);
                cliquer(liste, u"cmdok"_s);
            });
            const auto attendu = [](int rang) {
                return BaseDas::numero(rang).left(10) + u'|' + BaseDas::numero(rang).mid(10) + u'|';
            };
            QCOMPARE(textes(saisie, numero), attendu(2) + u"DUPONT"_s);

            champ<QLineEdit>(saisie, u"sal_annueledit"_s)->setText(u"600000"_s);
            champ<ctrlDuree>(saisie, u"nbj_travailctrl"_s)->setDuree(12, u'M');
            champ<QLineEdit>(saisie, u"mskdate"_s)->setText(u"01/07/2023"_s);
            cliquer(saisie, u"EOption"_s);
            cliquer(saisie, u"cmdok"_s);
            QCOMPARE(textes(saisie, numero), u"0000000000|  |"_s);

            saisir(saisie, u"num_saledit"_s, BaseDas::numero(3).left(10));
            saisir(saisie, u"mskcle"_s, BaseDas::numero(3).mid(10));
            dansLaFenetre(saisie, u"cmdok"_s, u"frm_add_sal"_s, [&](QWidget &creation) {
                QCOMPARE(textes(creation, u"num_salmask clemask nomedit"_s), attendu(3));
            });
        });
        QCOMPARE(m_donnees->base.RsLigneDas.nombre(), 2);
    }

    /// The banks' window deletes the employer that is current, which an import that came to nothing moves
    /// not.
    void importSansSuite()
    {
        Base &base = m_donnees->base;
        base.RsEmployeur.ajouter({{u"num_emp"_s, u"87654321"}, {u"rais_soc"_s, u"Z"}, {u"adresse"_s, u"Z"}});
        base.RsEmployeur.allerA(0);
        base.Cnx.executer(u"DELETE FROM entete_das"_s);
        m_dialogue.fichier = m_donnees->fichier(
            u"s.txt"_s, "KORVANDEL SALARIE VER 1.0\n11111111BATIR\n000000000000SANS DATE\n");
        cliquer(ouvrir(u"wImpFichSal"_s), u"CmdImport"_s);
        QCOMPARE(m_dialogue.boites, 1); // the employer that it would have added
        cliquer(ouvrir(u"wbnq"_s), u"suppBtn"_s);
        QCOMPARE(m_donnees->lignes(u"SELECT num_emp FROM employeur"_s), QStringList{u"87654321"_s});
    }

    void fermetures_data()
    {
        QTest::addColumn<QStringList>("mots");
        for (const QString &ecran : {u"wdas sumedit 12x Command1"_s, u"wTraitCi sumEdit 12x Command1"_s,
                                     u"wvalidate Txt07 -1 cmdexit"_s}) {
            for (const QString &par : {u"bouton"_s, u"cadre"_s, u"systeme"_s, u"programme"_s, u"menu"_s})
                QTest::newRow(qPrintable(ecran + u' ' + par)) << (ecran + u' ' + par).split(u' ');
        }
    }

    /// A window closes at once with a bad amount in the field that has the focus, and nothing is told.
    void fermetures()
    {
        QFETCH(QStringList, mots); // the entry, a field, what is typed there, the closing button, the way
        const QString &par = mots.last();
        ouvrir(u"wannee"_s);
        QPointer<QWidget> feuille = &ouvrir(mots[0]);
        if (auto *onglets = feuille->findChild<QTabWidget *>()) {
            onglets->setEnabled(true);
            onglets->setCurrentIndex(2);
        }
        cliquer(*feuille, mots[1]);
        taper(mots[2]);
        QCOMPARE(focus(), mots[1]);
        auto *cadre = m_principale->findChild<QMdiArea *>()->activeSubWindow();
        if (par == u"cadre"_s)
            cadre->close();
        else if (par == u"systeme"_s)
            QTest::keyClick(cadre, Qt::Key_F4, Qt::ControlModifier);
        else if (par == u"programme"_s)
            m_principale->close();
        else if (par == u"menu"_s)
            m_principale->findChild<QAction *>(u"wquit"_s)->trigger();
        else
            cliquer(*feuille, mots[3]);
        QTRY_VERIFY(!feuille);
        QCOMPARE(m_dialogue.boites, 0);
    }
};

QTEST_MAIN(TestFenetres)
#include "test_fenetres.moc"
