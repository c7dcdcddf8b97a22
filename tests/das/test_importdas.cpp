#include "das/importdas.h"
#include "rules/date.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/das/basedas.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QByteArray marque1 = "DAS KORVANDEL VER 1.0\r\n";
const QByteArray marque2 = "DAS KORVANDEL VER 2.0\r\n";

/// Texts and the columns, from 1, where they stand.
using Textes = QList<std::pair<int, QByteArray>>;

QByteArray poser(QByteArray ligne, const Textes &textes)
{
    for (const auto &[debut, texte] : textes)
        ligne.replace(debut - 1, texte.size(), texte);
    return ligne;
}

QByteArray entete(const Textes &textes = {})
{
    return poser("87654321202301   1 200 000,50    2", textes) + "\r\n";
}

QByteArray ligne(const Textes &textes = {})
{
    static const QByteArray modele = poser(QByteArray(426, ' '), {{1, "882345678911"},
                                                                  {13, "\xC9LO\xCFSE"},
                                                                  {43, "MARIE"},
                                                                  {73, "m"},
                                                                  {74, "04/03/1988"},
                                                                  {84, "ADRAR"},
                                                                  {124, "12 RUE D'EN BAS"},
                                                                  {174, "ALGER"},
                                                                  {224, "16000"},
                                                                  {229, "o"},
                                                                  {230, "o"},
                                                                  {231, "123456768"},
                                                                  {251, "00012345"},
                                                                  {271, "PAS LU"},
                                                                  {301, "MA\xC7ON"},
                                                                  {326, "   600 000,5"},
                                                                  {341, " 1 2"},
                                                                  {346, "m"},
                                                                  {347, "01/09/2022"},
                                                                  {357, "s"},
                                                                  {358, "f"},
                                                                  {359, "0550112233"},
                                                                  {369, "a@b.dz"},
                                                                  {409, "12ab"},
                                                                  {424, "004"}});
    return poser(modele, textes) + "\r\n";
}

/// What an import adds to, in a few words a row, in the order of entry.
const QString apercu =
    u"SELECT * FROM (SELECT 1, rowid, 'employeur ' || num_emp FROM employeur "
    "UNION ALL SELECT 2, rowid, 'campagne ' || annee || ' ' || compagne FROM annee "
    "UNION ALL SELECT 3, rowid, 'salarie ' || Num_Salarie || ' ' || cpt_z || ' ' || nom FROM salarie "
    "UNION ALL SELECT 4, rowid, 'entete ' || num_emp || ' ' || annee || ' «' || Type || '» ' || sum_annuel "
    "FROM "
    "entete_das "
    "UNION ALL SELECT 5, rowid, 'ligne ' || num_salarie || ' ' || cpt_z || ' «' || type_das || '» ' || "
    "sal_annuel "
    "FROM ligne_das) ORDER BY 1, 2"_s;

QStringList rangees(Connexion &cnx)
{
    QStringList textes;
    Requete requete = cnx.lire(apercu);
    while (requete.suivante())
        textes += requete.texte(2);
    return textes;
}

const auto sansArret = [](qint64) { return true; };

} // namespace

class TestImportDas : public QObject
{
    Q_OBJECT

private slots:
    void importation_data()
    {
        QTest::addColumn<QByteArray>("fichier");
        QTest::addColumn<QString>("refus"); // "text|title" of a box, or the beginning of a failure
        QTest::addColumn<QStringList>("ajoutees");

        const QString employeur = u"employeur 87654321"_s;
        const QString campagne = u"campagne 2023 du 01/07/2024  au 30/06/2023"_s;
        const QString tete = u"entete 87654321 2023 «1» 12000005000"_s;
        const QString salarie = u"salarie 882345678911 1 ÉLOÏSE"_s;
        const QString fin = u"ligne 882345678911 1 «1» 6000005000"_s;
        const QStringList entier{employeur, campagne, salarie, tete, fin};
        const auto bon = [](const char *nom, const QByteArray &fichier, const QStringList &ajoutees) {
            QTest::newRow(nom) << fichier << QString() << ajoutees;
        };
        const auto refuse = [](const char *nom, const QByteArray &fichier, const QString &refus) {
            QTest::newRow(nom) << fichier << refus << QStringList();
        };
        const QByteArray debut = marque2 + entete();

        bon("version 2", debut + ligne(), entier);
        bon("version 1", marque1 + entete() + ligne().left(358) + "\n", entier);
        bon("sans ligne", debut, {employeur, campagne, tete});
        bon("derniere ligne sans fin", debut + ligne().chopped(2), entier);
        bon("ligne de 4 Ko", debut + ligne().chopped(2) + QByteArray(4096, 'x') + "\r\n", entier);
        bon("employeur et campagne connus", marque1 + entete({{1, "12345678"}, {9, "2025"}}) + ligne(),
            {u"campagne 2025 du 01/07/2026  au 30/06/2025"_s, salarie,
             u"entete 12345678 2025 «1» 12000005000"_s, fin});
        bon("annee en cours",
            marque1 + entete({{9, QByteArray::number(aujourdhui().year())}}).replace("87654321", "1'; -- x"),
            {u"employeur 1'; -- x"_s,
             u"campagne %1 du 01/07/%2  au 30/06/%1"_s.arg(aujourdhui().year()).arg(aujourdhui().year() + 1),
             u"entete 1'; -- x %1 «1» 12000005000"_s.arg(aujourdhui().year())});
        // Numbered above the highest of the whole table, which an employee with a number has.
        bon("deux sans numero",
            debut + ligne({{1, "            "}, {13, "UN    "}}) +
                ligne({{1, "000000000000"}, {13, "DEUX  "}}),
            {employeur, campagne, u"salarie 000000000000 8 UN"_s, u"salarie 000000000000 9 DEUX"_s, tete,
             u"ligne 000000000000 8 «1» 6000005000"_s, u"ligne 000000000000 9 «1» 6000005000"_s});
        bon("salarie connu sous un autre ordre", debut + ligne({{1, "990000000000"}}),
            {employeur, campagne, tete, u"ligne 990000000000 1 «1» 6000005000"_s});
        bon("sans numero de DAS", marque2 + entete({{13, "  "}}) + ligne(),
            {employeur, campagne, salarie, u"entete 87654321 2023 «» 12000005000"_s,
             u"ligne 882345678911 1 «» 6000005000"_s});
        bon("numero de DAS sur deux colonnes", marque2 + entete({{13, "02"}}) + ligne(),
            {employeur, campagne, salarie, u"entete 87654321 2023 «2» 12000005000"_s,
             u"ligne 882345678911 1 «2» 6000005000"_s});
        // What follows is read where it stands.
        bon("annee a cinq chiffres", marque2 + entete().insert(12, '5'),
            {employeur, campagne, u"entete 87654321 2023 «50» 112000005000"_s});

        const QString incorrect = u"Fichier incorrect! Importation échouée!!|DAS KORVANDEL"_s;
        refuse("version 3", "DAS KORVANDEL VER 3.0\r\n" + entete() + ligne(), incorrect);
        refuse("marque avec un blanc", "DAS KORVANDEL VER 2.0 \r\n" + entete() + ligne(), incorrect);
        refuse("marque en minuscules", "das korvandel ver 2.0\r\n" + entete() + ligne(), incorrect);
        refuse("marque d'UTF-8", "\xEF\xBB\xBF" + debut + ligne(), incorrect);
        refuse("fichier vide", "", u"Ligne 1 : Le fichier finit avant la ligne attendue."_s);
        refuse("une ligne", marque1, u"Ligne 2 : Le fichier finit avant la ligne attendue."_s);
        const QString campagneFausse =
            u"L'année de campagne de cette DAS est incorrecte|Interruption de l'importation"_s;
        refuse("1997", marque2 + entete({{9, "1997"}}) + ligne(), campagneFausse);
        refuse("annee a venir",
               marque2 + entete({{9, QByteArray::number(aujourdhui().year() + 1)}}) + ligne(),
               campagneFausse);
        refuse("annee qui n'en est pas une", marque2 + entete({{9, "2O23"}}), u"Ligne 2 : « 2O23 »"_s);
        // Any declaration of the campaign stands in the way, told before a fault further back in the line.
        refuse("entete presente", marque2 + entete({{1, "12345678"}, {9, "2024"}, {15, "x"}}) + ligne(),
               u"Veuillez supprimer l'entête DAS saisie, avant importation DAS !|DAS KORVANDEL"_s);
        refuse("entete courte", marque2 + "876543212023 1\r\n" + ligne(),
               u"Ligne 2 : «  » n'est pas un nombre."_s);
        refuse("numero de DAS faux", marque2 + entete({{13, "1A"}}) + ligne(), u"Ligne 2 : « 1A »"_s);
        refuse("total trop grand", marque2 + entete({{15, "999999999999999"}}) + ligne(),
               u"Ligne 2 : Dépassement de capacité"_s);

        const QByteArray une = debut + ligne({{1, "881111111111"}});
        refuse("sans date de naissance", une + ligne({{74, "          "}}),
               u"Ligne 4 : «  » n'est pas une date"_s);
        refuse("date fausse", une + ligne({{74, "31/02/1988"}}), u"Ligne 4 : « 31/02/1988 »"_s);
        refuse("date d'un salarie connu", une + ligne({{1, "990000000000"}, {74, "04-03-1988"}}),
               u"Ligne 4 : « 04-03-1988 »"_s);
        refuse("montant faux", une + ligne({{326, "   600.000,5"}}),
               u"Ligne 4 : « 600.000,5 » n'est pas un nombre.\nChamp sal_annuel, colonnes 326 à 340."_s);
        refuse("duree vide", une + ligne({{341, "     "}}), u"Ligne 4 : «  » n'est pas un nombre."_s);
        refuse("ligne coupee derriere le nom", une + ligne().left(40) + "\r\n",
               u"Ligne 4 : «  » n'est pas une date"_s);
        refuse("ligne coupee derriere la date", une + ligne().left(90) + "\r\n",
               u"Ligne 4 : «  » n'est pas un nombre."_s);
        refuse("deux fois le meme numero", debut + ligne() + ligne({{13, "AUTRE "}}),
               u"Ligne 4 : Une ligne de la table ligne_das porte déjà cette clé"_s);
        // Every accent takes two bytes there, so the date stands elsewhere.
        refuse("UTF-8", debut + ligne().replace("\xC9", "\xC3\x89"), u"Ligne 3 : « m04/03/198 »"_s);
    }

    void importation()
    {
        QFETCH(QByteArray, fichier);
        QFETCH(QString, refus);
        QFETCH(QStringList, ajoutees);
        BaseDas donnees;
        Base &base = donnees.base;
        base.Cnx.inserer(u"employeur"_s, {{u"num_emp"_s, u"99999999"}});
        base.RsEmployeur.requery();
        donnees.entete(2);
        donnees.ajouter(u"990000000000"_s, 7, {{u"nom"_s, u"ANCIEN"}});
        const QStringList avant = rangees(base.Cnx);

        DialogueScenario dialogue;
        dialogue.attendreFichier(donnees.fichier(u"das.txt"_s, fichier));
        const QString titre = refus.section(u'|', 1);
        if (refus.isEmpty()) {
            dialogue.attendreInformation(u"Importation du fichier DAS effectuée avec succès!"_s);
            dialogue.attendreInformation(u"Veuillez complèter les informations de cet employeur SVP  :  "_s +
                                         ajoutees.filter(u"entete"_s).first().section(u' ', 1, -4));
        } else if (!titre.isEmpty()) {
            dialogue.attendreAvertissement(refus.section(u'|', 0, 0), titre);
        }
        QString echec;
        bool fait = false;
        try {
            fait = importerDas(base, dialogue, sansArret);
        } catch (const Erreur &erreur) {
            echec = erreur.texte();
        }
        QVERIFY(dialogue.acheve());
        QCOMPARE(fait, refus.isEmpty());
        QVERIFY2(echec.isEmpty() == (refus.isEmpty() || !titre.isEmpty()), qPrintable(echec));
        if (!echec.isEmpty())
            QVERIFY2(echec.startsWith(refus), qPrintable(echec));
        QVERIFY(!base.Cnx.enTransaction());
        QStringList apres = rangees(base.Cnx);
        for (const QString &rangee : avant)
            QVERIFY2(apres.removeOne(rangee), qPrintable(rangee));
        QCOMPARE(apres, ajoutees);
        QCOMPARE(base.RsEmployeur.texte(u"num_emp"), apres.isEmpty() || !apres[0].startsWith(u"employeur")
                                                         ? u"12345678"_s
                                                         : apres[0].section(u' ', 1));
    }

    void colonnes_data()
    {
        QTest::addColumn<QByteArray>("fichier");
        QTest::addColumn<QString>("salarie");
        QTest::addColumn<QString>("ligneDas");

        const QString jusquAuCompte =
            u"882345678911|1|ÉLOÏSE|MARIE|M|1988-03-04|12 RUE D'EN BAS|ALGER|16000|123456768|00012345|MAÇON|||"_s;
        const QString reste = u"|NULL|NULL|NULL|NULL|NULL|NULL"_s;
        const QString faite = u"882345678911|1|2023|87654321|1|6000005000|12|M|01/09/2022|S"_s;
        QTest::newRow("version 2") << marque2 + entete() + ligne()
                                   << jusquAuCompte + u"O|ADRAR|O|F|0550112233|A@B.DZ|12AB|004"_s + reste
                                   << faite;
        QTest::newRow("version 1") << marque1 + entete() + ligne()
                                   << jusquAuCompte + u"O|ADRAR|O|F||||"_s + reste << faite;
        QTest::newRow("champs vides")
            << marque2 + entete() +
                   ligne({{13, QByteArray(60, ' ')},
                          {73, " "},
                          {84, QByteArray(242, ' ')},
                          {346, QByteArray(81, ' ')}})
            << u"882345678911|1|||| 1988-03-04"_s.remove(u' ') + u"|||||||||N||N|M||||"_s + reste
            << u"882345678911|1|2023|87654321|1|6000005000|12|||E"_s;
    }

    void colonnes()
    {
        QFETCH(QByteArray, fichier);
        QFETCH(QString, salarie);
        QFETCH(QString, ligneDas);
        BaseDas donnees;
        DialogueScenario dialogue;
        dialogue.attendreFichier(donnees.fichier(u"das.txt"_s, fichier));
        dialogue.attendreInformation(u"Importation du fichier DAS effectuée avec succès!"_s);
        dialogue.attendreInformation(
            u"Veuillez complèter les informations de cet employeur SVP  :  87654321"_s);
        QVERIFY(importerDas(donnees.base, dialogue, sansArret));
        QCOMPARE(donnees.lignes(u"SELECT * FROM salarie"_s), QStringList{salarie});
        QCOMPARE(donnees.lignes(u"SELECT * FROM ligne_das"_s), QStringList{ligneDas});
        QCOMPARE(donnees.lignes(u"SELECT * FROM entete_das"_s),
                 QStringList{u"87654321|2023|1|12000005000|2|0|0"_s});
        QCOMPARE(donnees.lignes(u"SELECT * FROM employeur WHERE rowid > 1"_s),
                 QStringList{u"87654321||||"_s});
    }

    void arret()
    {
        BaseDas donnees;
        const QStringList avant = rangees(donnees.base.Cnx);
        DialogueScenario dialogue;
        dialogue.attendreFichier(donnees.fichier(u"das.txt"_s, marque2 + entete() + ligne() + ligne()));
        dialogue.attendreAvertissement(u"Importation arrêtée à la ligne 3 : rien n'a été enregistré."_s,
                                       u"Interruption de l'importation"_s);
        QVERIFY(!importerDas(donnees.base, dialogue, [](qint64 lignes) { return lignes < 1; }));
        QCOMPARE(rangees(donnees.base.Cnx), avant);

        dialogue.attendreFichier({}); // an abandoned choice is a failure like the others
        QVERIFY_THROWS_EXCEPTION(ErreurFichier, importerDas(donnees.base, dialogue, sansArret));
    }
};

QTEST_GUILESS_MAIN(TestImportDas)
#include "test_importdas.moc"
