#include "das/importdas.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/commun/horloge.h"
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
    const auto champ = [](const QByteArray &texte, int largeur) { return texte.leftJustified(largeur); };
    static const QByteArray modele =
        champ("882345678911", 12) + champ("\xC9LO\xCFSE", 30) + champ("MARIE", 30) + champ("m", 1) +
        champ("04/03/1988", 10) + champ("ADRAR", 40) + champ("12 RUE D'EN BAS", 50) + champ("ALGER", 50) +
        champ("16000", 5) + champ("o", 1) + champ("o", 1) + champ("123456768", 20) + champ("00012345", 20) +
        champ("PAS LU", 30) + champ("MA\xC7ON", 25) + champ("   600 000,5", 15) + champ(" 1 2", 5) +
        champ("m", 1) + champ("01/09/2022", 10) + champ("s", 1) + champ("f", 1) + champ("0550112233", 10) +
        champ("a@b.dz", 40) + champ("12ab", 15) + champ("004", 3);
    return poser(modele, textes) + "\r\n";
}

/// What an import adds to, in a few words a row, in the order of entry.
QStringList rangees(Connexion &cnx)
{
    return BaseDas::lignes(
        cnx,
        u"SELECT mots FROM (SELECT 1 AS t, rowid AS r, 'employeur ' || num_emp AS mots FROM employeur "
        "UNION ALL SELECT 2, rowid, 'campagne ' || annee || ' ' || compagne FROM annee "
        "UNION ALL SELECT 3, rowid, 'salarie ' || Num_Salarie || ' ' || cpt_z || ' ' || nom FROM salarie "
        "UNION ALL SELECT 4, rowid, 'entete ' || num_emp || ' ' || annee || ' «' || Type || '» ' || "
        "sum_annuel FROM entete_das "
        "UNION ALL SELECT 5, rowid, 'ligne ' || num_salarie || ' ' || cpt_z || ' «' || type_das || '» ' || "
        "sal_annuel FROM ligne_das) ORDER BY t, r"_s);
}

const QByteArray debut = marque2 + entete();

const auto sansArret = [](qint64) { return true; };

} // namespace

class TestImportDas : public QObject
{
    Q_OBJECT

    /// @param refus "text|title" of a box, or the beginning of a failure; empty when all goes well
    /// @param ajoutees what the file adds to tables that hold something already
    static void importer(const QByteArray &fichier, const QString &refus, const QStringList &ajoutees)
    {
        BaseDas donnees;
        Base &base = donnees.base;
        base.Cnx.inserer(u"employeur"_s, {{u"num_emp"_s, u"99999999"}});
        base.RsEmployeur.requery();
        donnees.entete(2);
        donnees.ajouter(u"990000000000"_s, 7, {{u"nom"_s, u"ANCIEN"}});
        const QStringList avant = rangees(base.Cnx);

        DialogueScenario dialogue;
        dialogue.attendreFichier(donnees.fichier(u"das.txt"_s, fichier));
        const bool boite = refus.contains(u'|');
        if (refus.isEmpty()) {
            dialogue.attendreInformation(u"Importation du fichier DAS effectuée avec succès!"_s);
            dialogue.attendreInformation(u"Veuillez complèter les informations de cet employeur SVP  :  "_s +
                                         ajoutees.filter(u"entete"_s).first().section(u' ', 1, -4));
        } else if (boite) {
            dialogue.attendreAvertissement(refus.section(u'|', 0, 0), refus.section(u'|', 1));
        }
        QString echec;
        try {
            QCOMPARE(importerDas(base, dialogue, sansArret), refus.isEmpty());
        } catch (const Erreur &erreur) {
            echec = erreur.texte();
        }
        QVERIFY(dialogue.acheve());
        QVERIFY2(echec.isEmpty() ? refus.isEmpty() || boite
                                 : !boite && !refus.isEmpty() && echec.startsWith(refus),
                 qPrintable(refus + u" / "_s + echec));
        QVERIFY(!base.Cnx.enTransaction());
        QStringList apres = rangees(base.Cnx);
        for (const QString &rangee : avant)
            QVERIFY2(apres.removeOne(rangee), qPrintable(rangee));
        QCOMPARE(apres, ajoutees);
        QCOMPARE(base.RsEmployeur.texte(u"num_emp"), apres.isEmpty() || !apres[0].startsWith(u"employeur")
                                                         ? u"12345678"_s
                                                         : apres[0].section(u' ', 1));
    }
    static void importer(const QByteArray &fichier, const QStringList &ajoutees)
    {
        importer(fichier, {}, ajoutees);
    }
    static void refuser(const QByteArray &fichier, const QString &refus) { importer(fichier, refus, {}); }

    /// A file of the employer 87654321 that comes in whole.
    static void prendre(BaseDas &donnees, const QByteArray &fichier)
    {
        DialogueScenario dialogue;
        dialogue.attendreFichier(donnees.fichier(u"das.txt"_s, fichier));
        dialogue.attendreInformation(u"Importation du fichier DAS effectuée avec succès!"_s);
        dialogue.attendreInformation(
            u"Veuillez complèter les informations de cet employeur SVP  :  87654321"_s);
        QVERIFY(importerDas(donnees.base, dialogue, sansArret));
    }

private slots:
    void initTestCase() { arreterHorloge({2026, 3, 1}); }

    void bonsFichiers()
    {
        const QString employeur = u"employeur 87654321"_s;
        const QString campagne = u"campagne 2023 du 01/07/2024  au 30/06/2023"_s;
        const QString tete = u"entete 87654321 2023 «1» 12000005000"_s;
        const QString salarie = u"salarie 882345678911 1 ÉLOÏSE"_s;
        const QString fin = u"ligne 882345678911 1 «1» 6000005000"_s;
        const QStringList entier{employeur, campagne, salarie, tete, fin};

        importer(marque1 + entete() + ligne().left(358) + "\n", entier);
        importer(debut, {employeur, campagne, tete});
        importer(debut + ligne().chopped(2), entier);
        importer(debut + ligne().chopped(2) + QByteArray(4096, 'x') + "\r\n", entier);
        importer(marque1 + entete({{1, "12345678"}, {9, "2025"}}) + ligne(),
                 {u"campagne 2025 du 01/07/2026  au 30/06/2025"_s, salarie,
                  u"entete 12345678 2025 «1» 12000005000"_s, fin});
        importer(marque1 + entete({{9, "2026"}}).replace("87654321", "1'; -- x"), // the year of today
                 {u"employeur 1'; -- x"_s, u"campagne 2026 du 01/07/2027  au 30/06/2026"_s,
                  u"entete 1'; -- x 2026 «1» 12000005000"_s});
        // Numbered above the highest of the whole table, which an employee with a number has.
        importer(debut + ligne({{1, "            "}, {13, "UN    "}}) +
                     ligne({{1, "000000000000"}, {13, "DEUX  "}}),
                 {employeur, campagne, u"salarie 000000000000 8 UN"_s, u"salarie 000000000000 9 DEUX"_s, tete,
                  u"ligne 000000000000 8 «1» 6000005000"_s, u"ligne 000000000000 9 «1» 6000005000"_s});
        // A known employee, whatever his order.
        importer(debut + ligne({{1, "990000000000"}}),
                 {employeur, campagne, tete, u"ligne 990000000000 1 «1» 6000005000"_s});
        for (const auto &[lu, ecrit] : {std::pair("  ", u""_s), {"02", u"2"_s}}) {
            importer(marque2 + entete({{13, lu}}) + ligne(),
                     {employeur, campagne, salarie, u"entete 87654321 2023 «%1» 12000005000"_s.arg(ecrit),
                      u"ligne 882345678911 1 «%1» 6000005000"_s.arg(ecrit)});
        }
        // What follows a year of five digits is read where it stands.
        importer(marque2 + entete().insert(12, '5'),
                 {employeur, campagne, u"entete 87654321 2023 «50» 112000005000"_s});
    }

    void fichiersRefuses()
    {
        for (const QByteArray &marque :
             QByteArrayList{"DAS KORVANDEL VER 3.0\r\n", "DAS KORVANDEL VER 2.0 \r\n",
                            "das korvandel ver 2.0\r\n", "\xEF\xBB\xBF" + marque2})
            refuser(marque + entete() + ligne(), u"Fichier incorrect! Importation échouée!!|DAS KORVANDEL"_s);
        refuser("", u"Ligne 1 : Le fichier finit avant la ligne attendue."_s);
        refuser(marque1, u"Ligne 2 : Le fichier finit avant la ligne attendue."_s);
        for (const char *annee : {"1997", "2027"}) {
            refuser(marque2 + entete({{9, annee}}) + ligne(),
                    u"L'année de campagne de cette DAS est incorrecte|Interruption de l'importation"_s);
        }
        // Any declaration of the campaign stands in the way, told before a fault further back in the line.
        refuser(marque2 + entete({{1, "12345678"}, {9, "2024"}, {15, "x"}}) + ligne(),
                u"Veuillez supprimer l'entête DAS saisie, avant importation DAS !|DAS KORVANDEL"_s);
        refuser(marque2 + "876543212023 1\r\n" + ligne(), u"Ligne 2 : «  » n'est pas un nombre."_s);
        for (const auto &[colonne, texte, echec] : {std::tuple(9, "2O23", u"« 2O23 »"_s),
                                                    {13, "1A", u"« 1A »"_s},
                                                    {15, "999999999999999", u"Dépassement de capacité"_s}})
            refuser(marque2 + entete({{colonne, texte}}) + ligne(), u"Ligne 2 : "_s + echec);

        const QByteArray une = debut + ligne({{1, "881111111111"}});
        const QString pasUneDate = u"«  » n'est pas une date"_s, pasUnNombre = u"«  » n'est pas un nombre."_s;
        using Cas = std::pair<Textes, QString>;
        for (const auto &[textes, echec] :
             {Cas({{74, "          "}}, pasUneDate), Cas({{74, "31/02/1988"}}, u"« 31/02/1988 »"_s),
              Cas({{1, "990000000000"}, {74, "04-03-1988"}}, u"« 04-03-1988 »"_s),
              Cas({{326, "   600.000,5"}},
                  u"« 600.000,5 » n'est pas un nombre.\nChamp sal_annuel, colonnes 326 à 340."_s),
              Cas({{341, "     "}}, pasUnNombre)})
            refuser(une + ligne(textes), u"Ligne 4 : "_s + echec);
        for (const auto &[longueur, echec] : {std::pair(40, pasUneDate), {90, pasUnNombre}})
            refuser(une + ligne().left(longueur) + "\r\n", u"Ligne 4 : "_s + echec);
        refuser(debut + ligne() + ligne({{13, "AUTRE "}}),
                u"Ligne 4 : Une ligne de la table ligne_das porte déjà cette clé"_s);
        // Every accent of UTF-8 takes two bytes, so the date stands elsewhere.
        refuser(debut + ligne().replace("\xC9", "\xC3\x89"), u"Ligne 3 : « m04/03/198 »"_s);
    }

    void colonnes()
    {
        const QString nom = u"882345678911|1|ÉLOÏSE|MARIE|M|1988-03-04|12 RUE D'EN BAS|ALGER|16000|123456768|"
                            "00012345|MAÇON|||O|ADRAR|O|F|"_s;
        const QString reste = u"|NULL|NULL|NULL|NULL|NULL|NULL"_s;
        const QByteArray vide = ligne(
            {{13, QByteArray(60, ' ')}, {73, " "}, {84, QByteArray(242, ' ')}, {346, QByteArray(81, ' ')}});
        using Cas = std::tuple<QByteArray, QString, QString>;
        for (const auto &[fichier, salarie, mouvement] :
             {Cas(debut + ligne(), nom + u"0550112233|A@B.DZ|12AB|004"_s, u"M|01/09/2022|S"_s),
              Cas(marque1 + entete() + ligne(), nom + u"|||"_s, u"M|01/09/2022|S"_s),
              Cas(debut + vide, u"882345678911|1||||1988-03-04|||||||||N||N|M||||"_s, u"||E"_s)}) {
            BaseDas donnees;
            prendre(donnees, fichier);
            QCOMPARE(donnees.lignes(u"SELECT * FROM salarie"_s), QStringList{salarie + reste});
            QCOMPARE(donnees.lignes(u"SELECT * FROM ligne_das"_s),
                     QStringList{u"882345678911|1|2023|87654321|1|6000005000|12|"_s + mouvement});
            QCOMPARE(donnees.lignes(u"SELECT * FROM entete_das"_s),
                     QStringList{u"87654321|2023|1|12000005000|2|0|0"_s});
            QCOMPARE(donnees.lignes(u"SELECT * FROM employeur WHERE rowid > 1"_s),
                     QStringList{u"87654321||||"_s});
        }
    }

    /// Each text goes on to its last column.
    void largeurs()
    {
        Textes derniers;
        for (const int colonne : {42, 72, 123, 173, 223, 250, 270, 325, 408, 423})
            derniers.append({colonne, "Z"});
        BaseDas donnees;
        prendre(donnees, debut + ligne(derniers));
        QCOMPARE(donnees.lignes(u"SELECT length(nom), length(prenom), length(lieu_naiss), length(adresse), "
                                "length(ville), length(num_cpt_ccp), length(num_cpt_banc), length(profes), "
                                "length(Email), length(CinNumber) FROM salarie"_s),
                 QStringList{u"30|30|40|50|50|20|20|25|40|15"_s});
    }

    void arret()
    {
        BaseDas donnees;
        const QStringList avant = rangees(donnees.base.Cnx);
        DialogueScenario dialogue;
        dialogue.attendreFichier(donnees.fichier(u"das.txt"_s, debut + ligne() + ligne()));
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
