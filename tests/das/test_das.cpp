#include "das/genredas.h"
#include "das/lignedas.h"
#include "declarations/entetes.h"
#include "declarations/lignes.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/das/basedas.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString lesEntetes = u"SELECT num_emp, annee, Type, sum_annuel, total_salarie, sum_calc, total_calc "
                           "FROM entete_das ORDER BY rowid"_s;
const QString lesLignes =
    u"SELECT num_salarie, cpt_z, sal_annuel, nbj_travail, type_dure, date_es, type_date_es FROM ligne_das "
    "ORDER BY rowid"_s;
const QString ajoutee = u"Ligne DAS ajoutée avec succès !"_s;
const QString modifiee = u"Ligne DAS modifiée avec succès!"_s;

/// The control that gets the focus; nothing without a refusal.
QString champ(const std::optional<Refus> &refus) { return refus ? refus->controle.toString() : QString(); }

FicheEntete ficheEntete(bool complementaire = false, const QString &somme = u"1 200 000.50"_s,
                        const QString &effectif = u"00002"_s)
{
    return {BaseDas::employeur.toString(), u"2024"_s, complementaire, somme, effectif};
}

/// @param champs "wage;movement;date;time worked"
FicheLigneDas ficheLigne(const QString &numero, const QString &champs = u"600000;;;12M"_s, qint64 cpt_z = 1)
{
    const QStringList textes = champs.split(u';');
    FicheLigneDas fiche;
    fiche.num_saledit = numero.left(10);
    fiche.mskcle = numero.mid(10);
    fiche.cpt_z = cpt_z;
    fiche.sal_annueledit = textes[0];
    fiche.EOption = textes[1] == u"E";
    fiche.SOption = textes[1] == u"S";
    if (!textes[2].isEmpty())
        fiche.mskdate = textes[2];
    fiche.nbj_travailctrl = {textes[3].chopped(1).toLongLong(), textes[3].back()};
    return fiche;
}

/// What one of the two screens of a line says: the average of the question, then "refusal|control".
struct Suite
{
    QString moyenne;
    QString refus;

    void attendre(DialogueScenario &dialogue, bool modification) const
    {
        if (!moyenne.isEmpty())
            dialogue.attendreQuestion(questionMoyenne(moyenne, modification), true);
        if (!refus.isEmpty())
            dialogue.attendreAvertissement(refus.section(u'|', 0, 0));
        else
            dialogue.attendreInformation(modification ? modifiee : ajoutee);
    }
};

const QString sansNumero(12, u'0');

/// Three employees and a newcomer without a number, in front of the lines of a declaration that has none yet.
class Essai : public BaseDas
{
public:
    Essai()
    {
        for (int i = 1; i <= 3; ++i)
            ajouter(numero(i), 1);
        ajouter(sansNumero, 7);
        declaration = std::make_unique<LignesDeclaration>(base, genreDas(), entete());
    }

    Recordset &liste() { return declaration->liste(); }
    std::optional<Refus> ajouterLigne(const FicheLigneDas &fiche)
    {
        const auto refus = ajouterLigneDas(*declaration, fiche, dialogue);
        return refus ? std::optional(refus->refus) : std::nullopt;
    }
    std::optional<Refus> modifierLigne(const FicheLigneDas &fiche)
    {
        return modifierLigneDas(*declaration, liste().courant(), fiche, dialogue);
    }

    std::unique_ptr<LignesDeclaration> declaration;
    DialogueScenario dialogue;
};

} // namespace

/// Headers and lines of the annual declaration: what is refused in which order, and what is written.
class TestDas : public QObject
{
    Q_OBJECT

private slots:
    void enteteAjoute()
    {
        const QString texte = u"Cet employeur ne possede pas de Das principale pour cet exercice, \n voulez "
                              "vous tout de même saisir une Das complémentaire ?"_s;
        BaseDas essai;
        DialogueScenario dialogue;
        const auto ajouter = [&](const FicheEntete &fiche) {
            return champ(ajouterEntete(essai.base, entetesDas(), fiche, dialogue));
        };
        dialogue.attendreQuestion(texte, false, {}, false, Icone::Information);
        QCOMPARE(ajouter(ficheEntete(true)), u"cmplCheck"_s);
        QVERIFY(essai.base.RsEnteteDas.vide());
        dialogue.attendreQuestion(texte, true, {}, false, Icone::Information);
        QCOMPARE(ajouter(ficheEntete(true, u"0"_s, u"00000"_s)), QString());

        // The highest number counts, and neither it nor another year stands in the way of a principal.
        essai.entete(7);
        essai.entete(9, {}, 0, 2023);
        QCOMPARE(ajouter(ficheEntete(true, u"1,00005"_s, u"2.5"_s)), QString());
        QCOMPARE(ajouter(ficheEntete()), QString());
        QCOMPARE(essai.base.RsEnteteDas.entier(u"Type"), 1);
        QCOMPARE(essai.lignes(lesEntetes + u" DESC"_s).mid(0, 2),
                 (QStringList{u"12345678|2024|1|12000005000|2|NULL|NULL"_s,
                              u"12345678|2024|8|10000|2|NULL|NULL"_s}));
        QCOMPARE(essai.lignes(lesEntetes)[0], u"12345678|2024|2|0|0|NULL|NULL"_s);

        for (const auto &[somme, effectif] :
             {std::pair(u"922337203685477.5808"_s, u"1"_s), {u"922337203685477.5807"_s, u"2147483648"_s}})
            QVERIFY_THROWS_EXCEPTION(ErreurConversion, ajouter(ficheEntete(true, somme, effectif)));
        QCOMPARE(ajouter(ficheEntete(true, u"922337203685477.5807"_s, u"2147483647"_s)), QString());
        QCOMPARE(essai.base.RsEnteteDas.montant(u"sum_annuel").texte(), u"922337203685477.5807"_s);
    }

    void enteteRefuse()
    {
        BaseDas essai;
        essai.entete(1, {}, 0, 2023);
        const auto refuser = [&](const QStringList &saisi, const QString &boite, const QString &controle) {
            DialogueScenario dialogue;
            dialogue.attendreAvertissement(boite);
            QCOMPARE(champ(ajouterEntete(essai.base, entetesDas(),
                                         {saisi[0], saisi[1], false, saisi[2], saisi[3]}, dialogue)),
                     controle);
        };
        const QString choix = u"Veuillez spécifier une année et un numéro d'employeur SVP"_s;
        const QString somme = u"Veuillez saisir une valeur correcte pour la somme des salaires!"_s;
        const QString nombre = u"Veuillez saisir un nombre de salariés correct!"_s;
        const QString valeurs = u"Valeurs incorrectes !"_s;
        const QString emp = BaseDas::employeur.toString(), annee = u"2024"_s, x = u"x"_s;
        refuser({{}, {}, x, x}, choix, u"cmbannee"_s);
        refuser({{}, annee, x, x}, choix, u"cmbemp"_s);
        refuser({u"87654321"_s, annee, x, x}, u"Ce numéro d'employeur n'éxiste pas"_s, u"cmbemp"_s);
        refuser({emp, u"2023"_s, x, x}, u"Une Das existe avec la même année et numéro employeur"_s,
                u"cmplCheck"_s);
        for (const QString &fausse : {u"1e3"_s, u""_s, u"-0.01"_s})
            refuser({emp, annee, fausse, x}, somme, u"sumedit"_s);
        for (const QString &faux : {u"1,2,3"_s, u"-1"_s})
            refuser({emp, annee, u"1"_s, faux}, nombre, u"total_salEdit"_s);
        refuser({emp, annee, u"0.01"_s, u"00000"_s}, valeurs, u"sumedit"_s);
        refuser({emp, annee, u"0,00"_s, u"1"_s}, valeurs, u"sumedit"_s);
        essai.base.Cnx.executer(u"DELETE FROM employeur"_s);
        refuser({emp, annee, x, x}, u"Il n'y a pas d'employeur!"_s, u"cmbemp"_s);
        QCOMPARE(essai.lignes(lesEntetes).size(), 1);
    }

    void enteteModifie()
    {
        BaseDas essai;
        essai.entete(1, Currency::deEntier(5), 5);
        using Cas = std::tuple<QString, QString, QString, QString>;
        for (const auto &[somme, effectif, controle, ecrit] :
             {Cas(u"0"_s, u"3"_s, u"sumedit"_s, u"50000|5"_s),
              Cas(u"-1"_s, u"1"_s, u"sumedit"_s, u"50000|5"_s),
              Cas(u"abc"_s, u"0"_s, u"sumedit"_s, u"50000|5"_s),
              Cas(u"1"_s, u"0.99"_s, u"totaledit"_s, u"50000|5"_s),
              Cas(u"1"_s, u""_s, u"totaledit"_s, u"50000|5"_s),
              Cas(u"1 234.5"_s, u"3"_s, {}, u"12345000|3"_s), Cas(u",01"_s, u"1"_s, {}, u"100|1"_s)}) {
            DialogueScenario dialogue;
            if (!controle.isEmpty())
                dialogue.attendreAvertissement(u"Valeurs incorrectes!"_s);
            QCOMPARE(champ(modifierEntete(essai.base, entetesDas(), essai.base.RsEnteteDas.courant(), somme,
                                          effectif, dialogue)),
                     controle);
            QCOMPARE(essai.lignes(u"SELECT sum_annuel, total_salarie FROM entete_das"_s), QStringList{ecrit});
        }
    }

    void enteteSupprime()
    {
        BaseDas essai;
        essai.entete(1);
        essai.entete(2);
        essai.ligne(BaseDas::numero(1), 1, {}, 2);
        DialogueScenario dialogue;
        const auto supprimer = [&](auto routine, bool ok, const QString &fin = u" ? "_s) {
            dialogue.attendreConfirmation(u"Confirmez la suppression"_s + fin, ok, u"Confirmation"_s);
            return routine(essai.base, genreDas(), essai.base.RsEnteteDas.courant(), dialogue);
        };
        QVERIFY(!supprimer(supprimerEntete, false));
        QVERIFY(!supprimer(supprimerEnteteSeul, false, u" !"_s));
        const auto avecLignes = [&](auto &&...) {
            dialogue.attendreAvertissement(
                u"Impossible de supprimer l'entête, supprimez ses lignes DAS d'abord!"_s);
            return supprimerEntete(essai.base, genreDas(), essai.base.RsEnteteDas.courant(), dialogue);
        };
        QVERIFY(!supprimer(avecLignes, true));
        QCOMPARE(essai.base.RsEnteteDas.nombre(), 2);

        // The other button does not look at the lines.
        QVERIFY(supprimer(supprimerEnteteSeul, true, u" !"_s));
        QCOMPARE(essai.lignes(lesLignes).size(), 1);
        QVERIFY(supprimer(supprimerEntete, true));
        QVERIFY(essai.lignes(lesEntetes).isEmpty());
    }

    void ligneControlee()
    {
        const QString pasUnNombre = u"Veuillez saisir un montant monètaire SVP|sal_annueledit"_s;
        const QString unNombre = u"Veuillez saisir un nombre!|sal_annueledit"_s;
        const QString unMontant = u"Veuillez saisir un montant SVP!|sal_annueledit"_s;
        const QString nul =
            u"Vous devez accompagner un salaire nul d'une durée de travail nulle!|sal_annueledit"_s;
        const QString positive = u"Veuillez saisir une valeur positive de salaire annuel|sal_annueledit"_s;
        const QString dateES = u"Date d'Entree / Sortie incorrecte !|mskdate"_s;
        const QString date = u"Date incorrecte !|mskdate"_s;
        const QString sansOption = u"Vous avez rempli le champ date sans indiquer s'il s'agit d'une date "
                                   "d'entrée ou de sortie!|mskdate"_s;
        const QString compagne = u"La date est superieure à l'année de compagne!|mskdate"_s;
        const QString coherence =
            u"Date entrée ou durée travaillée erronée, veuillez rectifier SVP!|mskdate"_s;
        const QString correcte =
            u"Veuillez saisir une valeur correcte pour la durée de travail SVP|nbj_travailctrl"_s;
        const QString maximum = u"Durée de travail superieure au maximum autorisé!|nbj_travailctrl"_s;
        const QString cinquante = u"50 000.00"_s;
        const struct
        {
            QString saisie;
            Suite ajout, modification;
        } cas[] = {
            {u"1.2.3;;x;12M"_s, {{}, pasUnNombre}, {{}, unNombre}},
            {u"0000.00;E;;12M"_s, {{}, dateES}, {{}, unMontant}},
            {u"0;;;1M"_s, {u".00"_s, nul}, {{}, unMontant}},
            {u"600000;S;31/06/2024;400J"_s, {{}, dateES}, {{}, date}},
            {u"600000;;01/02/2024;0J"_s, {{}, sansOption}, {{}, sansOption}},
            {u"600000;E;01/07/2024;-1J"_s, {{}, compagne}, {{}, compagne}},
            {u"600000;S;01/01/2025;1J"_s, {{}, compagne}, {{}, compagne}},
            {u"600000;;;-1H"_s, {{}, correcte}, {{}, correcte}},
            {u"600000;;;-9223372036854775808M"_s, {{}, correcte}, {{}, correcte}},
            {u"600000;;;9223372036854775807M"_s, {{}, maximum}, {{}, maximum}},
            {u"600000;;;13M"_s, {{}, maximum}, {{}, maximum}},
            {u"600000;;;315J"_s, {{}, maximum}, {{}, maximum}},
            {u"600000;;;2513H"_s, {{}, maximum}, {{}, maximum}},
            {u"600000;;;0J"_s, {{}, correcte}, {}},
            {u"600000;;;12M"_s, {cinquante, {}}, {cinquante, {}}},
            {u"600000;;;314J"_s, {u"57 324.66"_s, {}}, {u"42 038.30"_s, {}}},
            {u"600000;;;2512H"_s, {u"41 400.44"_s, {}}, {u"41 400.44"_s, {}}},
            {u"600000;E;01/07/2023;12M"_s, {cinquante, {}}, {cinquante, {}}},
            {u"600000;E;01/01/1990;12M"_s, {cinquante, {}}, {cinquante, {}}},
            {u"600000;S;30/06/2024;12M"_s, {cinquante, {}}, {cinquante, {}}},
            {u"600000;E;30/06/2024;8H"_s, {u"12 987 012.99"_s, {}}, {u"12 987 012.99"_s, {}}},
            {u"600000;S;11/07/2023;10J"_s, {u"1 800 180.02"_s, {}}, {u"1 320 132.01"_s, {}}},
            // The order behind the maxima: an addition looks at the dates first, a change at them last.
            {u"600000;E;01/02/2024;12M"_s, {{}, coherence}, {cinquante, coherence}},
            {u"600000;E;30/06/2024;9H"_s, {{}, coherence}, {u"11 560 693.64"_s, coherence}},
            {u"600000;S;11/07/2023;11J"_s, {{}, coherence}, {u"1 200 000.00"_s, coherence}},
            {u"600000;S;30/06/2023;1H"_s, {{}, coherence}, {u"103 448 275.86"_s, coherence}},
            {u"-600000;E;01/02/2024;12M"_s, {{}, coherence}, {{}, positive}},
            {u"-600 000,00;;;12M"_s, {u"-50 000.00"_s, positive}, {{}, positive}},
        };
        Essai essai;
        for (const auto &[saisie, ajout, modification] : cas) {
            for (const bool change : {false, true}) {
                const QByteArray nom = saisie.toUtf8();
                const Suite &suite = change ? modification : ajout;
                essai.base.Cnx.executer(u"DELETE FROM ligne_das"_s);
                if (change)
                    essai.ligne(BaseDas::numero(1), 1, {{u"sal_annuel"_s, Currency::deEntier(1)}});
                essai.declaration->montrerToutes();
                const QStringList avant = essai.lignes(lesLignes);
                suite.attendre(essai.dialogue, change);
                const FicheLigneDas fiche = ficheLigne(BaseDas::numero(1), saisie);
                const auto refus = change ? essai.modifierLigne(fiche) : essai.ajouterLigne(fiche);
                QVERIFY2(refus.has_value() == !suite.refus.isEmpty() && essai.dialogue.acheve(), nom);
                QCOMPARE(champ(refus), suite.refus.section(u'|', 1));
                QCOMPARE(essai.lignes(lesLignes) == avant, refus.has_value());
            }
        }
    }

    void salarieDeLaLigne()
    {
        Essai essai;
        essai.ligne(BaseDas::numero(1));
        essai.ligne(sansNumero, 7);
        const QString existe = u"une ligne das existe déja pour ce salarié!"_s;
        using Cas = std::tuple<QString, qint64, QString>; // without a text nobody has that number
        for (const auto &[numero, cpt_z, texte] :
             {Cas(QString(12, u' '), 1, u"Vous n'avez pas sélectionné de salarié ! "_s),
              Cas(u"882345000900"_s, 1, {}), Cas(BaseDas::numero(1), 2, {}), Cas(u"' OR ''='--"_s, 1, {}),
              Cas(BaseDas::numero(1), 1, existe), Cas(sansNumero, 7, existe)}) {
            for (const bool creer : {false, true}) {
                DialogueScenario dialogue;
                dialogue.attendreAvertissement(
                    texte.isEmpty() ? u"ce salarié n'existe pas! Nous vous invitons à le créer"_s : texte);
                if (texte.isEmpty())
                    dialogue.attendreQuestion(u"Ce salarié n'existe pas, voulez vous le créer?"_s, creer);
                const auto refus = ajouterLigneDas(*essai.declaration,
                                                   ficheLigne(numero, u"600000;;;12M"_s, cpt_z), dialogue);
                QVERIFY(refus);
                QCOMPARE(refus->creerSalarie, texte.isEmpty() && creer);
            }
        }
        QCOMPARE(essai.lignes(lesLignes).size(), 2);
    }

    void lignesEtSommes()
    {
        const QString sommes = u"SELECT sum_calc, total_calc FROM entete_das WHERE Type = 1"_s;
        Essai essai;
        essai.ligne(BaseDas::numero(1), 1, {}, 2); // of another declaration
        const auto ajouter = [&](const FicheLigneDas &fiche, const QString &moyenne) {
            Suite{moyenne, {}}.attendre(essai.dialogue, false);
            return !essai.ajouterLigne(fiche) && essai.dialogue.acheve();
        };
        essai.dialogue.attendreQuestion(questionMoyenne(u"50 000.00"_s), false);
        QVERIFY(essai.ajouterLigne(ficheLigne(BaseDas::numero(2))));
        QVERIFY(ajouter(ficheLigne(BaseDas::numero(2)), u"50 000.00"_s));
        QCOMPARE(essai.lignes(sommes), QStringList{u"6000000000|1"_s});
        QVERIFY(ajouter(ficheLigne(BaseDas::numero(1), u"0,1;S;30/06/2024;12M"_s), u".01"_s));

        // The new line shows all of them again, and the sums never follow a search.
        essai.declaration->chercher(u" 882345 "_s + BaseDas::numero(1).mid(6));
        QCOMPARE(essai.liste().nombre(), 0);
        essai.declaration->chercher(BaseDas::numero(1));
        QCOMPARE(essai.liste().nombre(), 1);
        QVERIFY(ajouter(ficheLigne(sansNumero, u"0.2;;;12M"_s, 7), u".02"_s));
        QCOMPARE(essai.liste().nombre(), 3);
        QCOMPARE(essai.liste().entier(u"cpt_z"), 7);
        QCOMPARE(essai.lignes(sommes), QStringList{u"6000003000|3"_s});
        QCOMPARE(essai.lignes(lesLignes).mid(1),
                 (QStringList{BaseDas::numero(2) + u"|1|6000000000|12|M|__/__/____|E"_s,
                              BaseDas::numero(1) + u"|1|1000|12|M|30/06/2024|S"_s,
                              u"000000000000|7|2000|12|M|__/__/____|E"_s}));

        // With no option a change leaves the movement alone.
        essai.declaration->chercher(BaseDas::numero(1).left(10));
        const FicheLigneDas lue = remplirFicheLigneDas(essai.liste().courant());
        QVERIFY(lue.SOption && !lue.EOption);
        QCOMPARE(lue.mskdate, u"30/06/2024"_s);
        essai.dialogue.attendreInformation(modifiee);
        QVERIFY(!essai.modifierLigne(ficheLigne({}, u"5;;;0H"_s)));
        QCOMPARE(essai.lignes(lesLignes).at(2), BaseDas::numero(1) + u"|1|50000|0|H|30/06/2024|S"_s);

        const auto supprimer = [&](bool ok) {
            essai.dialogue.attendreConfirmation(u"Confirmez la suppression de cette ligne DAS ?"_s, ok,
                                                u"Suppression"_s);
            essai.declaration->supprimer(essai.liste().courant(), essai.dialogue);
            return essai.lignes(sommes).first();
        };
        QCOMPARE(supprimer(false), u"6000052000|3"_s);
        QCOMPARE(supprimer(true), u"6000002000|2"_s);
        essai.dialogue.attendreAvertissement(u"Aucun élément à modifier"_s); // before any other fault
        QVERIFY(essai.modifierLigne(ficheLigne({}, u"5;;;-1H"_s)));
        essai.declaration->chercher(u""_s);
        supprimer(true);
        QCOMPARE(supprimer(true), u"0|0"_s);
        QCOMPARE(essai.lignes(lesLignes).size(), 1);
    }

    /// Neither the line nor its sums stay when one of them can't be written.
    void ligneEtSommesEnsemble()
    {
        Essai essai;
        essai.ligne(BaseDas::numero(2), 1, {{u"sal_annuel"_s, Currency::deTexte(u"922337203685477.5807")}});
        essai.declaration->montrerToutes();
        const QStringList avant = essai.lignes(lesLignes);
        essai.dialogue.attendreQuestion(questionMoyenne(u"50 000.00"_s), true);
        QVERIFY_THROWS_EXCEPTION(ErreurBase, essai.ajouterLigne(ficheLigne(BaseDas::numero(1))));
        QCOMPARE(essai.lignes(lesLignes), avant);
        QCOMPARE(essai.liste().nombre(), 1);

        // The header is gone: the change screen says nothing, the line stays as it was.
        essai.base.Cnx.executer(u"DELETE FROM entete_das"_s);
        essai.dialogue.attendreQuestion(questionMoyenne(u"50 000.00"_s, true), true);
        QVERIFY(essai.modifierLigne(ficheLigne({})) == Refus{});
        QCOMPARE(essai.lignes(lesLignes), avant);
        QVERIFY(!essai.base.Cnx.enTransaction());
    }

    /// An older file may have left the number empty: such a declaration is one like the others.
    void numeroVide()
    {
        BaseDas essai;
        essai.ajouter(BaseDas::numero(1), 1);
        essai.base.Cnx.executer(
            u"INSERT INTO entete_das (num_emp, annee, Type) VALUES ('12345678', 2024, '')"_s);
        Recordset &entetes = essai.base.RsEnteteDas;
        entetes.requery();
        LignesDeclaration lignes(essai.base, genreDas(), cleEntete(genreDas(), entetes.courant()));
        DialogueOui oui;
        QVERIFY(!ajouterLigneDas(lignes, ficheLigne(BaseDas::numero(1)), oui));
        QCOMPARE(essai.lignes(u"SELECT typeof(type_das), type_das, total_calc FROM ligne_das, entete_das"_s),
                 QStringList{u"text||1"_s});
        QVERIFY(!supprimerEntete(essai.base, genreDas(), entetes.courant(), oui));
        // It counts as the first one.
        QVERIFY(!ajouterEntete(essai.base, entetesDas(), ficheEntete(true), oui));
        QCOMPARE(entetes.entier(u"Type"), 2);

        entetes.allerA(entetes.chercher({{u"Type"_s, u""}}));
        lignes.supprimer(lignes.liste().courant(), oui);
        QVERIFY(supprimerEntete(essai.base, genreDas(), entetes.courant(), oui));
    }

    /// Search and refresh show other lines in the clerk's order, on the line that he was on.
    void rechercheDansLOrdre()
    {
        Essai essai;
        for (int i = 1; i <= 3; ++i)
            essai.ligne(BaseDas::numero(i));
        Recordset &liste = essai.liste();
        liste.trier(u"num_salarie"_s, Qt::DescendingOrder);
        liste.allerA(1);
        essai.declaration->chercher(u"882345"_s);
        QCOMPARE(liste.ligne(0).texte(u"num_salarie"), BaseDas::numero(3));
        QCOMPARE(liste.texte(u"num_salarie"), BaseDas::numero(2));
        essai.declaration->chercher(BaseDas::numero(3));
        QCOMPARE(liste.texte(u"num_salarie"), BaseDas::numero(3));
        essai.declaration->montrerToutes();
        QCOMPARE(liste.ligneCourante(), 0);
        QCOMPARE(liste.ligne(2).texte(u"num_salarie"), BaseDas::numero(1));
    }

    void champsQuittes()
    {
        DialogueScenario dialogue;
        FicheLigneDas fiche = ficheLigne(BaseDas::numero(1));
        QVERIFY(ctrlNumeroSaisi(fiche, dialogue).numeroBon);
        for (const QString &faux : {u"8823450002"_s, u"88234500  "_s, u"882345000_"_s}) {
            fiche.num_saledit = faux;
            dialogue.attendreAvertissement(u"Le numéro de sécurité sociale est incorrecte "_s);
            QVERIFY(ctrlNumeroSaisi(fiche, dialogue).reprendre);
        }
        fiche.num_saledit = u"0000000000"_s;
        fiche.mskcle = u"99"_s; // the very key of the zeros
        dialogue.attendreAvertissement(
            u"Le numéro de sécurité sociale est à blanc, sélectionnez le salarié à "
            "partir de la commande INSERER "_s);
        const SaisieNumero blanc = ctrlNumeroSaisi(fiche, dialogue);
        QVERIFY(!blanc.numeroBon && !blanc.reprendre);

        QVERIFY(ctrlDateLigneDas(u"__/__/____"_s, dialogue) && ctrlDateLigneDas(u"29/02/2024"_s, dialogue));
        dialogue.attendreAvertissement(u"Veuillez saisir une date correcte SVP"_s);
        QVERIFY(!ctrlDateLigneDas(u"29/02/2023"_s, dialogue));
        QCOMPARE(numeroPourCreation(u"1234      "_s), u"1234"_s);
        QCOMPARE(numeroPourCreation(u"12345     "_s), u"     12345"_s);
    }
};

QTEST_GUILESS_MAIN(TestDas)
#include "test_das.moc"
