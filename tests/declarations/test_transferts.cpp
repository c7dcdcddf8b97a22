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

/// One of the two transfers, on a database with lines of a first period.
class Donnees : public BaseSalaries
{
public:
    explicit Donnees(bool dac)
        : transfert(dac ? transfertDac() : transfertDas()), genre(transfert.entetes.genre),
          periodes(dac ? QStringList{{}, u"202401"_s, u"2024T1"_s} : QStringList{{}, u"2023"_s, u"2024"_s}),
          m_dac(dac)
    {
        for (const auto &[salarie, type] : {std::pair{u"3"_s, 1}, {u"1"_s, 1}, {u"2"_s, 1}, {u"2"_s, 2}})
            base.Cnx.executer(
                u"INSERT INTO %1 VALUES (%2)"_s.arg(table(), ligne(1, salarie, type, u"','"_s)));
    }

    QString table() const { return (base.*genre.lignes).table(); }

    QString ligne(int periode, const QString &salarie, int type, const QString &entre = u"|"_s) const
    {
        const QString texte = m_dac ? u"%1|7|%2|%3|12345678|12345|22|J|2024-01-15|S"_s
                                    : u"%1|7|%2|12345678|%3|12345|12|M|15/01/2023|S"_s;
        const QString valeurs = texte.arg(salarie, periodes[periode]).arg(type).replace(u'|', entre);
        return entre == u"|" ? valeurs : u'\'' + valeurs + u'\'';
    }

    void entete(int type)
    {
        (base.*genre.entetes)
            .ajouter({{genre.employeur, u"12345678"},
                      {transfert.entetes.periode, periodes[2]},
                      {transfert.entetes.type, type}});
    }

    /// Of the lines in the order of their employees.
    bool transferer(int vers)
    {
        Recordset montrees(base.Cnx, table());
        montrees.ouvrir(lignesATransferer(transfert, u"12345678"_s, periodes[1]));
        montrees.trier(genre.salarie);
        return ::transferer(base, transfert, {u"12345678"_s, periodes[1], periodes[vers]}, montrees,
                            dialogue);
    }

    const TransfertLignes &transfert;
    const GenreDeclaration &genre;
    const QStringList periodes; ///< no choice, the source, the destination
    DialogueScenario dialogue;

private:
    bool m_dac;
};

} // namespace

/// The copy of lines from one period into another, of both declarations that have it.
class TestTransferts : public QObject
{
    Q_OBJECT

private slots:
    /// Each meets the fault of the next one too.
    void refus()
    {
        const QList<std::tuple<int, QList<int>, QString, QString>> tous{
            {0,
             {},
             u"Veuillez selectionner l'année de déstination SVP"_s,
             u"Veuillez selectionner la période de déstination SVP"_s},
            {1,
             {},
             u"Transfert impossible, l'année source doit être différente de la destination"_s,
             u"Transfert impossible, période source doit être différente de la destination"_s},
            {2,
             {},
             u"Veuillez enregistrer l'entête DAS en premier, avant d'effectuer le transfert des écritures !"_s,
             u"Veuillez enregistrer l'entête DAC en premier, avant d'effectuer le transfert des écritures !"_s},
            {2,
             {2, 3},
             u"Erreur, Exportation données impossible, entête das de la campage  :  2024,   non principale !!"_s,
             u"Erreur, Exportation données impossible, entête DAC  :  2024T1,   non principale !!"_s},
            {2,
             {1},
             u" Existence de Lignes DAS  pour cette campagne, transfert non effectué !"_s,
             u" Existence de Lignes DAC  pour cette periode, transfert non effectué !"_s}};
        for (const bool dac : {false, true}) {
            Donnees essai(dac);
            essai.base.Cnx.executer(
                u"INSERT INTO %1 VALUES (%2)"_s.arg(essai.table(), essai.ligne(2, u"9"_s, 2, u"','"_s)));
            for (const auto &[vers, entetes, texteDas, texteDac] : tous) {
                for (const int type : entetes)
                    essai.entete(type);
                const QString titre = dac ? u"Controle transfert DAC"_s : u"Controle transfert"_s;
                essai.dialogue.attendreAvertissement(dac ? texteDac : texteDas,
                                                     entetes == QList{1} ? titre : QString());
                QVERIFY(!essai.transferer(vers));
            }
        }
    }

    /// In the order of the list. An employee of two annual declarations can have one line in the principal
    /// one: the copies before him stay. Lists that are open elsewhere show them before anything is told.
    void copie()
    {
        for (const bool dac : {false, true}) {
            Donnees essai(dac);
            essai.entete(2);
            essai.entete(1);
            Recordset &partagee = essai.base.*essai.genre.lignes;
            const Condition copies = lignesATransferer(essai.transfert, u"12345678"_s, essai.periodes[2]);
            partagee.filtrer(copies);
            essai.dialogue.aChaqueBoite = [&] { QCOMPARE(partagee.nombre(), 4); };
            if (dac) {
                essai.dialogue.attendreInformation(
                    u"Transfert effectué avec succès, veuillez redemarrer l'application SVP"_s);
            }
            try {
                QVERIFY(essai.transferer(2) && dac);
            } catch (const ErreurBase &erreur) {
                QVERIFY(!dac && erreur.texte().startsWith(u"Ligne 3, salarié 2 : ") &&
                        erreur.texte().endsWith(u"\nLes lignes précédentes ont été transférées."));
            }
            QStringList attendues{essai.ligne(2, u"1"_s, 1), essai.ligne(2, u"2"_s, 1)};
            if (dac)
                attendues += {essai.ligne(2, u"2"_s, 2), essai.ligne(2, u"3"_s, 1)};
            QCOMPARE(essai.lignes(u"SELECT * FROM %1 WHERE rowid > 4 ORDER BY rowid"_s.arg(essai.table())),
                     attendues);
            QCOMPARE(partagee.nombre(), attendues.size());
            QVERIFY(!essai.base.Cnx.enTransaction());
        }
    }
};

QTEST_GUILESS_MAIN(TestTransferts)
#include "test_transferts.moc"
