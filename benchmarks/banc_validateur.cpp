// Speed and memory of the validation of a DAS, beside what reading and cutting the same file take by
// themselves.
//
//     banc_validateur DOSSIER [options of Google Benchmark]
//
// DOSSIER holds what ./mesurer makes: the folders of files named in main().

#include "batch/lot.h"
#include "rules/lecteurlignes.h"
#include "rules/texte.h"
#include "validators/decoupeur.h"
#include "validators/validateurdas.h"

#include <QFile>

#include <benchmark/benchmark.h>

#include <array>
#include <cstdlib>
#include <string>

using namespace Qt::StringLiterals;

namespace {

/// Highest amount of memory that the program has held since noterPic(), in bytes; 0 where the system does not
/// tell.
double pic()
{
    QFile etat(u"/proc/self/status"_s);
    if (!etat.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &ligne : etat.readAll().split('\n')) {
        if (ligne.startsWith("VmHWM:"))
            return ligne.simplified().split(' ').value(1).toDouble() * 1024;
    }
    return 0;
}

void noterPic()
{
    QFile remise(u"/proc/self/clear_refs"_s);
    if (remise.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        remise.write("5");
}

/// Runs a whole pass over the file a few times and reports lines a second and the peak of memory.
template <typename Passe>
void mesurer(benchmark::State &etat, Passe passe)
{
    qint64 lignes = 0;
    noterPic();
    const double avant = pic();
    for (auto _ : etat)
        lignes += passe();
    etat.SetItemsProcessed(lignes);
    etat.counters["pic_Mo"] = pic() / (1024 * 1024);
    etat.counters["pic_en_plus_Mo"] = (pic() - avant) / (1024 * 1024);
}

void ouvrir(QFile &fichier)
{
    if (!fichier.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        std::fprintf(stderr, "%s : %s\n", qPrintable(fichier.fileName()), qPrintable(fichier.errorString()));
        std::exit(EXIT_FAILURE);
    }
}

/// Every line read and decoded, not cut.
void lireDecoder(benchmark::State &etat, const QString &chemin)
{
    mesurer(etat, [&] {
        QFile fichier(chemin);
        ouvrir(fichier);
        LecteurLignes lecteur(fichier);
        QString tampon;
        qint64 lignes = 0;
        for (; !lecteur.finie(); ++lignes) {
            const QByteArrayView ligne = lecteur.lire();
            if (tampon.size() < ligne.size())
                tampon.resize(ligne.size());
            decoder(ligne, reinterpret_cast<char16_t *>(tampon.data()), true);
            benchmark::DoNotOptimize(tampon.constData());
            benchmark::ClobberMemory();
        }
        return lignes;
    });
}

/// Every data line read, decoded and cut into its fields.
void lireDecouper(benchmark::State &etat, const QString &chemin)
{
    mesurer(etat, [&] {
        QFile fichier(chemin);
        ouvrir(fichier);
        LecteurLignes lecteur(fichier);
        lecteur.lire();
        lecteur.lire();
        Decoupeur decoupeur;
        std::array<QStringView, ValidateurDas::NombreColonnes> champs;
        qint64 lignes = 0;
        for (; !lecteur.finie(); ++lignes) {
            decoupeur.decouper(lecteur.lire(), champs);
            benchmark::DoNotOptimize(champs);
            benchmark::ClobberMemory();
        }
        return lignes;
    });
}

/// The whole validation, as the batch validator does it.
void valider(benchmark::State &etat, const QString &chemin, Verdict attendu)
{
    double erreurs = 0;
    mesurer(etat, [&] {
        ValidateurDas validateur;
        DialogueEnregistreur dialogue;
        if (validateur.extraire(chemin, dialogue) != attendu)
            etat.SkipWithError("unexpected verdict");
        erreurs = static_cast<double>(validateur.nbErrRejet + validateur.nbErrOK);
        return validateur.nbLignes;
    });
    etat.counters["erreurs"] = erreurs;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc < 2 || argv[1][0] == '-') {
        std::fputs("banc_validateur DOSSIER [--benchmark_...]\n", stderr);
        return EXIT_FAILURE;
    }
    const QString dossier = QString::fromLocal8Bit(argv[1]);
    argv[1] = argv[0];
    ++argv;
    --argc;

    const auto fichier = [&](QStringView jeu) {
        return QString(dossier + u'/' + jeu + u"/12345678_DAS_2024.TXT"_s);
    };
    const auto inscrire = [](const char *nom, auto passe) {
        benchmark::RegisterBenchmark(nom, passe)->Unit(benchmark::kMillisecond);
    };
    const QString propre = fichier(u"propre");
    inscrire("a_lire_decoder/1M", [=](auto &etat) { lireDecoder(etat, propre); });
    inscrire("b_lire_decouper/1M", [=](auto &etat) { lireDecouper(etat, propre); });
    inscrire("c_valider_propre/100k",
             [=](auto &etat) { valider(etat, fichier(u"propre100k"), Verdict::Acceptee); });
    inscrire("c_valider_propre/1M", [=](auto &etat) { valider(etat, propre, Verdict::Acceptee); });
    inscrire("d_valider_fautes_1_sur_10/1M",
             [=](auto &etat) { valider(etat, fichier(u"fautes10"), Verdict::Rejetee); });
    inscrire("d_valider_fautes_partout/1M",
             [=](auto &etat) { valider(etat, fichier(u"fautes1"), Verdict::Rejetee); });

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return EXIT_FAILURE;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
