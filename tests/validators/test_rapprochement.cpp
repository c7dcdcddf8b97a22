#include "tests/commun/dialoguescenario.h"
#include "validators/rapprochement.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

SaisieDacs saisie(const QMap<QString, QString> &montants)
{
    SaisieDacs dacs;
    for (auto montant = montants.begin(); montant != montants.end(); ++montant) {
        const auto boite = std::find(SaisieDacs::Boites.begin(), SaisieDacs::Boites.end(), montant.key());
        Q_ASSERT(boite != SaisieDacs::Boites.end());
        dacs.textes[static_cast<std::size_t>(boite - SaisieDacs::Boites.begin())] = montant.value();
    }
    return dacs;
}

const QString egal = u"Montant DAS Annuelle Egal au Total DACs"_s;
const QString inferieur = u"Montant DAS Annuelle Inférieur au Total DACs"_s;

} // namespace

/// The annual declaration against the amounts of the monthly and quarterly ones.
class TestRapprochement : public QObject
{
    Q_OBJECT

    using Montants = QMap<QString, QString>;

private slots:
    void quitter_data()
    {
        QTest::addColumn<QString>("saisi");
        QTest::addColumn<QString>("lu");
        QTest::newRow("vide") << u""_s << u"0"_s;
        QTest::newRow("lettres") << u"abc"_s << u"0"_s;
        QTest::newRow("blanc au milieu") << u"1 234.50"_s << u"1234.5"_s;
        QTest::newRow("virgule") << u"12,5"_s << u"12"_s;
        QTest::newRow("moins zero") << u"-0"_s << u"0"_s;
        QTest::newRow("grand") << u"123456789012.34"_s << u"123456789012.34"_s;
        QTest::newRow("negatif") << u"-0.01"_s << QString();
    }

    void quitter()
    {
        QFETCH(QString, saisi);
        QFETCH(QString, lu);
        DialogueScenario dialogue;
        if (lu.isEmpty())
            dialogue.attendreAvertissement(u"Veuillez Saisir un Montant Correct S.V.P!!!"_s, u"DAS"_s);
        QCOMPARE(quitterMontantDac(saisi, dialogue), !lu.isEmpty());
        QCOMPARE(saisi, lu);
    }

    void verdict_data()
    {
        QTest::addColumn<Montants>("montants");
        QTest::addColumn<QString>("total");
        QTest::addColumn<QString>("verdict");
        const QString superieur = u"Montant DAS Annuelle Supérieur au Total DACs"_s;
        QTest::newRow("rien") << Montants{} << u".00"_s << egal;
        QTest::newRow("dixiemes") << Montants{{u"Txt01"_s, u"0.1"_s}, {u"Txt02"_s, u"0.2"_s}} << u".30"_s
                                  << egal;
        QTest::newRow("toutes les boites")
            << Montants{{u"Txt07"_s, u"1"_s},  {u"Txt08"_s, u"2"_s},  {u"Txt09"_s, u"4"_s},
                        {u"TxtT4"_s, u"8"_s},  {u"TxtT1"_s, u"16"_s}, {u"Txt04"_s, u"32"_s},
                        {u"Txt05"_s, u"64"_s}, {u"Txt06"_s, u"128"_s}}
            << u"255.00"_s << egal;
        QTest::newRow("autres boites")
            << Montants{{u"TxtT3"_s, u"1"_s},  {u"Txt10"_s, u"2"_s},  {u"Txt11"_s, u"4"_s},
                        {u"Txt12"_s, u"8"_s},  {u"Txt01"_s, u"16"_s}, {u"Txt02"_s, u"32"_s},
                        {u"Txt03"_s, u"64"_s}, {u"TxtT2"_s, u"128"_s}}
            << u"255.00"_s << egal;
        QTest::newRow("moins") << Montants{{u"TxtT3"_s, u"1000.10"_s}} << u"1 000.00"_s
                               << QString(inferieur + u"\nDe :  -0.1"_s);
        QTest::newRow("plus") << Montants{{u"TxtT3"_s, u"123456789012.10"_s}} << u"123 456 789 012.35"_s
                              << QString(superieur + u"\nDe :  0.25"_s);
    }

    void verdict()
    {
        QFETCH(Montants, montants);
        QFETCH(QString, total);
        QFETCH(QString, verdict);
        DialogueScenario dialogue;
        const QString titre = u"DAS"_s;
        if (verdict == egal)
            dialogue.attendreInformation(egal, titre);
        else if (verdict.startsWith(inferieur))
            dialogue.attendreAvertissement(inferieur, titre);
        else
            dialogue.attendreAvertissement(u"Montant DAS Annuelle Supérieur du Total DACs"_s, titre);
        QCOMPARE(verifierDacs(saisie(montants), total, dialogue), verdict);
    }

    void conflits_data()
    {
        QTest::addColumn<Montants>("montants");
        QTest::addColumn<QString>("trimestres");
        const QString cent = u"100"_s;
        QTest::newRow("mois nuls") << Montants{{u"TxtT1"_s, cent}, {u"Txt03"_s, u"0"_s}} << QString();
        QTest::newRow("T1") << Montants{{u"TxtT1"_s, cent}, {u"Txt02"_s, u"1"_s}} << u"  T1"_s;
        QTest::newRow("T3 et T1") << Montants{{u"TxtT1"_s, cent},
                                              {u"Txt01"_s, u"1"_s},
                                              {u"TxtT3"_s, cent},
                                              {u"Txt09"_s, u"1"_s}}
                                  << u"T3  T1"_s;
        QTest::newRow("T4, T2") << Montants{{u"TxtT4"_s, cent},
                                            {u"Txt10"_s, u"1"_s},
                                            {u"TxtT2"_s, cent},
                                            {u"Txt06"_s, u"1"_s}}
                                << u"T4  T2"_s;
        QTest::newRow("T2 contre T1") << Montants{{u"TxtT2"_s, u"100"_s}, {u"Txt03"_s, u"0"_s}} << QString();
    }

    void conflits()
    {
        QFETCH(Montants, montants);
        QFETCH(QString, trimestres);
        // The sum is right each time: a conflict stops all the same.
        const SaisieDacs dacs = saisie(montants);
        DialogueScenario dialogue;
        if (trimestres.isEmpty()) {
            dialogue.attendreInformation(egal, u"DAS"_s);
        } else {
            dialogue.attendreAvertissement(u"Vous Avez Saisi Pour Le(s) Trimestre(s) %1\nLa Période "
                                           "Trimestrielle + Mensuelle(s) !!!\nVeuillez Corriger l'Erreur "
                                           "S.V.P !!!"_s.arg(trimestres),
                                           u"DAS"_s);
        }
        QCOMPARE(verifierDacs(dacs, QString::number(SommeDacs(dacs)), dialogue),
                 trimestres.isEmpty() ? egal : QString());
    }
};

QTEST_GUILESS_MAIN(TestRapprochement)
#include "test_rapprochement.moc"
