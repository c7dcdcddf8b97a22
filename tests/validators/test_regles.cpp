#include "batch/lot.h"
#include "tests/validators/fichierdessai.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Regles
{
    const char *table;
    Format format;
    const FichierDessai &essai;
};

const Regles das{"regles.txt", Format::Das, essaiDas};
const Regles dac{"reglesdac.txt", Format::Dac, essaiDac};
const Regles ci{"reglesci.txt", Format::Ci, essaiCi};
const Regles fichiersDac{"fichiersdac.txt", Format::Dac, essaiDac};
const Regles fichiersCi{"fichiersci.txt", Format::Ci, essaiCi};

const QHash<Verdict, QString> verdicts{{Verdict::Acceptee, u"acceptee"_s},
                                       {Verdict::Rejetee, u"rejetee"_s},
                                       {Verdict::Interrompue, u"interrompue"_s}};
const QHash<Icone, QString> icones{{Icone::Aucune, u"aucune"_s},
                                   {Icone::Information, u"information"_s},
                                   {Icone::Avertissement, u"avertissement"_s},
                                   {Icone::Critique, u"critique"_s}};

} // namespace

Q_DECLARE_METATYPE(const Regles *)

/// The rules as text tables: one faulty line in a good file, and whole files.
class TestRegles : public QObject
{
    Q_OBJECT

    /// A table's cases: "= name", then the lines of the case.
    static void lire(const Regles &regles)
    {
        QFile table(QFINDTESTDATA(regles.table));
        QVERIFY(table.open(QIODevice::ReadOnly));
        QString nom;
        QStringList lignes;
        const auto deposer = [&] {
            if (!nom.isEmpty())
                QTest::newRow(qPrintable(QLatin1String(regles.table) + u' ' + nom)) << &regles << lignes;
        };
        for (const QString &ligne : QString::fromUtf8(table.readAll()).split(u'\n')) {
            if (ligne.startsWith(u'=')) {
                deposer();
                nom = ligne;
                lignes.clear();
            } else if (!ligne.isEmpty() && !ligne.startsWith(u'#')) {
                lignes.append(ligne);
            }
        }
        deposer();
    }

    static void colonnes()
    {
        QTest::addColumn<const Regles *>("regles");
        QTest::addColumn<QStringList>("lignes");
    }

private slots:
    void ligne_data()
    {
        colonnes();
        for (const Regles *regles : {&das, &dac, &ci})
            lire(*regles);
    }

    // The changed line stands behind twenty good ones and the header counts one employee, so that the rates
    // are good whatever the line holds: the file is returned when, and only when, a fault of class R is in
    // it.
    void ligne()
    {
        QFETCH(const Regles *, regles);
        QFETCH(QStringList, lignes);
        const auto deClasse = [&](const char *debut) {
            return lignes.filter(QRegularExpression(QLatin1String(debut)));
        };
        const QStringList rejets = deClasse("^[Rr] "), sansIncidence = deClasse("^H ");
        const bool dur = !deClasse("^R ").isEmpty();
        const QString change = QString::fromUtf8(QTest::currentDataTag()).section(u'[', 1).chopped(1);
        const QString changee = ligneAvec(regles->essai.bonneLigne, change);

        const std::unique_ptr<Validateur> validateur = nouveauValidateur(regles->format);
        DialogueEnregistreur dialogue;
        const QStringList fichier = QStringList{regles->essai.marque, regles->essai.entete} +
                                    QStringList(20, regles->essai.bonneLigne) + QStringList{changee};
        QCOMPARE(extraire(*validateur, fichier, regles->essai.nom, dialogue),
                 dur ? Verdict::Rejetee : Verdict::Acceptee);
        QCOMPARE(dialogue.boites.first().texte,
                 u"Extraction Terminée avec Nombre Erreurs : \n  - De Rejet : %1\n  - Sans Incidence : %2"_s
                     .arg(rejets.size())
                     .arg(sansIncidence.size()));
        QCOMPARE(dialogue.boites.last().icone == (regles == &ci ? Icone::Critique : Icone::Avertissement),
                 dur);

        const QStringList champs =
            (regles == &ci ? changee : QString(changee).replace(u'\'', u' ')).split(u';');
        const QString nom = champs[1].trimmed() + u' ' + champs[2].trimmed();
        const auto comparer = [&](const ListesErreurs &listes, const QStringList &attendues) {
            QCOMPARE(listes.taille(), attendues.size());
            for (qsizetype i = 0; i < listes.taille(); ++i) {
                QCOMPARE(QString(u'[' + listes.Entrees[i] + u"]["_s + listes.E[i] + u']'),
                         attendues[i].sliced(2));
                QCOMPARE(listes.O[static_cast<std::size_t>(i)], 21);
                QCOMPARE(listes.N[i], champs[0].trimmed());
                QCOMPARE(listes.NP[i], nom);
            }
        };
        comparer(validateur->rejets, rejets);
        comparer(validateur->sansIncidence, sansIncidence);
        QCOMPARE(validateur->nbErrRejet, rejets.size());
        QCOMPARE(validateur->nbErrOK, sansIncidence.size());
        QCOMPARE(validateur->nbLignes, 21);
    }

    // What the program exports of a good declaration, written by hand: nothing of it is rejected.
    void exporte_data()
    {
        QTest::addColumn<int>("lignes");
        QTest::addColumn<int>("sansIncidence");
        QTest::addColumn<QString>("titre");
        QTest::newRow("12345678_DAC_NOMINATIVE_2024T1.txt")
            << 3 << 3 << u"LISTE DES ERREURS MODIFIEES DAC EMPLOYEUR N° 12345678 - ANNEE 2024T1"_s;
        QTest::newRow("123456780000000001_CI .txt")
            << 3 << 0 << u"LISTE DES ERREURS MODIFIEES CI EMPLOYEUR N° 12345678 - ANNEE 2024"_s;
    }

    void exporte()
    {
        const QString chemin =
            QFINDTESTDATA(QLatin1String("fichiers/") + QLatin1String(QTest::currentDataTag()));
        const Resultat resultat = validerFichier(chemin, Format::Inconnu);
        QCOMPARE(resultat.verdict, Verdict::Acceptee);
        QCOMPARE(resultat.validateur->nbErrRejet, 0);
        QTEST(int(resultat.validateur->nbErrOK), "sansIncidence");
        QTEST(int(resultat.validateur->nbLignes), "lignes");
        QTEST(resultat.validateur->titreImpression(resultat.validateur->sansIncidence), "titre");
        for (const QChar ecart : {u'<', u'>'})
            QVERIFY(!resultat.validateur->libellesResultat()[1].texte.contains(ecart));
    }

    void fichier_data()
    {
        colonnes();
        lire(fichiersDac);
        lire(fichiersCi);
    }

    // What is told of the file (N its name, M the mark, E the header, L a count of good lines and their
    // changes), then what comes of it.
    void fichier()
    {
        QFETCH(const Regles *, regles);
        QFETCH(QStringList, lignes);
        FichierDessai essai = regles->essai;
        bool entete = true;
        QStringList corps, attendu;
        for (const QString &ligne : std::as_const(lignes)) {
            const QString reste = ligne.sliced(2);
            switch (ligne[0].unicode()) {
            case 'N':
                essai.nom = reste;
                break;
            case 'M':
                essai.marque = reste;
                break;
            case 'E':
                entete = !reste.isEmpty();
                essai.entete = reste;
                break;
            case 'L':
                corps += QStringList(reste.section(u' ', 0, 0).toInt(),
                                     ligneAvec(essai.bonneLigne, reste.section(u' ', 1)));
                break;
            case 'C': // a line as it stands
                corps += reste;
                break;
            default:
                attendu += ligne;
            }
        }
        const std::unique_ptr<Validateur> validateur = nouveauValidateur(regles->format);
        DialogueEnregistreur dialogue;
        const Verdict verdict =
            extraire(*validateur,
                     QStringList{essai.marque} + (entete ? QStringList{essai.entete} : QStringList{}) + corps,
                     essai.nom, dialogue);

        QStringList obtenu;
        for (const Boite &boite : std::as_const(dialogue.boites))
            obtenu += u"B [%1] %2 [%3]"_s.arg(boite.titre, icones[boite.icone], boite.texte);
        const QList<Validateur::Libelle> resultats = validateur->libellesResultat();
        for (int i = 0; i < 2; ++i) {
            if (!resultats[i].texte.isEmpty())
                obtenu += u"%1 [%2]"_s.arg(i + 1).arg(resultats[i].texte);
        }
        obtenu += u"V %1 %2 %3 %4"_s.arg(verdicts[verdict])
                      .arg(validateur->nbErrRejet)
                      .arg(validateur->nbErrOK)
                      .arg(validateur->nbLignes);
        for (QString &ligne : obtenu)
            ligne.replace(u'\n', u"\\n"_s);
        QCOMPARE(obtenu.join(u'\n'), attendu.join(u'\n'));
        // The summary is told, so the totals were reached, whether or not they could be read.
        QCOMPARE(validateur->ongletsPermis(), obtenu.join(u'\n').contains(u"Extraction Terminée"));
    }
};

QTEST_GUILESS_MAIN(TestRegles)
#include "test_regles.moc"
