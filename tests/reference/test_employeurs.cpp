#include "reference/banques.h"
#include "reference/employeurs.h"
#include "reference/textesaisi.h"
#include "rules/identite.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/reference/basereference.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const FicheEmployeur correcte{u"12345678"_s,           u"47"_s,          u"SARL L'Étoile; \"Sud\""_s,
                              u"3, rue d'en\r\nbas"_s, u"06 60112233"_s, u" a@b.dz "_s};

const QString pasDeRefus = u"-"_s;

/// The control that a refusal gives the focus to.
QString sur(const std::optional<Refus> &refus) { return refus ? refus->controle.toString() : pasDeRefus; }

const QString num_empmask = u"num_empmask"_s;
const QString clemask = u"clemask"_s;
const QString Rais_SocEdit = u"Rais_SocEdit"_s;
const QString AdresseEdit = u"AdresseEdit"_s;
const QString telEdit = u"telEdit"_s;
const QString mailEdit = u"mailEdit"_s;

QString &champ(FicheEmployeur &fiche, const QString &lequel)
{
    const QHash<QString, QString FicheEmployeur::*> champs{
        {num_empmask, &FicheEmployeur::num_empmask},   {clemask, &FicheEmployeur::clemask},
        {Rais_SocEdit, &FicheEmployeur::Rais_SocEdit}, {AdresseEdit, &FicheEmployeur::AdresseEdit},
        {telEdit, &FicheEmployeur::telEdit},           {mailEdit, &FicheEmployeur::mailEdit}};
    return fiche.*champs[lequel];
}

const QString tousLesEmployeurs =
    u"SELECT num_emp || '|' || rais_soc || '|' || adresse || '|' || ifnull(tel, 'NULL') || '|' || "
    "ifnull(Mail, 'NULL') FROM employeur ORDER BY rowid"_s;
const QString toutesLesBanques =
    u"SELECT Code || '|' || ifnull(Abreviat, 'NULL') || '|' || ifnull(Libelle, 'NULL') FROM Banque "
    "ORDER BY rowid"_s;

} // namespace

/// What may be added, changed and deleted among employers and banks, and the words that say why not.
class TestEmployeurs : public QObject
{
    Q_OBJECT

    using Valeurs6 = QMap<QString, QString>;

    static void colonnesDesFautes()
    {
        QTest::addColumn<Valeurs6>("saisi");
        QTest::addColumn<QStringList>("boites");
        QTest::addColumn<QString>("focus");
    }

    static void faute(const char *nom, const Valeurs6 &saisi, const QStringList &boites, const QString &focus)
    {
        QTest::newRow(nom) << saisi << boites << focus;
    }

private slots:
    void ajout()
    {
        BaseReference essai;
        DialogueScenario dialogue;
        FicheEmployeur fiche = correcte;
        QCOMPARE(sur(creerEmployeur(essai.base, fiche, dialogue)), pasDeRefus);
        FicheEmployeur sansRien{u"87654321"_s, u"43"_s, u"ZED  "_s, u"Ici"_s, u"   "_s, u"  "_s};
        QCOMPARE(sur(creerEmployeur(essai.base, sansRien, dialogue)), pasDeRefus);
        QCOMPARE(essai.lignes(tousLesEmployeurs),
                 (QStringList{u"12345678|SARL L'Étoile; \"Sud\"|3, rue d'en bas|0660112233|a@b.dz"_s,
                              u"87654321|ZED|Ici||"_s}));
        QCOMPARE(essai.base.RsEmployeur.texte(u"num_emp"), u"87654321"_s);
    }

    void ajoutRefuse_data()
    {
        colonnesDesFautes();
        const QString cle = u"Veillez saisir un numéro correct SVP"_s;
        const QString tel =
            u"Numéro de télephone incorrecte, exemple format (10 chiffres) : 0660112233 ou 0021445566"_s;
        faute("rien", {{num_empmask, u"________"_s}, {clemask, u"  "_s}, {telEdit, u"x"_s}},
              {u"Veuillez saisir la clé du numéro"_s}, clemask);
        faute("cle", {{clemask, u"48"_s}, {telEdit, u"x"_s}}, {cle}, num_empmask);
        faute("cle a moitie", {{clemask, u"4 "_s}}, {cle}, num_empmask);
        faute("numero incomplet", {{num_empmask, u"1234567_"_s}}, {cle}, num_empmask);
        faute("numero vide et sa cle", {{num_empmask, u"        "_s}, {clemask, u"99"_s}}, {cle},
              num_empmask);
        faute("numero court et sa cle", {{num_empmask, u"12      "_s}, {clemask, u"95"_s}}, {cle},
              num_empmask);
        faute("numero troue", {{num_empmask, u"12 45678"_s}}, {cle}, num_empmask);
        faute("grands chiffres", {{num_empmask, u"99999999"_s}, {clemask, u"0-"_s}}, {cle}, num_empmask);
        faute("telephone avant mail", {{telEdit, u"1 660112233"_s}, {mailEdit, u"x"_s}},
              {u"le pemier chiffre doit impérativement commencer par zéro !"_s, tel}, telEdit);
        faute("telephone fixe", {{telEdit, u"0160112233"_s}},
              {u"le deuxième chiffre doit impérativement etre égal à zéro pour les lignes fixe "_s, tel},
              telEdit);
        faute("telephone en lettres", {{telEdit, u"0abc"_s}}, {tel}, telEdit);
        faute("mail avant doublon", {{num_empmask, u"11111111"_s}, {clemask, u"87"_s}, {mailEdit, u"a.b"_s}},
              {u"EMail incorrecte, manque du caractère '@' !!"_s, u"Format E - Mail incorrecte"_s}, mailEdit);
        faute("mail", {{mailEdit, u"a@b. info x"_s}},
              {u"Adresse Mail incorrecte , manque du caractère '.' !!"_s, u"Format E - Mail incorrecte"_s},
              mailEdit);
        faute("doublon avant noms", {{num_empmask, u"11111111"_s}, {clemask, u"87"_s}, {Rais_SocEdit, u""_s}},
              {u"cet employeur existe déja!"_s}, num_empmask);
        faute("raison", {{Rais_SocEdit, u" \n "_s}, {AdresseEdit, u""_s}},
              {u"Veuillez saisir la raison sociale SVP"_s}, Rais_SocEdit);
        faute("adresse", {{AdresseEdit, u"  "_s}}, {u"Veuillez saisir une adresse SVP"_s}, AdresseEdit);
    }

    void ajoutRefuse()
    {
        QFETCH(Valeurs6, saisi);
        QFETCH(QStringList, boites);
        QFETCH(QString, focus);
        BaseReference essai;
        DialogueScenario dialogue;
        // Written by another program: the list in memory does not know it.
        essai.base.Cnx.executer(u"INSERT INTO employeur VALUES ('11111111', 'A', 'B', '', '')"_s);
        const QStringList avant = essai.lignes(tousLesEmployeurs);
        FicheEmployeur fiche = correcte;
        for (auto valeur = saisi.begin(); valeur != saisi.end(); ++valeur)
            champ(fiche, valeur.key()) = valeur.value();
        for (const QString &boite : boites)
            dialogue.attendreAvertissement(boite);
        QCOMPARE(sur(creerEmployeur(essai.base, fiche, dialogue)), focus);
        QVERIFY(dialogue.acheve());
        QCOMPARE(essai.lignes(tousLesEmployeurs), avant);
    }

    void cleQuittee()
    {
        DialogueScenario dialogue;
        FicheEmployeur fiche = correcte;
        QCOMPARE(sur(ctrlCleEmployeur(Forme::Creation, fiche, dialogue)), pasDeRefus);
        QCOMPARE(sur(ctrlCleEmployeur(Forme::Modification, fiche, dialogue)), pasDeRefus);
        fiche.clemask = u"  "_s;
        dialogue.attendreAvertissement(u"Veillez saisir un numéro correct SVP"_s);
        QCOMPARE(sur(ctrlCleEmployeur(Forme::Creation, fiche, dialogue)), num_empmask);
        dialogue.attendreAvertissement(u"Veillez Saisir un Numéro Correct SVP"_s);
        QCOMPARE(sur(ctrlCleEmployeur(Forme::Modification, fiche, dialogue)), num_empmask);
    }

    void modificationRefusee_data()
    {
        colonnesDesFautes();
        faute("rien de change", {}, {u"Aucun Elément à Modifier"_s}, num_empmask);
        faute("cle", {{clemask, u"  "_s}, {Rais_SocEdit, u""_s}},
              {u"Veillez Saisir un Numéro Correct SVP!!!"_s}, num_empmask);
        faute("doublon avant noms", {{num_empmask, u"11111111"_s}, {clemask, u"87"_s}, {Rais_SocEdit, u""_s}},
              {u"Cet Employeur Existe Déja!"_s}, num_empmask);
        faute("raison avant telephone", {{Rais_SocEdit, u" "_s}, {telEdit, u"1"_s}},
              {u"Veuillez Saisir la Raison Sociale SVP!!!"_s}, Rais_SocEdit);
        faute("adresse", {{AdresseEdit, u" "_s}}, {u"Veuillez Saisir une Adresse SVP!!!"_s}, AdresseEdit);
        faute("telephone avant mail", {{telEdit, u"0050112233"_s}, {mailEdit, u"x"_s}},
              {u"le deuxième chiffre ne doit pas etre égal à zéro pour les lignes mobile "_s,
               u"Numéro de télephone incorrecte, exemple  format (10 chiffres) : 0660112233 ou 0021445566"_s},
              telEdit);
        faute("mail", {{mailEdit, u"a@b"_s}},
              {u"Adresse Mail incorrecte , manque du caractère '.' !!"_s, u"Format E - Mail incorrecte"_s},
              mailEdit);
    }

    void modificationRefusee()
    {
        QFETCH(Valeurs6, saisi);
        QFETCH(QStringList, boites);
        QFETCH(QString, focus);
        BaseReference essai;
        DialogueScenario dialogue;
        FicheEmployeur fiche = correcte;
        QCOMPARE(sur(creerEmployeur(essai.base, fiche, dialogue)), pasDeRefus);
        const FicheEmployeur lue = lireFicheEmployeur(essai.base.RsEmployeur.courant());
        essai.base.Cnx.executer(u"INSERT INTO employeur VALUES ('11111111', 'A', 'B', '', '')"_s);
        const QStringList avant = essai.lignes(tousLesEmployeurs);

        fiche = lue;
        for (auto valeur = saisi.begin(); valeur != saisi.end(); ++valeur)
            champ(fiche, valeur.key()) = valeur.value();
        for (const QString &boite : boites)
            dialogue.attendreAvertissement(boite);
        QCOMPARE(sur(modifierEmployeur(essai.base, essai.base.RsEmployeur.courant(), fiche, lue, dialogue)),
                 focus);
        QVERIFY(dialogue.acheve());
        QCOMPARE(essai.lignes(tousLesEmployeurs), avant);
    }

    void modification()
    {
        BaseReference essai;
        DialogueScenario dialogue;
        FicheEmployeur fiche = correcte;
        creerEmployeur(essai.base, fiche, dialogue);
        essai.base.Cnx.executer(u"INSERT INTO employeur VALUES ('9', 'A', 'B', NULL, NULL)"_s);
        essai.base.Cnx.executer(
            u"INSERT INTO entete_das (num_emp, annee, Type) VALUES ('12345678', 2023, 1)"_s);
        essai.base.RsEmployeur.requery();

        const FicheEmployeur lue = lireFicheEmployeur(essai.base.RsEmployeur.courant());
        QCOMPARE(lue.clemask, u"47"_s);
        fiche = {u"87654321"_s, u"43"_s, u"N'est; plus"_s, u"Là\nbas"_s, u"00 21 44 55"_s, u""_s};
        QCOMPARE(sur(modifierEmployeur(essai.base, essai.base.RsEmployeur.courant(), fiche, lue, dialogue)),
                 pasDeRefus);
        QCOMPARE(essai.lignes(tousLesEmployeurs),
                 (QStringList{u"87654321|N'est; plus|Là bas|00214455|"_s, u"9|A|B|NULL|NULL"_s}));
        // The declarations stay under the old number.
        QCOMPARE(essai.lignes(u"SELECT num_emp FROM entete_das"_s), QStringList{u"12345678"_s});

        essai.base.RsEmployeur.allerA(1);
        const FicheEmployeur courte = lireFicheEmployeur(essai.base.RsEmployeur.courant());
        QCOMPARE(courte.clemask, u"  "_s);
        fiche = courte;
        fiche.num_empmask = u"12345678"_s;
        fiche.clemask = u"47"_s;
        QCOMPARE(
            sur(modifierEmployeur(essai.base, essai.base.RsEmployeur.courant(), fiche, courte, dialogue)),
            pasDeRefus);
    }

    void suppression()
    {
        BaseReference essai;
        DialogueScenario dialogue;
        Base &base = essai.base;
        for (const QString &numero : {u"11111111"_s, u"22222222"_s})
            base.RsEmployeur.ajouter({{u"num_emp"_s, numero}, {u"rais_soc"_s, u"A"}, {u"adresse"_s, u"B"}});
        base.Cnx.executer(u"INSERT INTO entete_das (num_emp, annee, Type) VALUES ('11111111', 2023, 1)"_s);
        base.Cnx.executer(
            u"INSERT INTO Entete_Dac (NumEmployeur, Periode, Type_Dac) VALUES ('22222222', '202301', 1)"_s);

        const QString question = u"confirmer la suppression?"_s;
        const QString titre = u"confirmation"_s;
        base.RsEmployeur.allerA(0);
        dialogue.attendreQuestion(question, false, titre);
        QVERIFY(!supprimerEmployeur(base, dialogue));
        dialogue.attendreQuestion(question, true, titre);
        dialogue.attendreAvertissement(
            u"Il existe une ou plusieurs en-têtes DAS pour cet employeur, supprimez les d'abord"_s);
        QVERIFY(!supprimerEmployeur(base, dialogue));
        QCOMPARE(base.RsEmployeur.nombre(), 2);

        // Headers of other declarations do not stand in the way.
        base.RsEmployeur.allerA(1);
        dialogue.attendreQuestion(question, true, titre);
        QVERIFY(supprimerEmployeur(base, dialogue));
        QCOMPARE(essai.lignes(u"SELECT num_emp FROM employeur"_s), QStringList{u"11111111"_s});
    }

    /// The banks' window deletes the current employer.
    void suppressionDepuisLesBanques()
    {
        BaseReference essai;
        DialogueScenario dialogue;
        Base &base = essai.base;
        const QString question = u"confirmer la suppression?"_s;
        const QString titre = u"confirmation"_s;
        base.RsEmployeur.ajouter({{u"num_emp"_s, u"11111111"}, {u"rais_soc"_s, u"A"}, {u"adresse"_s, u"B"}});
        dialogue.attendreQuestion(question, true, titre);
        QVERIFY(!supprimerDepuisBanques(base, dialogue));

        base.RsBanque.ajouter({{u"Code"_s, u"001"}});
        base.Cnx.executer(u"INSERT INTO entete_das (num_emp, annee, Type) VALUES ('11111111', 2023, 1)"_s);
        dialogue.attendreQuestion(question, true, titre);
        dialogue.attendreAvertissement(
            u"Il existe une ou plusieurs en-têtes DAS pour cet employeur, supprimez les d'abord"_s);
        QVERIFY(!supprimerDepuisBanques(base, dialogue));

        base.Cnx.executer(u"DELETE FROM entete_das"_s);
        dialogue.attendreQuestion(question, true, titre);
        QVERIFY(supprimerDepuisBanques(base, dialogue));
        QVERIFY(base.RsEmployeur.vide());
        QCOMPARE(essai.lignes(toutesLesBanques), QStringList{u"001|NULL|NULL"_s});

        dialogue.attendreQuestion(question, true, titre);
        QVERIFY_THROWS_EXCEPTION(ErreurBase, supprimerDepuisBanques(base, dialogue));
    }

    void banques_data()
    {
        QTest::addColumn<QStringList>("saisi");
        QTest::addColumn<bool>("ajout");
        QTest::addColumn<QString>("boite");
        QTest::addColumn<QString>("focus");
        const QString code = u"CodeBnq"_s;
        const QString abreviation = u"AbreviatBnq"_s;
        const QString libelle = u"LibelleBnq"_s;
        const auto ligne = [](const char *nom, bool ajout, const QStringList &saisi, const QString &boite,
                              const QString &focus) {
            QTest::newRow(nom) << saisi << ajout << boite << focus;
        };
        const QString positions = u" le code de la banque doit être sur 3 positions"_s;

        ligne("ajout", true, {u"003"_s, u"C'P"_s, u"Crédit;\r\nPop"_s}, {}, pasDeRefus);
        ligne("ajout, doublon d'abord", true, {u"001"_s, u""_s, u""_s}, u"cette banque existe déja!"_s, code);
        ligne("ajout, rien", true, {u"___"_s, u""_s, u""_s},
              u"Veuillez saisir l'abréviation de la Banque SVP"_s, abreviation);
        ligne("ajout, sans libelle", true, {u"003"_s, u"CPA"_s, u" "_s},
              u"Veuillez saisir la désignation SVP"_s, libelle);
        ligne("ajout, code incomplet", true, {u"03_"_s, u"CPA"_s, u"Crédit"_s}, positions, code);
        ligne("modification", false, {u"003"_s, u"B\nN"_s, u"Nouvelle"_s}, {}, pasDeRefus);
        ligne("modification du libelle", false, {u"001"_s, u"BNA"_s, u"Nouvelle"_s}, {}, pasDeRefus);
        ligne("modification, rien", false, {u"001"_s, u"BNA"_s, u"Nationale"_s},
              u"Aucun Elément à Modifier"_s, code);
        ligne("modification, code court", false, {u"03 "_s, u""_s, u""_s}, positions, code);
        ligne("modification, code troue", false, {u"0 3"_s, u""_s, u""_s}, positions, code);
        ligne("modification, doublon", false, {u"002"_s, u""_s, u""_s}, u"Cette Banque Existe Déja!"_s, code);
        ligne("modification, sans abreviation", false, {u"001"_s, u" "_s, u""_s},
              u"Veuillez Saisir l'abreviation SVP!!!"_s, abreviation);
        ligne("modification, sans libelle", false, {u"001"_s, u"BNA"_s, u""_s},
              u"Veuillez Saisir la dsignation SVP!!!"_s, libelle);
    }

    void banques()
    {
        QFETCH(QStringList, saisi);
        QFETCH(bool, ajout);
        QFETCH(QString, boite);
        QFETCH(QString, focus);
        BaseReference essai;
        DialogueScenario dialogue;
        Base &base = essai.base;
        base.Cnx.executer(
            u"INSERT INTO Banque VALUES ('001', 'BNA', 'Nationale'), ('002', 'BEA', 'Extérieure')"_s);
        base.RsBanque.requery();
        const QStringList avant = essai.lignes(toutesLesBanques);

        FicheBanque fiche{saisi[0], saisi[1], saisi[2]};
        if (!boite.isEmpty())
            dialogue.attendreAvertissement(boite);
        QCOMPARE(sur(ajout ? creerBanque(base, fiche, dialogue)
                           : modifierBanque(base, base.RsBanque.courant(), fiche,
                                            lireFicheBanque(base.RsBanque.courant()), dialogue)),
                 focus);
        QVERIFY(dialogue.acheve());

        const QString ecrite = saisi.join(u'|').replace(u"\r\n"_s, u" "_s).replace(u'\n', u' ');
        QStringList apres = avant;
        if (focus == pasDeRefus && ajout)
            apres += ecrite;
        else if (focus == pasDeRefus)
            apres[0] = ecrite;
        QCOMPARE(essai.lignes(toutesLesBanques), apres);
        QCOMPARE(base.RsBanque.texte(u"Code"), focus == pasDeRefus ? saisi[0] : u"001"_s);
    }

    /// What the database itself refuses leaves the table as it was.
    void abreviationTropLarge()
    {
        BaseReference essai;
        DialogueScenario dialogue;
        FicheBanque fiche{u"001"_s, u"ABREVIATION"_s, u"Banque"_s};
        QVERIFY_THROWS_EXCEPTION(ErreurBase, creerBanque(essai.base, fiche, dialogue));
        QVERIFY(essai.base.RsBanque.vide());
        QCOMPARE(essai.lignes(toutesLesBanques), QStringList());
    }

    void blancAuDebut()
    {
        DialogueScenario dialogue;
        for (const QString &bon : {u"________"_s, u"1       "_s, u""_s}) {
            QString champ = bon;
            QVERIFY(!refuserBlancAuDebut(champ, dialogue));
            QCOMPARE(champ, bon);
        }
        QString champ = u" 123____"_s;
        dialogue.attendreAvertissement(u"Veuillez à ne pas insérer de blancs au début "_s);
        QVERIFY(refuserBlancAuDebut(champ, dialogue));
        QCOMPARE(champ, u"        "_s);
    }

    void disquePlein()
    {
        BaseReference essai;
        DialogueScenario dialogue;
        FicheEmployeur fiche = correcte;
        creerEmployeur(essai.base, fiche, dialogue);
        const FicheEmployeur lue = lireFicheEmployeur(essai.base.RsEmployeur.courant());
        const qint64 pages = essai.base.Cnx.premiere(u"PRAGMA page_count"_s).entier(0);
        essai.base.Cnx.existe(u"PRAGMA max_page_count = %1"_s.arg(pages));

        // Rows are added until the file may not grow any more; that one is not there then, and the others
        // are.
        int ajoutes = 1;
        QString echec;
        for (int numero = 10'000'000; echec.isEmpty() && ajoutes < 10'000; ++numero) {
            FicheEmployeur suivante{QString::number(numero), {}, u"R"_s.repeated(40),
                                    u"A"_s.repeated(50),     {}, {}};
            suivante.clemask = CleSS(suivante.num_empmask);
            try {
                QCOMPARE(sur(creerEmployeur(essai.base, suivante, dialogue)), pasDeRefus);
                ++ajoutes;
            } catch (const ErreurBase &erreur) {
                echec = erreur.texte();
            }
        }
        QVERIFY2(echec.startsWith(u"Le disque qui porte"), qPrintable(echec));
        QCOMPARE(essai.base.RsEmployeur.nombre(), ajoutes);
        QCOMPARE(essai.lignes(u"SELECT count(*) FROM employeur"_s), QStringList{QString::number(ajoutes)});

        essai.base.Cnx.existe(u"PRAGMA max_page_count = 1000000"_s);
        essai.base.RsEmployeur.allerA(0);
        fiche = lue;
        fiche.telEdit.clear();
        QCOMPARE(sur(modifierEmployeur(essai.base, essai.base.RsEmployeur.courant(), fiche, lue, dialogue)),
                 pasDeRefus);
    }

    /// The lock of another program is waited for, then told; nothing is written.
    void baseOccupee()
    {
        BaseReference essai;
        DialogueScenario dialogue;
        essai.base.Cnx.existe(u"PRAGMA busy_timeout = 50"_s);
        Connexion autre;
        autre.ouvrir(essai.chemin());
        Transaction verrou(autre);
        FicheEmployeur fiche = correcte;
        QString echec;
        try {
            creerEmployeur(essai.base, fiche, dialogue);
        } catch (const ErreurBase &erreur) {
            echec = erreur.texte();
        }
        QVERIFY2(echec.contains(u"occupée par un autre programme"), qPrintable(echec));
        QVERIFY(essai.base.RsEmployeur.vide());

        verrou.annuler();
        QCOMPARE(sur(creerEmployeur(essai.base, fiche, dialogue)), pasDeRefus);
    }

    /// A row that another program has changed or deleted since it was read is not overwritten.
    void deuxProgrammes()
    {
        BaseReference essai;
        DialogueScenario dialogue;
        FicheEmployeur fiche = correcte;
        creerEmployeur(essai.base, fiche, dialogue);
        const FicheEmployeur lue = lireFicheEmployeur(essai.base.RsEmployeur.courant());
        Connexion autre;
        autre.ouvrir(essai.chemin());
        autre.executer(u"UPDATE employeur SET adresse = 'Ailleurs'"_s);
        fiche = lue;
        fiche.Rais_SocEdit = u"Autre"_s;
        QVERIFY_THROWS_EXCEPTION(ErreurBase, modifierEmployeur(essai.base, essai.base.RsEmployeur.courant(),
                                                               fiche, lue, dialogue));
        QCOMPARE(essai.base.RsEmployeur.texte(u"adresse"), u"Ailleurs"_s);

        autre.executer(u"DELETE FROM employeur"_s);
        dialogue.attendreQuestion(u"confirmer la suppression?"_s, true, u"confirmation"_s);
        QVERIFY_THROWS_EXCEPTION(ErreurBase, supprimerEmployeur(essai.base, dialogue));
        QVERIFY(essai.base.RsEmployeur.vide());
    }
};

QTEST_GUILESS_MAIN(TestEmployeurs)

#include "test_employeurs.moc"
