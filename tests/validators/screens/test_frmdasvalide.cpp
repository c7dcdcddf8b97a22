#include "storage/base.h"
#include "tests/screens/banc.h"
#include "validators/screens/frmdasvalide.h"

#include <QDir>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// A line of a national without fault: nothing of it is listed.
const QString bonneLigne =
    u"802345678919;BENALI;AMINA;C;05/03/1980;ORAN;12 rue des frères "
    u"Bouadou;ORAN;31000;N;N;123456768;;;;MACON;"
    "1000.50;10;M;01/07/2020;E;F;0550112233;a@b.dz;;004;ALI;SAIDI;LEILA;123456789123456789;12345;"_s;

QString ligneAvec(const QString &avant, const QString &apres)
{
    return QString(bonneLigne).replace(avant, apres);
}

} // namespace

/// The screen as a clerk uses it: choosing a file, reading both lists, copying, printing.
class TestFrmDasValide : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dossier;
    Base m_base;
    std::unique_ptr<Banc> m_banc;
    std::unique_ptr<FrmDasValide> m_ecran;

    QString texte(const QString &noms) { return textes(*m_ecran, noms); }

    void choisir(const QString &chemin)
    {
        m_banc->dialogue.attendreFichier(chemin);
        if (chemin.isEmpty())
            m_banc->dialogue.attendreBoite(u"Aucun fichier n'a été sélectionné !!!"_s, u"DAS INFO"_s);
    }

    /// A whole run that ends with these counts and, with rejects, the declaration's return.
    void extraire(const QString &entete, const QStringList &lignes, qsizetype rejets, int sansIncidence)
    {
        QFile fichier(m_dossier.filePath(u"11000028_das_2021.txt"_s));
        QVERIFY(fichier.open(QIODevice::WriteOnly));
        fichier.write((u"DAS KORVANDEL VER 3.0\r\n11000028;2021;1;"_s + entete + u"\r\n"_s +
                       lignes.join(u"\r\n"_s) + u"\r\n"_s)
                          .toLatin1());
        fichier.close();
        choisir(fichier.fileName());
        m_banc->dialogue.attendreBoite(
            u"Extraction Terminée avec Nombre Erreurs : \n  - De Rejet : %1\n  - Sans Incidence : %2"_s
                .arg(rejets)
                .arg(sansIncidence));
        if (rejets > 0) {
            m_banc->dialogue.attendreAvertissement(
                u"Votre Das Contient des Erreurs !!!\nElle sera retournée par la KORVANDEL !!!\nVeuillez Corriger votre Fichier avant envoi, S.V.P!!!"_s);
        }
        cliquer(*m_ecran, u"CmdExtFichier"_s);
        QVERIFY(m_banc->dialogue.acheve());
    }

private slots:
    void init()
    {
        m_banc = std::make_unique<Banc>(m_base);
        m_ecran = m_banc->ouvrir(new FrmDasValide(m_banc->contexte));
        QVERIFY(!champ(*m_ecran, u"SSTab1"_s)->isEnabled());
    }

    void cleanup() { QVERIFY(m_banc->dialogue.acheve()); }

    /// The amounts of the monthly declarations against the total that was just read.
    void confrontation()
    {
        DialogueScenario &dialogue = m_banc->dialogue;
        const QString incorrect = u"Veuillez Saisir un Montant Correct S.V.P!!!"_s;
        extraire(u"1000.5;1;"_s, {bonneLigne}, 0, 0);
        auto *onglets = champ<QTabWidget>(*m_ecran, u"SSTab1"_s);
        onglets->setCurrentIndex(2);
        QCOMPARE(texte(u"LabT3 Lab01"_s), u"2020-T3|2021-01"_s);

        champ(*m_ecran, u"Txt07"_s)->setFocus();
        taper(u"1 000.40\t"_s);
        QCOMPARE(focus(), u"Txt08"_s);
        QCOMPARE(texte(u"Txt07 LabSommeDAC"_s), u"1000.4|1000.4"_s);
        dialogue.attendreAvertissement(incorrect, u"DAS"_s);
        taper(u"-1"_s);
        touche(Qt::Key_Return);
        QCOMPARE(focus(), u"Txt08"_s);
        QCOMPARE(texte(u"Txt08"_s), QString());

        // Left by a click on another tab, the refused box is back in front of the clerk.
        dialogue.attendreAvertissement(incorrect, u"DAS"_s);
        taper(u"-1"_s);
        QTest::mouseClick(onglets->tabBar(), Qt::LeftButton, {}, onglets->tabBar()->tabRect(0).center());
        QTRY_COMPARE(focus(), u"Txt08"_s);
        QCOMPARE(onglets->currentIndex(), 2);

        dialogue.attendreAvertissement(u"Montant DAS Annuelle Supérieur du Total DACs"_s, u"DAS"_s);
        cliquer(*m_ecran, u"CmdVerifier"_s);
        QCOMPARE(texte(u"LabDAS3"_s), u"Montant DAS Annuelle Supérieur au Total DACs\nDe :  0.1"_s);

        extraire(u"1000.5;1;"_s, {bonneLigne}, 0, 0);
        choisir({});
        cliquer(*m_ecran, u"CmdExtFichier"_s);
        QCOMPARE(texte(u"LabT3 Lab01 Txt07 LabSommeDAC LabDAS3"_s), u"T3|01|||"_s);
    }

    void listesEtLibelles()
    {
        QString mauvaise = ligneAvec(u";BENALI;"_s, u";;"_s).replace(u";F;0550"_s, u";X;0550"_s);
        extraire(u"2001;2;"_s, {bonneLigne, mauvaise}, 1, 1);
        QVERIFY(champ(*m_ecran, u"SSTab1"_s)->isEnabled());
        QCOMPARE(texte(u"LabEmpl LabAnn LabTotSalaires LabTotSalaries LabDAS LabDAS2"_s),
                 u"11000028|2021|2 001.00|2|Nbre Erreurs De Rejet : 1 ,  Sans Incidence : 1\n|"
                 "Total Lignes DAS = Entête DAS\nTotal Nb Salariés Lignes DAS = Entête DAS\n"_s);

        auto *table = champ<QTableView>(*m_ecran, u"ListeErrRejet"_s);
        const QAbstractItemModel &modele = *table->model();
        const QString entree =
            u"Ligne N°:2  -  N° SS: 802345678919  -  Nom :   - Prénom: AMINA  -  Nom est Vide ou incorrecte"_s;
        QCOMPARE(modele.rowCount(), 1);
        QStringList cellules;
        for (int colonne = 0; colonne < modele.columnCount(); ++colonne)
            cellules += modele.index(0, colonne).data().toString();
        QCOMPARE(cellules, QStringList({u"2"_s, entree, u"802345678919"_s, u" AMINA"_s}));
        QVERIFY(table->columnWidth(1) > table->fontMetrics().horizontalAdvance(entree));
        QCOMPARE(champ<QTableView>(*m_ecran, u"ListeErrOK"_s)->model()->rowCount(), 1);

        // The first error is chosen, and the keys are the list's.
        QCOMPARE(focus(), u"ListeErrRejet"_s);
        QCOMPARE(texte(u"DetailListeErrRejet"_s), entree);
        touche(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QString(entree + u'\n'));

        // The table shows its own row, though the list for the print begins with the old words.
        extraire(u"1000,5;1;"_s, {ligneAvec(u"12 rue des frères Bouadou"_s, u"rue"_s)}, 1, 0);
        QCOMPARE(modele.rowCount(), 1);
        QVERIFY(modele.index(0, 1).data().toString().endsWith(u"  -  Adresse : rue  Vide ou non valide"));

        // A cancelled dialog clears what was shown; the tabs stay on.
        choisir({});
        QTest::keyClick(champ(*m_ecran, u"CmdExtFichier"_s), Qt::Key_Return);
        QCOMPARE(modele.rowCount(), 0);
        QCOMPARE(texte(u"LabEmpl DetailListeErrRejet"_s), u"|"_s);
        QVERIFY(champ(*m_ecran, u"SSTab1"_s)->isEnabled());

        QVERIFY(QDir(m_dossier.path()).mkpath(u"dossier.txt"_s));
        choisir(m_dossier.filePath(u"dossier.txt"_s));
        m_banc->dialogue.attendreCritique(
            u"Le fichier « dossier.txt » ne peut pas être ouvert : c'est un dossier."_s);
        cliquer(*m_ecran, u"CmdExtFichier"_s);
    }

    void impression()
    {
        extraire(u"2001;2;"_s, QStringList(40, ligneAvec(u";BENALI;"_s, u";;"_s)), 40, 0);
        auto *table = champ<QTableView>(*m_ecran, u"ListeErrRejet"_s);
        touche(Qt::Key_End);
        QVERIFY(table->selectionModel()->isRowSelected(39));
        QVERIFY(texte(u"DetailListeErrRejet"_s).startsWith(u"Ligne N°:40 "));
        touche(Qt::Key_Home, Qt::ControlModifier);
        QVERIFY(table->selectionModel()->isRowSelected(0));

        dansLaFenetre(*m_ecran, u"CmdApercu"_s, u"ApercuListe"_s, [](QWidget &) {});
        const QString pdf = m_dossier.filePath(u"liste.pdf"_s);
        int demandes = 0;
        /// Prints with that many copies, from the second page on where there is a last one. @return the
        /// pages, which stand uncompressed in the PDF
        const auto imprimer = [&](int copies, int jusqua = 0, const QString &bouton = u"CmdImprimer"_s) {
            QFile::remove(pdf);
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
            cliquer(*m_ecran, bouton);
            QFile fichier(pdf);
            return fichier.open(QIODevice::ReadOnly) ? fichier.readAll().count("/Type /Page\n") : -1;
        };
        const qsizetype uneCopie = imprimer(1);
        QVERIFY(uneCopie >= 2);
        QVERIFY(!(QFile::permissions(pdf) & (QFile::ReadGroup | QFile::ReadOther)));
        QCOMPARE(imprimer(3), 3 * uneCopie);
        QCOMPARE(imprimer(3, 2), 3);
        QCOMPARE(imprimer(3, 1000), 3 * (uneCopie - 1));

        // Cancelled: nothing is printed and nothing said; nor is an empty list.
        QCOMPARE(imprimer(0), -1);
        QCOMPARE(demandes, 5);
        champ<QTabWidget>(*m_ecran, u"SSTab1"_s)->setCurrentIndex(1);
        QCOMPARE(imprimer(1, 0, u"CmdImprimerOK"_s), -1);
        QCOMPARE(demandes, 5);
    }
};

QTEST_MAIN(TestFrmDasValide)
#include "test_frmdasvalide.moc"
