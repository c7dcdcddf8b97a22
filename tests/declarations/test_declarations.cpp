#include "declarations/entetes.h"
#include "declarations/exportdeclaration.h"
#include "declarations/lignes.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/employees/basesalaries.h"
#include "tests/storage/foyer.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A declaration that nobody makes: its key is one pair, and one of its sums is compared with nothing.
const GenreDeclaration &genreInvente()
{
    static const GenreDeclaration genre{
        .entetes = &Base::RsEnteteCi,
        .lignes = &Base::RsDetailCi,
        .cle = {{u"N_Identifiant"_s, u"N_Identif"_s, 3}},
        .employeur = u"N_employeur"_s,
        .salarie = u"N_SecSoc"_s,
        .sommes = {{u"sum_calc"_s, u"ifnull(sum(Mt_Indemnise), 0)"_s, u"Montant_Indemnise"_s},
                   {u"ChargePat"_s, u"count(*) * 10000"_s, u"Effect_Mis_arret"_s},
                   {u"HTS"_s, u"ifnull(sum(Nb_Heure), 0)"_s}},
        .textes = {u"Supprimer ?"_s, u"Il y a des lignes."_s, u"Supprimer la ligne ?"_s, u"Ligne"_s},
    };
    return genre;
}

constexpr ChampExport champsEntete[] = {
    {.colonne = u"N_Identifiant", .forme = FormeChamp::Coupe, .largeur = 5},
    {u"Date_reprise", FormeChamp::Jour, u""},
    {u"sum_calc", FormeChamp::Montant},
};
constexpr ChampExport champsLigne[] = {
    {u"l.N_SecSoc"},
    {.colonne = u"adresse", .forme = FormeChamp::Coupe, .siVide = u"vide"},
    {.colonne = u"Email", .siNul = u"nul", .siVide = u"vide", .blancsVides = true},
    {.colonne = u"NIN", .siNul = u"aucun", .nulSiContient = u"_"},
    {.colonne = u"profes", .siNul = u"rien", .nulSiEgal = u"__"},
    {.colonne = u"NumActeNaiss", .repete = true},
    {u"Nb_Heure", FormeChamp::Entier},
};

FichierDeclaration fichierInvente(FichierDeclaration::Gestion gestion, const QString &echec = {})
{
    return {.genre = genreInvente(),
            .marque = u"MARQUE",
            .entete = champsEntete,
            .ligne = champsLigne,
            .nomFige = u"{N_Identifiant}_X .txt"_s,
            .nomPropose = u"{N_Identifiant}_X.txt"_s,
            .sommesDifferentes = u"Différentes."_s,
            .titreSommes = u"Sommes"_s,
            .titreSansNom = u"Abandon"_s,
            .gestion = gestion,
            .echec = echec,
            .succes = u"Vers "_s};
}

/// Two employees with a line each under the declaration "ABCD"; the fields of the second one are all there is
/// to replace.
class Donnees : public BaseSalaries
{
public:
    Donnees()
    {
        base.RsEnteteCi.ajouter({{u"N_Identifiant"_s, u"ABCD"},
                                 {u"N_employeur"_s, u"12345678"},
                                 {u"Montant_Indemnise"_s, Currency::deEntier(30)},
                                 {u"Effect_Mis_arret"_s, 2}});
        ajouter(u"882345000111"_s, 1, {{u"adresse"_s, u" Ici "}, {u"Email"_s, u"a@b.dz"}, {u"NIN"_s, u"12"}});
        ajouter(u"882345000212"_s, 1,
                {{u"adresse"_s, u""},
                 {u"Email"_s, u""},
                 {u"NIN"_s, u"1_"},
                 {u"profes"_s, u"__"},
                 {u"NumActeNaiss"_s, {}}});
        declaration = std::make_unique<LignesDeclaration>(base, genreInvente(), cle());
        for (const auto &[numero, heures] : {std::pair{u"882345000111", 1}, {u"882345000212", 2}}) {
            declaration->ajouter({{u"N_SecSoc"_s, numero},
                                  {u"Cpt_z"_s, 1},
                                  {u"Nb_Heure"_s, heures},
                                  {u"Mt_Indemnise"_s, Currency::deEntier(10 * heures)}});
        }
        // Lines of "ABC" are those of the file, which looks at three characters.
        base.Cnx.executer(u"INSERT INTO Detail_CI (N_Identif, N_SecSoc, Cpt_z, Nb_Heure) "
                          "SELECT 'ABC', N_SecSoc, Cpt_z, 7 * Nb_Heure FROM Detail_CI"_s);
    }

    CleDeclaration cle() { return cleEntete(genreInvente(), entete()); }
    Enregistrement entete() { return base.RsEnteteCi.courant(); }

    std::unique_ptr<LignesDeclaration> declaration;
    DialogueScenario dialogue;
};

} // namespace

/// What the declarations share, tried on one that none of them is.
class TestDeclarations : public QObject
{
    Q_OBJECT

private slots:
    void lignesEtSommes()
    {
        Donnees essai;
        const QString sommes = u"SELECT sum_calc, ChargePat, HTS FROM Entete_CI"_s;
        QCOMPARE(essai.lignes(sommes), QStringList{u"300000|20000|3"_s});
        QVERIFY(sommesConcordent(essai.base, genreInvente(), essai.entete()));
        QVERIFY(essai.declaration->contient(u"882345000111"_s, 1) &&
                !essai.declaration->contient(u"882345000111"_s, 2));
        essai.declaration->modifier(essai.declaration->liste().courant(),
                                    {{u"Mt_Indemnise"_s, Currency::deEntier(5)}});
        QCOMPARE(essai.lignes(sommes), QStringList{u"150000|20000|3"_s});
        QVERIFY(!sommesConcordent(essai.base, genreInvente(), essai.entete()));

        essai.dialogue.attendreConfirmation(u"Supprimer ?"_s, true, u"Confirmation"_s);
        essai.dialogue.attendreAvertissement(u"Il y a des lignes."_s);
        QVERIFY(!supprimerEntete(essai.base, genreInvente(), essai.entete(), essai.dialogue));
    }

    void fichier()
    {
        Foyer foyer;
        Donnees essai;
        essai.declaration->chercher(u"8823450002"_s);
        const FichierDeclaration fichier = fichierInvente(FichierDeclaration::Gestion::Aucune);
        const QString chemin = foyer.chemin() + u"/a.txt"_s;
        essai.dialogue.attendreDestination(u"ABCD_X.txt"_s, {});
        essai.dialogue.attendreAvertissement(u"Nom de fichier incorrect"_s, u"Abandon"_s);
        QVERIFY(!exporter(fichier, essai.base, essai.entete(), false, essai.dialogue));
        essai.dialogue.attendreDestination(u"ABCD_X.txt"_s, chemin);
        essai.dialogue.attendreInformation(u"Vers "_s + chemin);
        QVERIFY(exporter(fichier, essai.base, essai.entete(), false, essai.dialogue));
        QCOMPARE(lireFichier(chemin), QByteArray("MARQUE\r\nABCD ;;30;\r\n"
                                                 "882345000111;Ici;a@b.dz;12;MA\xC7ON;12345;7;\r\n"
                                                 "882345000212;vide;vide;aucun;rien;12345;14;\r\n"));
        // The list shows all lines, and stands where it stood.
        QCOMPARE(essai.declaration->liste().nombre(), 2);
        QCOMPARE(essai.declaration->liste().texte(u"N_SecSoc"), u"882345000212"_s);

        essai.base.RsEnteteCi.modifier(essai.entete(), {{u"Effect_Mis_arret"_s, 3}});
        essai.dialogue.attendreAvertissement(u"Différentes."_s, u"Sommes"_s);
        QVERIFY(!exporter(fichier, essai.base, essai.entete(), false, essai.dialogue));
    }

    /// Where a failure of the control or of the writing ends.
    void echecs()
    {
        using enum FichierDeclaration::Gestion;
        const auto echouer = [](FichierDeclaration::Gestion gestion, const QString &echec, bool fige,
                                bool controle, bool leve) {
            const Foyer foyer; // without the fixed folder
            Donnees essai;
            FichierDeclaration fichier = fichierInvente(gestion, echec);
            if (controle) {
                fichier.apresSommes = [](Base &, const Enregistrement &, Dialogue &) -> bool {
                    throw ErreurConversion(u"x"_s);
                };
            } else if (!fige) {
                essai.dialogue.attendreDestination(u"ABCD_X.txt"_s, foyer.chemin() + u"/rien/a.txt"_s);
            }
            if (!echec.isEmpty() && !leve)
                essai.dialogue.attendreCritique(echec);
            QCOMPARE(!echecDe([&] {
                          QVERIFY(!exporter(fichier, essai.base, essai.entete(), fige, essai.dialogue));
                      }).isEmpty(),
                     leve);
        };
        echouer(DesLeControle, u"Non."_s, false, true, false);
        echouer(DesLaCible, {}, false, true, true); // the control comes before the target
        echouer(DesLaCible, {}, false, false, false);
        echouer(DesLeControle, u"Non."_s, true, false, true);
        echouer(Aucune, {}, false, false, true);
    }
};

QTEST_GUILESS_MAIN(TestDeclarations)
#include "test_declarations.moc"
