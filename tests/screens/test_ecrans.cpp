#include "rules/erreurs.h"
#include "screens/centrer.h"
#include "screens/dernierrecours.h"
#include "screens/dialogueqt.h"
#include "screens/francais.h"
#include "tests/commun/cas.h"
#include "tests/screens/banc.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>

using namespace Qt::StringLiterals;
using namespace boites;

namespace {

/// Acts in the dialog of that class that the code after this line opens; the action ends it.
template <typename Boite, typename Action>
void quandOuvre(Action action)
{
    dansLaFenetre([action](QWidget &fenetre) {
        auto *boite = qobject_cast<Boite *>(&fenetre);
        QVERIFY(boite);
        action(*boite);
    });
}

/// Every text that a dialog shows, to look for what is not French.
QStringList textesMontres(QWidget &dialogue)
{
    QStringList tous{dialogue.windowTitle()};
    for (const QWidget *un : dialogue.findChildren<QWidget *>())
        tous << un->property("text").toString() << un->property("title").toString() << un->toolTip();
    for (const auto *liste : dialogue.findChildren<QComboBox *>()) {
        for (int i = 0; i < liste->count(); ++i)
            tous << liste->itemText(i);
    }
    for (const auto *onglets : dialogue.findChildren<QTabWidget *>()) {
        for (int i = 0; i < onglets->count(); ++i)
            tous << onglets->tabText(i);
    }
    for (const auto *table : dialogue.findChildren<QTreeView *>()) {
        for (int i = 0; table->model() && i < table->model()->columnCount(); ++i)
            tous << table->model()->headerData(i, Qt::Horizontal).toString();
    }
    for (const auto *action : dialogue.findChildren<QAction *>())
        tous << action->text();
    return tous;
}

} // namespace

class TestEcrans : public QObject
{
    Q_OBJECT

    /// How it is shown, its icon and its buttons, the default one first; a key and its answer.
    using CasBoite = std::tuple<const char *, std::function<bool(DialogueQt &)>, QMessageBox::Icon, QString,
                                Qt::Key, bool>;

private slots:
    void initTestCase() { parlerFrancais(*qApp); }

    /// What was begun is undone before the box, which runs the event loop: no half-done row may stand behind
    /// it.
    void echecsDesActions()
    {
        DialogueScenario dialogue;
        QString suite;
        bool refuse = false;
        DernierRecours recours(dialogue, [&] {
            suite += u"annule "_s;
            if (refuse)
                throw ErreurBase(u"Annulation refusée."_s);
        });
        dialogue.aChaqueBoite = [&] { suite += u"boite "_s; };
        QVERIFY(recours.agir([&] { suite += u"fait "_s; }));
        dialogue.attendre({critique(u"La colonne nom refuse <30>."_s),
                           critique(u"Erreur inattendue : vector"_s), critique(u"Mémoire insuffisante."_s),
                           critique(u"Erreur inattendue."_s),
                           critique(u"Premier échec.\nAnnulation refusée."_s)});
        QVERIFY(!recours.agir([] { throw ErreurBase(u"La colonne nom refuse <30>."_s); }));
        QVERIFY(!recours.agir([] { throw std::runtime_error("vector"); }));
        QVERIFY(!recours.agir([] { throw std::bad_alloc(); }));
        QVERIFY(!recours.agir([] { throw 7; }));
        refuse = true;
        QVERIFY(!recours.agir([] { throw ErreurBase(u"Premier échec."_s); }));
        QVERIFY(dialogue.acheve());
        QCOMPARE(suite, u"fait "_s + u"annule boite "_s.repeated(5));
    }

    void echecFatal()
    {
        DialogueScenario dialogue;
        int annulations = 0;
        DernierRecours recours(dialogue, [&] { ++annulations; });
        dialogue.attendre({critique(u"Base illisible."_s)});
        QTimer::singleShot(0, this, [&] {
            recours.agir([] { throw ErreurFatale(u"Base illisible."_s); });
            // What fails behind it is undone, but no longer told.
            recours.agir([] { throw ErreurBase(u"La suite."_s); });
        });
        QCOMPARE(QApplication::exec(), 1);
        QCOMPARE(annulations, 2);
    }

    void echecHorsDUneAction()
    {
        DialogueScenario dialogue;
        int annulations = 0;
        DernierRecours recours(dialogue, [&] { ++annulations; });
        for (int i = 0; i < 3; ++i) {
            try {
                throw ErreurBase(u"Une page ne se lit pas."_s);
            } catch (...) {
                recours.traiterPlusTard();
            }
        }
        QCOMPARE(annulations, 3);
        dialogue.attendre({critique(u"Une page ne se lit pas."_s)}); // once, from the event loop
        QCoreApplication::processEvents();
    }

    void boites_data()
    {
        static const QString texte = u"Nom <b>B&B</b> refusé  !\nSeconde ligne"_s;
        const auto demander = [](DialogueQt &d) { return d.demander(texte); };
        const auto demanderNon = [](DialogueQt &d) { return d.demander(texte, {}, false); };
        const auto confirmer = [](DialogueQt &d) { return d.confirmer(texte); };
        const auto oui = [](auto dire) {
            return [dire](DialogueQt &d) {
                dire(d);
                return true;
            };
        };
        using B = QMessageBox;
        lignesDuTest<CasBoite>(
            {{"plain", oui([](DialogueQt &d) { d.afficher(texte, u"Titre  propre !"_s); }), B::NoIcon,
              u"OK"_s, Qt::Key_Return, true},
             {"warning", oui([](DialogueQt &d) { d.avertir(texte); }), B::Warning, u"OK"_s, Qt::Key_Escape,
              true},
             {"information", oui([](DialogueQt &d) { d.informer(texte); }), B::Information, u"OK"_s,
              Qt::Key_Return, true},
             {"critical", oui([](DialogueQt &d) { d.critique(texte); }), B::Critical, u"OK"_s, Qt::Key_Return,
              true},
             {"yes", demander, B::Question, u"&Oui|&Non"_s, Qt::Key_Return, true},
             {"escape is no", demander, B::Question, u"&Oui|&Non"_s, Qt::Key_Escape, false},
             {"no by default", demanderNon, B::Question, u"&Non|&Oui"_s, Qt::Key_Return, false},
             {"ok", confirmer, B::Question, u"OK|Annuler"_s, Qt::Key_Return, true},
             {"escape is cancel", confirmer, B::Question, u"OK|Annuler"_s, Qt::Key_Escape, false}});
    }

    void boites()
    {
        QFETCH(CasBoite, cas);
        const auto icone = std::get<QMessageBox::Icon>(cas);
        QMainWindow principale;
        principale.show();
        bool vue = false;
        quandOuvre<QMessageBox>([&](QMessageBox &boite) {
            vue = true;
            const auto fermer = qScopeGuard([&] { QTest::keyClick(&boite, std::get<Qt::Key>(cas)); });
            QCOMPARE(boite.windowTitle(),
                     icone == QMessageBox::NoIcon ? u"Titre  propre !"_s : u"DAS KORVANDEL"_s);
            QCOMPARE(boite.text(), u"Nom <b>B&B</b> refusé  !\nSeconde ligne"_s);
            QCOMPARE(boite.textFormat(), Qt::PlainText);
            QCOMPARE(boite.icon(), icone);
            QCOMPARE(boite.parentWidget(), &principale);
            QStringList vus{boite.defaultButton()->text()};
            for (const auto *bouton : boite.buttons()) {
                if (bouton != boite.defaultButton())
                    vus << bouton->text();
            }
            QCOMPARE(vus.join(u'|'), std::get<QString>(cas));
        });
        DialogueQt dialogue;
        QCOMPARE(std::get<1>(cas)(dialogue), std::get<bool>(cas));
        QVERIFY(vue);
    }

    /// A long text scrolls above its button, and a long title has its room.
    void taillesDesBoites()
    {
        const QString titre(24, u'W');
        QRect cadre;
        bool boutonVu = false;
        const auto mesurer = [&](QMessageBox &boite) {
            cadre = boite.frameGeometry();
            const auto *bouton = boite.button(QMessageBox::Ok);
            boutonVu = boite.rect().contains(bouton->geometry().translated(bouton->parentWidget()->pos()));
            boite.accept();
        };
        quandOuvre<QMessageBox>(mesurer);
        DialogueQt().avertir(u"Ligne N°: 1  -  N° SS: 000000000000\n"_s.repeated(500));
        QVERIFY(cadre.height() <= qApp->primaryScreen()->availableGeometry().height());
        QVERIFY(boutonVu);
        quandOuvre<QMessageBox>(mesurer);
        DialogueQt().avertir(u"."_s, titre);
        // With the buttons of the frame.
        const int large = QFontMetrics(QApplication::font("QMessageBox")).horizontalAdvance(titre);
        QVERIFY2(cadre.width() > large + 140 && cadre.width() < 3 * large / 2 + 140,
                 qPrintable(QString::number(cadre.width()) + u'/' + QString::number(large)));
    }

    void choixDUnFichier()
    {
        QTemporaryDir dossier;
        QVERIFY(QDir(dossier.path()).mkdir(u"a"_s));
        const QString chemin = dossier.filePath(u"a/DAS.txt"_s);
        QFile fichier(chemin);
        QVERIFY(fichier.open(QIODevice::WriteOnly));
        const QString filtre = u"Fichiers texte (*.txt)"_s;
        const auto entrer = [](QFileDialog &choix, const QString &nom) {
            choix.findChild<QLineEdit *>()->setText(nom);
            QTest::keyClick(choix.findChild<QLineEdit *>(), Qt::Key_Return);
        };

        DialogueQt dialogue;
        quandOuvre<QFileDialog>([&](QFileDialog &choix) {
            QCOMPARE(choix.windowTitle(), u"Choisir"_s);
            entrer(choix, chemin);
        });
        QCOMPARE(dialogue.choisirFichier(u"Choisir"_s, filtre), chemin);

        QString rouvert;
        quandOuvre<QFileDialog>([&](QFileDialog &choix) {
            rouvert = choix.directory().absolutePath();
            choix.reject();
        });
        QCOMPARE(dialogue.choisirFichier(u"Choisir"_s, filtre), QString());
        QCOMPARE(rouvert, dossier.filePath(u"a"_s)); // the folder of the last choice

        quandOuvre<QFileDialog>([&](QFileDialog &choix) {
            QCOMPARE(choix.findChild<QLineEdit *>()->text(), u"12345678_DAS_2024.txt"_s);
            entrer(choix, dossier.filePath(u"export"_s));
        });
        QCOMPARE(dialogue.choisirDestination(u"Exporter"_s, u"12345678_DAS_2024.txt"_s, filtre),
                 dossier.filePath(u"export.txt"_s));
    }

    void toutEstEnFrancais()
    {
        QFileDialog fichiers(nullptr, {}, QDir::tempPath(), u"Fichiers texte (*.txt)"_s);
        fichiers.setOption(QFileDialog::DontUseNativeDialog);
        QPrinter imprimante;
        imprimante.setOutputFormat(QPrinter::PdfFormat);
        QPrintDialog impression(&imprimante);
        QMdiSubWindow fille;
        const QStringList tous = textesMontres(fichiers) + textesMontres(impression) + textesMontres(fille);
        for (const QString &attendu :
             {u"Annuler"_s, u"Nom"_s, u"Taille"_s, u"Dernière modification"_s, u"Im&primer"_s, u"&Fermer"_s})
            QVERIFY2(tous.contains(attendu), qPrintable(attendu + u" is not in: "_s + tous.join(u" | "_s)));
        static const QRegularExpression anglais(
            u"\\b(the|of|file|folder|print|cancel|size|date modified|pages? "
            u"from|copies:|output|name|open|save|"
            u"margins|range|current|paper|color|reverse|close|restore|width|height|portrait mode)\\b"_s,
            QRegularExpression::CaseInsensitiveOption);
        for (const QString &texte : tous)
            QVERIFY2(!anglais.match(texte).hasMatch(), qPrintable(texte));
    }

    void centrer()
    {
        QMainWindow principale;
        principale.setGeometry(20, 10, 700, 600);
        auto *aire = new QMdiArea;
        principale.setCentralWidget(aire);
        principale.show();
        const QSize place = aire->viewport()->size();

        auto *feuille = new QWidget;
        QMdiSubWindow *fille = aire->addSubWindow(feuille);
        fille->resize(301, 200);
        fille->show();
        CentrerFeuille(*feuille);
        QCOMPARE(fille->pos(), QPoint((place.width() - 301) / 2, (place.height() - 200) / 2));

        fille->resize(place.width() + 100, place.height() + 50);
        CentrerFeuille(*fille);
        QCOMPARE(fille->pos(), QPoint(0, 0));

        QDialog seule(&principale);
        seule.resize(300, 200);
        centrerALOuverture(seule);
        seule.show();
        const QPoint ouverte = seule.frameGeometry().topLeft();
        CentrerFeuille(seule);
        const int menu = qRound(1015 / 1440.0 * seule.logicalDpiY());
        const QSize taille = seule.frameGeometry().size();
        const QPoint attendu((place.width() - taille.width()) / 2,
                             (place.height() - taille.height()) / 2 + menu);
        QCOMPARE(seule.frameGeometry().topLeft(), principale.frameGeometry().topLeft() + attendu);
        // At the opening the window system has not yet told the width of the frame.
        QVERIFY((ouverte - seule.frameGeometry().topLeft()).manhattanLength() <= 8);
        seule.hide();
        seule.move(5, 5);
        seule.show(); // only the first time: a window that was moved stays where it was put
        QCOMPARE(seule.pos(), QPoint(5, 5));
    }
};

QTEST_MAIN(TestEcrans)
#include "test_ecrans.moc"
