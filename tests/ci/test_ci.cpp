#include "ci/genreci.h"
#include "declarations/entetes.h"
#include "declarations/lignes.h"
#include "tests/ci/baseci.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/commun/enfant.h"
#include "tests/storage/foyer.h"

#include <QHash>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

const QString lesEntetes =
    u"SELECT N_Identifiant, N_employeur, date_arret, Date_reprise, Effect_Mis_arret, Montant_Indemnise, "
    "sum_calc, ChargePat, ChargeCp, ChargeCi, total_calc, HTS, NCompteBnq, LibAgBnq, Telephone FROM Entete_CI"_s;
const QString lesLignes = u"SELECT * FROM Detail_CI ORDER BY rowid"_s;
const QString lesSommes = u"SELECT sum_calc, total_calc FROM Entete_CI"_s;
const QString ajoutee = u"Ligne Ci ajoutée avec succès !"_s;
const QString modifiee = u"Ligne CI modifiée avec succès!"_s;
const QString creer = u"Ce salarié n'existe pas, voulez vous le créer?"_s;
const QString deuxCents =
    u"le nombre d'heures à indemniser est supérieur à 200, voulez vous valider cette information ?"_s;
const QString sansNumero(12, u'0');

/// The control that gets the focus; nothing without a refusal.
QString champ(const std::optional<Refus> &refus) { return refus ? refus->controle.toString() : QString(); }

/// Plays the cases of a table, each a field of a good form typed over, in the entry and in the change: what
/// is refused leaves the tables as they were.
/// @param preparer empties the tables, and gives the change its row
template <typename Fiche>
void jouer(BaseCi &essai, const QString &table, const Fiche &bonne,
           const QHash<QString, QString Fiche::*> &champs, const std::function<void(bool)> &preparer,
           const std::function<std::optional<Refus>(bool, const Fiche &, DialogueScenario &)> &enregistrer,
           const QStringList &succes)
{
    const QString cas = QString::fromUtf8(lireFichier(QFINDTESTDATA(table)));
    for (const QString &ligne : cas.split(u'\n', Qt::SkipEmptyParts).sliced(1)) {
        const QStringList colonnes = ligne.split(u'|');
        for (const bool ajout : {true, false}) {
            Fiche fiche = bonne;
            fiche.*champs.value(colonnes[0]) = colonnes[1];
            const QString refus = colonnes[ajout ? 2 : 3];
            preparer(ajout);
            const QStringList avant = essai.lignes(lesEntetes) + essai.lignes(lesLignes);
            DialogueScenario dialogue;
            if (!refus.isEmpty())
                dialogue.attendreAvertissement(refus.section(u'@', 0, 0));
            else if (!succes.isEmpty())
                dialogue.attendreInformation(succes[ajout ? 0 : 1]);
            QCOMPARE(champ(enregistrer(ajout, fiche, dialogue)), refus.section(u'@', 1));
            const bool ecrit = essai.lignes(lesEntetes) + essai.lignes(lesLignes) != avant;
            QVERIFY2(dialogue.acheve() && ecrit == refus.isEmpty(), qPrintable(ligne));
        }
    }
}

/// Gives the claim the one reference and the other in turn until it is killed, with a line more each time.
int changerSansFin(const QString &chemin)
{
    Base base;
    ouvrirTables(base, chemin);
    DialogueOui dialogue;
    enfant::commencer();
    for (int i = 1;; ++i) {
        FicheEnteteCi fiche = remplirFicheEnteteCi(base.RsEnteteCi.courant());
        fiche.MskReference.back() = i % 2 == 0 ? u'1' : u'2';
        // No is the answer that goes on, and nothing is asked of charges that are right.
        if (modifierEnteteCi(base, base.RsEnteteCi.courant(), fiche, dialogue))
            return 1;
        LignesDeclaration lignes(base, genreCi(), cleEntete(genreCi(), base.RsEnteteCi.courant()));
        if (ajouterLigneCi(lignes, ficheLigneCi(sansNumero, i), {}, dialogue))
            return 1;
        enfant::signaler();
    }
}

} // namespace

/// Headers and lines of the claim: what is refused in which order, and what is written.
class TestCi : public QObject
{
    Q_OBJECT

private slots:
    void enteteControle()
    {
        using F = FicheEnteteCi;
        BaseCi essai;
        jouer<F>(
            essai, u"entetes.txt"_s, ficheEnteteCi(),
            {{u"MskReference"_s, &F::MskReference},
             {u"MskDateArret"_s, &F::MskDateArret},
             {u"MskDateReprise"_s, &F::MskDateReprise},
             {u"total_salEdit"_s, &F::total_salEdit},
             {u"sumEdit"_s, &F::sumEdit},
             {u"SS26"_s, &F::SS26},
             {u"SS1221"_s, &F::SS1221},
             {u"SS0375"_s, &F::SS0375},
             {u"CmbHS"_s, &F::CmbHS},
             {u"CmbBnq"_s, &F::CmbBnq},
             {u"MskAgbnq"_s, &F::MskAgbnq},
             {u"MskNCompteBnq"_s, &F::MskNCompteBnq},
             {u"txtAgBnq"_s, &F::txtAgBnq},
             {u"TxtTelephone"_s, &F::TxtTelephone}},
            [&](bool ajout) {
                essai.base.Cnx.executer(u"DELETE FROM Entete_CI"_s);
                essai.base.RsEnteteCi.requery();
                if (!ajout)
                    essai.entete({{u"HTS"_s, {}}, {u"LibAgBnq"_s, {}}, {u"Telephone"_s, {}}});
            },
            [&](bool ajout, const F &fiche, DialogueScenario &dialogue) {
                return ajout ? ajouterEnteteCi(essai.base, fiche, dialogue)
                             : modifierEnteteCi(essai.base, essai.base.RsEnteteCi.courant(), fiche, dialogue);
            },
            {});
    }

    void enteteAjoute()
    {
        BaseCi essai;
        DialogueScenario dialogue;
        const auto ajouter = [&](const FicheEnteteCi &fiche) {
            return champ(ajouterEnteteCi(essai.base, fiche, dialogue));
        };
        FicheEnteteCi fiche = ficheEnteteCi();
        QCOMPARE(ajouter(fiche), QString());
        QCOMPARE(essai.lignes(lesEntetes),
                 QStringList{u"123456780000000001|12345678|2024-01-05|2024-01-12|2|15000000|NULL|3900000|"
                             "1831500|56300|NULL|44|00100123012345678938|AGENCE CENTRE|0660112233"_s});
        QVERIFY_THROWS_EXCEPTION(ErreurBase, ajouter(fiche)); // the reference is taken
        fiche.MskReference.back() = u'2';
        fiche.sumEdit = u"99999999999999999999"_s;
        QVERIFY_THROWS_EXCEPTION(ErreurConversion, ajouter(fiche));
        fiche.sumEdit = fiche.SS26 = fiche.SS1221 = fiche.SS0375 = u"0"_s;
        fiche.total_salEdit = u"0"_s;
        QCOMPARE(ajouter(fiche), QString());

        fiche.cmbemp.clear();
        dialogue.attendreAvertissement(u"Veuillez spécifier le numéro employeur SVP"_s);
        QCOMPARE(ajouter(fiche), u"cmbemp"_s);
        fiche.cmbemp = u"87654321"_s; // deleted meanwhile
        dialogue.attendreAvertissement(u"Ce numéro d'employeur n'éxiste pas"_s);
        QCOMPARE(ajouter(fiche), u"cmbemp"_s);
        essai.base.Cnx.executer(u"DELETE FROM employeur"_s);
        dialogue.attendreAvertissement(u"Il n'y a pas d'employeur!"_s);
        QCOMPARE(ajouter({}), u"cmbemp"_s);
        QCOMPARE(essai.lignes(lesEntetes).size(), 2);
    }

    /// The two screens ask about the same charges with answers that mean the opposite.
    void charges()
    {
        for (const auto &[montant, charges] :
             {std::pair{u"1000"_s, u"260 122.1 3.75"_s},
              {u"429377.32"_s, u"111638.1 52426.97 1610.16"_s},
              {u"0.0001"_s, u"0 0 0"_s},
              {u"922337203685477.5807"_s, u"239807672958224 112617372569997 3458764513820.54"_s}}) {
            QStringList attendues;
            for (const ChargeCi &charge : chargesCi)
                attendues += chargeAttendue(charge, LireMontant(montant)).texte();
            QCOMPARE(attendues.join(u' '), charges);
        }
        const QStringList titres{u"controle charges SS"_s, u"controle charges KORVANDEL "_s,
                                 u"controle charges KORVANDEL "_s};
        const QStringList questions{u"charges SS patronales '26%' incorrectes,  Voulez vous continuer ?"_s,
                                    u"charges CP '12.21%' KORVANDEL incorrectes,  Voulez vous continuer ?"_s,
                                    u"charges CI '0.375%' KORVANDEL incorrectes,  Voulez vous continuer ?"_s};
        const QStringList corrections{
            u"le montant des charges SS 26% est incorrecte, voulez vous Corriger ?"_s,
            u"le montant des charges KORVANDEL CP 12.21% est incorrecte, voulez vous Corriger ?"_s,
            u"le montant des charges KORVANDEL CP 0.375% est incorrecte, voulez vous Corriger ?"_s};
        for (int fausse = 0; fausse < 3; ++fausse) {
            BaseCi essai;
            FicheEnteteCi fiche = ficheEnteteCi();
            for (int i = fausse; i < 3; ++i)
                fiche.*chargesCi[static_cast<std::size_t>(i)].champ = u"3.80"_s;
            DialogueScenario dialogue;
            const QString arretee = chargesCi[static_cast<std::size_t>(fausse)].controle.toString();
            dialogue.attendreQuestion(questions[fausse], false, titres[fausse]);
            QCOMPARE(champ(ajouterEnteteCi(essai.base, fiche, dialogue)), arretee);
            for (int i = fausse; i < 3; ++i)
                dialogue.attendreQuestion(questions[i], true, titres[i]);
            QVERIFY(!ajouterEnteteCi(essai.base, fiche, dialogue));

            const Enregistrement lue = essai.base.RsEnteteCi.courant();
            fiche.txtAgBnq = u"AUTRE"_s;
            dialogue.attendreQuestion(corrections[fausse], true, u"controle charge"_s);
            QCOMPARE(champ(modifierEnteteCi(essai.base, lue, fiche, dialogue)), arretee);
            for (int i = fausse; i < 3; ++i)
                dialogue.attendreQuestion(corrections[i], false, u"controle charge"_s);
            QVERIFY(!modifierEnteteCi(essai.base, lue, fiche, dialogue));
            QCOMPARE(essai.base.RsEnteteCi.texte(u"LibAgBnq"), u"AUTRE"_s);
        }
    }

    /// The lines go with the reference, or both stay.
    void referenceChangee()
    {
        BaseCi essai;
        essai.entete({{u"HTS"_s, 42}, {u"Telephone"_s, {}}});
        essai.ligne();
        essai.ligne(BaseCi::autreSalarie);
        essai.entete({{u"N_Identifiant"_s, u"123456780000000003"}});
        essai.base.RsEnteteCi.allerA(
            essai.base.RsEnteteCi.chercher({{u"N_Identifiant"_s, BaseCi::reference}}));
        const Enregistrement lue = essai.base.RsEnteteCi.courant();
        FicheEnteteCi fiche = remplirFicheEnteteCi(lue);
        fiche.CmbHS.clear(); // no choice of the list
        DialogueScenario dialogue;
        fiche.MskReference.back() = u'3';
        const QStringList avant = essai.lignes(lesEntetes) + essai.lignes(lesLignes);
        QVERIFY_THROWS_EXCEPTION(ErreurBase, modifierEnteteCi(essai.base, lue, fiche, dialogue));
        QCOMPARE(essai.lignes(lesEntetes) + essai.lignes(lesLignes), avant);
        fiche.MskReference.back() = u'2';
        QVERIFY(!modifierEnteteCi(essai.base, lue, fiche, dialogue));
        QCOMPARE(essai.lignes(u"SELECT N_Identif, N_SecSoc FROM Detail_CI ORDER BY rowid"_s),
                 (QStringList{u"123456780000000002|"_s + BaseCi::salarie,
                              u"123456780000000002|"_s + BaseCi::autreSalarie}));
        QCOMPARE(essai.lignes(u"SELECT HTS, Telephone FROM Entete_CI WHERE N_Identifiant LIKE '%2'"_s),
                 QStringList{u"42|NULL"_s});
        essai.entete(
            {{u"N_Identifiant"_s, u"1234567801"}, {u"Montant_Indemnise"_s, Currency::deTexte(u"1.2345")}});
        fiche = remplirFicheEnteteCi(essai.base.RsEnteteCi.courant());
        QCOMPARE(fiche.MskReference + u'|' + fiche.sumEdit, u"1234567801________|1.2345"_s);
    }

    void ligneControlee()
    {
        using F = FicheLigneCi;
        BaseCi essai;
        LignesDeclaration lignes(essai.base, genreCi(), essai.entete());
        const auto preparer = [&](bool ajout) {
            essai.base.Cnx.executer(u"DELETE FROM Detail_CI"_s);
            if (!ajout)
                essai.ligne(BaseCi::salarie, 1, {{u"Nb_Heure"_s, 11}});
            lignes.montrerToutes();
        };
        const auto enregistrer = [&](bool ajout, const F &une, DialogueScenario &dialogue) {
            return ajout ? ajouterLigneCi(lignes, une, {}, dialogue)
                         : modifierLigneCi(lignes, lignes.liste().courant(), une, dialogue);
        };
        jouer<F>(essai, u"lignes.txt"_s, ficheLigneCi(),
                 {{u"MskDateEmbauche"_s, &F::MskDateEmbauche},
                  {u"MskDateArret"_s, &F::MskDateArret},
                  {u"MskDateReprise"_s, &F::MskDateReprise},
                  {u"TxtNbHeure"_s, &F::TxtNbHeure},
                  {u"TxtMtHoraire"_s, &F::TxtMtHoraire}},
                 preparer, enregistrer, {ajoutee, modifiee});
        const auto essayer = [&](const F &une, bool ajout, const Attentes &boites) {
            preparer(ajout);
            DialogueScenario dialogue;
            dialogue.attendre(boites);
            return enregistrer(ajout, une, dialogue);
        };
        FicheLigneCi fiche = ficheLigneCi();
        fiche.TxtNbHeure = u"200,5"_s;
        for (const bool ajoute : {true, false}) {
            QCOMPARE(champ(essayer(fiche, ajoute, {boites::question(deuxCents, false)})), u"TxtNbHeure"_s);
            QVERIFY(!essayer(
                fiche, ajoute,
                {boites::question(deuxCents, true), boites::information(ajoute ? ajoutee : modifiee)}));
            // The hours are rounded half to even for their column, the amount is that of what was typed.
            QCOMPARE(essai.lignes(lesLignes),
                     QStringList{u"123456780000000001|882345000154|1|2020-09-01|2024-01-05|2024-01-12|200|"
                                 "1000000|150375000"_s});
            QCOMPARE(essai.lignes(lesSommes), QStringList{u"150375000|1"_s});
        }
        // Both negative: the amount is good, the wage is not.
        fiche.TxtNbHeure = u"-8"_s;
        fiche.TxtMtHoraire = u"-100"_s;
        QCOMPARE(
            champ(essayer(fiche, true,
                          {boites::avertissement(u"Veuillez saisir une valeur de salaire correcte SVP"_s)})),
            u"TxtMtHoraire"_s);
    }

    void montants()
    {
        for (const auto &[heures, salaire, montant] : {std::tuple{u"10"_s, u"100.00"_s, u"750.00"_s},
                                                       {u"33.5"_s, u"103,15"_s, u"2 591.64"_s},
                                                       {u"12h30"_s, u"1 000"_s, u"9 000.00"_s},
                                                       {u""_s, u"00000000.00"_s, u".00"_s},
                                                       {u"8"_s, u"1,0.0"_s, u""_s},
                                                       {u"8"_s, u""_s, u""_s}})
            QCOMPARE(montantIndemnise(heures, salaire), montant);
        QVERIFY_THROWS_EXCEPTION(ErreurConversion, montantIndemnise(u"1"_s, QString(20, u'9')));
    }

    void salarieDeLaLigne()
    {
        BaseCi essai;
        LignesDeclaration lignes(essai.base, genreCi(), essai.entete());
        const auto ajouter = [&](const FicheLigneCi &fiche, const Attentes &boites, bool cree = false) {
            DialogueScenario dialogue;
            dialogue.attendre(boites);
            return champ(ajouterLigneCi(lignes, fiche,
                                        {[&] {
                                             if (cree)
                                                 essai.ajouter(fiche.numero(), fiche.cpt_z);
                                         },
                                         {}},
                                        dialogue));
        };
        FicheLigneCi personne = ficheLigneCi();
        personne.num_saledit = QString(10, u' ');
        QCOMPARE(ajouter(personne, {boites::avertissement(u"Vous n'avez pas sélectionné de salarié ! "_s)}),
                 u"num_saledit"_s);
        const FicheLigneCi inconnu = ficheLigneCi(u"882345000946");
        QCOMPARE(ajouter(inconnu, {boites::question(creer, false)}), u"num_saledit"_s);
        QCOMPARE(ajouter(inconnu, {boites::question(creer, true)}), u"num_saledit"_s);
        QVERIFY(essai.lignes(lesLignes).isEmpty());
        // The entry goes on where it was, and asks nothing twice.
        FicheLigneCi longue = inconnu;
        longue.TxtNbHeure = u"201"_s;
        QCOMPARE(ajouter(longue,
                         {boites::question(deuxCents, true), boites::question(creer, true),
                          boites::information(ajoutee)},
                         true),
                 QString());
        const Attentes double_{boites::avertissement(u"une ligne Ci existe déja pour ce salarié!"_s)};
        QCOMPARE(ajouter(inconnu, double_), u"num_saledit"_s);
        QCOMPARE(ajouter(ficheLigneCi(sansNumero, 2),
                         {boites::question(creer, true), boites::information(ajoutee)}, true),
                 QString());
        QCOMPARE(ajouter(ficheLigneCi(sansNumero, 2), double_), u"num_saledit"_s);
        essai.base.Cnx.executer(u"DELETE FROM salarie"_s);
        QCOMPARE(ajouter(ficheLigneCi(), {boites::avertissement(
                                             u"ce salarié n'existe pas! Nous vous invitons à le créer"_s)}),
                 u"num_saledit"_s);
        QCOMPARE(essai.lignes(lesSommes), QStringList{u"158250000|2"_s});
    }

    void ligneModifiee()
    {
        BaseCi essai;
        LignesDeclaration lignes(essai.base, genreCi(), essai.entete());
        essai.ligne();
        essai.ligne(BaseCi::autreSalarie); // of an employee who is gone in a moment
        essai.base.Cnx.executer(u"DELETE FROM salarie WHERE nom = 'D''ARC'"_s);
        lignes.chercher(BaseCi::autreSalarie);
        const Enregistrement lue = lignes.liste().courant();
        const auto modifier = [&](const FicheLigneCi &fiche, const Attente &boite) {
            DialogueScenario dialogue;
            dialogue.attendre({boite});
            return modifierLigneCi(lignes, lue, fiche, dialogue).has_value();
        };
        FicheLigneCi fiche = remplirFicheLigneCi(lue);
        fiche.MskDateArret = u"5/1/2024"_s;
        fiche.TxtNbHeure = u"10,0"_s;
        fiche.TxtMtHoraire = u" 1 00.0000"_s;
        QVERIFY(modifier(fiche, boites::avertissement(u"Aucun élément à modifier"_s)));
        fiche.TxtMtHoraire = u"200"_s;
        QVERIFY(!modifier(fiche, boites::information(modifiee)));
        QCOMPARE(essai.lignes(lesSommes), QStringList{u"22500000|2"_s});

        // What was read is no more; the engine has no number for that.
        const QString echec = u"Error %1 (%2) in procedure cmdok_Click of Feuille frm_modif_lndas"_s;
        QVERIFY(modifier(fiche, boites::critique(echec.arg(
                                    u"0"_s, u"Cette ligne de la table « Detail_CI » a été modifiée ou "
                                            "supprimée depuis qu'elle a été lue. La liste a été relue ; "
                                            "veuillez recommencer."_s))));
        essai.base.Cnx.executer(u"DELETE FROM Entete_CI"_s);
        QVERIFY(modifier(fiche, boites::critique(echec.arg(
                                    u"0"_s, u"L'en-tête de cette déclaration (123456780000000001) n'existe "
                                            "plus."_s))));
    }

    /// Whenever the program dies, the claim has all its lines under its reference, and its sums are theirs.
    void tuePendantUnEnregistrement()
    {
        BaseCi essai;
        essai.entete();
        constexpr int salaries = 4000;
        essai.base.Cnx.executer(
            u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?) "
            "INSERT INTO salarie (Num_Salarie, cpt_z) SELECT '000000000000', i FROM n"_s,
            {salaries});
        for (int coup = 1; coup <= 8; ++coup) {
            essai.base.Cnx.executer(u"DELETE FROM Detail_CI"_s);
            const enfant::Fin fin = enfant::faire({essai.chemin()}, coup * 13'700);
            Connexion apres;
            apres.ouvrir(essai.chemin());
            QCOMPARE(apres.premiere(u"PRAGMA integrity_check"_s).texte(0), u"ok"_s);
            const Enregistrement lignes = apres.premiere(
                u"SELECT count(*), ifnull(sum(Mt_Indemnise), 0) FROM Entete_CI JOIN Detail_CI ON N_Identif = "
                "N_Identifiant"_s);
            QVERIFY(lignes.entier(0) == fin.pas || lignes.entier(0) == fin.pas + 1);
            QCOMPARE(BaseCi::lignes(apres, u"SELECT count(*) FROM Detail_CI"_s).first().toLongLong(),
                     lignes.entier(0));
            if (fin.pas > 0) {
                QCOMPARE(BaseCi::lignes(apres, lesSommes).first(),
                         u"%1|%2"_s.arg(lignes.entier(1)).arg(lignes.entier(0)));
            }
        }
    }
};

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (const auto mots = enfant::mots(argc, argv))
        return changerSansFin(mots->first());
    TestCi test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_ci.moc"
