#include "rules/erreurs.h"
#include "screens/etatsfenetres.h"
#include "screens/francais.h"
#include "shell/application.h"
#include "shell/mdiform.h"
#include "storage/base.h"
#include "storage/lieux.h"
#include "tests/screens/banc.h"
#include "tests/storage/foyer.h"

#include <QCloseEvent>
#include <QDir>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QSignalSpy>
#include <QTimer>
#include <QToolTip>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace boites;

namespace {

/// A screen with a closing button, that may refuse to close.
class Feuille : public QWidget
{
public:
    explicit Feuille(const QString &nom, const QString &bouton = u"Fermer"_s)
    {
        setObjectName(nom);
        setWindowTitle(nom);
        auto *fermer = new QPushButton(bouton);
        fermer->setObjectName(u"CancelButton"_s);
        (new QVBoxLayout(this))->addWidget(fermer);
        connect(fermer, &QPushButton::clicked, this, &QWidget::close);
    }

    bool occupee = false;
    bool peintureEchoue = false;

protected:
    void closeEvent(QCloseEvent *evenement) override { evenement->setAccepted(!occupee); }
    void paintEvent(QPaintEvent *) override
    {
        if (peintureEchoue)
            throw ErreurBase(u"Une page ne se lit pas."_s);
    }
};

QString titre() { return QString::fromLatin1("DAS KORVANDEL " DAS_VERSION); }

} // namespace

class TestShell : public QObject
{
    Q_OBJECT

    Base m_base;
    Banc m_banc{m_base};
    QList<EntreeDeMenu> m_menu = entreesDeMenu();
    bool m_autorisee = true;

    void relier(QStringView entree, Fabrique fabrique)
    {
        for (EntreeDeMenu &ligne : m_menu) {
            if (entree == QStringView(ligne.nom))
                ligne.fabrique = std::move(fabrique);
        }
    }

    std::unique_ptr<MDIForm> ouvrirProgramme() { return ouvrirProgramme(m_base); }

    std::unique_ptr<MDIForm> ouvrirProgramme(Base &base)
    {
        return m_banc.ouvrir(new MDIForm(base, m_banc.dialogue, m_banc.recours, m_banc.bornes, m_menu));
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

    /// Opens a window from the menu. @return its screen
    static Feuille *ouvrir(const MDIForm &principale, const QString &nom)
    {
        entree(principale, nom)->trigger();
        const QMdiSubWindow *cadre = principale.findChild<QMdiArea *>()->activeSubWindow();
        return cadre ? static_cast<Feuille *>(cadre->widget()) : nullptr;
    }

    /// The entries with a window or a tick that can be chosen.
    static QString actives(const MDIForm &principale)
    {
        QStringList noms;
        for (const QAction *action : principale.findChildren<QAction *>(QRegularExpression(u"^w"_s))) {
            if (action->isEnabled() && !action->menu())
                noms += action->objectName();
        }
        noms.sort();
        return noms.join(u' ');
    }

private slots:
    void initTestCase()
    {
        static_cast<Application *>(qApp)->proteger(&m_banc.recours);
        for (EntreeDeMenu &ligne : m_menu)
            ligne.fabrique = {};
        for (const QString &entree : {u"wvalidate"_s, u"wImp"_s, u"wPeriode"_s, u"wGen"_s})
            relier(entree, [entree](Contexte &) { return new Feuille(entree); });
        relier(u"wTransfLgDas"_s, [this](Contexte &contexte) -> QWidget * {
            if (m_autorisee)
                return new Feuille(u"wTransfLgDas"_s);
            contexte.dialogue.avertir(u"table employeur vide !!!!, opération non autorisée "_s);
            return nullptr;
        });
        relier(u"wdas"_s,
               [](Contexte &) -> QWidget * { throw ErreurBase(u"RsEnteteDas n'est pas ouvert."_s); });
    }

    void init() { reglages().clear(); }
    void cleanup() { QVERIFY(m_banc.dialogue.acheve()); }

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

    void menu()
    {
        const auto principale = ouvrirProgramme();
        QCOMPARE(principale->objectName() + u'|' + principale->windowTitle(), u"MDIForm|"_s + titre());
        // Every entry in its submenu, and the tick entries behind a line.
        const auto contenu = [&](const QString &menu) {
            QStringList noms;
            for (const QAction *action : entree(*principale, menu)->menu()->actions())
                noms += action->objectName() + action->shortcut().toString(QKeySequence::PortableText);
            return noms.join(u' ');
        };
        QCOMPARE(contenu(u"wFich"_s),
                 u"wanneeCtrl+P wImpCtrl+E wsalCtrl+S wbnqCtrl+B wPeriode wimport wquitCtrl+Q"_s);
        QCOMPARE(contenu(u"wimport"_s), u"wImpFichSalCtrl+R wImpTabNat wImpDasCtrl+L"_s);
        QCOMPARE(contenu(u"woutil"_s),
                 u"wvalidateCtrl+O wValidListNom wValideDac wGen  wActiverDac wActiverOutils"_s);
        // wPeriode and wGen have windows here, but are off in the delivered menu.
        QCOMPARE(actives(*principale),
                 u"wActiverDac wActiverOutils wImp wTransfLgDas wdas wquit wvalidate"_s);
        QString menus;
        for (const QString &nom : {u"wFich"_s, u"wimport"_s, u"wci"_s, u"wdecmentrim"_s, u"whelp"_s})
            menus += entree(*principale, nom)->isEnabled() ? nom + u' ' : QString();
        QCOMPARE(menus, u"wFich wimport wci "_s);
    }

    void groupesAActiver()
    {
        const QString toujours = u" wImp wTransfLgDas wdas wquit wvalidate"_s;
        const QString coches = u"wActiverDac wActiverOutils"_s;
        {
            const auto principale = ouvrirProgramme();
            QAction *coche = entree(*principale, u"wActiverDac"_s);
            coche->trigger();
            const QString avecPeriode = coches + u" wImp wPeriode wTransfLgDas wdas wquit wvalidate"_s;
            QCOMPARE(actives(*principale), avecPeriode);
            QVERIFY(entree(*principale, u"wdecmentrim"_s)->isEnabled());
            // Turned off and on while its window is open: allowed, but open; then closed, but not allowed.
            Feuille *ouverte = ouvrir(*principale, u"wPeriode"_s);
            coche->trigger();
            coche->trigger();
            QCOMPARE(actives(*principale), coches + toujours);
            coche->trigger();
            ouverte->close();
            QCOMPARE(actives(*principale), coches + toujours);
            coche->trigger();
            QCOMPARE(actives(*principale), avecPeriode);
            principale->close();
        }
        const auto principale = ouvrirProgramme(); // kept
        QVERIFY(entree(*principale, u"wActiverDac"_s)->isChecked());
        QVERIFY(!entree(*principale, u"wActiverOutils"_s)->isChecked());
        entree(*principale, u"wActiverDac"_s)->trigger();
        entree(*principale, u"wActiverOutils"_s)->trigger();
        QCOMPARE(actives(*principale), coches + u" wGen"_s + toujours);
        QVERIFY(!entree(*principale, u"wdecmentrim"_s)->isEnabled());
    }

    void uneSeuleFenetre_data()
    {
        QTest::addColumn<QString>("moyen");
        for (const char *moyen : {"button of the screen", "frame", "frame, maximised"})
            QTest::newRow(moyen) << QString::fromLatin1(moyen);
    }

    void uneSeuleFenetre()
    {
        QFETCH(QString, moyen);
        const auto principale = ouvrirProgramme();
        auto *aire = principale->findChild<QMdiArea *>();
        const QAction *valider = entree(*principale, u"wvalidate"_s);
        for (int tour = 1; tour <= 2; ++tour) {
            QTest::keyClick(principale.get(), Qt::Key_O, Qt::ControlModifier);
            QTRY_COMPARE(aire->subWindowList().size(), 1);
            auto *ouverte = static_cast<Feuille *>(principale->findChild<QWidget *>(u"wvalidate"_s));
            QVERIFY(ouverte && ouverte->isVisible() && !valider->isEnabled());
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
            QVERIFY(ouverte->isVisible() && !valider->isEnabled());
            ouverte->occupee = false;

            QSignalSpy fermetures(ouverte, &QObject::destroyed);
            if (moyen == u"button of the screen") {
                cliquer(*ouverte, u"CancelButton"_s);
            } else {
                if (moyen == u"frame, maximised")
                    cadre->showMaximized();
                cadre->close();
            }
            QVERIFY(valider->isEnabled());
            QTRY_COMPARE(aire->subWindowList().size(), 0);
            QTRY_COMPARE(fermetures.size(), 1);
            QCOMPARE(principale->windowTitle(), titre());
        }
    }

    /// Room for the title where there is some, and for every control even where there is none.
    void tailles()
    {
        const auto principale = ouvrirProgramme();
        QCOMPARE(principale->size(), QSize(1100, 720).boundedTo(principale->screen()->availableSize()));
        const QString long40(40, u'W');
        relier(u"wPeriode"_s, [&](Contexte &) { return new Feuille(long40.left(20)); });
        relier(u"wGen"_s, [&](Contexte &) { return new Feuille(u"wGen"_s, long40 + long40); });
        const auto ici = ouvrirProgramme();
        for (const QString &coche : {u"wActiverDac"_s, u"wActiverOutils"_s})
            entree(*ici, coche)->trigger();
        const QWidget *titree = ouvrir(*ici, u"wPeriode"_s)->parentWidget();
        const int large = titree->fontMetrics().horizontalAdvance(titree->windowTitle());
        QVERIFY(titree->width() > large + 100 && titree->width() < large + 200);
        ici->resize(400, 300);
        const auto *bouton = champ<QPushButton>(*ouvrir(*ici, u"wGen"_s), u"CancelButton"_s);
        QCoreApplication::processEvents();
        QVERIFY(bouton->width() >= bouton->minimumSizeHint().width());
        for (const QString &nom : {u"wPeriode"_s, u"wGen"_s})
            relier(nom, [nom](Contexte &) { return new Feuille(nom); });

        ici->resize(501, 402);
        entree(*ici, u"wquit"_s)->trigger();
        QVERIFY(!ici->isVisible());
        QCOMPARE(ouvrirProgramme()->size(), QSize(501, 402)); // remembered
    }

    /// On X11 a text field keeps Ctrl+E to go to its end; in the menu it is the employers. Alt+A also names
    /// the menu "&Aide", Alt+F "&Fichier".
    void touches()
    {
        const auto principale = ouvrirProgramme();
        auto *champ = new QLineEdit(ouvrir(*principale, u"wvalidate"_s));
        champ->show();
        champ->setFocus();
        QTRY_VERIFY(champ->hasFocus());
        QTest::keyClick(champ, Qt::Key_E, Qt::ControlModifier);
        auto *ouverte = principale->findChild<QWidget *>(u"wImp"_s);
        QVERIFY(ouverte);

        QStringList clics;
        for (const QString &libelle : {u"&Ajouter"_s, u"&Fermer"_s}) {
            auto *bouton = new QPushButton(libelle, ouverte);
            bouton->show();
            connect(bouton, &QPushButton::clicked, this, [&clics, libelle] { clics += libelle; });
        }
        for (int fois = 1; fois <= 2; ++fois) {
            QTest::keyClick(principale.get(), Qt::Key_A, Qt::AltModifier);
            QTRY_COMPARE(clics.size(), 2 * fois - 1);
            QTest::keyClick(principale.get(), Qt::Key_F, Qt::AltModifier);
            QTRY_COMPARE(clics.size(), 2 * fois);
        }
        QCOMPARE(clics.join(u' '), u"&Ajouter &Fermer &Ajouter &Fermer"_s);
        QVERIFY(!QApplication::activePopupWidget());
    }

    /// When a window closes, the one that was in use before it is, and no other that may lie hidden.
    void fenetreSuivanteActive()
    {
        const auto principale = ouvrirProgramme();
        for (const QString &nom : {u"wTransfLgDas"_s, u"wvalidate"_s, u"wImp"_s})
            QCOMPARE(ouvrir(*principale, nom)->objectName(), nom);
        principale->findChild<QWidget *>(u"wImp"_s)->close();
        auto *aire = principale->findChild<QMdiArea *>();
        QTRY_COMPARE(aire->subWindowList().size(), 2);
        QCOMPARE(aire->activeSubWindow()->widget()->objectName(), u"wvalidate"_s);
    }

    void fenetresQuiNeSOuvrentPas()
    {
        const auto principale = ouvrirProgramme();
        m_autorisee = false;
        m_banc.dialogue.attendre({avertissement(u"table employeur vide !!!!, opération non autorisée "_s),
                                  critique(u"RsEnteteDas n'est pas ouvert."_s)});
        for (const QString &nom : {u"wTransfLgDas"_s, u"wdas"_s}) {
            QVERIFY(!ouvrir(*principale, nom));
            QVERIFY(entree(*principale, nom)->isEnabled());
        }
        m_autorisee = true;
        QVERIFY(ouvrir(*principale, u"wTransfLgDas"_s));
    }

    void filetSousLaBoucle()
    {
        const auto principale = ouvrirProgramme();
        Feuille *ouverte = ouvrir(*principale, u"wvalidate"_s);
        QVERIFY(QTest::qWaitForWindowExposed(principale.get()));
        bool dit = false;
        m_banc.dialogue.aChaqueBoite = [&] {
            ouverte->peintureEchoue = false;
            dit = true;
        };
        m_banc.dialogue.attendre({critique(u"Une page ne se lit pas."_s)});
        ouverte->peintureEchoue = true;
        ouverte->update();
        QTRY_VERIFY(dit);
        m_banc.dialogue.aChaqueBoite = {};
    }

    void demarrages()
    {
        const Foyer foyer;
        // What is done to the database first, and how the start ends: -1 when the program goes on.
        const auto demarrerApres = [&](const QString &sql, bool wdas, int sortie, const Attentes &boites) {
            if (!sql.isEmpty()) {
                Connexion cnx;
                cnx.ouvrir(cheminBase());
                cnx.definir(sql);
            }
            Base base;
            const auto principale = ouvrirProgramme(base);
            m_banc.dialogue.attendre(boites);
            QCOMPARE(charger(*principale), sortie);
            if (sortie < 0) {
                QCOMPARE(entree(*principale, u"wdas"_s)->isEnabled(), wdas);
                QVERIFY(entree(*principale, u"wvalidate"_s)->isEnabled());
                QVERIFY(texte(*principale, u"LabBase"_s).endsWith(u"das.mdb"_s));
            }
        };
        demarrerApres({}, false, -1, {});
        demarrerApres(u"INSERT INTO annee (annee) VALUES (2024)"_s, false, -1, {});
        demarrerApres(u"INSERT INTO employeur (num_emp) VALUES ('12345678')"_s, true, -1, {});
        demarrerApres(
            u"DROP TABLE Nationalite"_s, false, 0,
            {information(
                u"table Nationalité crée, Veuillez relancer une seconde fois l'application, SVP"_s)});
    }

    void baseIllisible()
    {
        const Foyer foyer;
        const QByteArray octets(5000, 'x');
        ecrireFichier(cheminBase(), octets);
        DialogueScenario dialogue;
        Base base;
        DernierRecours recours(dialogue, {});
        MDIForm principale(base, dialogue, recours, m_banc.bornes, m_menu);
        dialogue.attendre(
            {critique(u"La base de données « %1 » ne peut pas être ouverte.\n"
                      "Le fichier n'est pas une base de données.\n(file is not a database)"_s.arg(
                          QDir::toNativeSeparators(cheminBase())))});
        QCOMPARE(charger(principale), 1);
        QCOMPARE(lireFichier(cheminBase()), octets);
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
