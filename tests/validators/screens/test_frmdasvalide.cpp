#include "rules/calendrier.h"
#include "screens/dernierrecours.h"
#include "storage/base.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/commun/menutemoin.h"
#include "validators/screens/frmdasvalide.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A line of a national without fault: nothing of it is listed.
const QString bonneLigne =
    u"802345678919;BENALI;AMINA;C;05/03/1980;ORAN;12 rue des frères "
    u"Bouadou;ORAN;31000;N;N;123456768;;;;MACON;"
    "1000.50;10;M;01/07/2020;E;F;0550112233;a@b.dz;;004;ALI;SAIDI;LEILA;123456789123456789;12345;"_s;

} // namespace

/// The screen as a clerk uses it: choosing a file, reading both lists, copying, printing.
class TestFrmDasValide : public QObject
{
    Q_OBJECT

private:
    QString ecrire(const QString &nom, const QStringList &lignes)
    {
        QFile fichier(m_dossier.filePath(nom));
        if (!fichier.open(QIODevice::WriteOnly))
            qFatal("cannot write");
        fichier.write(lignes.join(u"\r\n"_s).toLatin1() + "\r\n");
        return fichier.fileName();
    }

    template <typename T>
    T *trouver(const QString &nom)
    {
        return m_ecran->findChild<T *>(nom);
    }

    QString texte(const QString &label) { return trouver<QLabel>(label)->text(); }

    /// A whole run that ends with these counts and, with rejects, the declaration's return.
    void extraire(const QString &chemin, int rejets, int sansIncidence)
    {
        m_dialogue.attendreFichier(chemin);
        m_dialogue.attendreBoite(
            u"Extraction Terminée avec Nombre Erreurs : \n  - De Rejet : %1\n  - Sans Incidence : %2"_s
                .arg(rejets)
                .arg(sansIncidence));
        if (rejets > 0) {
            m_dialogue.attendreAvertissement(
                u"Votre Das Contient des Erreurs !!!\nElle sera retournée par la KORVANDEL !!!\nVeuillez Corriger votre Fichier avant envoi, S.V.P!!!"_s);
        }
        QTest::mouseClick(trouver<QPushButton>(u"CmdExtFichier"_s), Qt::LeftButton);
        QVERIFY(m_dialogue.acheve());
    }

    /// Counts the pages of a PDF by their objects, which stand uncompressed.
    static qsizetype pages(const QString &chemin)
    {
        QFile fichier(chemin);
        return fichier.open(QIODevice::ReadOnly) ? fichier.readAll().count("/Type /Page\n") : -1;
    }

    QTemporaryDir m_dossier;
    DialogueScenario m_dialogue;
    MenuTemoin m_menu;
    Base m_base;
    BornesDePeriode m_bornes;
    DernierRecours m_recours{m_dialogue, [] {}};
    Contexte m_contexte{m_base, m_dialogue, m_recours, m_bornes, m_menu};
    std::unique_ptr<FrmDasValide> m_ecran;

private slots:
    void init()
    {
        m_ecran = std::make_unique<FrmDasValide>(m_contexte);
        m_ecran->show();
    }

    void ouverture()
    {
        QCOMPARE(m_ecran->windowTitle(), u"Validation Déclaration Annuelle des Salaires (D.A.S)"_s);
        QVERIFY(!trouver<QTabWidget>(u"SSTab1"_s)->isEnabled());
        QCOMPARE(texte(u"LabDAS"_s) + texte(u"LabDAS2"_s), QString());
    }

    /// The amounts of the monthly declarations against the total that was just read.
    void confrontation()
    {
        const QString chemin =
            ecrire(u"11000028_das_2021.txt"_s,
                   {u"DAS KORVANDEL VER 3.0"_s, u"11000028;2021;1;1000.5;1;"_s, bonneLigne});
        m_ecran->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_ecran.get()));
        extraire(chemin, 0, 0);
        trouver<QTabWidget>(u"SSTab1"_s)->setCurrentIndex(2);
        QCOMPARE(texte(u"LabT3"_s) + u' ' + texte(u"Lab01"_s), u"2020-T3 2021-01"_s);

        auto *premiere = trouver<QLineEdit>(u"Txt07"_s);
        premiere->setFocus();
        QTest::keyClicks(premiere, u"1 000.40"_s);
        QTest::keyClick(premiere, Qt::Key_Tab);
        QCOMPARE(premiere->text(), u"1000.4"_s);
        QVERIFY(trouver<QLineEdit>(u"Txt08"_s)->hasFocus());
        QCOMPARE(texte(u"LabSommeDAC"_s), u"1000.4"_s);
        m_dialogue.attendreAvertissement(u"Veuillez Saisir un Montant Correct S.V.P!!!"_s, u"DAS"_s);
        QTest::keyClicks(trouver<QLineEdit>(u"Txt08"_s), u"-1"_s);
        QTest::keyClick(trouver<QLineEdit>(u"Txt08"_s), Qt::Key_Return);
        QVERIFY(trouver<QLineEdit>(u"Txt08"_s)->hasFocus());
        QCOMPARE(trouver<QLineEdit>(u"Txt08"_s)->text(), QString());

        // Left by a click on another tab, the refused box is back in front of the clerk.
        m_dialogue.attendreAvertissement(u"Veuillez Saisir un Montant Correct S.V.P!!!"_s, u"DAS"_s);
        QTest::keyClicks(trouver<QLineEdit>(u"Txt08"_s), u"-1"_s);
        auto *onglets = trouver<QTabWidget>(u"SSTab1"_s);
        QTest::mouseClick(onglets->tabBar(), Qt::LeftButton, {}, onglets->tabBar()->tabRect(0).center());
        QTRY_VERIFY(trouver<QLineEdit>(u"Txt08"_s)->hasFocus());
        QCOMPARE(onglets->currentIndex(), 2);

        m_dialogue.attendreAvertissement(u"Montant DAS Annuelle Supérieur du Total DACs"_s, u"DAS"_s);
        QTest::mouseClick(trouver<QPushButton>(u"CmdVerifier"_s), Qt::LeftButton);
        QCOMPARE(texte(u"LabDAS3"_s), u"Montant DAS Annuelle Supérieur au Total DACs\nDe :  0.1"_s);

        auto *trimestre = trouver<QLineEdit>(u"TxtT2"_s);
        trimestre->setFocus();
        QTest::keyClicks(trimestre, u"0.1"_s);
        m_dialogue.attendreInformation(u"Montant DAS Annuelle Egal au Total DACs"_s, u"DAS"_s);
        QTest::mouseClick(trouver<QPushButton>(u"CmdVerifier"_s), Qt::LeftButton);
        QVERIFY(m_dialogue.acheve());

        extraire(chemin, 0, 0);
        m_dialogue.attendreFichier({});
        m_dialogue.attendreBoite(u"Aucun fichier n'a été sélectionné !!!"_s, u"DAS INFO"_s);
        QTest::mouseClick(trouver<QPushButton>(u"CmdExtFichier"_s), Qt::LeftButton);
        QCOMPARE(texte(u"LabT3"_s) + u' ' + texte(u"Lab01"_s), u"T3 01"_s);
        QCOMPARE(premiere->text() + trimestre->text() + texte(u"LabSommeDAC"_s) + texte(u"LabDAS3"_s),
                 QString());
    }

    void listesEtLibelles()
    {
        QString mauvaise = bonneLigne;
        mauvaise.replace(u";BENALI;"_s, u";;"_s).replace(u";F;0550"_s, u";X;0550"_s);
        extraire(ecrire(u"11000028_das_2021.txt"_s,
                        {u"DAS KORVANDEL VER 3.0"_s, u"11000028;2021;1;2001;2;"_s, bonneLigne, mauvaise}),
                 1, 1);

        QVERIFY(trouver<QTabWidget>(u"SSTab1"_s)->isEnabled());
        QCOMPARE(texte(u"LabEmpl"_s), u"11000028"_s);
        QCOMPARE(texte(u"LabAnn"_s), u"2021"_s);
        QCOMPARE(texte(u"LabTotSalaires"_s), u"2 001.00"_s);
        QCOMPARE(texte(u"LabTotSalaries"_s), u"2"_s);
        QCOMPARE(texte(u"LabDAS"_s), u"Nbre Erreurs De Rejet : 1 ,  Sans Incidence : 1\n"_s);
        QCOMPARE(texte(u"LabDAS2"_s),
                 u"Total Lignes DAS = Entête DAS\nTotal Nb Salariés Lignes DAS = Entête DAS\n"_s);

        auto *table = trouver<QTableView>(u"ListeErrRejet"_s);
        const QString entree =
            u"Ligne N°:2  -  N° SS: 802345678919  -  Nom :   - Prénom: AMINA  -  Nom est Vide ou incorrecte"_s;
        QCOMPARE(table->model()->rowCount(), 1);
        QStringList cellules;
        for (int colonne = 0; colonne < table->model()->columnCount(); ++colonne)
            cellules += table->model()->index(0, colonne).data().toString();
        QCOMPARE(cellules, QStringList({u"2"_s, entree, u"802345678919"_s, u" AMINA"_s}));
        QVERIFY(table->columnWidth(1) > table->fontMetrics().horizontalAdvance(entree));
        QCOMPARE(trouver<QTableView>(u"ListeErrOK"_s)->model()->rowCount(), 1);

        // The first error is chosen, and the keys are the list's.
        QCOMPARE(m_ecran->focusWidget(), table);
        QCOMPARE(trouver<QPlainTextEdit>(u"DetailListeErrRejet"_s)->toPlainText(), entree);
        QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QString(entree + u'\n'));
    }

    void secondeExtraction()
    {
        const QString entete = u"11000028;2021;1;1000,5;1;"_s;
        QString sansNom = bonneLigne;
        sansNom.replace(u";BENALI;"_s, u";;"_s);
        QString sansAdresse = bonneLigne;
        sansAdresse.replace(u"12 rue des frères Bouadou"_s, u"rue"_s);
        extraire(ecrire(u"11000028_DAS_2021.TXT"_s, {u"DAS KORVANDEL VER 3.0"_s, entete, sansNom}), 1, 0);
        extraire(ecrire(u"11000028_DAS_2021.TXT"_s, {u"DAS KORVANDEL VER 3.0"_s, entete, sansAdresse}), 1, 0);
        // The table shows its own row, though the list for the print begins with the old words.
        const auto *modele = trouver<QTableView>(u"ListeErrRejet"_s)->model();
        QCOMPARE(modele->rowCount(), 1);
        QVERIFY(modele->index(0, 1).data().toString().endsWith(u"  -  Adresse : rue  Vide ou non valide"));

        // A cancelled dialog clears what was shown; the tabs stay on.
        m_dialogue.attendreFichier({});
        m_dialogue.attendreBoite(u"Aucun fichier n'a été sélectionné !!!"_s, u"DAS INFO"_s);
        QTest::keyClick(trouver<QPushButton>(u"CmdExtFichier"_s), Qt::Key_Return);
        QCOMPARE(modele->rowCount(), 0);
        QCOMPARE(texte(u"LabEmpl"_s), QString());
        QVERIFY(trouver<QTabWidget>(u"SSTab1"_s)->isEnabled());
    }

    void fichierIllisible()
    {
        QVERIFY(QDir(m_dossier.path()).mkpath(u"dossier.txt"_s));
        m_dialogue.attendreFichier(m_dossier.filePath(u"dossier.txt"_s));
        m_dialogue.attendreCritique(
            u"Le fichier « dossier.txt » ne peut pas être ouvert : c'est un dossier."_s);
        QTest::mouseClick(trouver<QPushButton>(u"CmdExtFichier"_s), Qt::LeftButton);
        QVERIFY(m_dialogue.acheve());
    }

    void impression()
    {
        QString mauvaise = bonneLigne;
        mauvaise.replace(u";BENALI;"_s, u";;"_s);
        QStringList lignes{u"DAS KORVANDEL VER 3.0"_s, u"11000028;2021;1;2001;2;"_s};
        lignes += QStringList(40, mauvaise);
        extraire(ecrire(u"11000028_DAS_2021.txt"_s, lignes), 40, 0);

        auto *table = trouver<QTableView>(u"ListeErrRejet"_s);
        QTest::keyClick(table, Qt::Key_End);
        QVERIFY(table->selectionModel()->isRowSelected(39));
        QVERIFY(trouver<QPlainTextEdit>(u"DetailListeErrRejet"_s)->toPlainText().startsWith(u"Ligne N°:40 "));
        QTest::keyClick(table, Qt::Key_Home, Qt::ControlModifier);
        QVERIFY(table->selectionModel()->isRowSelected(0));

        const QString pdf = m_dossier.filePath(u"liste.pdf"_s);
        int demandes = 0;
        int copies = 1;
        int jusqua = 0;
        m_ecran->CDImprimer = [&](QPrinter &imprimante) {
            ++demandes;
            imprimante.setOutputFormat(QPrinter::PdfFormat);
            imprimante.setOutputFileName(pdf);
            imprimante.setCopyCount(copies);
            if (jusqua > 0) {
                imprimante.setPrintRange(QPrinter::PageRange);
                imprimante.setFromTo(2, jusqua);
            }
            return copies > 0;
        };
        auto *bouton = trouver<QPushButton>(u"CmdImprimer"_s);
        QTest::mouseClick(bouton, Qt::LeftButton);
        const qsizetype uneCopie = pages(pdf);
        QVERIFY(uneCopie >= 2);
        QVERIFY(!(QFile::permissions(pdf) & (QFile::ReadGroup | QFile::ReadOther)));
        copies = 3;
        QTest::mouseClick(bouton, Qt::LeftButton);
        QCOMPARE(pages(pdf), 3 * uneCopie);
        jusqua = 2;
        QTest::mouseClick(bouton, Qt::LeftButton);
        QCOMPARE(pages(pdf), 3);
        jusqua = 1000;
        QTest::mouseClick(bouton, Qt::LeftButton);
        QCOMPARE(pages(pdf), 3 * (uneCopie - 1));
        jusqua = 0;

        // Cancelled: nothing is printed and nothing said; nor is an empty list.
        QFile::remove(pdf);
        copies = 0;
        QTest::mouseClick(bouton, Qt::LeftButton);
        QCOMPARE(demandes, 5);
        trouver<QTabWidget>(u"SSTab1"_s)->setCurrentIndex(1);
        QTest::mouseClick(trouver<QPushButton>(u"CmdImprimerOK"_s), Qt::LeftButton);
        QCOMPARE(demandes, 5);
        QVERIFY(!QFile::exists(pdf));
    }

    void fermeture()
    {
        QTest::mouseClick(trouver<QPushButton>(u"cmdexit"_s), Qt::LeftButton);
        QVERIFY(!m_ecran->isVisible());
    }
};

QTEST_MAIN(TestFrmDasValide)
#include "test_frmdasvalide.moc"
