#include "das/controledas.h"
#include "das/exportdas.h"
#include "rules/texte.h"
#include "storage/lieux.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/das/basedas.h"
#include "tests/storage/foyer.h"
#include "tests/storage/surdisque.h"
#include "validators/validateurdas.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString sansNumero = u"000000000000"_s;

Champs entreeLe(const QString &date, const QString &type = u"E"_s)
{
    return {{u"date_es"_s, date}, {u"type_date_es"_s, type}, {u"nbj_travail"_s, 1}, {u"type_dure"_s, u"J"}};
}

QString phrase(const QString &numero, const QString &fin)
{
    return u"Numéro SS : "_s + numero + u"  de l'employé  DUPONT    JEAN"_s + fin;
}

QString pris(const QString &numero)
{
    return phrase(numero, u" n'est pas valide, il sera pris en charge , mais vous devez  vous rapprocher des "
                          "services de la CNAS afin de réclamer son numéro de sécurité social "_s);
}

const QString echecExport = u"Une erreur s'est produite, le fichier n'a pas été totalement généré, veuillez "
                            "rectifier l'erreur SVP"_s;
const QString nomPropose = u"12345678_DAS_2024.txt"_s;

QByteArray lignesDe(const QStringList &lignes) { return encoder(lignes.join(u"\r\n"_s) + u"\r\n"_s); }

} // namespace

/// The control before the export, the file byte for byte, and the two ways in which an export ends.
class TestExportDas : public QObject
{
    Q_OBJECT

private slots:
    void controle_data()
    {
        QTest::addColumn<QString>("numero");
        QTest::addColumn<Champs>("salarie");
        QTest::addColumn<Champs>("ligne");
        QTest::addColumn<QString>("refus");
        QTest::addColumn<QString>("titre");
        QTest::addColumn<bool>("averti");
        const auto cas = [](const char *nom, const QString &numero, const Champs &salarie,
                            const Champs &ligne, const QString &refus = {}, const QString &titre = {},
                            bool averti = false) {
            QTest::newRow(nom) << numero << salarie << ligne << refus << titre << averti;
        };
        const auto fin = [](const QString &numero, const QString &texte) { return phrase(numero, texte); };
        const QString bon = BaseDas::numero(1);
        const QString onze = bon.left(11);
        const QString cle = u" N° SS ou date de naissance non valide "_s;
        const QString acte = u" N° SS ou N° acte naissance non valide "_s;
        const QString renseigner = u" n'est pas valide, veuillez le renseigner SVP"_s;
        const Champs etranger{{u"etranger"_s, u"O"}, {u"IdNat"_s, u"5"}, {u"NumActeNaiss"_s, {}}};
        const auto etrangerDe = [&](const Valeur &code) {
            Champs champs = etranger;
            champs[1].valeur = code;
            return champs;
        };
        const QString nationalite = u"Controle nationalité"_s;
        const auto qui = [](const QString &numero) { return QString(numero + u"   DUPONT    JEAN"_s); };
        const QString codeFaux = u"Code nationalité incorrect pour le salarié N°  :  "_s + qui(bon);
        const QString codeVide = u"Code nationalité non spécifié  pour le salarié :   "_s + qui(bon);

        cas("national", bon, {}, {});
        cas("trop court", onze, {{u"date_naiss"_s, QDate(1990, 1, 1)}}, {},
            fin(onze, u" pas valide moins de 12 caractères"_s));
        cas("annee", bon, {{u"date_naiss"_s, QDate(1989, 3, 4)}}, {}, fin(bon, cle));
        cas("siecle sans effet", bon, {{u"date_naiss"_s, QDate(1888, 3, 4)}}, {});
        cas("cle", u"882345000199"_s, {{u"NumActeNaiss"_s, u"99999"}}, {}, fin(u"882345000199"_s, cle));
        cas("lettres", u"88234A000111"_s, {}, {}, fin(u"88234A000111"_s, cle));
        cas("acte", bon, {{u"NumActeNaiss"_s, u"12346"}}, {}, fin(bon, acte));
        cas("acte court", bon, {{u"NumActeNaiss"_s, u"345"}}, {}, fin(bon, acte));
        cas("acte Null", bon, {{u"NumActeNaiss"_s, {}}}, {}, fin(bon, acte));
        cas("etranger sans acte", bon, etranger, {});
        cas("etranger et cle", u"882345000199"_s, etranger, {}, fin(u"882345000199"_s, cle));
        cas("juin, premier", sansNumero, {}, entreeLe(u"01/06/2024"_s), {}, {}, true);
        cas("juin, dernier", sansNumero, {}, entreeLe(u"30/6/2024"_s), {}, {}, true);
        cas("mai", sansNumero, {}, entreeLe(u"31/05/2024"_s), fin(sansNumero, renseigner));
        cas("juillet", sansNumero, {}, entreeLe(u"01/07/2024"_s),
            fin(sansNumero, u" Date d'entrée incorrecte , veuillez la modifier SVP"_s));
        cas("sorti", sansNumero, {}, entreeLe(u"05/06/2024"_s, u"S"_s), fin(sansNumero, renseigner + u" "_s));
        cas("type Null", sansNumero, {}, {{u"type_date_es"_s, {}}, {u"date_es"_s, {}}},
            fin(sansNumero, renseigner + u" "_s));
        cas("etranger sans numero", sansNumero, etranger, entreeLe(u"15/06/2024"_s), {}, {}, true);
        for (const QString &code : {u"4"_s, u"004"_s, u"247"_s, u"0"_s, u"-5"_s, u"abc"_s, u" "_s})
            cas(qPrintable(u"IdNat «%1»"_s.arg(code)), bon, etrangerDe(code), {},
                Trim(code).isEmpty() ? codeVide : codeFaux, Trim(code).isEmpty() ? nationalite : QString());
        cas("IdNat Null", bon, etrangerDe({}), {}, codeVide, nationalite);
        cas("IdNat 246", bon, etrangerDe(u"246"), {});
    }

    void controle()
    {
        QFETCH(QString, numero);
        QFETCH(Champs, salarie);
        QFETCH(Champs, ligne);
        QFETCH(QString, refus);
        QFETCH(QString, titre);
        QFETCH(bool, averti);
        BaseDas essai;
        essai.entete();
        essai.ajouter(numero, 1, salarie);
        essai.ligne(numero, 1, ligne);
        // A second line with another fault: the first one is told.
        essai.ajouter(BaseDas::numero(2), 1, {{u"NumActeNaiss"_s, refus.isEmpty() ? u"12345" : u"1"}});
        essai.ligne(BaseDas::numero(2));
        essai.accorder();
        DialogueScenario dialogue;
        if (averti)
            dialogue.attendreInformation(pris(numero));
        if (!refus.isEmpty())
            dialogue.attendreAvertissement(refus, titre);
        QCOMPARE(CtrlDas(essai.base, essai.base.RsEnteteDas.courant(), dialogue), refus.isEmpty());
    }

    void controleSansValeur_data()
    {
        QTest::addColumn<QString>("numero");
        QTest::addColumn<Champs>("salarie");
        QTest::addColumn<Champs>("ligne");
        QTest::newRow("naissance Null") << BaseDas::numero(1) << Champs{{u"date_naiss"_s, {}}} << Champs{};
        QTest::newRow("entree Null") << sansNumero << Champs{} << Champs{{u"date_es"_s, {}}};
        QTest::newRow("entree blanche") << sansNumero << Champs{} << Champs{};
    }

    /// The failure goes where that of the export would go, but nothing has been written yet.
    void controleSansValeur()
    {
        QFETCH(QString, numero);
        QFETCH(Champs, salarie);
        QFETCH(Champs, ligne);
        Foyer foyer;
        QVERIFY(QDir().mkpath(dossierExpor()));
        BaseDas essai;
        essai.entete();
        essai.ajouter(numero, 1, salarie);
        essai.ligne(numero, 1, ligne);
        essai.accorder();
        DialogueScenario dialogue;
        QVERIFY_THROWS_EXCEPTION(ErreurConversion, exporterDas(essai.base, true, dialogue));
        dialogue.attendreCritique(echecExport);
        QVERIFY(!exporterDas(essai.base, false, dialogue));
        QVERIFY(QDir(dossierExpor()).isEmpty());
    }

    void taux_data()
    {
        QTest::addColumn<int>("avec");
        QTest::addColumn<int>("sans");
        QTest::addColumn<int>("etrangers");
        QTest::addColumn<QString>("taux");
        QTest::newRow("90") << 9 << 1 << 0 << QString();
        QTest::newRow("sous 90") << 8 << 1 << 5 << u"88.89"_s;
        QTest::newRow("aucun compte") << 0 << 2 << 0 << u".00"_s;
        QTest::newRow("etrangers seuls") << 0 << 0 << 3 << QString();
    }

    void taux()
    {
        QFETCH(int, avec);
        QFETCH(int, sans);
        QFETCH(int, etrangers);
        QFETCH(QString, taux);
        BaseDas essai;
        essai.entete();
        const QList<Champs> bons{{},
                                 {{u"num_cpt_ccp"_s, {}}, {u"num_cpt_banc"_s, u"00212345678901234561"}},
                                 {{u"num_cpt_ccp"_s, u"00712345678901234561"}}};
        const QList<Champs> mauvais{
            {{u"num_cpt_ccp"_s, {}}, {u"num_cpt_banc"_s, u"00000000000000000000"}},
            {{u"num_cpt_ccp"_s, u"00000000000000000000"}, {u"num_cpt_banc"_s, u"00212345678901234562"}}};
        for (int i = 0; i < avec + sans + etrangers; ++i) {
            const QString numero = BaseDas::numero(i);
            if (i < avec)
                essai.ajouter(numero, 1, bons[i % bons.size()]);
            else if (i < avec + sans)
                essai.ajouter(numero, 1, mauvais[i % mauvais.size()]);
            else
                essai.ajouter(numero, 1, {{u"etranger"_s, u"O"}, {u"IdNat"_s, u"5"}, {u"num_cpt_ccp"_s, {}}});
            essai.ligne(numero);
        }
        essai.accorder();
        DialogueScenario dialogue;
        if (!taux.isEmpty()) {
            dialogue.attendreAvertissement(
                u"Votre fichier Présente un taux insuffisant de salariés avec un numéro de compte valide   "
                ":  %1   %, il sera refusé, veuillez le compéter SVP"_s.arg(taux));
        }
        QCOMPARE(CtrlDas(essai.base, essai.base.RsEnteteDas.courant(), dialogue), taux.isEmpty());
    }

    /// A line whose employee is gone is in the sums, but in no file: the count of numbers finds it.
    void salarieDisparu()
    {
        BaseDas essai;
        essai.entete();
        essai.ajouter(BaseDas::numero(1), 1);
        essai.ligne(BaseDas::numero(1));
        essai.ligne(BaseDas::numero(2));
        essai.accorder();
        DialogueScenario dialogue;
        dialogue.attendreAvertissement(
            u"Votre DAS doit contenir 100% des numéro SS valide, veuillez corriger SVP"_s);
        QVERIFY(!exporterDas(essai.base, false, dialogue));
    }

    void sommesDifferentes()
    {
        const QString texte = u"La somme des salaires annuels ou le nombre de salaries saisis dans l'en-tête "
                              "DAS ne correspondent pas aux sommes calculées sur les lignes de cette "
                              "DAS.\nVerifiez vos lignes DAS SVP"_s;
        BaseDas essai;
        for (const auto &[type, somme, effectif] :
             {std::tuple{1, Currency::deDixMilliemes(1), 0}, {2, Currency(), 1}}) {
            essai.entete(type, somme, effectif);
            DialogueScenario dialogue;
            dialogue.attendreAvertissement(texte);
            QVERIFY(!exporterDas(essai.base, false, dialogue));
        }
    }

    void fichier()
    {
        Foyer foyer;
        QVERIFY(QDir().mkpath(dossierExpor()));
        BaseDas essai;
        essai.entete();
        // Entered in this order, which is not that of the numbers.
        essai.ajouter(BaseDas::numero(2), 1,
                      {{u"nom"_s, u"  O'NEIL; \"Ö\" "},
                       {u"prenom"_s, u"Łukasz €"},
                       {u"lieu_naiss"_s, u"  "},
                       {u"adresse"_s, u" 3, rue d'en bas "},
                       {u"ville"_s, u"ALGER"},
                       {u"c_postal"_s, u"16000"},
                       {u"num_cpt_banc"_s, u"00212345678901234561"},
                       {u"banque"_s, u"002"},
                       {u"agence_banque"_s, u"00123"},
                       {u"Email"_s, u"a@b.dz"},
                       {u"CinNumber"_s, u"123456789"},
                       {u"NIN"_s, u"10988012312345000_"}});
        essai.ajouter(BaseDas::numero(1), 1,
                      {{u"etranger"_s, u"O"},
                       {u"IdNat"_s, u"246"},
                       {u"NumActeNaiss"_s, {}},
                       {u"NIN"_s, {}},
                       {u"sexe"_s, {}},
                       {u"profes"_s, {}},
                       {u"adresse"_s, {}},
                       {u"telephone"_s, {}},
                       {u"PrenomPere"_s, {}},
                       {u"NomMere"_s, {}},
                       {u"PrenomMere"_s, {}}});
        essai.ajouter(sansNumero, 3, {{u"NumActeNaiss"_s, u""}, {u"sexe"_s, u"F"}});
        essai.ligne(BaseDas::numero(2), 1,
                    {{u"sal_annuel"_s, Currency::deTexte(u"1234567.5")},
                     {u"type_date_es"_s, {}},
                     {u"date_es"_s, {}}});
        essai.ligne(BaseDas::numero(1), 1,
                    {{u"sal_annuel"_s, Currency::deTexte(u"0.0001")},
                     {u"date_es"_s, u"30/06/2024"},
                     {u"type_date_es"_s, u"S"}});
        Champs newcomer = entreeLe(u"15/06/2024"_s);
        essai.ligne(sansNumero, 3, newcomer);
        essai.ligne(BaseDas::numero(2), 1, {}, 2); // of another declaration
        essai.accorder();

        const QByteArray attendu = lignesDe(
            {u"DAS KORVANDEL VER 3.0"_s, u"12345678;2024;1;1834567,5001;3;"_s,
             BaseDas::numero(2) +
                 u";O'NEIL; \"Ö\";?ukasz €;M;04/03/1988;;3, rue d'en bas;ALGER;16000;N;N;123456768;"
                 "00212345678901234561;002;00123;MAÇON;1234567,5;12;M;;;M;0550112233;a@b.dz;123456789;004;"
                 "PAUL;DURAND;MARIE;000000000000000000;12345;"_s,
             BaseDas::numero(1) + u";DUPONT;JEAN;M;04/03/1988;;;;;N;O;123456768;;;;;0,0001;12;M;30/06/2024;S;"
                                  "M;;;;246;;;;000000000000000000;12345;"_s,
             u"000000000000;DUPONT;JEAN;M;04/03/1988;;12 RUE DES ROSIERS;;;N;N;123456768;;;;MAÇON;600000;1;J;"
             "15/06/2024;E;F;0550112233;;;004;PAUL;DURAND;MARIE;109880123123450006;;"_s});
        const auto attendre = [&](DialogueScenario &dialogue, const QString &chemin) {
            dialogue.attendreInformation(pris(sansNumero));
            if (!chemin.startsWith(dossierExpor()))
                dialogue.attendreDestination(nomPropose, chemin);
            dialogue.attendreInformation(u"DAS exportée avec succès vers "_s +
                                         QDir::toNativeSeparators(chemin));
        };
        for (const bool fige : {true, false}) {
            DialogueScenario dialogue;
            const QString chemin =
                fige ? dossierExpor() + u'/' + nomPropose : foyer.chemin() + u"/ailleurs.txt"_s;
            ecrireFichier(chemin, QByteArray(10'000, 'x')); // replaced, not overwritten in part
            attendre(dialogue, chemin);
            QVERIFY(exporterDas(essai.base, fige, dialogue));
            QCOMPARE(lireFichier(chemin), attendu);
            QVERIFY(!(QFile::permissions(chemin) & (QFile::ReadGroup | QFile::ReadOther)));
            QVERIFY(misSurDisque().contains(chemin));
            QVERIFY(misSurDisque().contains(QFileInfo(chemin).absolutePath()));
        }
        QCOMPARE(essai.base.RsLigneDas.nombre(), 3);

        // A complementary declaration takes the name of the principal one in the fixed folder.
        essai.base.RsEnteteDas.allerA(essai.base.RsEnteteDas.chercher({{u"Type"_s, 1}}));
        essai.entete(3);
        DialogueScenario dialogue;
        dialogue.attendreInformation(u"DAS exportée avec succès vers "_s +
                                     QDir::toNativeSeparators(dossierExpor() + u'/' + nomPropose));
        QVERIFY(exporterDas(essai.base, true, dialogue));
        QCOMPARE(lireFichier(dossierExpor() + u'/' + nomPropose),
                 QByteArray("DAS KORVANDEL VER 3.0\r\n12345678;2024;3;0;0;\r\n"));

        dialogue.attendreDestination(nomPropose, {});
        dialogue.attendreBoite(u"Nom de fichier incorrect"_s);
        QVERIFY(!exporterDas(essai.base, false, dialogue));
    }

    void echecs_data()
    {
        QTest::addColumn<bool>("dossier");
        QTest::addColumn<QString>("colonne");
        QTest::newRow("dossier a la place du fichier") << true << QString();
        for (const QString &colonne : {u"nom"_s, u"prenom"_s, u"sf"_s, u"presume"_s})
            QTest::newRow(qPrintable(colonne)) << false << colonne;
        for (const QString &colonne : {u"sal_annuel"_s, u"nbj_travail"_s, u"type_dure"_s})
            QTest::newRow(qPrintable(colonne)) << false << colonne;
    }

    /// In the fixed folder the program ends, elsewhere the clerk is told; what was written stays.
    void echecs()
    {
        QFETCH(bool, dossier);
        QFETCH(QString, colonne);
        Foyer foyer;
        const QString fige = dossierExpor() + u'/' + nomPropose;
        const QString choisi = foyer.chemin() + u"/choisi.txt"_s;
        QVERIFY(QDir().mkpath(dossierExpor()));
        if (dossier)
            QVERIFY(QDir().mkpath(fige) && QDir().mkpath(choisi));
        BaseDas essai;
        essai.entete();
        for (int i = 1; i <= 2; ++i) {
            essai.ajouter(BaseDas::numero(i), 1);
            essai.ligne(BaseDas::numero(i));
        }
        const bool deLaLigne =
            colonne == u"sal_annuel" || colonne == u"nbj_travail" || colonne == u"type_dure";
        if (!colonne.isEmpty()) {
            essai.base.Cnx.executer(u"UPDATE [%1] SET [%2] = NULL WHERE num_salarie = ?"_s.arg(
                                        deLaLigne ? u"ligne_das"_s : u"salarie"_s, colonne),
                                    {BaseDas::numero(2)});
        }
        essai.accorder();
        DialogueScenario dialogue;
        QString texte;
        try {
            exporterDas(essai.base, true, dialogue);
        } catch (const ErreurFatale &erreur) {
            texte = erreur.texte();
        }
        QVERIFY2(texte.contains(dossier ? fige : colonne), qPrintable(texte));
        dialogue.attendreDestination(nomPropose, choisi);
        dialogue.attendreCritique(echecExport);
        QVERIFY(!exporterDas(essai.base, false, dialogue));
        if (!dossier) {
            for (const QString &chemin : {fige, choisi})
                QCOMPARE(lireFichier(chemin).count("\r\n"), 3);
        }
    }

    void disquePlein()
    {
        if (!QFile::exists(u"/dev/full"_s))
            QSKIP("no device that is always full");
        BaseDas essai;
        essai.peuplerDas(1000);
        DialogueScenario dialogue;
        dialogue.attendreDestination(nomPropose, u"/dev/full"_s);
        dialogue.attendreCritique(echecExport);
        QVERIFY(!exporterDas(essai.base, false, dialogue));

        // A disk that takes the words and can't keep them.
        const Foyer foyer;
        dialogue.attendreDestination(nomPropose, foyer.chemin() + u"/das.txt"_s);
        dialogue.attendreCritique(echecExport);
        refuserLeDisque(EIO);
        QVERIFY(!exporterDas(essai.base, false, dialogue));
        refuserLeDisque(0);
    }

    /// An imported number may hold anything.
    void nomQuiResteDansLeDossier()
    {
        const Foyer foyer;
        QVERIFY(QDir().mkpath(dossierExpor()));
        BaseDas essai;
        essai.entete();
        essai.base.Cnx.executer(u"UPDATE entete_das SET num_emp = '../..\\a:'"_s);
        essai.accorder();
        const QString nom = u".._.._a__DAS_2024.txt"_s;
        const QString fige = dossierExpor() + u'/' + nom;
        DialogueScenario dialogue;
        dialogue.attendreInformation(u"DAS exportée avec succès vers "_s + QDir::toNativeSeparators(fige));
        QVERIFY(exporterDas(essai.base, true, dialogue));
        QVERIFY(QFile::exists(fige));
        dialogue.attendreDestination(nom, {});
        dialogue.attendreBoite(u"Nom de fichier incorrect"_s);
        QVERIFY(!exporterDas(essai.base, false, dialogue));
    }

    /// What the program exports from a good declaration, the fund's own rules take.
    void accepteParLeValideur()
    {
        Foyer foyer;
        BaseDas essai;
        essai.peuplerDas(300);
        const QString chemin = foyer.chemin() + u'/' + nomPropose;
        DialogueScenario export_;
        export_.attendreDestination(nomPropose, chemin);
        export_.attendreInformation(u"DAS exportée avec succès vers "_s + QDir::toNativeSeparators(chemin));
        QVERIFY(exporterDas(essai.base, false, export_));

        class Muet : public Dialogue
        {
        public:
            QString choisirFichier(const QString &, const QString &) override { return {}; }
            QString choisirDestination(const QString &, const QString &, const QString &) override
            {
                return {};
            }

        protected:
            bool montrer(const Boite &) override { return true; }
        } muet;
        ValidateurDas validateur;
        const Verdict verdict = validateur.extraire(chemin, muet);
        for (const ListesErreurs *listes : {&validateur.rejets, &validateur.sansIncidence})
            QVERIFY2(listes->taille() == 0, qPrintable(listes->taille() ? listes->Entrees[0] : QString()));
        QCOMPARE(verdict, Verdict::Acceptee);
        QCOMPARE(validateur.nbLignes, 300);
    }
};

QTEST_GUILESS_MAIN(TestExportDas)
#include "test_exportdas.moc"
