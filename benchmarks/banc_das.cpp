#include "das/controledas.h"
#include "das/exportdas.h"
#include "das/formulaires.h"
#include "das/genredas.h"
#include "das/importdas.h"
#include "das/lignedas.h"
#include "declarations/lignes.h"
#include "rules/dialogue.h"
#include "screens/impression.h"
#include "screens/miseenpage.h"
#include "tests/das/basedas.h"

#include <QApplication>
#include <QPrintPreviewWidget>
#include <QPrinter>

#include <benchmark/benchmark.h>

#include <map>

using namespace Qt::StringLiterals;

namespace {

/// Says yes to everything, and nothing.
class Muet : public Dialogue
{
public:
    explicit Muet(QString chemin = {}) : m_chemin(std::move(chemin)) {}
    QString choisirFichier(const QString &, const QString &) override { return m_chemin; }
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
        if (!CtrlDas(essai.base, essai.base.RsEnteteDas.courant(), muet))
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

/// A file of the older form in which nobody is known: an employee and a line each.
QByteArray ancienFichier(int64_t lignes)
{
    QByteArray fichier =
        "DAS KORVANDEL VER 2.0\r\n" + QByteArray("876543212023 1").leftJustified(29, '0') + "00000\r\n";
    for (int64_t i = 0; i < lignes; ++i) {
        // Numbers come in no order.
        fichier +=
            QByteArray::number(888'888'000'000 + i * 7919 % 999'983) +
            QByteArray("NOM " + QByteArray::number(i)).leftJustified(30) +
            QByteArray("PRENOM").leftJustified(30) + "M04/03/1988" + QByteArray("ALGER").leftJustified(40) +
            QByteArray("12 RUE DES ROSIERS").leftJustified(50) + QByteArray("ALGER").leftJustified(50) +
            "16000NN" + QByteArray::number(i * 100).rightJustified(20, '1') + QByteArray(20, ' ') +
            QByteArray(30, ' ') + QByteArray("MA\xC7ON").leftJustified(25) + "      600000,00" + "   12" +
            "M01/07/2022EM0550112233" + QByteArray(40, ' ') + QByteArray("123456").rightJustified(15, '0') +
            "004\r\n";
    }
    return fichier;
}

void importerFichier(benchmark::State &etat)
{
    const QByteArray octets = ancienFichier(etat.range(0));
    for (auto _ : etat) {
        etat.PauseTiming();
        {
            BaseDas essai;
            essai.base.Cnx.executer(u"PRAGMA synchronous = FULL"_s);
            Muet muet(essai.fichier(u"das.txt"_s, octets));
            etat.ResumeTiming();
            if (!importerDas(essai.base, muet, [](qint64) { return true; }))
                etat.SkipWithError("refused");
            etat.PauseTiming();
        }
        etat.ResumeTiming();
    }
}

/// The list of the lines, from the button to the pages that the clerk sees.
void montrerApercu(benchmark::State &etat)
{
    BaseDas &essai = declaration(etat.range(0));
    Muet muet;
    for (auto _ : etat) {
        const MiseEnPage pages(*DataReport3(essai.base, essai.base.RsEnteteDas.courant(), muet));
        QPrinter imprimante(QPrinter::HighResolution);
        preparer(imprimante, pages);
        QPrintPreviewWidget apercu(&imprimante);
        QObject::connect(&apercu, &QPrintPreviewWidget::paintRequested, &apercu,
                         [&pages](QPrinter *sur) { imprimer(pages, *sur); });
        apercu.updatePreview();
        if (apercu.pageCount() != pages.pages())
            etat.SkipWithError("not shown");
    }
}

/// The same from the button to the file.
void ecrirePdf(benchmark::State &etat)
{
    BaseDas &essai = declaration(etat.range(0));
    Muet muet;
    const QString chemin = essai.fichier(u"liste.pdf"_s, {});
    for (auto _ : etat)
        enregistrerPdf(MiseEnPage(*DataReport3(essai.base, essai.base.RsEnteteDas.courant(), muet)), chemin);
}

constexpr int plusGrande = 100'000;

BENCHMARK(ouvrirLignes)->RangeMultiplier(10)->Range(1000, plusGrande)->Unit(benchmark::kMillisecond);
BENCHMARK(ajouterLigne)
    ->RangeMultiplier(10)
    ->Range(1000, plusGrande)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(50);
BENCHMARK(controler)->RangeMultiplier(10)->Range(1000, plusGrande)->Unit(benchmark::kMillisecond);
BENCHMARK(importerFichier)->RangeMultiplier(10)->Range(1000, plusGrande)->Unit(benchmark::kMillisecond);
BENCHMARK(montrerApercu)->Range(10'000, 10'000)->Unit(benchmark::kMillisecond);
BENCHMARK(ecrirePdf)->Range(10'000, 10'000)->Unit(benchmark::kMillisecond);
BENCHMARK(ecrireFichier)->RangeMultiplier(10)->Range(1000, plusGrande)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    bases.clear(); // while the database drivers are still there
    return 0;
}
