#include "dac/genredac.h"
#include "das/transfertdas.h"
#include "declarations/declaration.h"
#include "declarations/entetes.h"
#include "declarations/transfert.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/employees/basesalaries.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// One of the two transfers on a database with lines of the principal declaration of its first period.
class Donnees : public BaseSalaries
{
public:
    explicit Donnees(bool dac)
        : transfert(dac ? transfertDac() : transfertDas()), source(dac ? u"202401"_s : u"2023"_s),
          destination(dac ? u"2024T1"_s : u"2024"_s), m_dac(dac)
    {
        (base.*transfert.entetes.genre.entetes).ouvrir();
        for (const QString &salarie : {u"3"_s, u"1"_s, u"2"_s})
            ligne(source, 1, salarie);
    }

    void entete(int type)
    {
        const GenreDeclaration &genre = transfert.entetes.genre;
        (base.*genre.entetes)
            .ajouter({{genre.employeur, u"12345678"},
                      {transfert.entetes.periode, destination},
                      {transfert.entetes.type, type}});
    }

    void ligne(const QString &periode, int type, const QString &salarie)
    {
        base.Cnx.executer(
            m_dac
                ? u"INSERT INTO Ligne_Dac VALUES (?, 1, ?, ?, '12345678', 12345, 22, 'J', '2024-01-15', 'S')"_s
                : u"INSERT INTO ligne_das VALUES (?, 1, ?, '12345678', ?, 12345, 12, 'M', '15/01/2023', 'S')"_s,
            {salarie, periode, type});
    }

    /// The copies: employee and number.
    QStringList copies()
    {
        return lignes(
            m_dac ? u"SELECT NumSalarie, Type_dac FROM Ligne_Dac WHERE Periode = '2024T1' AND "
                    "(Assiette, NBJT, Type_Nbjt, Date_ES, Type_ES) = (12345, 22, 'J', '2024-01-15', 'S')"_s
                  : u"SELECT num_salarie, type_das FROM ligne_das WHERE annee = 2024 AND (sal_annuel, "
                    "nbj_travail, type_dure, date_es, type_date_es) = (12345, 12, 'M', '15/01/2023', 'S')"_s);
    }

    bool transferer(const QString &vers, DialogueScenario &dialogue)
    {
        Recordset montrees(base.Cnx, (base.*transfert.entetes.genre.lignes).table());
        montrees.ouvrir(lignesATransferer(transfert, u"12345678"_s, source));
        montrees.trier(transfert.entetes.genre.salarie);
        return ::transferer(base, transfert, {u"12345678"_s, source, vers}, montrees, dialogue);
    }

    const TransfertLignes &transfert;
    QString source;
    QString destination;

private:
    bool m_dac;
};

const QString succes = u"Transfert effectué avec succès, veuillez redemarrer l'application SVP"_s;

} // namespace

/// The copy of lines from one period into another, of both declarations that have it.
class TestTransferts : public QObject
{
    Q_OBJECT

private slots:
    void refus_data()
    {
        QTest::addColumn<bool>("dac");
        QTest::addColumn<QString>("vers");
        QTest::addColumn<QList<int>>("entetes");
        QTest::addColumn<bool>("occupee");
        QTest::addColumn<QString>("texte");
        QTest::addColumn<QString>("titre");
        const auto cas = [](const char *nom, const QString &vers, const QList<int> &entetes, bool occupee,
                            const QString &das, const QString &dac, bool titre = false) {
            const QString annee = u"2024"_s;
            QTest::addRow("das %s", nom)
                << false
                << (vers == u"d"   ? annee
                    : vers == u"s" ? u"2023"_s
                                   : vers)
                << entetes << occupee << das << (titre ? u"Controle transfert"_s : QString());
            QTest::addRow("dac %s", nom)
                << true
                << (vers == u"d"   ? u"2024T1"_s
                    : vers == u"s" ? u"202401"_s
                                   : vers)
                << entetes << occupee << dac << (titre ? u"Controle transfert DAC"_s : QString());
        };
        // Each meets the fault of the next one too.
        cas("sans choix", {}, {}, true, u"Veuillez selectionner l'année de déstination SVP"_s,
            u"Veuillez selectionner la période de déstination SVP"_s);
        cas("la meme", u"s"_s, {}, true,
            u"Transfert impossible, l'année source doit être différente de la destination"_s,
            u"Transfert impossible, période source doit être différente de la destination"_s);
        cas("sans entete", u"d"_s, {}, true,
            u"Veuillez enregistrer l'entête DAS en premier, avant d'effectuer le transfert des écritures !"_s,
            u"Veuillez enregistrer l'entête DAC en premier, avant d'effectuer le transfert des écritures !"_s);
        cas("complementaires", u"d"_s, {2, 3}, true,
            u"Erreur, Exportation données impossible, entête das de la campage  :  2024,   non principale !!"_s,
            u"Erreur, Exportation données impossible, entête DAC  :  2024T1,   non principale !!"_s);
        cas("lignes", u"d"_s, {2, 1}, true,
            u" Existence de Lignes DAS  pour cette campagne, transfert non effectué !"_s,
            u" Existence de Lignes DAC  pour cette periode, transfert non effectué !"_s, true);
    }

    void refus()
    {
        QFETCH(bool, dac);
        QFETCH(QString, vers);
        QFETCH(QList<int>, entetes);
        QFETCH(bool, occupee);
        QFETCH(QString, texte);
        QFETCH(QString, titre);
        Donnees essai(dac);
        for (const int type : entetes)
            essai.entete(type);
        if (occupee)
            essai.ligne(essai.destination, 2, u"9"_s);
        DialogueScenario dialogue;
        dialogue.attendreAvertissement(texte, titre);
        QVERIFY(!essai.transferer(vers, dialogue));
        QCOMPARE(essai.copies().size(), 1);
    }

    /// In the order of the list; the lists that are open elsewhere show the copies before the success is
    /// told.
    void copie()
    {
        for (const bool dac : {false, true}) {
            Donnees essai(dac);
            essai.entete(2);
            essai.entete(1);
            essai.ligne(essai.source, 2, u"4"_s);
            Recordset &partagee = essai.base.*essai.transfert.entetes.genre.lignes;
            partagee.filtrer(lignesATransferer(essai.transfert, u"12345678"_s, essai.destination));
            DialogueScenario dialogue;
            int sousLaBoite = 0;
            dialogue.aChaqueBoite = [&] { sousLaBoite = partagee.nombre(); };
            dialogue.attendreInformation(succes);
            QVERIFY(essai.transferer(essai.destination, dialogue));
            QCOMPARE(sousLaBoite, 4);
            QCOMPARE(essai.copies(), (QStringList{u"1|1"_s, u"2|1"_s, u"3|1"_s, dac ? u"4|2"_s : u"4|1"_s}));
        }
    }

    /// An employee of both declarations can have one line in the principal one: what came before him stays.
    void refusDeLaBase()
    {
        Donnees das(false);
        Donnees dac(true);
        for (Donnees *essai : {&das, &dac}) {
            essai->entete(1);
            essai->ligne(essai->source, 2, u"2"_s);
        }
        DialogueScenario dialogue;
        QString echec;
        try {
            das.transferer(das.destination, dialogue);
        } catch (const ErreurBase &erreur) {
            echec = erreur.texte();
        }
        QVERIFY2(echec.startsWith(u"Ligne 3, salarié 2 : "_s) &&
                     echec.endsWith(u"\nLes lignes précédentes ont été transférées."_s),
                 qPrintable(echec));
        QVERIFY(!das.base.Cnx.enTransaction());
        QCOMPARE(das.copies(), (QStringList{u"1|1"_s, u"2|1"_s}));
        QCOMPARE(das.base.RsLigneDas.nombre(), 6);

        dialogue.attendreInformation(succes);
        QVERIFY(dac.transferer(dac.destination, dialogue));
        QCOMPARE(dac.copies(), (QStringList{u"1|1"_s, u"2|1"_s, u"2|2"_s, u"3|1"_s}));
    }
};

QTEST_GUILESS_MAIN(TestTransferts)
#include "test_transferts.moc"
