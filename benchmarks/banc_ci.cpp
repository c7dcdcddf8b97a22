#include "benchmarks/muet.h"
#include "ci/exportci.h"
#include "ci/genreci.h"
#include "ci/screens/frmlnci.h"
#include "declarations/lignes.h"
#include "tests/ci/baseci.h"
#include "tests/screens/banc.h"

#include <QApplication>

#include <benchmark/benchmark.h>

// A claim of many lines, among as many employees.

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<BancSur<BaseCi>> bancArret;

/// A claim, made once, on the bench of its windows.
BancSur<BaseCi> &arret(int64_t lignes)
{
    if (!bancArret) {
        bancArret = std::make_unique<BancSur<BaseCi>>();
        Connexion &cnx = bancArret->base.Cnx;
        Transaction transaction(cnx);
        cnx.executer(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?) "
                     "INSERT INTO salarie (Num_Salarie, cpt_z, nom, prenom, date_naiss, profes) "
                     "SELECT printf('77%010d', i), 1, 'NOM' || i, 'PRENOM', '1977-03-04', 'MAÇON' FROM n"_s,
                     {lignes});
        cnx.executer(u"INSERT INTO Detail_CI SELECT ?, Num_Salarie, cpt_z, '2020-09-01', '2024-01-05', "
                     "'2024-01-12', 10, 1000000, 7500000 FROM salarie WHERE Num_Salarie LIKE '77%'"_s,
                     {BaseCi::reference});
        transaction.commit();
        bancArret->entete(
            u"Montant_Indemnise = 75000000000, Effect_Mis_arret = 10000, sum_calc = 75000000000, "
            "total_calc = 10000"_s);
        cnx.executer(u"PRAGMA synchronous = FULL"_s);
    }
    return *bancArret;
}

/// From the button to the window with the lines.
void ouvrirArret(benchmark::State &etat)
{
    BancSur<BaseCi> &essai = arret(etat.range(0));
    for (auto _ : etat) {
        const LignesDeclaration lignes(essai.base, genreCi(),
                                       cleEntete(genreCi(), essai.base.RsEnteteCi.courant()));
        frmlnCi fenetre(essai.contexte, lignes, nullptr);
        fenetre.setAttribute(Qt::WA_DeleteOnClose, false);
        fenetre.show();
        QCoreApplication::processEvents();
    }
}

/// A line is changed, with the sums, while the window shows it.
void enregistrerLigneArret(benchmark::State &etat)
{
    BancSur<BaseCi> &essai = arret(etat.range(0));
    LignesDeclaration lignes(essai.base, genreCi(), cleEntete(genreCi(), essai.base.RsEnteteCi.courant()));
    Muet muet;
    for (auto _ : etat) {
        FicheLigneCi fiche = remplirFicheLigneCi(lignes.liste().courant());
        fiche.TxtNbHeure = fiche.TxtNbHeure == u"10" ? u"11"_s : u"10"_s;
        if (modifierLigneCi(lignes, lignes.liste().courant(), fiche, muet))
            etat.SkipWithError("refused");
    }
    essai.base.Cnx.executer(u"UPDATE Entete_CI SET Montant_Indemnise = sum_calc"_s);
    essai.base.RsEnteteCi.requery();
}

void exporterArret(benchmark::State &etat)
{
    BancSur<BaseCi> &essai = arret(etat.range(0));
    Muet muet(essai.fichier(u"ci.txt"_s, {}));
    for (auto _ : etat) {
        if (!exporterCi(essai.base, false, muet))
            etat.SkipWithError("refused");
    }
}

BENCHMARK(ouvrirArret)->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK(enregistrerLigneArret)->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK(exporterArret)->Arg(10'000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    bancArret.reset(); // while the database drivers are still there
    return 0;
}
