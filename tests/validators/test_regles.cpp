#include "batch/lot.h"
#include "tests/validators/fichierdessai.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

namespace {

struct Table
{
    const char *nom;
    Format format;
    const FichierDessai &essai;
};

const Table tables[] = {{"regles.txt", Format::Das, essaiDas},
                        {"reglesdac.txt", Format::Dac, essaiDac},
                        {"reglesci.txt", Format::Ci, essaiCi},
                        {"fichiersdac.txt", Format::Dac, essaiDac},
                        {"fichiersci.txt", Format::Ci, essaiCi}};

const QString verdicts[] = {u"acceptee"_s, u"rejetee"_s, u"interrompue"_s};
const QString icones[] = {u"aucune"_s, u"information"_s, u"avertissement"_s, u"critique"_s};

QString avecFinsDites(QString texte) { return texte.replace(u'\n', u"\\n"_s); }

} // namespace

Q_DECLARE_METATYPE(const Table *)

/// The rules as text tables: one changed line in a good file, and whole files.
class TestRegles : public QObject
{
    Q_OBJECT

    /// The cases of the tables of rules, or of whole files: "= name", then the lines of the case.
    static void lire(bool regles)
    {
        QTest::addColumn<const Table *>("table");
        QTest::addColumn<QStringList>("lignes");
        for (const Table &table : tables) {
            if (QLatin1String(table.nom).startsWith(u"regles") != regles)
                continue;
            QFile fichier(QFINDTESTDATA(table.nom));
            QVERIFY(fichier.open(QIODevice::ReadOnly));
            for (const QString &cas :
                 (u'\n' + QString::fromUtf8(fichier.readAll())).split(u"\n= "_s).sliced(1)) {
                QStringList lignes = cas.split(u'\n');
                lignes.removeIf(
                    [](const QString &ligne) { return ligne.isEmpty() || ligne.startsWith(u'#'); });
                const QString nom = lignes.takeFirst();
                QTest::newRow(qPrintable(QLatin1String(table.nom) + u' ' + nom)) << &table << lignes;
            }
        }
    }

private slots:
    void ligne_data() { lire(true); }

    // The changed line stands behind twenty good ones and the header counts one employee, so that the rates
    // are good whatever the line holds: the file is returned when, and only when, a fault of class R is in
    // it.
    void ligne()
    {
        QFETCH(const Table *, table);
        QFETCH(QStringList, lignes);
        const QString change = QString::fromUtf8(QTest::currentDataTag()).section(u'[', 1).chopped(1);
        const QString changee = ligneAvec(table->essai.bonneLigne, change);
        const bool dur = !lignes.filter(QRegularExpression(u"^R "_s)).isEmpty();

        const std::unique_ptr<Validateur> validateur = nouveauValidateur(table->format);
        DialogueEnregistreur dialogue;
        QCOMPARE(extraire(*validateur,
                          QStringList{table->essai.marque, table->essai.entete} +
                              QStringList(20, table->essai.bonneLigne) + QStringList{changee},
                          table->essai.nom, dialogue),
                 dur ? Verdict::Rejetee : Verdict::Acceptee);
        QCOMPARE(dialogue.boites.last().icone >= Icone::Avertissement, dur);

        const QStringList champs =
            (table->format == Format::Ci ? changee : QString(changee).replace(u'\'', u' ')).split(u';');
        const QString personne =
            u"21 %1 %2 %3"_s.arg(champs[0].trimmed(), champs[1].trimmed(), champs[2].trimmed());
        for (const auto &[listes, classe, nombre] :
             {std::tuple(&validateur->rejets, u"^[Rr] "_s, validateur->nbErrRejet),
              {&validateur->sansIncidence, u"^H "_s, validateur->nbErrOK}}) {
            QStringList venues;
            for (qsizetype i = 0; i < listes->taille(); ++i) {
                venues += u"[%1][%2]"_s.arg(listes->Entrees[i], listes->E[i]);
                QCOMPARE(u"%1 %2 %3"_s.arg(listes->O[static_cast<std::size_t>(i)])
                             .arg(listes->N[i], listes->NP[i]),
                         personne);
            }
            QCOMPARE(venues.join(u'\n'), lignes.filter(QRegularExpression(classe))
                                             .replaceInStrings(QRegularExpression(u"^. "_s), {})
                                             .join(u'\n'));
            QCOMPARE(nombre, listes->taille());
        }
        QCOMPARE(validateur->nbLignes, 21);
    }

    void fichier_data() { lire(false); }

    void fichier()
    {
        QFETCH(const Table *, table);
        QFETCH(QStringList, lignes);
        FichierDessai essai = table->essai;
        QStringList corps, attendu;
        for (const QString &ligne : std::as_const(lignes)) {
            const QString reste = ligne.sliced(2);
            if (ligne[0] == u'N')
                essai.nom = reste;
            else if (ligne[0] == u'M')
                essai.marque = reste;
            else if (ligne[0] == u'E')
                essai.entete = reste;
            else if (ligne[0] == u'L')
                corps += QStringList(reste.section(u' ', 0, 0).toInt(),
                                     ligneAvec(essai.bonneLigne, reste.section(u' ', 1)));
            else if (ligne[0] == u'C')
                corps += reste;
            else
                attendu += ligne;
        }
        if (!essai.entete.isEmpty())
            corps.prepend(essai.entete);
        const std::unique_ptr<Validateur> validateur = nouveauValidateur(table->format);
        DialogueEnregistreur dialogue;
        const Verdict verdict = extraire(*validateur, QStringList{essai.marque} + corps, essai.nom, dialogue);

        QStringList obtenu;
        for (const Boite &boite : std::as_const(dialogue.boites))
            obtenu +=
                u"B [%1] %2 [%3]"_s.arg(boite.titre, icones[int(boite.icone)], avecFinsDites(boite.texte));
        for (int i = 0; i < 2; ++i) {
            const QString texte = validateur->libellesResultat()[i].texte;
            if (!texte.isEmpty())
                obtenu += u"%1 [%2]"_s.arg(i + 1).arg(avecFinsDites(texte));
        }
        obtenu += u"V %1 %2 %3 %4"_s.arg(verdicts[int(verdict)])
                      .arg(validateur->nbErrRejet)
                      .arg(validateur->nbErrOK)
                      .arg(validateur->nbLignes);
        QCOMPARE(obtenu.join(u'\n'), attendu.join(u'\n'));
        // The summary is told, so the totals were reached, whether or not they could be read.
        QCOMPARE(validateur->ongletsPermis(), obtenu.join(u'\n').contains(u"Extraction Terminée"));
    }

    // What the program exports of a good declaration, written by hand: nothing of it is rejected.
    void exporte()
    {
        for (const auto &[nom, sansIncidence, titre] :
             {std::tuple(u"12345678_DAC_NOMINATIVE_2024T1.txt"_s, 3,
                         u"DAC EMPLOYEUR N° 12345678 - ANNEE 2024T1"_s),
              {u"123456780000000001_CI .txt"_s, 0, u"CI EMPLOYEUR N° 12345678 - ANNEE 2024"_s}}) {
            const Resultat resultat =
                validerFichier(QFINDTESTDATA(qPrintable(u"fichiers/"_s + nom)), Format::Inconnu);
            QCOMPARE(resultat.verdict, Verdict::Acceptee);
            const Validateur &validateur = *resultat.validateur;
            QCOMPARE(validateur.nbErrRejet, 0);
            QCOMPARE(validateur.nbErrOK, sansIncidence);
            QCOMPARE(validateur.nbLignes, 3);
            QVERIFY(!validateur.libellesResultat()[1].texte.contains(u" de  "));
            QCOMPARE(validateur.titreImpression(validateur.sansIncidence),
                     u"LISTE DES ERREURS MODIFIEES "_s + titre);
        }
    }
};

QTEST_GUILESS_MAIN(TestRegles)
#include "test_regles.moc"
