#include "reference/banques.h"
#include "reference/employeurs.h"
#include "rules/selon.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/storage/baseessai.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace boites;

namespace {

constexpr auto Creation = Forme::Creation;
constexpr auto Modification = Forme::Modification;

const FicheEmployeur correcte{u"12345678"_s,           u"47"_s,          u"SARL L'Étoile; \"Sud\""_s,
                              u"3, rue d'en\r\nbas"_s, u"06 60112233"_s, u" a@b.dz "_s};

const QString pasDeRefus = u"-"_s;

/// The control that a refusal gives the focus to.
QString sur(const std::optional<Refus> &refus) { return refus ? refus->controle.toString() : pasDeRefus; }

const QString tousLesEmployeurs = u"SELECT num_emp, rais_soc, adresse, tel, Mail FROM employeur"_s;

} // namespace

/// What may be added, changed and deleted among employers and banks, and the words that say why not.
class TestEmployeurs : public QObject
{
    Q_OBJECT

    using Saisi = QList<std::pair<QString FicheEmployeur::*, QString>>;
    struct CasEmployeur
    {
        Forme forme;
        Saisi saisi;
        QStringList boites;
        QString focus;
    };

    struct CasBanque
    {
        Forme forme;
        FicheBanque saisie;
        QString boite;
        QString focus;
    };

private slots:
    void ajoutEtModification()
    {
        BaseEssai essai;
        Base &base = essai.base;
        DialogueScenario dialogue;
        FicheEmployeur fiche = correcte;
        QCOMPARE(sur(creerEmployeur(base, fiche, dialogue)), pasDeRefus);
        fiche = {u"87654321"_s, u"43"_s, u"ZED  "_s, u"Ici"_s, u"   "_s, u"  "_s};
        QCOMPARE(sur(creerEmployeur(base, fiche, dialogue)), pasDeRefus);
        const QString etoile = u"12345678|SARL L'Étoile; \"Sud\"|3, rue d'en bas|0660112233|a@b.dz"_s;
        QCOMPARE(essai.lignes(tousLesEmployeurs), (QStringList{etoile, u"87654321|ZED|Ici||"_s}));
        QCOMPARE(base.RsEmployeur.texte(u"num_emp"), u"87654321"_s);

        base.RsEnteteDas.ajouter({{u"num_emp"_s, u"87654321"}, {u"annee"_s, 2023}, {u"Type"_s, 1}});
        const auto changer = [&](const QString &cleLue, const FicheEmployeur &par) {
            const FicheEmployeur lue = lireFicheEmployeur(base.RsEmployeur.courant());
            QCOMPARE(lue.clemask, cleLue);
            fiche = par;
            QCOMPARE(sur(modifierEmployeur(base, base.RsEmployeur.courant(), fiche, lue, dialogue)),
                     pasDeRefus);
        };
        changer(u"43"_s, {u"11111111"_s, u"87"_s, u"N'est; plus"_s, u"Là\nbas"_s, u"00 21 44 55"_s, u""_s});
        // The declarations stay under the old number.
        QCOMPARE(essai.lignes(u"SELECT num_emp FROM entete_das"_s), QStringList{u"87654321"_s});
        base.Cnx.executer(u"INSERT INTO employeur VALUES ('9', 'A', 'B', NULL, NULL)"_s);
        base.RsEmployeur.requery();
        base.RsEmployeur.allerA(2);
        changer(u"  "_s, {u"87654321"_s, u"43"_s, u"A"_s, u"B"_s, {}, {}});
        QCOMPARE(essai.lignes(tousLesEmployeurs),
                 (QStringList{etoile, u"11111111|N'est; plus|Là bas|00214455|"_s, u"87654321|A|B||"_s}));
    }

    void refus_data()
    {
        using F = FicheEmployeur;
        QTest::addColumn<CasEmployeur>("cas");
        const auto cas = [](const char *nom, Forme forme, const Saisi &saisi, const QStringList &boites,
                            const QString &focus) {
            QTest::newRow(nom) << CasEmployeur{forme, saisi, boites, focus};
        };
        const QString cle = u"Veillez saisir un numéro correct SVP"_s;
        const QString num_empmask = u"num_empmask"_s;
        cas("rien", Creation,
            {{&F::num_empmask, u"________"_s}, {&F::clemask, u"  "_s}, {&F::telEdit, u"x"_s}},
            {u"Veuillez saisir la clé du numéro"_s}, u"clemask"_s);
        cas("cle", Creation, {{&F::clemask, u"48"_s}, {&F::telEdit, u"x"_s}}, {cle}, num_empmask);
        cas("numero incomplet", Creation, {{&F::num_empmask, u"1234567_"_s}}, {cle}, num_empmask);
        cas("numero court et sa cle", Creation, {{&F::num_empmask, u"12      "_s}, {&F::clemask, u"95"_s}},
            {cle}, num_empmask);
        cas("telephone avant mail", Creation, {{&F::telEdit, u"1 660112233"_s}, {&F::mailEdit, u"x"_s}},
            {u"le pemier chiffre doit impérativement commencer par zéro !"_s,
             u"Numéro de télephone incorrecte, exemple format (10 chiffres) : 0660112233 ou 0021445566"_s},
            u"telEdit"_s);
        cas("mail avant doublon", Creation,
            {{&F::num_empmask, u"11111111"_s}, {&F::clemask, u"87"_s}, {&F::mailEdit, u"a.b"_s}},
            {u"EMail incorrecte, manque du caractère '@' !!"_s, u"Format E - Mail incorrecte"_s},
            u"mailEdit"_s);
        cas("doublon avant noms", Creation,
            {{&F::num_empmask, u"11111111"_s}, {&F::clemask, u"87"_s}, {&F::Rais_SocEdit, u""_s}},
            {u"cet employeur existe déja!"_s}, num_empmask);
        cas("raison", Creation, {{&F::Rais_SocEdit, u" \n "_s}, {&F::AdresseEdit, u""_s}},
            {u"Veuillez saisir la raison sociale SVP"_s}, u"Rais_SocEdit"_s);
        cas("adresse", Creation, {{&F::AdresseEdit, u"  "_s}}, {u"Veuillez saisir une adresse SVP"_s},
            u"AdresseEdit"_s);
        cas("rien de change", Modification, {}, {u"Aucun Elément à Modifier"_s}, num_empmask);
        cas("cle, modification", Modification, {{&F::clemask, u"  "_s}, {&F::Rais_SocEdit, u""_s}},
            {u"Veillez Saisir un Numéro Correct SVP!!!"_s}, num_empmask);
        cas("doublon avant noms, modification", Modification,
            {{&F::num_empmask, u"11111111"_s}, {&F::clemask, u"87"_s}, {&F::Rais_SocEdit, u""_s}},
            {u"Cet Employeur Existe Déja!"_s}, num_empmask);
        cas("raison avant telephone", Modification, {{&F::Rais_SocEdit, u" "_s}, {&F::telEdit, u"1"_s}},
            {u"Veuillez Saisir la Raison Sociale SVP!!!"_s}, u"Rais_SocEdit"_s);
        cas("adresse, modification", Modification, {{&F::AdresseEdit, u" "_s}},
            {u"Veuillez Saisir une Adresse SVP!!!"_s}, u"AdresseEdit"_s);
        cas("telephone avant mail, modification", Modification,
            {{&F::telEdit, u"0abc"_s}, {&F::mailEdit, u"x"_s}},
            {u"Numéro de télephone incorrecte, exemple  format (10 chiffres) : 0660112233 ou 0021445566"_s},
            u"telEdit"_s);
    }

    void refus()
    {
        QFETCH(CasEmployeur, cas);
        BaseEssai essai;
        Base &base = essai.base;
        DialogueScenario dialogue;
        FicheEmployeur fiche = correcte;
        if (cas.forme == Modification)
            creerEmployeur(base, fiche, dialogue);
        const Enregistrement ligne = base.RsEmployeur.courant();
        const FicheEmployeur lue = cas.forme == Modification ? lireFicheEmployeur(ligne) : correcte;
        // Written by another program: the list in memory does not know it.
        base.Cnx.executer(u"INSERT INTO employeur VALUES ('11111111', 'A', 'B', '', '')"_s);
        const QStringList avant = essai.lignes(tousLesEmployeurs);
        fiche = lue;
        for (const auto &[champ, texte] : cas.saisi)
            fiche.*champ = texte;
        for (const QString &boite : cas.boites)
            dialogue.attendreAvertissement(boite);
        QCOMPARE(sur(cas.forme == Modification ? modifierEmployeur(base, ligne, fiche, lue, dialogue)
                                               : creerEmployeur(base, fiche, dialogue)),
                 cas.focus);
        QVERIFY(dialogue.acheve());
        QCOMPARE(essai.lignes(tousLesEmployeurs), avant);
    }

    /// The banks' window deletes the current employer, and none when it has no row of its own.
    void suppression()
    {
        BaseEssai essai;
        Base &base = essai.base;
        DialogueScenario dialogue;
        const auto oui = [](bool reponse) {
            return question(u"confirmer la suppression?"_s, reponse, u"confirmation"_s);
        };
        const Attente entetes = avertissement(
            u"Il existe une ou plusieurs en-têtes DAS pour cet employeur, supprimez les d'abord"_s);
        for (const auto supprimer : {supprimerEmployeur, supprimerDepuisBanques}) {
            for (const QString &numero : {u"11111111"_s, u"22222222"_s})
                base.RsEmployeur.ajouter({{u"num_emp"_s, numero}});
            base.Cnx.executer(u"INSERT INTO entete_das (num_emp, annee, Type) VALUES ('11111111', 1, 1)"_s);
            if (supprimer == supprimerDepuisBanques) {
                dialogue.attendre({oui(true)});
                QVERIFY(!supprimer(base, dialogue));
                base.RsBanque.ajouter({{u"Code"_s, u"001"}});
            }
            base.RsEmployeur.allerA(0);
            dialogue.attendre({oui(false), oui(true), entetes});
            QVERIFY(!supprimer(base, dialogue));
            QVERIFY(!supprimer(base, dialogue));
            QCOMPARE(base.RsEmployeur.nombre(), 2);

            // Headers of other declarations do not stand in the way.
            base.RsEmployeur.allerA(1);
            base.Cnx.executer(u"INSERT OR IGNORE INTO Entete_Dac (NumEmployeur, Periode, Type_Dac) "
                              "VALUES ('22222222', '202301', 1)"_s);
            dialogue.attendre({oui(true)});
            QVERIFY(supprimer(base, dialogue));
            QCOMPARE(essai.lignes(u"SELECT num_emp FROM employeur"_s), QStringList{u"11111111"_s});

            base.Cnx.executer(u"DELETE FROM entete_das"_s);
            dialogue.attendre({oui(true), oui(true)});
            QVERIFY(supprimer(base, dialogue));
            QVERIFY_THROWS_EXCEPTION(ErreurBase, supprimer(base, dialogue));
        }
        QCOMPARE(base.RsBanque.nombre(), 1);
    }

    void banques_data()
    {
        QTest::addColumn<CasBanque>("cas");
        const auto cas = [](const char *nom, Forme forme, const FicheBanque &saisie, const QString &boite,
                            const QString &focus) {
            QTest::newRow(nom) << CasBanque{forme, saisie, boite, focus};
        };
        const QString code = u"CodeBnq"_s;
        const QString abreviation = u"AbreviatBnq"_s;
        const QString libelle = u"LibelleBnq"_s;
        const QString positions = u" le code de la banque doit être sur 3 positions"_s;
        cas("ajout", Creation, {u"003"_s, u"C'P"_s, u"Crédit;\r\nPop"_s}, {}, pasDeRefus);
        cas("doublon d'abord", Creation, {u"001"_s, u""_s, u""_s}, u"cette banque existe déja!"_s, code);
        cas("rien", Creation, {u"___"_s, u""_s, u""_s}, u"Veuillez saisir l'abréviation de la Banque SVP"_s,
            abreviation);
        cas("sans libelle", Creation, {u"003"_s, u"CPA"_s, u" "_s}, u"Veuillez saisir la désignation SVP"_s,
            libelle);
        cas("code incomplet", Creation, {u"03_"_s, u"CPA"_s, u"Crédit"_s}, positions, code);
        cas("modification", Modification, {u"003"_s, u"B\nN"_s, u"Nouvelle"_s}, {}, pasDeRefus);
        cas("libelle seul", Modification, {u"001"_s, u"BNA"_s, u"Nouvelle"_s}, {}, pasDeRefus);
        cas("rien de change", Modification, {u"001"_s, u"BNA"_s, u"Nationale"_s},
            u"Aucun Elément à Modifier"_s, code);
        cas("code court", Modification, {u"03 "_s, u""_s, u""_s}, positions, code);
        cas("code troue", Modification, {u"0 3"_s, u""_s, u""_s}, positions, code);
        cas("doublon", Modification, {u"002"_s, u""_s, u""_s}, u"Cette Banque Existe Déja!"_s, code);
        cas("sans abreviation", Modification, {u"001"_s, u" "_s, u""_s},
            u"Veuillez Saisir l'abreviation SVP!!!"_s, abreviation);
        cas("sans libelle, modification", Modification, {u"001"_s, u"BNA"_s, u""_s},
            u"Veuillez Saisir la dsignation SVP!!!"_s, libelle);
    }

    void banques()
    {
        QFETCH(CasBanque, cas);
        BaseEssai essai;
        Base &base = essai.base;
        DialogueScenario dialogue;
        base.RsBanque.ajouter({{u"Code"_s, u"002"}, {u"Abreviat"_s, u"BEA"}, {u"Libelle"_s, u"Extérieure"}});
        base.RsBanque.ajouter({{u"Code"_s, u"001"}, {u"Abreviat"_s, u"BNA"}, {u"Libelle"_s, u"Nationale"}});
        QStringList attendu = essai.lignes(u"SELECT * FROM Banque"_s);
        if (!cas.boite.isEmpty())
            dialogue.attendreAvertissement(cas.boite);
        const Enregistrement ligne = base.RsBanque.courant();
        FicheBanque fiche = cas.saisie;
        QCOMPARE(sur(cas.forme == Creation
                         ? creerBanque(base, fiche, dialogue)
                         : modifierBanque(base, ligne, fiche, lireFicheBanque(ligne), dialogue)),
                 cas.focus);
        QVERIFY(dialogue.acheve());

        if (cas.boite.isEmpty()) {
            if (cas.forme == Modification)
                attendu.removeLast();
            attendu += QStringList{cas.saisie.CodeBnq, cas.saisie.AbreviatBnq, cas.saisie.LibelleBnq}
                           .join(u'|')
                           .replace(u"\r\n"_s, u" "_s)
                           .replace(u'\n', u' ');
        }
        QCOMPARE(essai.lignes(u"SELECT * FROM Banque"_s), attendu);
        QCOMPARE(base.RsBanque.texte(u"Code"), cas.boite.isEmpty() ? cas.saisie.CodeBnq : u"001"_s);
    }
};

QTEST_GUILESS_MAIN(TestEmployeurs)

#include "test_employeurs.moc"
