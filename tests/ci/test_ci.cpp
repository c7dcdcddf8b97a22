#include "ci/genreci.h"
#include "declarations/entetes.h"
#include "declarations/lignes.h"
#include "tests/ci/baseci.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/commun/enfant.h"

#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

const QString lesEntetes = u"SELECT * FROM Entete_CI ORDER BY rowid"_s;
const QString lesLignes = u"SELECT * FROM Detail_CI ORDER BY rowid"_s;
const QString lesSommes = u"SELECT sum_calc, total_calc FROM Entete_CI"_s;
const QString ajoutee = u"Ligne Ci ajoutée avec succès !"_s;
const QString modifiee = u"Ligne CI modifiée avec succès!"_s;
const QString deuxCents =
    u"le nombre d'heures à indemniser est supérieur à 200, voulez vous valider cette information ?"_s;

/// The control that gets the focus; nothing without a refusal.
QString champ(const std::optional<Refus> &refus) { return refus ? refus->controle.toString() : QString(); }

/// The two screens of a header or of a line.
template <typename Fiche>
struct Ecrans
{
    BaseCi &essai;
    Fiche bonne;
    /// Makes ready for an entry, or for the change of a row.
    std::function<void(bool ajout)> preparer;
    std::function<std::optional<Refus>(bool ajout, const Fiche &, Dialogue &)> enregistrer;

    /// @return the control that gets the focus
    QString jouer(bool ajout, const Fiche &fiche, const Attentes &boites) const
    {
        preparer(ajout);
        const QStringList avant = essai.lignes(lesEntetes) + essai.lignes(lesLignes);
        DialogueScenario dialogue;
        dialogue.attendre(boites);
        const QString focus = champ(enregistrer(ajout, fiche, dialogue));
        const bool ecrit = essai.lignes(lesEntetes) + essai.lignes(lesLignes) != avant;
        return dialogue.acheve() && ecrit == focus.isEmpty() ? focus : u"written: %1"_s.arg(ecrit);
    }

    /// Plays the cases of a table, each a field of the good form typed over.
    void jouerTable(const QString &fichier, const QString &noms, const QList<QString Fiche::*> &champs,
                    const QStringList &succes) const
    {
        for (const QStringList &colonnes : table(fichier)) {
            for (const int forme : {0, 1}) {
                Fiche fiche = bonne;
                for (const QString &nom : colonnes[0].split(u' '))
                    fiche.*champs.at(noms.split(u' ').indexOf(nom)) = colonnes[1];
                const QString refus = colonnes[2 + forme];
                Attentes boites;
                if (!refus.isEmpty())
                    boites += boites::avertissement(refus.section(u'@', 0, 0));
                else if (!succes.isEmpty())
                    boites += boites::information(succes[forme]);
                QVERIFY2(jouer(forme == 0, fiche, boites) == refus.section(u'@', 1),
                         qPrintable(colonnes.join(u'|')));
            }
        }
    }
};

Ecrans<FicheEnteteCi> ecransEntete(BaseCi &essai)
{
    return {essai, ficheEnteteCi(),
            [&essai](bool ajout) {
                essai.base.Cnx.executer(u"DELETE FROM Entete_CI"_s);
                essai.base.RsEnteteCi.requery();
                if (!ajout)
                    essai.entete(u"HTS = NULL, LibAgBnq = NULL"_s);
            },
            [&essai](bool ajout, const FicheEnteteCi &fiche, Dialogue &dialogue) {
                return ajout ? ajouterEnteteCi(essai.base, fiche, dialogue)
                             : modifierEnteteCi(essai.base, essai.base.RsEnteteCi.courant(), fiche, dialogue);
            }};
}

/// Gives the claim another reference, then a line more, until it is killed.
int changerSansFin(const QString &chemin)
{
    Base base;
    ouvrirTables(base, chemin);
    DialogueOui dialogue;
    enfant::commencer();
    for (int i = 1;; ++i) {
        FicheEnteteCi fiche = remplirFicheEnteteCi(base.RsEnteteCi.courant());
        fiche.MskReference.back() = i % 2 == 0 ? u'1' : u'2';
        if (modifierEnteteCi(base, base.RsEnteteCi.courant(), fiche, dialogue))
            return 1;
        LignesDeclaration lignes(base, genreCi(), cleEntete(genreCi(), base.RsEnteteCi.courant()));
        if (ajouterLigneCi(lignes, ficheLigneCi(BaseCi::sansNumero, i), {}, dialogue))
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
        ecransEntete(essai).jouerTable(QFINDTESTDATA("entetes.txt"),
                                       u"cmbemp MskReference MskDateArret MskDateReprise total_salEdit "
                                       u"sumEdit SS26 SS1221 SS0375 CmbHS CmbBnq "
                                       "MskAgbnq MskNCompteBnq txtAgBnq TxtTelephone"_s,
                                       {&F::cmbemp, &F::MskReference, &F::MskDateArret, &F::MskDateReprise,
                                        &F::total_salEdit, &F::sumEdit, &F::SS26, &F::SS1221, &F::SS0375,
                                        &F::CmbHS, &F::CmbBnq, &F::MskAgbnq, &F::MskNCompteBnq, &F::txtAgBnq,
                                        &F::TxtTelephone},
                                       {});
    }

    void enteteAjoute()
    {
        BaseCi essai;
        DialogueScenario dialogue;
        FicheEnteteCi fiche = ficheEnteteCi();
        QVERIFY(!ajouterEnteteCi(essai.base, fiche, dialogue));
        const QStringList ecrite{u"123456780000000001|12345678|2024-01-05|2024-01-12|2|15000000|NULL|3900000|"
                                 "1831500|56300|NULL|44|00100123012345678938|AGENCE CENTRE|0660112233"_s};
        QCOMPARE(essai.lignes(lesEntetes), ecrite);
        QVERIFY_THROWS_EXCEPTION(ErreurBase, ajouterEnteteCi(essai.base, fiche, dialogue)); // a second one
        fiche.MskReference.back() = u'2';
        fiche.sumEdit = u"99999999999999999999"_s;
        QVERIFY_THROWS_EXCEPTION(ErreurConversion, ajouterEnteteCi(essai.base, fiche, dialogue));
        QCOMPARE(essai.lignes(lesEntetes), ecrite);
    }

    /// The two screens ask about the same charges, and the same answer means the opposite.
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
        const QList<QStringList> questions = table(QFINDTESTDATA("charges.txt"));
        BaseCi essai;
        FicheEnteteCi fiche = ficheEnteteCi();
        fiche.SS26 = fiche.SS1221 = fiche.SS0375 = u"3.80"_s;
        for (const bool ajout : {true, false}) {
            for (const int arretee : {0, 1, 2, 3}) {
                Attentes boites;
                for (int i = 0; i <= std::min(arretee, 2); ++i) {
                    const QString &question = questions[i][ajout ? 0 : 1];
                    boites += boites::question(question.section(u'@', 1), (i < arretee) == ajout,
                                               question.section(u'@', 0, 0));
                }
                QCOMPARE(ecransEntete(essai).jouer(ajout, fiche, boites),
                         u"SS26 SS1221 SS0375"_s.split(u' ').value(arretee));
            }
        }
    }

    /// The lines go with the reference, or both stay.
    void referenceChangee()
    {
        BaseCi essai;
        essai.entete(u"N_Identifiant = '1234567801', Montant_Indemnise = 12345, Effect_Mis_arret = NULL"_s);
        essai.entete(u"N_Identifiant = '123456780000000003'"_s);
        essai.entete(u"HTS = 42, Telephone = NULL"_s);
        essai.ligne();
        essai.ligne(BaseCi::autreSalarie);
        FicheEnteteCi fiche = remplirFicheEnteteCi(essai.base.RsEnteteCi.courant());
        essai.base.RsEnteteCi.allerA(2);
        QCOMPARE((QStringList{fiche.MskReference, fiche.sumEdit, fiche.total_salEdit}),
                 (QStringList{u"1234567801________"_s, u"1.2345"_s, u"0"_s}));
        const Enregistrement lue = essai.base.RsEnteteCi.courant();
        const QStringList avant = essai.lignes(lesEntetes) + essai.lignes(lesLignes);
        DialogueScenario dialogue;
        fiche = remplirFicheEnteteCi(lue);
        fiche.CmbHS.clear(); // not one of the list: it stays
        fiche.MskReference.back() = u'3';
        QVERIFY_THROWS_EXCEPTION(ErreurBase, modifierEnteteCi(essai.base, lue, fiche, dialogue));
        QCOMPARE(essai.lignes(lesEntetes) + essai.lignes(lesLignes), avant);
        fiche.MskReference.back() = u'2';
        QVERIFY(!modifierEnteteCi(essai.base, lue, fiche, dialogue));
        QCOMPARE(essai.lignes(u"SELECT N_SecSoc, HTS, Telephone FROM Detail_CI JOIN Entete_CI ON N_Identif = "
                              "N_Identifiant WHERE N_Identif LIKE '%2' ORDER BY N_SecSoc"_s),
                 (QStringList{BaseCi::salarie + u"|42|NULL"_s, BaseCi::autreSalarie + u"|42|NULL"_s}));
    }

    void ligneControlee()
    {
        using F = FicheLigneCi;
        BaseCi essai;
        LignesDeclaration lignes(essai.base, genreCi(), essai.entete());
        const Ecrans<F> ecrans{essai, ficheLigneCi(),
                               [&](bool ajout) {
                                   essai.base.Cnx.executer(u"DELETE FROM Detail_CI"_s);
                                   if (!ajout)
                                       essai.ligne(BaseCi::salarie, 1, u"Nb_Heure = 11"_s);
                                   lignes.montrerToutes();
                               },
                               [&](bool ajout, const F &fiche, Dialogue &dialogue) {
                                   return ajout ? ajouterLigneCi(lignes, fiche, {}, dialogue)
                                                : modifierLigneCi(lignes, lignes.liste().courant(), fiche,
                                                                  dialogue);
                               }};
        ecrans.jouerTable(
            QFINDTESTDATA("lignes.txt"),
            u"MskDateEmbauche MskDateArret MskDateReprise TxtNbHeure TxtMtHoraire"_s,
            {&F::MskDateEmbauche, &F::MskDateArret, &F::MskDateReprise, &F::TxtNbHeure, &F::TxtMtHoraire},
            {ajoutee, modifiee});
        const F longue = ficheLigneCi(BaseCi::salarie, 1, u"200,5"_s);
        for (const bool ajout : {true, false}) {
            QCOMPARE(ecrans.jouer(ajout, longue, {boites::question(deuxCents, false)}), u"TxtNbHeure"_s);
            QCOMPARE(ecrans.jouer(ajout, longue,
                                  {boites::question(deuxCents, true),
                                   boites::information(ajout ? ajoutee : modifiee)}),
                     QString());
            // The hours are rounded half to even for their column, the amount is that of what was typed.
            QCOMPARE(essai.lignes(lesLignes) + essai.lignes(lesSommes),
                     (QStringList{u"123456780000000001|882345000154|1|2020-09-01|2024-01-05|2024-01-12|200|"
                                  "1000000|150375000"_s,
                                  u"150375000|1"_s}));
        }
        for (const QStringList &cas : table(QFINDTESTDATA("montants.txt"))) {
            DialogueOui oui;
            QCOMPARE(montantIndemnise(cas[0], cas[1]), cas[2]);
            const F fiche = ficheLigneCi(BaseCi::salarie, 1, cas[0], cas[1]);
            if (cas[3] == u"oui")
                QVERIFY_THROWS_EXCEPTION(ErreurConversion, ajouterLigneCi(lignes, fiche, {}, oui));
        }
    }

    void salarieDeLaLigne()
    {
        const Attente creer = boites::question(u"Ce salarié n'existe pas, voulez vous le créer?"_s, true);
        const Attente double_ = boites::avertissement(u"une ligne Ci existe déja pour ce salarié!"_s);
        const Attente faite = boites::information(ajoutee);
        BaseCi essai;
        LignesDeclaration lignes(essai.base, genreCi(), essai.entete());
        const auto ajouter = [&](const FicheLigneCi &fiche, const Attentes &boites, bool cree = false) {
            DialogueScenario dialogue;
            dialogue.attendre(boites);
            const auto creation = [&] {
                if (cree)
                    essai.ajouter(fiche.numero(), fiche.cpt_z);
            };
            return champ(ajouterLigneCi(lignes, fiche, {creation, {}}, dialogue));
        };
        const QString focus = u"num_saledit"_s, inconnu = u"882345000946"_s;
        QCOMPARE(ajouter(ficheLigneCi(QString(12, u' ')),
                         {boites::avertissement(u"Vous n'avez pas sélectionné de salarié ! "_s)}),
                 focus);
        QCOMPARE(ajouter(ficheLigneCi(inconnu), {creer}), focus); // not created after all
        // The entry goes on where it was, and asks nothing twice.
        QCOMPARE(ajouter(ficheLigneCi(inconnu, 1, u"201"_s),
                         {boites::question(deuxCents, true), creer, faite}, true),
                 QString());
        QCOMPARE(ajouter(ficheLigneCi(inconnu), {double_}), focus);
        QCOMPARE(ajouter(ficheLigneCi(BaseCi::sansNumero, 2), {creer, faite}, true), QString());
        QCOMPARE(ajouter(ficheLigneCi(BaseCi::sansNumero, 2), {double_}), focus);
        essai.base.Cnx.executer(u"DELETE FROM salarie"_s);
        QCOMPARE(ajouter(ficheLigneCi(), {boites::avertissement(
                                             u"ce salarié n'existe pas! Nous vous invitons à le créer"_s)}),
                 focus);
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
        FicheLigneCi fiche = remplirFicheLigneCi(lue);
        const auto modifier = [&](const Attente &boite) {
            DialogueScenario dialogue;
            dialogue.attendre({boite});
            return modifierLigneCi(lignes, lue, fiche, dialogue).has_value();
        };
        fiche.MskDateArret = u"5/1/2024"_s;
        fiche.TxtNbHeure = u"10,0"_s;
        fiche.TxtMtHoraire = u" 1 00.0000"_s;
        QVERIFY(modifier(boites::avertissement(u"Aucun élément à modifier"_s)));
        fiche.TxtMtHoraire = u"200"_s;
        QVERIFY(!modifier(boites::information(modifiee)));
        QCOMPARE(essai.lignes(lesSommes), QStringList{u"22500000|2"_s});
        // What was read is no more; the engine has no number for that.
        for (const QString &echec :
             {u"Cette ligne de la table « Detail_CI » a été modifiée ou supprimée depuis qu'elle a été lue. "
              "La liste a été relue ; veuillez recommencer."_s,
              u"L'en-tête de cette déclaration (123456780000000001) n'existe plus."_s}) {
            QVERIFY(modifier(boites::critique(
                u"Error 0 (%1) in procedure cmdok_Click of Feuille frm_modif_lndas"_s.arg(echec))));
            essai.base.Cnx.executer(u"DELETE FROM Entete_CI"_s);
        }
    }

    /// Whenever the program dies, the claim has all its lines under its reference, and its sums are theirs.
    void tuePendantUnEnregistrement()
    {
        BaseCi essai;
        essai.entete();
        essai.base.Cnx.executer(
            u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 4000) "
            "INSERT INTO salarie (Num_Salarie, cpt_z) SELECT '000000000000', i FROM n"_s);
        for (int coup = 1; coup <= 8; ++coup) {
            essai.base.Cnx.executer(u"DELETE FROM Detail_CI"_s);
            const enfant::Fin fin = enfant::faire({essai.chemin()}, coup * 13'700);
            Connexion apres;
            apres.ouvrir(essai.chemin());
            const Enregistrement lu = apres.premiere(
                u"SELECT count(*), ifnull(sum(Mt_Indemnise), 0), total_calc, sum_calc, (SELECT count(*) FROM "
                "Detail_CI) FROM Entete_CI JOIN Detail_CI ON N_Identif = N_Identifiant"_s);
            QVERIFY(lu.entier(0) == fin.pas || lu.entier(0) == fin.pas + 1);
            QVERIFY(lu.entier(4) == lu.entier(0));
            QVERIFY(fin.pas == 0 || (lu.entier(2) == lu.entier(0) && lu.entier(3) == lu.entier(1)));
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
