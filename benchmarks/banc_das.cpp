#include "das/controledas.h"
#include "das/exportdas.h"
#include "das/genredas.h"
#include "das/lignedas.h"
#include "declarations/lignes.h"
#include "rules/dialogue.h"
#include "tests/das/basedas.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <map>

using namespace Qt::StringLiterals;

namespace {

/// Says yes to everything, and nothing.
class Muet : public Dialogue
{
public:
    explicit Muet(QString chemin = {}) : m_chemin(std::move(chemin)) {}
    QString choisirFichier(const QString &, const QString &) override { return {}; }
    QString choisirDestination(const QString &, const QString &, const QString &) override
    {
        return m_chemin;
    }

protected:
    bool montrer(const Boite &) override { return true; }

private:
    QString m_chemin;
};

std::map<int64_t, std::unique_ptr<BaseDas>> bases;

/// One declaration a size, made once. The file is written with full synchronisation, as the program does.
BaseDas &declaration(int64_t lignes)
{
    std::unique_ptr<BaseDas> &base = bases[lignes];
    if (!base) {
        base = std::make_unique<BaseDas>();
        base->peuplerDas(static_cast<int>(lignes));
        base->base.Cnx.executer(u"PRAGMA synchronous = FULL"_s);
    }
    return *base;
}

CleDeclaration cleDe(BaseDas &essai) { return cleEntete(genreDas(), essai.base.RsEnteteDas.courant()); }

void ouvrirLignes(benchmark::State &etat)
{
    BaseDas &essai = declaration(etat.range(0));
    LignesDeclaration lignes(essai.base, genreDas(), cleDe(essai));
    for (auto _ : etat)
        lignes.montrerToutes();
}

void ajouterLigne(benchmark::State &etat)
{
    BaseDas &essai = declaration(etat.range(0));
    LignesDeclaration lignes(essai.base, genreDas(), cleDe(essai));
    Muet muet;
    FicheLigneDas fiche;
    fiche.num_saledit = u"0000000000"_s;
    fiche.mskcle = u"00"_s;
    fiche.sal_annueledit = u"600000"_s;
    fiche.nbj_travailctrl = {12, u'M'};
    qint64 cpt_z = 0;
    for (auto _ : etat) {
        etat.PauseTiming();
        essai.base.Cnx.executer(u"INSERT INTO salarie (Num_Salarie, cpt_z) VALUES ('000000000000', ?)"_s,
                                {++cpt_z});
        fiche.cpt_z = cpt_z;
        etat.ResumeTiming();
        if (ajouterLigneDas(lignes, fiche, muet))
            etat.SkipWithError("refused");
    }
    essai.base.Cnx.executer(u"DELETE FROM ligne_das WHERE num_salarie = '000000000000'"_s);
    essai.base.Cnx.executer(u"DELETE FROM salarie WHERE Num_Salarie = '000000000000'"_s);
    essai.accorder();
}

void controler(benchmark::State &etat)
{
    BaseDas &essai = declaration(etat.range(0));
    Muet muet;
    for (auto _ : etat) {
        if (!CtrlDas(essai.base, muet))
            etat.SkipWithError("refused");
    }
}

void ecrireFichier(benchmark::State &etat)
{
    BaseDas &essai = declaration(etat.range(0));
    const QTemporaryDir dossier;
    Muet muet(dossier.filePath(u"das.txt"_s));
    for (auto _ : etat) {
        if (!exporterDas(essai.base, false, muet))
            etat.SkipWithError("refused");
    }
}

constexpr int plusGrande = 100'000;

BENCHMARK(ouvrirLignes)->RangeMultiplier(10)->Range(1000, plusGrande)->Unit(benchmark::kMillisecond);
BENCHMARK(ajouterLigne)
    ->RangeMultiplier(10)
    ->Range(1000, plusGrande)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(50);
BENCHMARK(controler)->RangeMultiplier(10)->Range(1000, plusGrande)->Unit(benchmark::kMillisecond);
BENCHMARK(ecrireFichier)->RangeMultiplier(10)->Range(1000, plusGrande)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    bases.clear(); // while the database drivers are still there
    return 0;
}
