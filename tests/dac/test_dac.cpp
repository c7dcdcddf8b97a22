#include "dac/controledac.h"
#include "dac/lignedac.h"
#include "rules/calendrier.h"
#include "rules/erreurs.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/dac/basedac.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// The cases of a table of rules: what stands behind "=", and the lines under it.
void lireRegles(const QString &chemin)
{
    QTest::addColumn<QString>("cas");
    QTest::addColumn<QStringList>("attendus");
    QFile table(chemin);
    if (!table.open(QIODevice::ReadOnly))
        qFatal("no table of rules");
    for (const QString &bloc : QString::fromUtf8(table.readAll()).split(u"\n= "_s).sliced(1)) {
        QStringList lignes = bloc.split(u'\n').filter(QRegularExpression(u"^[^#]"_s));
        const QString cas = lignes.takeFirst();
        QTest::newRow(qPrintable(cas)) << cas << lignes;
    }
}

} // namespace

/// Lines and control of the nominative declaration: what is said in which order.
class TestDac : public QObject
{
    Q_OBJECT

private slots:
    void ligne_data() { lireRegles(QFINDTESTDATA("regles_lignes.txt")); }

    void ligne()
    {
        QFETCH(QString, cas);
        QFETCH(QStringList, attendus);
        const QStringList champs = cas.split(u';');
        const FicheLigneDac fiche{.Num_Salarie = champs.size() > 6 ? u"000000000000"_s : u"882345678911"_s,
                                  .CmbES = champs[1].isEmpty() ? -1
                                           : champs[1] == u"E" ? Entree
                                                               : Sortie,
                                  .CmbDT = champs[4].isEmpty() ? -1
                                           : champs[4] == u"J" ? Jours
                                                               : Heures,
                                  .MskDateES = champs[2],
                                  .TxtAssiette = champs[5],
                                  .TxtNbJT = champs[3]};
        for (const bool ajout : {true, false}) {
            DialogueScenario dialogue;
            QString controle;
            bool recommencer = false;
            for (QString attendu : attendus) {
                if (attendu[0] == (ajout ? u'-' : u'+'))
                    continue;
                attendu.remove(QRegularExpression(u"^[-+]"_s));
                if (attendu == u"recommence") {
                    recommencer = true;
                } else if (attendu[0] == u'!') {
                    controle = attendu.section(u' ', 1, 1);
                    if (const QString texte = attendu.section(u' ', 2); !texte.isEmpty())
                        dialogue.attendreAvertissement(texte);
                } else {
                    dialogue.attendreQuestion(attendu.sliced(2), attendu[0] == u'o');
                }
            }
            BornesDePeriode bornes{u"01/01/2024"_s, u"31/03/2024"_s};
            const auto refus = CtrlLigneDac(fiche, ajout ? textesAjoutDac() : textesModificationDac(),
                                            champs[0], bornes, dialogue);
            QVERIFY(dialogue.acheve());
            QCOMPARE(refus.has_value(), recommencer || !controle.isEmpty());
            if (refus) {
                QCOMPARE(refus->refus.controle.toString(), controle);
                QCOMPARE(refus->recommencer, recommencer);
            }
        }
    }

    void marsEnPremier()
    {
        const FicheLigneDac fiche{u"882345678911"_s, 1, Entree, Jours, u"01/03/2024"_s, u"1000"_s, u"1"_s};
        BornesDePeriode bornes;
        DialogueScenario dialogue;
        QVERIFY_THROWS_EXCEPTION(ErreurConversion,
                                 CtrlLigneDac(fiche, textesAjoutDac(), u"202403"_s, bornes, dialogue));
    }

    void controle_data() { lireRegles(QFINDTESTDATA("regles_controle.txt")); }

    void controle()
    {
        QFETCH(QString, cas);
        QFETCH(QStringList, attendus);
        static BaseDac essai;
        Connexion &cnx = essai.base.Cnx;
        for (const QString &table : {u"salarie"_s, u"Ligne_Dac"_s})
            cnx.executer(u"DELETE FROM "_s + table);
        essai.peuplerDac(cas.section(u' ', 0, 0).toInt());
        static const QRegularExpression change(u"^(\\d+)(?:-(\\d+))?\\.(\\w+)=(.*)$"_s);
        for (const QString &un : cas.section(u' ', 1).split(u'|', Qt::SkipEmptyParts)) {
            const QRegularExpressionMatch m = change.match(un);
            QVERIFY2(m.hasMatch(), qPrintable(un));
            const Valeur valeur = m.captured(4) == u"NULL" ? Valeur() : Valeur(m.captured(4));
            const Valeurs valeurs{valeur, m.captured(1).toInt(),
                                  m.captured(m.hasCaptured(2) ? 2 : 1).toInt()};
            const QString ordre = u"UPDATE %1 SET %2 = ? WHERE rowid BETWEEN ? AND ?"_s;
            const bool numero = m.captured(3) == u"Num_Salarie";
            if (numero || m.captured(3) == u"Type_ES")
                cnx.executer(ordre.arg(u"Ligne_Dac"_s, numero ? u"NumSalarie"_s : u"Type_ES"_s), valeurs);
            if (m.captured(3) != u"Type_ES")
                cnx.executer(ordre.arg(u"salarie"_s, m.captured(3)), valeurs);
        }

        DialogueScenario dialogue;
        bool passe = true;
        for (const QString &attendu : attendus) {
            const QStringList textes = attendu.sliced(3).chopped(1).split(u"]["_s);
            const QString titre = textes.size() > 1 ? textes[0] : QString();
            passe = passe && attendu[0] == u'i';
            if (attendu[0] == u'!')
                dialogue.attendreAvertissement(textes.last(), titre);
            else if (attendu[0] == u'x')
                dialogue.attendreCritique(textes.last());
            else
                dialogue.attendreInformation(textes.last());
        }
        QCOMPARE(CtrlDacNominative(essai.base, BaseDac::employeur.toString(), BaseDac::periode.toString(), 1,
                                   dialogue),
                 passe);
        QVERIFY(dialogue.acheve());
    }
};

QTEST_GUILESS_MAIN(TestDac)
#include "test_dac.moc"
