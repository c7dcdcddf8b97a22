#include "tests/commun/dialoguescenario.h"
#include "validators/rapprochement.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// @param montants such as "Txt01=0.1 TxtT2=100"
SaisieDacs saisie(const QString &montants)
{
    SaisieDacs dacs;
    for (const QString &montant : montants.split(u' ', Qt::SkipEmptyParts)) {
        const auto boite =
            std::find(SaisieDacs::Boites.begin(), SaisieDacs::Boites.end(), montant.section(u'=', 0, 0));
        Q_ASSERT(boite != SaisieDacs::Boites.end());
        dacs.textes[static_cast<std::size_t>(boite - SaisieDacs::Boites.begin())] = montant.section(u'=', 1);
    }
    return dacs;
}

const QString titre = u"DAS"_s;

} // namespace

/// The annual declaration against the amounts of the monthly and quarterly ones.
class TestRapprochement : public QObject
{
    Q_OBJECT

private slots:
    void quitter()
    {
        for (const auto &[saisi, lu] : {std::pair(u""_s, u"0"_s),
                                        {u"abc"_s, u"0"_s},
                                        {u"1 234.50"_s, u"1234.5"_s},
                                        {u"12,5"_s, u"12"_s},
                                        {u"-0"_s, u"0"_s},
                                        {u"123456789012.34"_s, u"123456789012.34"_s},
                                        {u"-0.01"_s, u""_s}}) {
            DialogueScenario dialogue;
            if (lu.isEmpty())
                dialogue.attendreAvertissement(u"Veuillez Saisir un Montant Correct S.V.P!!!"_s, titre);
            QString montant = saisi;
            QCOMPARE(quitterMontantDac(montant, dialogue), !lu.isEmpty());
            QCOMPARE(montant, lu);
        }
    }

    void verdict()
    {
        const Attente egal = boites::information(u"Montant DAS Annuelle Egal au Total DACs"_s, titre);
        const Attente moins = boites::avertissement(u"Montant DAS Annuelle Inférieur au Total DACs"_s, titre);
        const Attente plus = boites::avertissement(u"Montant DAS Annuelle Supérieur du Total DACs"_s, titre);
        using Cas = std::tuple<QString, QString, Attente, QString>;
        for (const auto &[montants, total, boite, difference] :
             {Cas(u""_s, u".00"_s, egal, {}), Cas(u"Txt01=0.1 Txt02=0.2"_s, u".30"_s, egal, {}),
              Cas(u"Txt07=1 Txt08=2 Txt09=4 TxtT4=8 TxtT1=16 Txt04=32 Txt05=64 Txt06=128"_s, u"255.00"_s,
                  egal, {}),
              Cas(u"TxtT3=1 Txt10=2 Txt11=4 Txt12=8 Txt01=16 Txt02=32 Txt03=64 TxtT2=128"_s, u"255.00"_s,
                  egal, {}),
              Cas(u"TxtT1=100 Txt03=0"_s, u"100"_s, egal, {}),
              Cas(u"TxtT2=100 Txt03=1"_s, u"101"_s, egal, {}),
              Cas(u"TxtT3=1000.10"_s, u"1 000.00"_s, moins, u"-0.1"_s),
              Cas(u"TxtT3=123456789012.10"_s, u"123 456 789 012.35"_s, plus, u"0.25"_s)}) {
            DialogueScenario dialogue;
            dialogue.attendre({boite});
            QCOMPARE(verifierDacs(saisie(montants), total, dialogue),
                     QString(boite.boite.texte).replace(u" du "_s, u" au "_s) +
                         (difference.isEmpty() ? QString() : u"\nDe :  "_s + difference));
        }
    }

    /// The sum is right each time: a conflict stops all the same.
    void conflits()
    {
        for (const auto &[montants, trimestres] : {std::pair(u"TxtT1=100 Txt02=1"_s, u"  T1"_s),
                                                   {u"TxtT1=100 Txt01=1 TxtT3=100 Txt09=1"_s, u"T3  T1"_s},
                                                   {u"TxtT4=100 Txt10=1 TxtT2=100 Txt06=1"_s, u"T4  T2"_s},
                                                   {u"TxtT4=100 Txt11=1"_s, u"  T4"_s}}) {
            const SaisieDacs dacs = saisie(montants);
            DialogueScenario dialogue;
            dialogue.attendreAvertissement(u"Vous Avez Saisi Pour Le(s) Trimestre(s) %1\nLa Période "
                                           "Trimestrielle + Mensuelle(s) !!!\nVeuillez Corriger l'Erreur "
                                           "S.V.P !!!"_s.arg(trimestres),
                                           titre);
            QCOMPARE(verifierDacs(dacs, QString::number(SommeDacs(dacs)), dialogue), QString());
        }
    }
};

QTEST_GUILESS_MAIN(TestRapprochement)
#include "test_rapprochement.moc"
