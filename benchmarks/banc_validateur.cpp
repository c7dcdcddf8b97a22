// Speed and memory of the validators, beside what reading and cutting the same file take by themselves.
//
//     banc_validateur DOSSIER [options of Google Benchmark]
//
// DOSSIER holds what ./mesurer makes: the folders of files named in main().

#include "batch/lot.h"
#include "rules/lecteurlignes.h"
#include "rules/texte.h"
#include "validators/decoupeur.h"
#include "validators/validateurci.h"
#include "validators/validateurdac.h"
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
template <int NombreColonnes>
void lireDecouper(benchmark::State &etat, const QString &chemin)
{
    mesurer(etat, [&] {
        QFile fichier(chemin);
        ouvrir(fichier);
        LecteurLignes lecteur(fichier);
        lecteur.lire();
        lecteur.lire();
        Decoupeur decoupeur;
        std::array<QStringView, NombreColonnes> champs;
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
template <typename Format>
void valider(benchmark::State &etat, const QString &chemin, Verdict attendu)
{
    double erreurs = 0;
    mesurer(etat, [&] {
        Format validateur;
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

    const auto fichier = [&](QStringView jeu, QStringView nom = u"12345678_DAS_2024") {
        return QString(dossier + u'/' + jeu + u'/' + nom + u".TXT"_s);
    };
    const auto inscrire = [](const char *nom, auto passe) {
        benchmark::RegisterBenchmark(nom, passe)->Unit(benchmark::kMillisecond);
    };
    const auto cas = [&]<typename Format>(const char *nom, const QString &chemin, Verdict attendu, Format *) {
        inscrire(nom, [=](auto &etat) { valider<Format>(etat, chemin, attendu); });
    };
    constexpr ValidateurDas *das = nullptr;
    constexpr ValidateurDac *dac = nullptr;
    constexpr ValidateurCi *ci = nullptr;
    const QString propre = fichier(u"propre");
    inscrire("a_lire_decoder/1M", [=](auto &etat) { lireDecoder(etat, propre); });
    inscrire("b_lire_decouper/1M",
             [=](auto &etat) { lireDecouper<ValidateurDas::NombreColonnes>(etat, propre); });
    cas("c_valider_propre/100k", fichier(u"propre100k"), Verdict::Acceptee, das);
    cas("c_valider_propre/1M", propre, Verdict::Acceptee, das);
    cas("d_valider_fautes_1_sur_10/1M", fichier(u"fautes10"), Verdict::Rejetee, das);
    cas("d_valider_fautes_partout/1M", fichier(u"fautes1"), Verdict::Rejetee, das);

    const QString propreDac = fichier(u"dac", u"12345678_DAC_NOMINATIVE_2024T1");
    inscrire("e_lire_decouper_dac/1M",
             [=](auto &etat) { lireDecouper<ValidateurDac::NombreColonnes>(etat, propreDac); });
    cas("e_valider_dac_propre/1M", propreDac, Verdict::Acceptee, dac);
    cas("e_valider_dac_fautes_1_sur_10/1M", fichier(u"dacfautes10", u"12345678_DAC_NOMINATIVE_2024T1"),
        Verdict::Rejetee, dac);

    const QString propreCi = fichier(u"ci", u"123456780000000001_CI");
    inscrire("f_lire_decouper_ci/1M",
             [=](auto &etat) { lireDecouper<ValidateurCi::NombreColonnes>(etat, propreCi); });
    cas("f_valider_ci_propre/1M", propreCi, Verdict::Acceptee, ci);
    cas("f_valider_ci_fautes_1_sur_10/1M", fichier(u"cifautes10", u"123456780000000001_CI"), Verdict::Rejetee,
        ci);

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return EXIT_FAILURE;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
