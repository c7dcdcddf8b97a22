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
const QString succes = u"DAS exportée avec succès vers "_s;
const QString nomPropose = u"12345678_DAS_2024.txt"_s;

/// An empty declaration, with the fixed folder for its file.
class Essai : public BaseDas
{
public:
    Essai()
    {
        QDir().mkpath(dossierExpor());
        entete();
    }

    /// Adds an employee with his line.
    void employe(const QString &numero, const Champs &salarie = {}, const Champs &champs = {},
                 qint64 cpt_z = 1)
    {
        ajouter(numero, cpt_z, salarie);
        ligne(numero, cpt_z, champs);
    }

    bool controler()
    {
        accorder();
        return CtrlDas(base, base.RsEnteteDas.courant(), dialogue);
    }
    bool exporter(bool cheminFige) { return exporterDas(base, cheminFige, dialogue); }

    const Foyer foyer;
    const QString fige = dossierExpor() + u'/' + nomPropose;
    DialogueScenario dialogue;
};

} // namespace

/// The control before the export, the file byte for byte, and the two ways in which an export ends.
class TestExportDas : public QObject
{
    Q_OBJECT

    /// @param refus a text, behind "title|" where it has one; @param averti whether a number is tolerated
    /// aloud
    static void controler(const QString &numero, const Champs &salarie, const Champs &ligne,
                          const QString &refus = {}, bool averti = false)
    {
        Essai essai;
        essai.employe(numero, salarie, ligne);
        // A second line with another fault: the first one is told.
        essai.employe(BaseDas::numero(2), {{u"NumActeNaiss"_s, refus.isEmpty() ? u"12345" : u"1"}});
        if (averti)
            essai.dialogue.attendreInformation(pris(numero));
        if (!refus.isEmpty())
            essai.dialogue.attendreAvertissement(refus.section(u'|', -1), refus.section(u'|', -2, -2));
        QCOMPARE(essai.controler(), refus.isEmpty());
    }

private slots:
    void controle()
    {
        const QString bon = BaseDas::numero(1);
        const QString onze = bon.left(11);
        const QString cle = u" N° SS ou date de naissance non valide "_s;
        const QString acte = u" N° SS ou N° acte naissance non valide "_s;
        controler(bon, {}, {});
        controler(onze, {{u"date_naiss"_s, QDate(1990, 1, 1)}}, {},
                  phrase(onze, u" pas valide moins de 12 caractères"_s));
        controler(bon, {{u"date_naiss"_s, QDate(1989, 3, 4)}}, {}, phrase(bon, cle));
        controler(bon, {{u"date_naiss"_s, QDate(1888, 3, 4)}}, {}); // the century tells nothing
        for (const QString &faux : {u"882345000199"_s, u"88234A000111"_s})
            controler(faux, {{u"NumActeNaiss"_s, u"99999"}}, {}, phrase(faux, cle));
        for (const Valeur &faux : {Valeur(u"12346"), Valeur(u"345"), Valeur()})
            controler(bon, {{u"NumActeNaiss"_s, faux}}, {}, phrase(bon, acte));

        const QString renseigner = phrase(sansNumero, u" n'est pas valide, veuillez le renseigner SVP"_s);
        for (const QString &deJuin : {u"01/06/2024"_s, u"30/6/2024"_s})
            controler(sansNumero, {}, entreeLe(deJuin), {}, true);
        controler(sansNumero, {}, entreeLe(u"31/05/2024"_s), renseigner);
        controler(sansNumero, {}, entreeLe(u"01/07/2024"_s),
                  phrase(sansNumero, u" Date d'entrée incorrecte , veuillez la modifier SVP"_s));
        controler(sansNumero, {}, entreeLe(u"05/06/2024"_s, u"S"_s), renseigner + u' ');
        controler(sansNumero, {}, {{u"type_date_es"_s, {}}, {u"date_es"_s, {}}}, renseigner + u' ');
    }

    void etrangers()
    {
        const auto etranger = [](const Valeur &code) {
            return Champs{{u"etranger"_s, u"O"}, {u"IdNat"_s, code}, {u"NumActeNaiss"_s, {}}};
        };
        const QString bon = BaseDas::numero(1);
        const QString qui = bon + u"   DUPONT    JEAN"_s;
        for (const QString &code : {u"5"_s, u"246"_s})
            controler(bon, etranger(code), {});
        controler(sansNumero, etranger(u"5"), entreeLe(u"15/06/2024"_s), {}, true);
        controler(u"882345000199"_s, etranger(u"5"), {},
                  phrase(u"882345000199"_s, u" N° SS ou date de naissance non valide "_s));
        for (const QString &code : {u"4"_s, u"004"_s, u"247"_s, u"0"_s, u"-5"_s, u"abc"_s})
            controler(bon, etranger(code), {}, u"Code nationalité incorrect pour le salarié N°  :  "_s + qui);
        for (const Valeur &vide : {Valeur(u" "), Valeur()}) {
            controler(bon, etranger(vide), {},
                      u"Controle nationalité|Code nationalité non spécifié  pour le salarié :   "_s + qui);
        }
    }

    /// The failure goes where that of the export would go, but nothing has been written yet.
    void controleSansValeur()
    {
        using Cas = std::tuple<QString, Champs, Champs>;
        for (const auto &[numero, salarie, ligne] :
             {Cas(BaseDas::numero(1), {{u"date_naiss"_s, {}}}, {}), Cas(sansNumero, {}, {{u"date_es"_s, {}}}),
              Cas(sansNumero, {}, {})}) {
            Essai essai;
            essai.employe(numero, salarie, ligne);
            essai.accorder();
            QVERIFY_THROWS_EXCEPTION(ErreurConversion, essai.exporter(true));
            essai.dialogue.attendreCritique(echecExport);
            QVERIFY(!essai.exporter(false));
            QVERIFY(QDir(dossierExpor()).isEmpty());
        }
    }

    void taux()
    {
        const QList<Champs> bons{{},
                                 {{u"num_cpt_ccp"_s, {}}, {u"num_cpt_banc"_s, u"00212345678901234561"}},
                                 {{u"num_cpt_ccp"_s, u"00712345678901234561"}}};
        const QList<Champs> mauvais{
            {{u"num_cpt_ccp"_s, {}}, {u"num_cpt_banc"_s, u"00000000000000000000"}},
            {{u"num_cpt_ccp"_s, u"00000000000000000000"}, {u"num_cpt_banc"_s, u"00212345678901234562"}}};
        using Cas = std::tuple<int, int, int, QString>;
        for (const auto &[avec, sans, etrangers, taux] :
             {Cas(9, 1, 0, {}), Cas(8, 1, 5, u"88.89"_s), Cas(0, 2, 0, u".00"_s), Cas(0, 0, 3, {})}) {
            Essai essai;
            for (int i = 0; i < avec + sans + etrangers; ++i) {
                Champs salarie{{u"etranger"_s, u"O"}, {u"IdNat"_s, u"5"}, {u"num_cpt_ccp"_s, {}}};
                if (i < avec + sans)
                    salarie = i < avec ? bons[i % bons.size()] : mauvais[i % mauvais.size()];
                essai.employe(BaseDas::numero(i), salarie);
            }
            if (!taux.isEmpty()) {
                essai.dialogue.attendreAvertissement(
                    u"Votre fichier Présente un taux insuffisant de salariés avec un numéro de compte valide "
                    "  :  %1   %, il sera refusé, veuillez le compéter SVP"_s.arg(taux));
            }
            QCOMPARE(essai.controler(), taux.isEmpty());
        }
    }

    /// What stands in the sums and in no file: a line whose employee is gone; and sums that differ.
    void ecarts()
    {
        Essai essai;
        essai.employe(BaseDas::numero(1));
        essai.ligne(BaseDas::numero(2));
        essai.dialogue.attendreAvertissement(
            u"Votre DAS doit contenir 100% des numéro SS valide, veuillez corriger SVP"_s);
        QVERIFY(!essai.controler());
        for (const auto &[type, somme, effectif] :
             {std::tuple{2, Currency::deDixMilliemes(1), 0}, {3, Currency(), 1}}) {
            essai.entete(type, somme, effectif);
            essai.dialogue.attendreAvertissement(
                u"La somme des salaires annuels ou le nombre de salaries saisis dans l'en-tête DAS ne "
                "correspondent pas aux sommes calculées sur les lignes de cette DAS.\nVerifiez vos lignes DAS SVP"_s);
            QVERIFY(!essai.exporter(false));
        }
    }

    void fichier()
    {
        Essai essai;
        // Entered in this order, which is not that of the numbers.
        essai.employe(BaseDas::numero(2),
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
                       {u"NIN"_s, u"10988012312345000_"}},
                      {{u"sal_annuel"_s, Currency::deTexte(u"1234567.5")},
                       {u"type_date_es"_s, {}},
                       {u"date_es"_s, {}}});
        Champs etranger{{u"etranger"_s, u"O"}, {u"IdNat"_s, u"246"}};
        for (const QString &vide : {u"NumActeNaiss"_s, u"NIN"_s, u"sexe"_s, u"profes"_s, u"adresse"_s,
                                    u"telephone"_s, u"PrenomPere"_s, u"NomMere"_s, u"PrenomMere"_s})
            etranger.append({vide, {}});
        essai.employe(BaseDas::numero(1), etranger,
                      {{u"sal_annuel"_s, Currency::deTexte(u"0.0001")},
                       {u"date_es"_s, u"30/06/2024"},
                       {u"type_date_es"_s, u"S"}});
        essai.employe(sansNumero, {{u"NumActeNaiss"_s, u""}, {u"sexe"_s, u"F"}}, entreeLe(u"15/06/2024"_s),
                      3);
        essai.ligne(BaseDas::numero(2), 1, {}, 2); // of another declaration
        essai.accorder();

        const QStringList attendu{
            u"DAS KORVANDEL VER 3.0"_s,
            u"12345678;2024;1;1834567,5001;3;"_s,
            BaseDas::numero(2) +
                u";O'NEIL; \"Ö\";?ukasz €;M;04/03/1988;;3, rue d'en bas;ALGER;16000;N;N;123456768;"
                "00212345678901234561;002;00123;MAÇON;1234567,5;12;M;;;M;0550112233;a@b.dz;123456789;004;"
                "PAUL;DURAND;MARIE;000000000000000000;12345;"_s,
            BaseDas::numero(1) + u";DUPONT;JEAN;M;04/03/1988;;;;;N;O;123456768;;;;;0,0001;12;M;30/06/2024;S;"
                                 "M;;;;246;;;;000000000000000000;12345;"_s,
            u"000000000000;DUPONT;JEAN;M;04/03/1988;;12 RUE DES ROSIERS;;;N;N;123456768;;;;MAÇON;600000;1;J;"
            "15/06/2024;E;F;0550112233;;;004;PAUL;DURAND;MARIE;109880123123450006;;"_s,
            {}};
        for (const QString &chemin : {essai.fige, essai.foyer.chemin() + u"/ailleurs.txt"_s}) {
            const bool fige = chemin == essai.fige;
            ecrireFichier(chemin, QByteArray(10'000, 'x')); // replaced, not overwritten in part
            essai.dialogue.attendreInformation(pris(sansNumero));
            if (!fige)
                essai.dialogue.attendreDestination(nomPropose, chemin);
            essai.dialogue.attendreInformation(succes + QDir::toNativeSeparators(chemin));
            QVERIFY(essai.exporter(fige));
            QCOMPARE(lireFichier(chemin), encoder(attendu.join(u"\r\n"_s)));
            QVERIFY(!(QFile::permissions(chemin) & (QFile::ReadGroup | QFile::ReadOther)));
            QVERIFY(misSurDisque().contains(chemin));
            QVERIFY(misSurDisque().contains(QFileInfo(chemin).absolutePath()));
        }
        QCOMPARE(essai.base.RsLigneDas.nombre(), 3);

        // A complementary declaration takes the name of the principal one in the fixed folder.
        essai.entete(3);
        essai.dialogue.attendreInformation(succes + QDir::toNativeSeparators(essai.fige));
        QVERIFY(essai.exporter(true));
        QCOMPARE(lireFichier(essai.fige), "DAS KORVANDEL VER 3.0\r\n12345678;2024;3;0;0;\r\n");
    }

    /// In the fixed folder the program ends, elsewhere the clerk is told; what was written stays.
    void echecs()
    {
        // The columns that must hold something.
        for (const QString &vide :
             {u"salarie nom"_s, u"salarie prenom"_s, u"salarie sf"_s, u"salarie presume"_s,
              u"ligne_das sal_annuel"_s, u"ligne_das nbj_travail"_s, u"ligne_das type_dure"_s}) {
            const QString colonne = vide.section(u' ', 1);
            Essai essai;
            for (int i = 1; i <= 2; ++i)
                essai.employe(BaseDas::numero(i));
            essai.base.Cnx.executer(
                u"UPDATE %1 SET %2 = NULL WHERE rowid = 2"_s.arg(vide.section(u' ', 0, 0), colonne));
            essai.accorder();
            QString texte;
            try {
                essai.exporter(true);
            } catch (const ErreurFatale &erreur) {
                texte = erreur.texte();
            }
            QVERIFY2(texte.contains(colonne), qPrintable(texte));
            const QString choisi = essai.foyer.chemin() + u"/choisi.txt"_s;
            essai.dialogue.attendreDestination(nomPropose, choisi);
            essai.dialogue.attendreCritique(echecExport);
            QVERIFY(!essai.exporter(false));
            for (const QString &chemin : {essai.fige, choisi})
                QCOMPARE(lireFichier(chemin).count("\r\n"), 3);
        }
    }

    /// An imported number may hold anything.
    void nomQuiResteDansLeDossier()
    {
        Essai essai;
        essai.base.Cnx.executer(u"UPDATE entete_das SET num_emp = '../..\\a:'"_s);
        essai.accorder();
        const QString nom = u".._.._a__DAS_2024.txt"_s;
        const QString fige = dossierExpor() + u'/' + nom;
        essai.dialogue.attendreInformation(succes + QDir::toNativeSeparators(fige));
        QVERIFY(essai.exporter(true));
        QVERIFY(QFile::exists(fige));
        essai.dialogue.attendreDestination(nom, {});
        essai.dialogue.attendreBoite(u"Nom de fichier incorrect"_s);
        QVERIFY(!essai.exporter(false));
    }

    /// What the program exports from a good declaration, the fund's own rules take.
    void accepteParLeValideur()
    {
        Essai essai;
        for (int i = 1; i <= 20; ++i)
            essai.employe(BaseDas::numero(i), {}, {{u"date_es"_s, u"01/07/2023"}});
        essai.accorder();
        DialogueOui oui;
        QVERIFY(exporterDas(essai.base, true, oui));
        ValidateurDas validateur;
        const Verdict verdict = validateur.extraire(essai.fige, oui);
        for (const ListesErreurs *listes : {&validateur.rejets, &validateur.sansIncidence})
            QVERIFY2(listes->taille() == 0, qPrintable(listes->taille() ? listes->Entrees[0] : QString()));
        QCOMPARE(verdict, Verdict::Acceptee);
        QCOMPARE(validateur.nbLignes, 20);
    }
};

QTEST_GUILESS_MAIN(TestExportDas)
#include "test_exportdas.moc"
