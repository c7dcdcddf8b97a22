#include "dac/genredac.h"
#include "das/transfertdas.h"
#include "declarations/declaration.h"
#include "declarations/entetes.h"
#include "declarations/transfert.h"
#include "tests/commun/cas.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/employees/basesalaries.h"

using namespace Qt::StringLiterals;

namespace {

/// One of the two transfers, on a database with lines of a first period.
class Donnees : public BaseSalaries
{
public:
    explicit Donnees(bool dac)
        : transfert(dac ? transfertDac() : transfertDas()), genre(transfert.entetes.genre),
          source(dac ? u"202401"_s : u"2023"_s), destination(dac ? u"2024T1"_s : u"2024"_s), m_dac(dac)
    {
        for (const auto &[salarie, type] : {std::pair{u"3"_s, 1}, {u"1"_s, 1}, {u"2"_s, 1}, {u"2"_s, 2}})
            ligne(source, type, salarie);
    }

    void entete(int type)
    {
        (base.*genre.entetes)
            .ajouter({{genre.employeur, u"12345678"},
                      {transfert.entetes.periode, destination},
                      {transfert.entetes.type, type}});
    }

    void ligne(const QString &periode, int type, const QString &salarie)
    {
        base.Cnx.executer(
            u"INSERT INTO %1 VALUES (?, 1, ?, %2, 'S')"_s.arg(
                (base.*genre.lignes).table(), m_dac ? u"?, '12345678', 12345, 22, 'J', '2024-01-15'"_s
                                                    : u"'12345678', ?, 12345, 12, 'M', '15/01/2023'"_s),
            {salarie, periode, type});
    }

    /// The copies: employee and number.
    QStringList copies()
    {
        return lignes(m_dac ? u"SELECT NumSalarie, Type_dac FROM Ligne_Dac WHERE Periode = '2024T1' AND "
                              "NumEmployeur = '12345678' AND (cpt_z, Assiette, NBJT, Type_Nbjt, Date_ES, "
                              "Type_ES) = (1, 12345, 22, 'J', '2024-01-15', 'S') ORDER BY rowid"_s
                            : u"SELECT num_salarie, type_das FROM ligne_das WHERE annee = 2024 AND num_emp = "
                              "'12345678' AND (cpt_z, sal_annuel, nbj_travail, type_dure, date_es, "
                              "type_date_es) = (1, 12345, 12, 'M', '15/01/2023', 'S') ORDER BY rowid"_s);
    }

    /// Of the lines in the order of their employees.
    bool transferer(const QString &vers)
    {
        Recordset montrees(base.Cnx, (base.*genre.lignes).table());
        montrees.ouvrir(lignesATransferer(transfert, u"12345678"_s, source));
        montrees.trier(genre.salarie);
        return ::transferer(base, transfert, {u"12345678"_s, source, vers}, montrees, dialogue);
    }

    const TransfertLignes &transfert;
    const GenreDeclaration &genre;
    QString source;
    QString destination;
    DialogueScenario dialogue;

private:
    bool m_dac;
};

} // namespace

/// The copy of lines from one period into another, of both declarations that have it.
class TestTransferts : public QObject
{
    Q_OBJECT

public:
    struct Refus
    {
        const char *nom;
        QString Donnees::*vers;
        QList<int> entetes;
        QString das, dac;
        QString titre = {};
    };

private slots:
    /// Each meets the fault of the next one too.
    void refus_data()
    {
        lignesDuTest<Refus>(
            {{"sans choix",
              nullptr,
              {},
              u"Veuillez selectionner l'année de déstination SVP"_s,
              u"Veuillez selectionner la période de déstination SVP"_s},
             {"la meme",
              &Donnees::source,
              {},
              u"Transfert impossible, l'année source doit être différente de la destination"_s,
              u"Transfert impossible, période source doit être différente de la destination"_s},
             {"sans entete",
              &Donnees::destination,
              {},
              u"Veuillez enregistrer l'entête DAS en premier, avant d'effectuer le transfert des écritures !"_s,
              u"Veuillez enregistrer l'entête DAC en premier, avant d'effectuer le transfert des écritures !"_s},
             {"complementaires",
              &Donnees::destination,
              {2, 3},
              u"Erreur, Exportation données impossible, entête das de la campage  :  2024,   non principale !!"_s,
              u"Erreur, Exportation données impossible, entête DAC  :  2024T1,   non principale !!"_s},
             {"lignes",
              &Donnees::destination,
              {2, 1},
              u" Existence de Lignes DAS  pour cette campagne, transfert non effectué !"_s,
              u" Existence de Lignes DAC  pour cette periode, transfert non effectué !"_s,
              u"Controle transfert"_s}});
    }

    void refus()
    {
        QFETCH(Refus, cas);
        for (const bool dac : {false, true}) {
            Donnees essai(dac);
            for (const int type : cas.entetes)
                essai.entete(type);
            essai.ligne(essai.destination, 2, u"9"_s);
            essai.dialogue.attendreAvertissement(
                dac ? cas.dac : cas.das, cas.titre + (dac && !cas.titre.isEmpty() ? u" DAC"_s : QString()));
            QVERIFY(!essai.transferer(cas.vers ? essai.*cas.vers : QString()));
            QCOMPARE(essai.copies(), QStringList{u"9|2"_s});
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
            partagee.filtrer(lignesATransferer(essai.transfert, u"12345678"_s, essai.destination));
            essai.dialogue.aChaqueBoite = [&] { QCOMPARE(partagee.nombre(), 4); };
            if (dac) {
                essai.dialogue.attendreInformation(
                    u"Transfert effectué avec succès, veuillez redemarrer l'application SVP"_s);
            }
            try {
                QVERIFY(essai.transferer(essai.destination) && dac);
            } catch (const ErreurBase &erreur) {
                QVERIFY(!dac && erreur.texte().startsWith(u"Ligne 3, salarié 2 : ") &&
                        erreur.texte().endsWith(u"\nLes lignes précédentes ont été transférées."));
            }
            QStringList copies{u"1|1"_s, u"2|1"_s};
            if (dac)
                copies += {u"2|2"_s, u"3|1"_s};
            QCOMPARE(essai.copies(), copies);
            QCOMPARE(partagee.nombre(), copies.size());
            QVERIFY(!essai.base.Cnx.enTransaction());
        }
    }
};

Q_DECLARE_METATYPE(TestTransferts::Refus)

QTEST_GUILESS_MAIN(TestTransferts)
#include "test_transferts.moc"
