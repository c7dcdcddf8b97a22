#include "benchmarks/muet.h"
#include "dac/controledac.h"
#include "dac/exportdac.h"
#include "dac/genredac.h"
#include "dac/screens/frm_add_lndac.h"
#include "das/controledas.h"
#include "das/exportdas.h"
#include "das/formulaires.h"
#include "das/genredas.h"
#include "das/importdas.h"
#include "das/lignedas.h"
#include "das/transfertdas.h"
#include "declarations/entetes.h"
#include "declarations/exportdeclaration.h"
#include "declarations/lignes.h"
#include "declarations/transfert.h"
#include "rules/calendrier.h"
#include "screens/contexte.h"
#include "screens/dernierrecours.h"
#include "screens/impression.h"
#include "screens/miseenpage.h"
#include "tests/commun/menutemoin.h"
#include "tests/dac/basedac.h"
#include "tests/das/basedas.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>

#include <benchmark/benchmark.h>

#include <map>

using namespace Qt::StringLiterals;

namespace {

constexpr int plusGrande = 100'000;

std::map<int64_t, std::unique_ptr<BaseDas>> bases;

/// That many nationals with a line each under a header of their own.
void peuplerDas(BaseDas &essai, int lignes)
{
    essai.entete();
    Transaction transaction(essai.base.Cnx);
    const QString modele = u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?) "_s;
    // Ten digits of the year 88, the certificate 2345 and four more, then the key; beyond 10 000 employees
    // the certificate tells them apart.
    essai.base.Cnx.executer(
        modele + u"INSERT INTO salarie (Num_Salarie, cpt_z, nom, prenom, sf, date_naiss, "
                 "lieu_naiss, adresse, ville, presume, etranger, num_cpt_ccp, profes, SEXE, "
                 "Telephone, IdNat, NumActeNaiss, NIN, PrenomPere, NomMere, PrenomMere) "
                 "SELECT printf('88%08d', i), 1, char(65 + i % 26) || 'NOM', 'PRENOM', 'M', '1988-03-04', "
                 "'ALGER', '12 RUE DES ROSIERS', 'ALGER', 'N', 'N', '123456768', 'MAÇON', 'M', "
                 "'0550112233', '004', printf('0%04d', i / 10000), printf('1098801230%04d0006', i / 10000), "
                 "'PAUL', 'DURAND', 'MARIE' FROM n"_s,
        {lignes});
    // The key: 99 less the sum of the digits, those in odd places twice.
    QString somme;
    for (int place = 1; place <= 10; ++place) {
        somme += (place > 1 ? u"+"_s : QString()) +
                 u"%1 * substr(Num_Salarie, %2, 1)"_s.arg(place % 2 == 1 ? 2 : 1).arg(place);
    }
    essai.base.Cnx.executer(u"UPDATE salarie SET Num_Salarie = Num_Salarie || printf('%02d', 99 - ("_s +
                            somme + u")) WHERE length(Num_Salarie) = 10"_s);
    essai.base.Cnx.executer(
        u"INSERT INTO ligne_das SELECT Num_Salarie, cpt_z, 2024, ?, 1, 6000000000 + 100 * rowid, 12, "
        "'M', '01/07/2023', 'E' FROM salarie ORDER BY rowid"_s,
        {BaseDas::employeur});
    transaction.commit();
    essai.accorder();
}

/// One declaration a size, made once. The file is written with full synchronisation, as the program does.
BaseDas &declaration(int64_t lignes)
{
    std::unique_ptr<BaseDas> &base = bases[lignes];
    if (!base) {
        base = std::make_unique<BaseDas>();
        peuplerDas(*base, static_cast<int>(lignes));
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

std::map<int64_t, std::unique_ptr<BaseDac>> basesDac;

/// One nominative declaration a size; that of 10,000 lines among 200,000 employees.
BaseDac &declarationDac(int64_t lignes)
{
    std::unique_ptr<BaseDac> &base = basesDac[lignes];
    if (!base) {
        base = std::make_unique<BaseDac>();
        base->peuplerDac(static_cast<int>(lignes), lignes == 10'000 ? 200'000 : 0);
        base->entete();
        base->accorder();
        base->base.Cnx.executer(u"PRAGMA synchronous = FULL"_s);
    }
    return *base;
}

/// The bulk entry over a declaration.
struct Saisie
{
    explicit Saisie(BaseDac &essai)
        : lignes(essai.base, genreDac(), cleEntete(genreDac(), essai.base.RsEnteteDac.courant())),
          contexte{essai.base, muet, recours, bornes, menu}
    {
    }

    Muet muet;
    DernierRecours recours{muet, [] {}};
    BornesDePeriode bornes;
    MenuTemoin menu;
    LignesDeclaration lignes;
    Contexte contexte;
};

void ouvrirSaisieDac(benchmark::State &etat)
{
    Saisie saisie(declarationDac(etat.range(0)));
    for (auto _ : etat) {
        frm_add_Lndac fenetre(saisie.contexte, saisie.lignes, nullptr);
        fenetre.show();
        QApplication::processEvents();
    }
}

/// From the last Enter to the lists with the new line.
void enregistrerLigneDac(benchmark::State &etat)
{
    BaseDac &essai = declarationDac(etat.range(0));
    Saisie saisie(essai);
    frm_add_Lndac fenetre(saisie.contexte, saisie.lignes, nullptr);
    fenetre.show();
    auto *employes = fenetre.findChild<QAbstractItemView *>(u"DataGrid1"_s);
    QModelIndex employe = employes->model()->index(plusGrande, 0);
    while (employe.data(Qt::ForegroundRole).isValid()) // one who has a line
        employe = employe.siblingAtRow(employe.row() + 1);
    employes->setCurrentIndex(employe);
    for (auto _ : etat) {
        etat.PauseTiming();
        const auto avant = saisie.lignes.liste().nombre();
        fenetre.findChild<QPushButton *>(u"CmdAff"_s)->click();
        fenetre.findChild<QComboBox *>(u"CmbES"_s)->setCurrentIndex(0);
        fenetre.findChild<QComboBox *>(u"CmbDT"_s)->setCurrentIndex(0);
        fenetre.findChild<QLineEdit *>(u"MskDateES"_s)->setText(u"01/01/2020"_s);
        fenetre.findChild<QLineEdit *>(u"TxtAssiette"_s)->setText(u"30000"_s);
        fenetre.findChild<QLineEdit *>(u"TxtNbJT"_s)->setText(u"22"_s);
        QApplication::processEvents();
        etat.ResumeTiming();
        fenetre.findChild<QPushButton *>(u"cmdok"_s)->click();
        QApplication::processEvents();
        if (saisie.lignes.liste().nombre() != avant + 1) {
            etat.SkipWithError("refused");
            break;
        }
    }
    essai.base.Cnx.executer(u"DELETE FROM Ligne_Dac WHERE rowid > ?"_s, {etat.range(0)});
    essai.accorder();
}

void controlerDac(benchmark::State &etat)
{
    BaseDac &essai = declarationDac(etat.range(0));
    Muet muet;
    for (auto _ : etat) {
        if (!CtrlDacNominative(essai.base, BaseDac::employeur.toString(), BaseDac::periode.toString(), 1,
                               muet))
            etat.SkipWithError("refused");
    }
}

void ecrireFichierDac(benchmark::State &etat)
{
    BaseDac &essai = declarationDac(etat.range(0));
    const QTemporaryDir dossier;
    Muet muet(dossier.filePath(u"dac.txt"_s));
    for (auto _ : etat) {
        if (!exporter(fichierDac(), essai.base, essai.base.RsEnteteDac.courant(), false, muet))
            etat.SkipWithError("refused");
    }
}

/// The lines of a declaration into a new one, with full synchronisation.
void transfererLignes(benchmark::State &etat, Base &base, const TransfertLignes &transfert,
                      const ChoixTransfert &choix)
{
    const GenreDeclaration &genre = transfert.entetes.genre;
    (base.*genre.entetes)
        .ajouter({{genre.employeur, choix.employeur},
                  {transfert.entetes.periode, choix.destination},
                  {transfert.entetes.type, 1}});
    Recordset montrees(base.Cnx, (base.*genre.lignes).table());
    montrees.ouvrir(lignesATransferer(transfert, choix.employeur, choix.source));
    const Condition copies = lignesATransferer(transfert, choix.employeur, choix.destination);
    const QString vider = u"DELETE FROM [%1] WHERE %2"_s.arg(montrees.table(), copies.sql);
    Muet muet;
    for (auto _ : etat) {
        if (!transferer(base, transfert, choix, montrees, muet))
            etat.SkipWithError("refused");
        etat.PauseTiming();
        base.Cnx.executer(vider, copies.valeurs);
        etat.ResumeTiming();
    }
    (base.*genre.entetes).supprimer((base.*genre.entetes).courant());
}

void transfererDas(benchmark::State &etat)
{
    transfererLignes(etat, declaration(etat.range(0)).base, transfertDas(),
                     {BaseDas::employeur.toString(), u"2024"_s, u"2025"_s});
}

void transfererDac(benchmark::State &etat)
{
    transfererLignes(etat, declarationDac(etat.range(0)).base, transfertDac(),
                     {BaseDac::employeur.toString(), BaseDac::periode.toString(), u"202402"_s});
}

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
BENCHMARK(transfererDas)->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK(transfererDac)->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK(ouvrirSaisieDac)->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK(enregistrerLigneDac)->Arg(10'000)->Unit(benchmark::kMillisecond)->Iterations(50);
BENCHMARK(controlerDac)->Arg(plusGrande)->Unit(benchmark::kMillisecond);
BENCHMARK(ecrireFichierDac)->Arg(plusGrande)->Unit(benchmark::kMillisecond);
BENCHMARK(ecrireFichier)->RangeMultiplier(10)->Range(1000, plusGrande)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    basesDac.clear();
    bases.clear(); // while the database drivers are still there
    return 0;
}
