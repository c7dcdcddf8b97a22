#include "rules/dialogue.h"
#include "shell/programme.h"
#include "storage/base.h"
#include "storage/demarrage.h"
#include "storage/lieux.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int Salaries = 200'000;

/// A start on a good database asks nothing.
class DialogueMuet : public Dialogue
{
public:
    QString choisirFichier(const QString &, const QString &) override { return {}; }
    QString choisirDestination(const QString &, const QString &, const QString &) override { return {}; }

protected:
    bool montrer(const Boite &boite) override { qFatal("%s", qPrintable(boite.texte)); }
};

/// Opens the database of that home folder; it is made, with so many employees, when it is not there.
void ouvrir(Base &base, const QString &foyer, int salaries)
{
    QDir().mkpath(foyer);
    qputenv("HOME", foyer.toLocal8Bit());
    DialogueMuet dialogue;
    demarrer(base, dialogue);
    if (base.RsSalarie.nombre() == salaries)
        return;
    Transaction transaction(base.Cnx);
    for (int i = 0; i < salaries; ++i) {
        base.Cnx.inserer(u"salarie"_s, {{u"Num_Salarie"_s, QString::number(100'000'000'000LL + i * 7919LL)},
                                        {u"cpt_z"_s, 1},
                                        {u"nom"_s, u"NOM %1"_s.arg(i * 7919 % salaries)},
                                        {u"prenom"_s, u"PRENOM %1"_s.arg(i % 500)},
                                        {u"date_naiss"_s, QDate(1960, 1, 1).addDays(i % 15'000)},
                                        {u"adresse"_s, u"12 RUE DES FRERES BOUADOU"_s},
                                        {u"ville"_s, u"ALGER"_s},
                                        {u"profes"_s, u"MACON"_s},
                                        {u"IdNat"_s, u"004"_s},
                                        {u"etranger"_s, u"N"_s}});
    }
    transaction.commit();
    base.RsSalarie.requery();
}

/// From the start of the process to the shown window with its database loaded.
void demarrage(benchmark::State &etat, const QString &foyer)
{
    qputenv("HOME", foyer.toLocal8Bit());
    for (auto _ : etat) {
        QProcess enfant;
        QElapsedTimer temps;
        temps.start();
        enfant.start(QCoreApplication::applicationFilePath(), {u"--enfant"_s});
        if (!enfant.waitForReadyRead(20'000)) {
            etat.SkipWithError("the program did not come up");
            return;
        }
        etat.SetIterationTime(static_cast<double>(temps.nsecsElapsed()) / 1e9);
        enfant.waitForFinished();
    }
}

void ouvrirSalaries(benchmark::State &etat, Base &base)
{
    for (auto _ : etat)
        base.RsSalarie.ouvrir();
    etat.counters["lignes"] = base.RsSalarie.nombre();
}

void trierSalaries(benchmark::State &etat, Base &base)
{
    base.RsSalarie.ouvrir();
    for (auto _ : etat)
        base.RsSalarie.trier(u"nom"_s);
}

/// A search by name, then the whole table again.
void chercherSalaries(benchmark::State &etat, Base &base)
{
    for (auto _ : etat) {
        base.RsSalarie.filtrer(commencePar(u"nom"_s, u"nom 99"));
        base.RsSalarie.filtrer({});
    }
}

int enfant(int argc, char **argv)
{
    return lancerProgramme(argc, argv, [](Base &) {
        std::puts("prete");
        std::fflush(stdout);
        QCoreApplication::quit();
    });
}

} // namespace

/// banc_programme FOLDER [options of Google Benchmark]: keeps its two home folders in FOLDER.
int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc == 2 && QByteArrayView(argv[1]) == "--enfant")
        return enfant(argc, argv);

    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (argc != 2) {
        std::fputs("usage: banc_programme FOLDER [options of Google Benchmark]\n", stderr);
        return 64;
    }
    const QString dossier = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    const QString petit = dossier + u"/foyer-petit"_s;
    const QString grand = dossier + u"/foyer-200000"_s;
    {
        Base base;
        ouvrir(base, petit, 0);
    }
    Base base;
    ouvrir(base, grand, Salaries);

    benchmark::RegisterBenchmark("demarrage_base_neuve",
                                 [&](benchmark::State &etat) { demarrage(etat, petit); })
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("demarrage_200000_salaries",
                                 [&](benchmark::State &etat) { demarrage(etat, grand); })
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
    for (const auto &[nom, mesurer] : {std::pair("ouvrir_RsSalarie_200000", &ouvrirSalaries),
                                       {"trier_RsSalarie_200000", &trierSalaries},
                                       {"chercher_RsSalarie_200000", &chercherSalaries}}) {
        benchmark::RegisterBenchmark(nom, [&base, mesurer = mesurer](benchmark::State &etat) {
            mesurer(etat, base);
        })->Unit(benchmark::kMillisecond);
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
