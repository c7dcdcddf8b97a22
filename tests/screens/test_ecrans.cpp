#include "rules/erreurs.h"
#include "screens/centrer.h"
#include "screens/dernierrecours.h"
#include "screens/dialogueqt.h"
#include "screens/etatsfenetres.h"
#include "screens/francais.h"
#include "tests/commun/dialoguescenario.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
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
#include <QTest>
#include <QTimer>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

/// Does something to the modal dialog that the code after this line opens.
template <typename Boite, typename Action>
void quandOuvre(QObject *porteur, Action action)
{
    auto *horloge = new QTimer(porteur);
    QObject::connect(horloge, &QTimer::timeout, porteur, [horloge, action] {
        if (auto *boite = qobject_cast<Boite *>(QApplication::activeModalWidget())) {
            horloge->deleteLater();
            horloge->stop();
            action(boite);
        }
    });
    horloge->start(10);
}

/// A receiver whose slots fail.
class Receveur : public QObject
{
public:
    void sansValeur()
    {
        ++appels;
        throw ErreurBase(u"sans valeur"_s);
    }
    void avecValeur(const QString &texte)
    {
        ++appels;
        throw ErreurBase(texte);
    }

    int appels = 0;
};

/// Every text that a dialog shows, to look for what is not French.
QStringList textes(QWidget *dialogue)
{
    QStringList tous{dialogue->windowTitle()};
    for (const auto *etiquette : dialogue->findChildren<QLabel *>())
        tous << etiquette->text();
    for (const auto *bouton : dialogue->findChildren<QAbstractButton *>())
        tous << bouton->text() << bouton->toolTip();
    for (const auto *boite : dialogue->findChildren<QGroupBox *>())
        tous << boite->title();
    for (const auto *liste : dialogue->findChildren<QComboBox *>()) {
        for (int i = 0; i < liste->count(); ++i)
            tous << liste->itemText(i);
    }
    for (const auto *onglets : dialogue->findChildren<QTabWidget *>()) {
        for (int i = 0; i < onglets->count(); ++i)
            tous << onglets->tabText(i);
    }
    for (const auto *table : dialogue->findChildren<QTreeView *>()) {
        for (int i = 0; table->model() && i < table->model()->columnCount(); ++i)
            tous << table->model()->headerData(i, Qt::Horizontal).toString();
    }
    for (const auto *action : dialogue->findChildren<QAction *>())
        tous << action->text();
    tous.removeAll(QString());
    tous.removeDuplicates();
    return tous;
}

} // namespace

class TestEcrans : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { parlerFrancais(*qApp); }

    void echecsDesActions()
    {
        DialogueScenario dialogue;
        QStringList suite;
        DernierRecours recours(dialogue, [&] { suite << u"annule"_s; });

        QVERIFY(recours.agir([&] { suite << u"fait"_s; }));
        QCOMPARE(suite, QStringList{u"fait"_s});

        dialogue.attendreCritique(u"La colonne nom refuse <30>."_s);
        QVERIFY(!recours.agir([] { throw ErreurBase(u"La colonne nom refuse <30>."_s); }));
        dialogue.attendreCritique(u"Erreur inattendue : vector"_s);
        QVERIFY(!recours.agir([] { throw std::runtime_error("vector"); }));
        dialogue.attendreCritique(u"Mémoire insuffisante."_s);
        QVERIFY(!recours.agir([] { throw std::bad_alloc(); }));
        dialogue.attendreCritique(u"Erreur inattendue."_s);
        QVERIFY(!recours.agir([] { throw 7; }));
        QVERIFY(dialogue.acheve());
        QCOMPARE(suite.size(), 5);
    }

    void annulationAvantLaBoite()
    {
        // The box runs the event loop: no half-done row may stand behind it.
        class Temoin : public DialogueScenario
        {
        public:
            bool *annule = nullptr;
            bool annuleALaBoite = false;

        protected:
            bool montrer(const Boite &boite) override
            {
                annuleALaBoite = *annule;
                return DialogueScenario::montrer(boite);
            }
        } dialogue;
        bool annule = false;
        dialogue.annule = &annule;
        DernierRecours recours(dialogue, [&] {
            annule = true;
            throw ErreurBase(u"Annulation refusée."_s);
        });
        dialogue.attendreCritique(u"Premier échec.\nAnnulation refusée."_s);
        recours.agir([] { throw ErreurBase(u"Premier échec."_s); });
        QVERIFY(dialogue.annuleALaBoite);
    }

    void connexions()
    {
        DialogueScenario dialogue;
        DernierRecours recours(dialogue, {});
        QLineEdit champ;
        QPushButton bouton;
        Receveur receveur;
        QString recu;
        recours.connecter(&bouton, &QPushButton::clicked, &receveur, &Receveur::sansValeur);
        recours.connecter(&champ, &QLineEdit::textChanged, &receveur, &Receveur::avecValeur);
        recours.connecter(&champ, &QLineEdit::textChanged, &receveur,
                          [&](const QString &texte) { recu = texte; });
        recours.connecter(&bouton, &QPushButton::clicked, &receveur, [&] { recu += u"!"_s; });

        dialogue.attendreCritique(u"refus"_s);
        champ.setText(u"refus"_s);
        QCOMPARE(recu, u"refus"_s);
        dialogue.attendreCritique(u"sans valeur"_s);
        bouton.click();
        QVERIFY(dialogue.acheve());
        QCOMPARE(recu, u"refus!"_s);
        QCOMPARE(receveur.appels, 2);
    }

    void echecFatal()
    {
        DialogueScenario dialogue;
        int annulations = 0;
        DernierRecours recours(dialogue, [&] { ++annulations; });
        dialogue.attendreCritique(u"Base illisible."_s);
        QTimer::singleShot(0, this, [&] {
            recours.agir([] { throw ErreurFatale(u"Base illisible."_s); });
            // What fails behind it is undone, but no longer told.
            recours.agir([] { throw ErreurBase(u"La suite."_s); });
        });
        QCOMPARE(QApplication::exec(), 1);
        QVERIFY(dialogue.acheve());
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
        dialogue.attendreCritique(u"Une page ne se lit pas."_s); // once, from the event loop
        QCoreApplication::processEvents();
        QVERIFY(dialogue.acheve());
    }

    void boites_data()
    {
        QTest::addColumn<int>("genre");
        QTest::addColumn<QStringList>("boutons");
        QTest::addColumn<QString>("parDefaut");
        QTest::addColumn<int>("icone");
        QTest::addColumn<int>("touche");
        QTest::addColumn<bool>("reponse");
        const QStringList ouiNon{u"&Oui"_s, u"&Non"_s};
        const QStringList okAnnuler{u"OK"_s, u"Annuler"_s};
        QTest::newRow("plain") << 0 << QStringList{u"OK"_s} << u"OK"_s << int(QMessageBox::NoIcon)
                               << int(Qt::Key_Return) << true;
        QTest::newRow("warning") << 1 << QStringList{u"OK"_s} << u"OK"_s << int(QMessageBox::Warning)
                                 << int(Qt::Key_Escape) << true;
        QTest::newRow("information") << 2 << QStringList{u"OK"_s} << u"OK"_s << int(QMessageBox::Information)
                                     << int(Qt::Key_Return) << true;
        QTest::newRow("critical") << 3 << QStringList{u"OK"_s} << u"OK"_s << int(QMessageBox::Critical)
                                  << int(Qt::Key_Return) << true;
        QTest::newRow("yes") << 4 << ouiNon << u"&Oui"_s << int(QMessageBox::Question) << int(Qt::Key_Return)
                             << true;
        QTest::newRow("escape is no")
            << 4 << ouiNon << u"&Oui"_s << int(QMessageBox::Question) << int(Qt::Key_Escape) << false;
        QTest::newRow("no by default")
            << 5 << ouiNon << u"&Non"_s << int(QMessageBox::Question) << int(Qt::Key_Return) << false;
        QTest::newRow("ok") << 6 << okAnnuler << u"OK"_s << int(QMessageBox::Question) << int(Qt::Key_Return)
                            << true;
        QTest::newRow("escape is cancel")
            << 6 << okAnnuler << u"OK"_s << int(QMessageBox::Question) << int(Qt::Key_Escape) << false;
    }

    void boites()
    {
        QFETCH(int, genre);
        QFETCH(QStringList, boutons);
        QFETCH(QString, parDefaut);
        QFETCH(int, icone);
        QFETCH(int, touche);
        QFETCH(bool, reponse);

        const QString texte = u"Nom <b>B&B</b> refusé  !\nSeconde ligne"_s;
        QMainWindow principale;
        principale.show();
        bool vue = false;
        quandOuvre<QMessageBox>(this, [&](QMessageBox *boite) {
            vue = true;
            auto fermer = qScopeGuard([&] { QTest::keyClick(boite, Qt::Key(touche)); });
            QCOMPARE(boite->windowTitle(), genre == 0 ? u"Titre  propre !"_s : u"DAS KORVANDEL"_s);
            QCOMPARE(boite->text(), texte);
            QCOMPARE(boite->textFormat(), Qt::PlainText);
            QCOMPARE(int(boite->icon()), icone);
            QCOMPARE(boite->parentWidget(), &principale);
            QStringList vus;
            for (const auto *bouton : boite->buttons())
                vus << bouton->text();
            vus.sort();
            boutons.sort();
            QCOMPARE(vus, boutons);
            QCOMPARE(boite->defaultButton()->text(), parDefaut);
        });

        DialogueQt dialogue;
        bool obtenu = true;
        switch (genre) {
        case 0:
            dialogue.afficher(texte, u"Titre  propre !"_s);
            break;
        case 1:
            dialogue.avertir(texte);
            break;
        case 2:
            dialogue.informer(texte);
            break;
        case 3:
            dialogue.critique(texte);
            break;
        case 4:
            obtenu = dialogue.demander(texte);
            break;
        case 5:
            obtenu = dialogue.demander(texte, {}, false);
            break;
        case 6:
            obtenu = dialogue.confirmer(texte);
            break;
        }
        QVERIFY(vue);
        QCOMPARE(obtenu, reponse);
    }

    void boiteTresLongue()
    {
        QString texte;
        for (int i = 0; i < 500; ++i)
            texte += QStringLiteral("Ligne N°: %1  -  N° SS: 000000000000\n").arg(i);
        QRect cadre;
        bool boutonVu = false;
        quandOuvre<QMessageBox>(this, [&](QMessageBox *boite) {
            cadre = boite->frameGeometry();
            const auto *bouton = boite->button(QMessageBox::Ok);
            boutonVu = boite->rect().contains(bouton->geometry().translated(bouton->parentWidget()->pos()));
            boite->accept();
        });
        DialogueQt().avertir(texte);
        QVERIFY(cadre.height() <= qApp->primaryScreen()->availableGeometry().height());
        QVERIFY(boutonVu);
    }

    void choixDUnFichier()
    {
        QTemporaryDir dossier;
        QVERIFY(QDir(dossier.path()).mkdir(u"a"_s));
        const QString chemin = dossier.filePath(u"a/DAS.txt"_s);
        QFile fichier(chemin);
        QVERIFY(fichier.open(QIODevice::WriteOnly));
        fichier.close();

        DialogueQt dialogue;
        quandOuvre<QFileDialog>(this, [&](QFileDialog *choix) {
            QCOMPARE(choix->windowTitle(), u"Choisir"_s);
            choix->findChild<QLineEdit *>()->setText(chemin);
            QTest::keyClick(choix->findChild<QLineEdit *>(), Qt::Key_Return);
        });
        QCOMPARE(dialogue.choisirFichier(u"Choisir"_s, u"Fichiers texte (*.txt)"_s), chemin);

        QString rouvert;
        quandOuvre<QFileDialog>(this, [&](QFileDialog *choix) {
            rouvert = choix->directory().absolutePath();
            choix->reject();
        });
        QCOMPARE(dialogue.choisirFichier(u"Choisir"_s, u"Fichiers texte (*.txt)"_s), QString());
        QCOMPARE(rouvert, dossier.filePath(u"a"_s)); // the folder of the last choice

        quandOuvre<QFileDialog>(this, [&](QFileDialog *choix) {
            QCOMPARE(choix->findChild<QLineEdit *>()->text(), u"12345678_DAS_2024.txt"_s);
            choix->findChild<QLineEdit *>()->setText(dossier.filePath(u"export"_s));
            QTest::keyClick(choix->findChild<QLineEdit *>(), Qt::Key_Return);
        });
        QCOMPARE(dialogue.choisirDestination(u"Exporter"_s, u"12345678_DAS_2024.txt"_s,
                                             u"Fichiers texte (*.txt)"_s),
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
        const QStringList tous = textes(&fichiers) + textes(&impression) + textes(&fille);
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

    void geometries()
    {
        {
            QWidget fenetre;
            fenetre.setObjectName(u"essai"_s);
            QVERIFY(!reprendreGeometrie(fenetre));
            fenetre.setGeometry(30, 40, 333, 222);
            garderGeometrie(fenetre);
        }
        QWidget fenetre;
        fenetre.setObjectName(u"essai"_s);
        QVERIFY(reprendreGeometrie(fenetre));
        QCOMPARE(fenetre.size(), QSize(333, 222));
        reglages().remove(u"fenetres/essai"_s);
    }
};

QTEST_MAIN(TestEcrans)
#include "test_ecrans.moc"
