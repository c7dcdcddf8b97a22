#include "rules/calendrier.h"
#include "rules/erreurs.h"
#include "screens/dernierrecours.h"
#include "screens/etatsfenetres.h"
#include "screens/francais.h"
#include "shell/application.h"
#include "shell/mdiform.h"
#include "storage/base.h"
#include "storage/demarrage.h"
#include "storage/lieux.h"
#include "tests/commun/dialoguescenario.h"

#include <QCloseEvent>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QVBoxLayout>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// A screen with a closing button, that may refuse to close.
class Feuille : public QWidget
{
public:
    explicit Feuille(const QString &nom)
    {
        setObjectName(nom);
        setWindowTitle(nom);
        auto *bouton = new QPushButton(u"Fermer"_s);
        bouton->setObjectName(u"CancelButton"_s);
        (new QVBoxLayout(this))->addWidget(bouton);
        connect(bouton, &QPushButton::clicked, this, &QWidget::close);
    }

    bool occupee = false;
    bool peintureEchoue = false;
    int fermetures = 0;

protected:
    void closeEvent(QCloseEvent *evenement) override
    {
        ++fermetures;
        evenement->setAccepted(!occupee);
    }
    void paintEvent(QPaintEvent *) override
    {
        if (peintureEchoue)
            throw ErreurBase(u"Une page ne se lit pas."_s);
    }
};

/// A home folder of its own.
class Foyer
{
public:
    Foyer() : m_avant(qgetenv("HOME")) { qputenv("HOME", m_dossier.path().toUtf8()); }
    ~Foyer() { qputenv("HOME", m_avant); }

private:
    QTemporaryDir m_dossier;
    QByteArray m_avant;
};

} // namespace

class TestShell : public QObject
{
    Q_OBJECT

    DialogueScenario m_dialogue;
    Base m_base;
    int m_annulations = 0;
    DernierRecours m_recours{m_dialogue, [this] {
                                 ++m_annulations;
                                 m_base.Cnx.annulerTransaction();
                             }};
    BornesDePeriode m_bornes;
    QList<EntreeDeMenu> m_menu = entreesDeMenu();
    bool m_autorisee = true;

    static void relier(QList<EntreeDeMenu> &menu, QStringView entree, Fabrique fabrique)
    {
        for (EntreeDeMenu &ligne : menu) {
            if (entree == QStringView(ligne.nom))
                ligne.fabrique = std::move(fabrique);
        }
    }

    std::unique_ptr<MDIForm> ouvrirProgramme() { return ouvrirProgramme(m_base); }

    std::unique_ptr<MDIForm> ouvrirProgramme(Base &base)
    {
        auto principale = std::make_unique<MDIForm>(base, m_dialogue, m_recours, m_bornes, m_menu);
        principale->show();
        return principale;
    }

    /// Runs the Load handler as the program does. @return the exit code, -1 when the program goes on
    static int charger(MDIForm &principale)
    {
        QTimer::singleShot(0, &principale, [&] {
            principale.charger();
            QTimer::singleShot(0, &principale, [] { QCoreApplication::exit(-1); });
        });
        return QCoreApplication::exec();
    }

    static QAction *entree(const MDIForm &principale, const QString &nom)
    {
        return principale.findChild<QAction *>(nom);
    }

    static Feuille *feuille(const MDIForm &principale, const QString &nom)
    {
        return static_cast<Feuille *>(principale.findChild<QWidget *>(nom));
    }

private slots:
    void textesSansMiseEnForme()
    {
        QLabel label(u"<b>BENALI</b>"_s);
        label.show();
        QCOMPARE(label.textFormat(), Qt::PlainText);
        QToolTip::showText({}, u"<img src=\"x\"> BENALI"_s, &label);
        const auto ouvertes = QApplication::topLevelWidgets();
        const auto bulle = std::find_if(ouvertes.begin(), ouvertes.end(),
                                        [](QWidget *w) { return w->inherits("QTipLabel"); });
        QVERIFY(bulle != ouvertes.end());
        QCOMPARE(static_cast<QLabel *>(*bulle)->textFormat(), Qt::PlainText);
    }

    void initTestCase()
    {
        reglages().clear();
        static_cast<Application *>(qApp)->proteger(&m_recours);
        for (EntreeDeMenu &ligne : m_menu)
            ligne.fabrique = {};
        relier(m_menu, u"wvalidate"_s, [](Contexte &) { return new Feuille(u"FrmDasValide"_s); });
        relier(m_menu, u"wImp"_s, [](Contexte &) { return new Feuille(u"Frm_imp"_s); });
        relier(m_menu, u"wPeriode"_s, [](Contexte &) { return new Feuille(u"frmPeriode"_s); });
        relier(m_menu, u"wGen"_s, [](Contexte &) { return new Feuille(u"FrmGenCle"_s); });
        relier(m_menu, u"wTransfLgDas"_s, [this](Contexte &contexte) -> QWidget * {
            if (m_autorisee)
                return new Feuille(u"frmexpdas"_s);
            contexte.dialogue.avertir(u"table employeur vide !!!!, opération non autorisée "_s);
            return nullptr;
        });
        relier(m_menu, u"wdas"_s,
               [](Contexte &) -> QWidget * { throw ErreurBase(u"RsEnteteDas n'est pas ouvert."_s); });
    }

    void cleanup() { QVERIFY(m_dialogue.acheve()); }

    void menuComplet()
    {
        // Name, caption, shortcut; what a submenu holds is set in.
        static const char attendu[] = "wFich|&Fichier|\n"
                                      "  wannee|Table Campagne|Ctrl+P\n"
                                      "  wImp|Table employeur|Ctrl+E\n"
                                      "  wsal|Table Salarié|Ctrl+S\n"
                                      "  wbnq|Table Banque|Ctrl+B\n"
                                      "  wPeriode|Table Periode|\n"
                                      "  wimport|Importer Données|\n"
                                      "    wImpFichSal|Fichier Salariés|Ctrl+R\n"
                                      "    wImpTabNat|Fichier nationalité|\n"
                                      "    wImpDas|Fichier salarié|Ctrl+L\n"
                                      "  wquit|Quitter|Ctrl+Q\n"
                                      "wDecl|Déclarations|\n"
                                      "  das|&DAS|\n"
                                      "    wdas|Traitement des DAS|Ctrl+T\n"
                                      "    wTransfLgDas|Transfert Lignes DAS|Ctrl+G\n"
                                      "    wdetail|Détail Das|\n"
                                      "  wci|Chômage Intempérie|\n"
                                      "    wTraitCi|Traitement CI|Ctrl+I\n"
                                      "  wdecmentrim|Déclaration mensuelle ou trimestrielle|\n"
                                      "    wTraitDecNom|Traitement Déclaration Nominative|\n"
                                      "    wTransLgDac|Transfert Ligne Dac|\n"
                                      "woutil|&Outils|\n"
                                      "  wvalidate|Validation du fichier DAS|Ctrl+O\n"
                                      "  wValidListNom|Validation du Fichier Liste Nominative|\n"
                                      "  wValideDac|Validation de la DAC NOMINATIVE|\n"
                                      "  wGen|Générerateur de clés|\n"
                                      "  ||\n"
                                      "  wActiverDac|Activer la déclaration nominative|\n"
                                      "  wActiverOutils|Activer les outils complémentaires|\n"
                                      "whelp|&Aide|\n"
                                      "  wman|Manuel d'utilisation|\n";
        const auto principale = ouvrirProgramme();
        QString vu;
        const auto dire = [&vu](const auto &soi, const QList<QAction *> &actions, int retrait) -> void {
            for (const QAction *action : actions) {
                vu += QString(retrait, u' ') + action->objectName() + u'|' + action->text() + u'|' +
                      action->shortcut().toString(QKeySequence::PortableText) + u'\n';
                if (action->menu()) {
                    QCOMPARE(action->menu()->objectName(), action->objectName());
                    soi(soi, action->menu()->actions(), retrait + 2);
                }
            }
        };
        dire(dire, principale->menuBar()->actions(), 0);
        QCOMPARE(vu, QString::fromUtf8(attendu));
        QCOMPARE(principale->windowTitle(), QString::fromLatin1("DAS KORVANDEL " DAS_VERSION));
        QCOMPARE(principale->objectName(), u"MDIForm"_s);
    }

    void etatDuMenu()
    {
        const auto principale = ouvrirProgramme();
        QStringList actives;
        for (const QAction *action :
             principale->findChildren<QAction *>(QRegularExpression(u"^(w|das$)"_s))) {
            QVERIFY(action->isVisible());
            if (action->isEnabled() && !action->menu())
                actives << action->objectName();
        }
        actives.sort();
        // wPeriode has a window here, but is off in the delivered menu.
        QCOMPARE(actives, (QStringList{u"wActiverDac"_s, u"wActiverOutils"_s, u"wImp"_s, u"wTransfLgDas"_s,
                                       u"wdas"_s, u"wquit"_s, u"wvalidate"_s}));
        for (const auto &[nom, active] : {std::pair(u"wFich"_s, true),
                                          {u"wimport"_s, true},
                                          {u"wci"_s, true},
                                          {u"wdecmentrim"_s, false},
                                          {u"whelp"_s, false}})
            QCOMPARE(entree(*principale, nom)->isEnabled(), active);
    }

    void groupesAActiver()
    {
        const auto actives = [](const MDIForm &principale) {
            QStringList noms;
            for (const char *nom : {"wPeriode", "wdecmentrim", "wValideDac", "wImpFichSal", "wGen", "wdetail",
                                    "whelp", "wman"}) {
                if (entree(principale, QString::fromLatin1(nom))->isEnabled())
                    noms += QString::fromLatin1(nom);
            }
            return noms.join(u' ');
        };
        {
            const auto principale = ouvrirProgramme();
            QCOMPARE(actives(*principale), QString());
            entree(*principale, u"wActiverDac"_s)->trigger();
            // The validator of that file has no window here.
            QCOMPARE(actives(*principale), u"wPeriode wdecmentrim"_s);
            entree(*principale, u"wPeriode"_s)->trigger();
            QCOMPARE(actives(*principale), u"wdecmentrim"_s);
            // Turned off and on again while its window is open.
            entree(*principale, u"wActiverDac"_s)->trigger();
            entree(*principale, u"wActiverDac"_s)->trigger();
            QCOMPARE(actives(*principale), u"wdecmentrim"_s);
            feuille(*principale, u"frmPeriode"_s)->close();
            QCOMPARE(actives(*principale), u"wPeriode wdecmentrim"_s);
            principale->close();
        }
        {
            const auto principale = ouvrirProgramme();
            QVERIFY(entree(*principale, u"wActiverDac"_s)->isChecked());
            QVERIFY(!entree(*principale, u"wActiverOutils"_s)->isChecked());
            QCOMPARE(actives(*principale), u"wPeriode wdecmentrim"_s);
            entree(*principale, u"wActiverDac"_s)->trigger();
            entree(*principale, u"wActiverOutils"_s)->trigger();
            QCOMPARE(actives(*principale), u"wGen"_s);
            entree(*principale, u"wActiverOutils"_s)->trigger();
        }
        QCOMPARE(actives(*ouvrirProgramme()), QString());
    }

    void uneSeuleFenetre_data()
    {
        QTest::addColumn<QString>("moyen");
        QTest::newRow("button of the screen") << u"bouton"_s;
        QTest::newRow("frame") << u"cadre"_s;
        QTest::newRow("frame, maximised") << u"agrandie"_s;
    }

    void uneSeuleFenetre()
    {
        QFETCH(QString, moyen);
        const auto principale = ouvrirProgramme();
        auto *aire = principale->findChild<QMdiArea *>();
        QVERIFY(QTest::qWaitForWindowActive(principale.get()));
        for (int tour = 1; tour <= 2; ++tour) {
            QTest::keyClick(principale.get(), Qt::Key_O, Qt::ControlModifier);
            QTRY_COMPARE(aire->subWindowList().size(), 1);
            Feuille *ouverte = feuille(*principale, u"FrmDasValide"_s);
            QVERIFY(ouverte && ouverte->isVisible());
            QVERIFY(!entree(*principale, u"wvalidate"_s)->isEnabled());
            QVERIFY(entree(*principale, u"wImp"_s)->isEnabled());

            QMdiSubWindow *cadre = aire->subWindowList().constFirst();
            QCOMPARE(cadre->pos(), QPoint((aire->viewport()->width() - cadre->width()) / 2,
                                          (aire->viewport()->height() - cadre->height()) / 2));
            QVERIFY(!cadre->isMaximized());
            QTest::keyClick(ouverte, Qt::Key_Escape);
            QVERIFY(ouverte->isVisible());

            ouverte->occupee = true;
            QVERIFY(!cadre->close());
            QVERIFY(!principale->close());
            QVERIFY(ouverte->isVisible() && !entree(*principale, u"wvalidate"_s)->isEnabled());
            ouverte->occupee = false;

            ouverte->fermetures = 0;
            QSignalSpy fermetures(ouverte, &QObject::destroyed);
            if (moyen == u"bouton"_s) {
                QTest::mouseClick(ouverte->findChild<QPushButton *>(u"CancelButton"_s), Qt::LeftButton);
            } else {
                if (moyen == u"agrandie"_s)
                    cadre->showMaximized();
                cadre->close();
            }
            QVERIFY(entree(*principale, u"wvalidate"_s)->isEnabled());
            QTRY_COMPARE(aire->subWindowList().size(), 0);
            QTRY_COMPARE(fermetures.size(), 1);
            QCOMPARE(principale->windowTitle(), QString::fromLatin1("DAS KORVANDEL " DAS_VERSION));
        }
    }

    void aireTropPetite()
    {
        QList<EntreeDeMenu> menu = m_menu;
        relier(menu, u"wvalidate"_s, [](Contexte &) {
            auto *feuille = new Feuille(u"FrmDasValide"_s);
            feuille->findChild<QPushButton *>()->setText(QString(100, u'W'));
            return feuille;
        });
        MDIForm principale(m_base, m_dialogue, m_recours, m_bornes, menu);
        principale.resize(400, 300);
        principale.show();
        entree(principale, u"wvalidate"_s)->trigger();
        const auto *bouton = feuille(principale, u"FrmDasValide"_s)->findChild<QPushButton *>();
        QCoreApplication::processEvents();
        QVERIFY(bouton->width() >= bouton->minimumSizeHint().width());
    }

    void raccourciDepuisUnChamp()
    {
        // On X11 a text field keeps Ctrl+E to go to its end; in the menu it is the employers.
        const auto principale = ouvrirProgramme();
        QVERIFY(QTest::qWaitForWindowActive(principale.get()));
        entree(*principale, u"wvalidate"_s)->trigger();
        auto *champ = new QLineEdit(feuille(*principale, u"FrmDasValide"_s));
        champ->show();
        champ->setFocus();
        QTRY_VERIFY(champ->hasFocus());
        QTest::keyClick(champ, Qt::Key_E, Qt::ControlModifier);
        QVERIFY(feuille(*principale, u"Frm_imp"_s));
    }

    /// Alt+A also names the menu "&Aide", Alt+F "&Fichier".
    void touchesDesBoutons()
    {
        const auto principale = ouvrirProgramme();
        QVERIFY(QTest::qWaitForWindowActive(principale.get()));
        entree(*principale, u"wImp"_s)->trigger();
        Feuille *ouverte = feuille(*principale, u"Frm_imp"_s);
        QList<QSignalSpy *> clics;
        for (const QString &libelle : {u"&Ajouter"_s, u"&Fermer"_s}) {
            auto *bouton = new QPushButton(libelle, ouverte);
            bouton->show();
            clics += new QSignalSpy(bouton, &QPushButton::clicked);
            clics.last()->setParent(bouton);
        }
        for (int fois = 1; fois <= 2; ++fois) {
            QTest::keyClick(principale.get(), Qt::Key_A, Qt::AltModifier);
            QTRY_COMPARE(clics[0]->size(), fois);
            QTest::keyClick(principale.get(), Qt::Key_F, Qt::AltModifier);
            QTRY_COMPARE(clics[1]->size(), fois);
        }
        QVERIFY(!QApplication::activePopupWidget());
    }

    /// When a window closes, the one that was in use before it is, and no other that may lie hidden.
    void fenetreSuivanteActive()
    {
        const auto principale = ouvrirProgramme();
        QVERIFY(QTest::qWaitForWindowActive(principale.get()));
        for (const QString &nom : {u"wTransfLgDas"_s, u"wvalidate"_s, u"wImp"_s})
            entree(*principale, nom)->trigger();
        auto *aire = principale->findChild<QMdiArea *>();
        const auto active = [aire] {
            return aire->activeSubWindow() ? aire->activeSubWindow()->widget()->objectName() : QString();
        };
        QCOMPARE(active(), u"Frm_imp"_s);
        feuille(*principale, u"Frm_imp"_s)->close();
        QTRY_COMPARE(aire->subWindowList().size(), 2);
        QCOMPARE(active(), u"FrmDasValide"_s);
    }

    void permettre()
    {
        const auto principale = ouvrirProgramme();
        QAction *cles = entree(*principale, u"wGen"_s);
        QAction *coche = entree(*principale, u"wActiverOutils"_s);
        coche->setChecked(true);
        cles->trigger();
        coche->setChecked(false);
        coche->setChecked(true);
        QVERIFY(!cles->isEnabled()); // allowed, but open
        coche->setChecked(false);
        feuille(*principale, u"FrmGenCle"_s)->close();
        QVERIFY(!cles->isEnabled()); // closed, but not allowed
        coche->setChecked(true);
        QVERIFY(cles->isEnabled());
        coche->setChecked(false);
    }

    void fenetresQuiNeSOuvrentPas()
    {
        const auto principale = ouvrirProgramme();
        m_autorisee = false;
        m_dialogue.attendreAvertissement(u"table employeur vide !!!!, opération non autorisée "_s);
        entree(*principale, u"wTransfLgDas"_s)->trigger();
        m_dialogue.attendreCritique(u"RsEnteteDas n'est pas ouvert."_s);
        entree(*principale, u"wdas"_s)->trigger();
        QVERIFY(principale->findChild<QMdiArea *>()->subWindowList().isEmpty());
        QVERIFY(entree(*principale, u"wTransfLgDas"_s)->isEnabled());
        QVERIFY(entree(*principale, u"wdas"_s)->isEnabled());
        m_autorisee = true;
        entree(*principale, u"wTransfLgDas"_s)->trigger();
        QVERIFY(feuille(*principale, u"frmexpdas"_s));
    }

    void filetSousLaBoucle()
    {
        const auto principale = ouvrirProgramme();
        entree(*principale, u"wvalidate"_s)->trigger();
        Feuille *ouverte = feuille(*principale, u"FrmDasValide"_s);
        QVERIFY(QTest::qWaitForWindowExposed(principale.get()));
        m_annulations = 0;
        ouverte->peintureEchoue = true;
        m_dialogue.attendreCritique(u"Une page ne se lit pas."_s);
        ouverte->update();
        QTRY_COMPARE(m_annulations, 1);
        ouverte->peintureEchoue = false;
        QCoreApplication::processEvents();
        QVERIFY(m_dialogue.acheve());
    }

    void demarrages_data()
    {
        // What is done to a fresh database, what the clerk is told, and how the program ends (-1: it goes
        // on).
        QTest::addColumn<QString>("sql");
        QTest::addColumn<QString>("information");
        QTest::addColumn<int>("sortie");
        QTest::addColumn<bool>("wdas");
        QTest::newRow("fresh") << QString() << QString() << -1 << false;
        QTest::newRow("with a campaign only")
            << u"INSERT INTO annee (annee) VALUES (2024)"_s << QString() << -1 << false;
        QTest::newRow("with a campaign and an employer")
            << u"INSERT INTO annee (annee) VALUES (2024);INSERT INTO employeur (num_emp) VALUES ('12345678')"_s
            << QString() << -1 << true;
        QTest::newRow("without nationalities")
            << u"DROP TABLE Nationalite"_s
            << u"table Nationalité crée, Veuillez relancer une seconde fois l'application, SVP"_s << 0
            << false;
    }

    void demarrages()
    {
        QFETCH(QString, sql);
        QFETCH(QString, information);
        QFETCH(int, sortie);
        QFETCH(bool, wdas);
        const Foyer foyer;
        {
            Base base;
            demarrer(base, m_dialogue);
            for (const QString &ordre : sql.split(u';', Qt::SkipEmptyParts))
                base.Cnx.definir(ordre);
        }
        Base base;
        auto principale = ouvrirProgramme(base);
        if (!information.isEmpty())
            m_dialogue.attendreInformation(information);
        QCOMPARE(charger(*principale), sortie);
        if (sortie < 0) {
            QCOMPARE(entree(*principale, u"wdas"_s)->isEnabled(), wdas);
            QVERIFY(entree(*principale, u"wvalidate"_s)->isEnabled());
            QVERIFY(principale->findChild<QLabel *>(u"LabBase"_s)->text().endsWith(u"das.mdb"_s));
        }
    }

    void baseIllisible()
    {
        const Foyer foyer;
        QVERIFY(QDir::home().mkpath(u"DAS_KORVANDEL/Data"_s));
        QFile fichier(cheminBase());
        QVERIFY(fichier.open(QIODevice::WriteOnly));
        fichier.write(QByteArray(5000, 'x'));
        fichier.close();

        class Temoin : public DialogueScenario
        {
        public:
            QList<Boite> boites;

        protected:
            bool montrer(const Boite &boite) override
            {
                boites << boite;
                return true;
            }
        } dialogue;
        Base base;
        DernierRecours recours(dialogue, {});
        MDIForm principale(base, dialogue, recours, m_bornes, m_menu);
        principale.show();
        QCOMPARE(charger(principale), 1);
        QCOMPARE(dialogue.boites.size(), 1);
        QCOMPARE(dialogue.boites[0].icone, Icone::Critique);
        QVERIFY2(dialogue.boites[0].texte.contains(QDir::toNativeSeparators(cheminBase())),
                 qPrintable(dialogue.boites[0].texte));
        QVERIFY(fichier.open(QIODevice::ReadOnly));
        QCOMPARE(fichier.readAll(), QByteArray(5000, 'x'));
    }

    void echecDansUneTransaction()
    {
        const Foyer foyer;
        Base base;
        auto principale = ouvrirProgramme(base);
        QCOMPARE(charger(*principale), -1);
        DernierRecours recours(m_dialogue, [&base] { base.Cnx.annulerTransaction(); });
        m_dialogue.attendreCritique(u"échec"_s);
        std::optional<Transaction> oubliee; // outlives the action, as the guard of a stopped action would not
        recours.agir([&] {
            oubliee.emplace(base.Cnx);
            base.Cnx.executer(u"INSERT INTO annee (annee) VALUES (2031)"_s);
            throw ErreurBase(u"échec"_s);
        });
        QVERIFY(!base.Cnx.enTransaction());
        oubliee.reset();
        QVERIFY(!base.Cnx.existe(u"SELECT 1 FROM annee"_s));
    }

    void fermerTout()
    {
        const auto principale = ouvrirProgramme();
        principale->resize(901, 602);
        entree(*principale, u"wvalidate"_s)->trigger();
        entree(*principale, u"wImp"_s)->trigger();
        entree(*principale, u"wquit"_s)->trigger();
        QVERIFY(!principale->isVisible());
        QCOMPARE(ouvrirProgramme()->size(), QSize(901, 602)); // remembered
    }
};

int main(int argc, char **argv)
{
    Application application(argc, argv);
    parlerFrancais(application);
    TestShell test;
    return QTest::qExec(&test, argc, argv);
}
#include "test_shell.moc"
