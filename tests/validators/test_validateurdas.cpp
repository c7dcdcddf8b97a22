#include "rules/erreurs.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/validators/fichierdessai.h"
#include "validators/formats.h"
#include "validators/impression.h"
#include "validators/validateurdas.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString anomalie =
    u"Votre fichier présente des anomalies, veuillez vérifier les paramêtres régionaux de votre ordinateur SVP  (mettez le '.' au lieu de la ','   comme sépateur décimal) !"_s;
const QString retournee =
    u"Votre Das Contient des Erreurs !!!\nElle sera retournée par la KORVANDEL !!!\nVeuillez Corriger votre Fichier avant envoi, S.V.P!!!"_s;
const QString tauxSS =
    u"Votre DAS sera retourné par la KORVANDEL, un taux de %1  % de salariés uniquement possèdent un numéro SS valide"_s;
const QString marque = essaiDas.marque;
const QString nomBon = essaiDas.nom;
const QString bonneLigne = essaiDas.bonneLigne;

QStringList lignesDe(int nombre, const QString &changements = {})
{
    return QStringList(nombre, ligneAvec(bonneLigne, changements));
}

/// A plain box, under the application's title where it has none of its own.
Attente boite(const QString &texte, const QString &titre = TitreApplication.toString())
{
    Attente attente;
    attente.boite = {titre, texte};
    return attente;
}

Attente info(const QString &texte) { return boite(texte, u"DAS INFO"_s); }

Attente resume(qsizetype rejets, qsizetype sansIncidence)
{
    return boite(u"Extraction Terminée avec Nombre Erreurs : \n  - De Rejet : %1\n  - Sans Incidence : %2"_s
                     .arg(rejets)
                     .arg(sansIncidence));
}

const Attente echec = boite(anomalie);
const Attente retour = boites::avertissement(retournee);

Verdict extraire(Validateur &validateur, const QStringList &lignes, const Attentes &boites,
                 const QString &nom = nomBon)
{
    DialogueScenario dialogue;
    dialogue.attendre(boites);
    return extraire(validateur, lignes, nom, dialogue);
}

} // namespace

class TestValidateurDas : public QObject
{
    Q_OBJECT

private slots:
    // A line that takes the failure path: what it listed before stays, it is not counted.
    void ligneEnEchec()
    {
        const auto echouer = [](const QString &ligne, int rejets) {
            const QString faute = u"Numéro DAS Nul!!! Il Doit Etre Supérieur à 0 !!!"_s;
            ValidateurDas validateur;
            QCOMPARE(extraire(validateur,
                              QStringList{marque, u"12345678;2024;0;0;1;"_s} + lignesDe(2) +
                                  QStringList{ligne, u""_s},
                              {info(faute), echec}),
                     Verdict::Interrompue);
            QCOMPARE(validateur.nbLignes, 2);
            QCOMPARE(validateur.totalSalaires.valeur(), 2001.0);
            QVERIFY2(validateur.rejets.taille() == rejets, qPrintable(ligne));
            QCOMPARE(libelle(validateur, u"LabDAS"_s), faute);
            QCOMPARE(libelle(validateur, u"LabDAS2"_s), u""_s);
            QVERIFY(!validateur.ongletsPermis());
        };
        echouer(bonneLigne.chopped(1), 0); // thirty fields
        echouer(u""_s, 0);
        for (const auto &[change, rejets] : {std::pair(u"1=80.234000168"_s, 0),
                                             {u"17=12.a"_s, 1},
                                             {u"17=12.1a|3=1"_s, 2},
                                             {u"20="_s, 1},
                                             {u"20=31/06/2024"_s, 1},
                                             {QString(u"17="_s + QString(400, u'9')), 0}})
            echouer(ligneAvec(bonneLigne, change), rejets);
    }

    void entete()
    {
        const auto finir = [](const QString &nom, const QStringList &lignes, const Attentes &boites,
                              const QString &LabDAS = {}) {
            ValidateurDas validateur;
            QCOMPARE(extraire(validateur, lignes, boites, nom), Verdict::Interrompue);
            QCOMPARE(libelle(validateur, u"LabDAS"_s), LabDAS);
            QCOMPARE(libelle(validateur, u"LabDAS2"_s), u""_s);
        };
        const Attente mauvaise = info(
            u"Erreur Première Ligne différente de   DAS KORVANDEL VER 3.0   \nVeuillez corriger SVP !!!"_s);
        const QString bon = u"12345678;2024;1;10;1;"_s;
        const Attentes zero{resume(0, 0), echec};
        const QString zeros = u"Nbre Erreurs De Rejet : 0 ,  Sans Incidence : 0\n"_s;

        finir(u""_s, {marque}, {info(u"Aucun fichier n'a été sélectionné !!!"_s)});
        for (const QString &nom : {u"12345678_DAS_2024.text"_s, u"12345678_DAS_2024txt"_s})
            finir(nom, {u""_s}, {info(u"Format Fichier Sélectionné Incorrect (Différent de .txt) !!!"_s)});
        finir(nomBon, {u""_s}, {info(u"FICHIER VIDE !!!!!!!!!!!"_s)});
        for (const QStringList &lignes : {QStringList{marque}, {marque, u""_s}})
            finir(nomBon, lignes, {info(u"FICHIER INCOMPLET !!!!!!!!!!!"_s)});
        for (const QString &premiere :
             {u"DAS KORVANDEL VER 2.0"_s, u"DAS  KORVANDEL VER 3.0"_s, u"\u00A0"_s + marque})
            finir(nomBon, {premiere, bon}, {mauvaise, echec});
        finir(nomBon, {marque, u"12345678;2024;1;10;1"_s}, {echec});
        for (const QString &ligne :
             {bon + u"x;y"_s, u" 12345678 ; 2024 ; 1 0 ; 1 000,5 ; 1 ;"_s, u"12345678;2024;00;;;"_s})
            finir(u"12345678_das_2024_copie.TxT"_s, {u"  das korvandel\t ver 3.0\t"_s, ligne}, zero, zeros);

        const Attente employeur = boite(
            u"Erreur N° Employeur Deuxième Ligne différent du Nom du Fichier \nVeuillez corriger SVP !!!"_s);
        const Attente annee =
            boite(u"Erreur Année Deuxième Ligne différente du Nom du Fichier \nVeuillez corriger SVP !!!"_s);
        const QString labEmployeur = u"N° Employeur Deuxième Ligne différent du Nom du Fichier!!!"_s;
        const QString labAnnee = u"Année Deuxième Ligne différente du Nom du Fichier!!!"_s;
        finir(u"12345679_DAS_2024.txt"_s, {marque, bon}, {employeur}, labEmployeur);
        finir(u"12345678_DAS_2023.txt"_s, {marque, bon}, {annee}, labAnnee);
        finir(u"a.txt"_s, {marque, bon}, {employeur, annee}, labEmployeur + u'\n' + labAnnee);
        finir(u"12345678.txt"_s, {marque, u"12345678;;0;10;1;"_s}, {echec});
        finir(u"12345678_DAS_ABCD.txt"_s, {marque, u"12345678;ABCD;0;10;1;"_s}, {echec});

        const QString numero = u"Numéro DAS Non Numérique ou Négatif!!!"_s;
        const QString total = u"Montant Total des Salaires Non Numérique ou Négatif"_s;
        const QString effectif = u"Nombre Total des Salariés Non Numérique ou Négatif"_s;
        for (const auto &[ligne, texte] :
             {std::pair(u" 0;10;1;"_s, u"Numéro DAS Nul!!! Il Doit Etre Supérieur à 0 !!!"_s),
              {u"1a;10;1;"_s, numero},
              {u"1;-10;1;"_s, total + u"!!!"_s},
              {u"1;1.5,3;-1;"_s, effectif + u"!!!"_s},
              {u"-1;a;1.0;"_s, numero + u'\n' + total + u" !!!\n"_s + effectif + u" !!!"_s}})
            finir(nomBon, {marque, u"12345678;2024;"_s + ligne}, {info(texte), resume(0, 0), echec},
                  texte + u'\n' + zeros);
    }

    void taux()
    {
        // How many lines of each kind, with the changes of the kind; the count of the header; what is listed.
        const auto juger = [](const QString &lignes, int effectif, int rejets, int sansIncidence,
                              Attentes boites) {
            QStringList fichier{marque, u"12345678;2024;1;0;%1;"_s.arg(effectif)};
            for (const QString &sorte : lignes.split(u' '))
                fichier += lignesDe(sorte.section(u':', 0, 0).toInt(), sorte.section(u':', 1));
            const QString fin = boites.isEmpty() ? QString() : boites.last().boite.texte;
            boites.prepend(resume(rejets, sansIncidence));
            ValidateurDas validateur;
            QCOMPARE(extraire(validateur, fichier, boites), fin == retournee  ? Verdict::Rejetee
                                                            : fin == anomalie ? Verdict::Interrompue
                                                                              : Verdict::Acceptee);
            QCOMPARE(validateur.ongletsPermis(), fin != anomalie);
            QCOMPARE(libelle(validateur, u"LabDAS2"_s).endsWith(u'\n'), fin == retournee);
        };
        const auto ss = [](const QString &taux) { return boite(tauxSS.arg(taux)); };
        const auto cpt = [](const QString &taux) {
            return boite(
                u"Votre DAS possède un taux de %1  % de salariés ne possèdent  pas de compte CCP ou bancaire"_s
                    .arg(taux));
        };
        const auto nin = [](const QString &taux) {
            return boites::information(
                u"Votre DAS présente un faible taux %1  % de salariés possèdent un NIN correcte !"_s.arg(
                    taux));
        };
        const QString zero = u".00"_s;

        juger(u"3"_s, 3, 0, 0, {});
        juger(u"2 1:1=abc"_s, 3, 1, 0, {ss(u"66.67"_s), retour});
        // The rate is that of the header's employees, the figure that of the nationals.
        juger(u"3 2:11=O|26=5"_s, 6, 0, 0, {ss(u"166.67"_s), retour});
        juger(u"1:1=abc"_s, 1, 1, 0, {ss(zero), retour});
        juger(u"1:1=000000000000|21=S|20=01/07/2024"_s, 1, 0, 1, {});
        juger(u"2:11=O|26=5"_s, 2, 0, 0, {});
        juger(u"2:11=O|26=5"_s, 3, 0, 0, {echec}); // no national to divide by
        juger(u"1"_s, 0, 0, 0, {echec});
        juger(u"9 1:12="_s, 10, 1, 0, {});
        juger(u"17 2:12="_s, 19, 2, 0, {cpt(u"10.53"_s), retour});
        juger(u"9 1:12= 1:11=Z|12=1"_s, 11, 2, 1, {cpt(u"18.18"_s), retour}); // a wrong code is a national's
        juger(u"3 7:30="_s, 10, 0, 7, {});
        juger(u"2 5:30="_s, 7, 0, 5, {nin(u"28.57"_s)});
        // The rate is that of those who entered, the figure that of all nationals.
        juger(u"1 3:30= 4:21=S|20=01/07/2024"_s, 8, 0, 3, {nin(u"12.50"_s)});
        juger(u"1:21=e"_s, 1, 0, 0, {nin(zero)});
        // An entry behind the campaign and a type rewritten to "E" are not counted among those who entered.
        juger(u"1 3:30=|18=0|19=J|20=01/07/2024"_s, 4, 0, 9, {});
        juger(u"1 3:30=|21=x"_s, 4, 0, 6, {});
        juger(u"1:12=|30=|1=x"_s, 1, 2, 1, {ss(zero), cpt(u"100.00"_s), nin(zero), retour});
        juger(u"1:12=|30=|1=x|7="_s, 1, 3, 1, {retour}); // a hard reject silences the rates
    }

    void totaux()
    {
        // The wages of the lines, parted by "|"; the total of the header, which counts two.
        const auto comparer = [](const QString &salaires, const QString &total, const QString &montants,
                                 const QString &nombres) {
            QStringList lignes{marque, u"12345678;2024;1;%1;2;"_s.arg(total)};
            for (const QString &salaire : salaires.split(u'|'))
                lignes += lignesDe(1, u"17="_s + salaire);
            const bool lus = !montants.isEmpty(), retournes = nombres.endsWith(u'\n');
            Attentes boites{resume(0, 0)};
            if (!lus)
                boites += echec;
            else if (retournes)
                boites += {boite(tauxSS.arg(u"100.00")), retour};
            ValidateurDas validateur;
            QCOMPARE(extraire(validateur, lignes, boites), !lus        ? Verdict::Interrompue
                                                           : retournes ? Verdict::Rejetee
                                                                       : Verdict::Acceptee);
            QCOMPARE(libelle(validateur, u"LabDAS2"_s),
                     lus ? u"Total Lignes DAS "_s + montants + u"\nTotal Nb Salariés Lignes DAS "_s + nombres
                         : u""_s);
            // The totals are reached, whether or not they can be read; the captions come behind them.
            QVERIFY(validateur.ongletsPermis());
            QCOMPARE(libelle(validateur, u"LabT3"_s), lus ? u"2023-T3"_s : u"(no such label)"_s);
        };
        const QString egal = u"= Entête DAS"_s, moins = u"< Entête DAS de  -"_s,
                      plus = u"> Entête DAS de  "_s;
        comparer(u"1234.5|0,55"_s, u"1 235,05"_s, egal, egal);
        comparer(u"1234.5|1"_s, u"1235.51"_s, moins + u"0.01"_s, egal);
        comparer(u"1234.567|1.999"_s, u"1236.54"_s, plus + u"0.01"_s, egal); // no third decimal
        comparer(u"1.01|1"_s, u"2.005"_s, egal, egal);
        comparer(u"99999999999,99|99999999999,99|0.02"_s, u"199999999765.5"_s, plus + u"234.5"_s,
                 plus + u"1"_s);
        comparer(u"311013818494973,49|0.52"_s, u"311013818494974"_s, egal, egal);
        comparer(u"1"_s, u"2"_s, moins + u"1"_s, moins + u"1\n"_s);
        // What follows the total is the count of the header.
        comparer(u"1|2"_s, u"3;1000000000000000"_s, egal, moins + u"999999999999998\n"_s);
        comparer(u"922337203685478|1"_s, u"1"_s, {}, {});
        comparer(u"1|1"_s, u""_s, {}, {});
    }

    // The words of an earlier extraction stay in front of those of the next; everything else starts anew.
    void deuxExtractions()
    {
        ValidateurDas validateur;
        const QString entete = u"12345678;2024;1;0;1;"_s;
        extraire(validateur,
                 QStringList{marque, entete} + lignesDe(1, u"7=|4=x"_s) + QStringList{u""_s, u""_s}, {echec});
        QCOMPARE(validateur.rejets.taille(), 1);
        extraire(validateur,
                 QStringList{marque, entete} + lignesDe(1) + lignesDe(1, u"3=|22=x"_s) +
                     QStringList{u""_s, u""_s},
                 {echec});
        for (const ListesErreurs *listes : {&validateur.rejets, &validateur.sansIncidence}) {
            QCOMPARE(listes->taille(), 1);
            QCOMPARE(listes->N.taille(), 1);
            QCOMPARE(listes->NP.taille(), 1);
            QCOMPARE(listes->O, std::vector<qint64>{2});
            QCOMPARE(listes->E.taille(), 2);
        }
        QCOMPARE(validateur.rejets.E[0], u"Adresse Vide ou non valide"_s);
        QCOMPARE(validateur.rejets.E[1], u"Prenom est Vide ou incorrecte"_s);
        QCOMPARE(validateur.nbErrRejet, 1);
        QCOMPARE(validateur.nbLignes, 2);
        QCOMPARE(validateur.titreImpression(validateur.rejets),
                 u"LISTE DES ERREURS DE REJET DAS EMPLOYEUR N° 12345678 - ANNEE 2024"_s);
        QCOMPARE(validateur.titreImpression(validateur.sansIncidence),
                 u"LISTE DES ERREURS MODIFIEES DAS EMPLOYEUR N° 12345678 - ANNEE 2024"_s);

        // A fault that had the first file returned does not weigh on the next one.
        const QStringList sansFaute = QStringList{marque, entete.chopped(4) + u"1000,5;1;"_s} + lignesDe(1);
        QCOMPARE(extraire(validateur, sansFaute, {resume(0, 0)}), Verdict::Acceptee);
    }

    // Word by word: a block for each line of the file, and the words paired by rank, so that those of an
    // earlier extraction stand with the lines of the next.
    void impression()
    {
        ListesErreurs listes;
        const auto imprimee = [&listes] {
            const Document document = listeImprimee(listes, u"TITRE"_s);
            QStringList rangees;
            for (qsizetype rang = 0; rang < document.tableau.nombre; ++rang)
                rangees += document.tableau.cellule(rang, 0);
            return rangees.join(u'\n');
        };
        listes.ajouter(u"entrée 1", 3, u"801234000168", u"BENALI Karim", u"mots 1");
        listes.ajouter(u"entrée 2", 3, u"801234000168", u"BENALI Karim", u"mots 2");
        listes.ajouter(u"entrée longue", 12, u"", u" Léa", u"mots 3");
        QCOMPARE(listes.Entrees.plusLong(), u"entrée longue"_s);
        QCOMPARE(imprimee(),
                 u"\n\tTITRE\n\n"
                 "\n  Ligne N°: 3, \tN° SS: 801234000168, \tNom : BENALI Karim\n  Erreur : mots 1\n"
                 "               mots 2\n"
                 "\n  Ligne N°: 12, \tN° SS: , \tNom :  Léa\n  Erreur : mots 3"_s);
        listes.vider();
        listes.ajouter(u"entrée 4", 3, u"5", u"ZIANI Lou", u"mots 4");
        QCOMPARE(imprimee(),
                 u"\n\tTITRE\n\n\n  Ligne N°: 3, \tN° SS: 5, \tNom : ZIANI Lou\n  Erreur : mots 1"_s);
    }

    void fichiers()
    {
        using Cas = std::tuple<QString, Verdict, int, int, int, double>;
        for (const auto &[nom, verdict, rejets, sansIncidence, lignes, total] :
             {Cas(u"11000028_DAS_2024.txt"_s, Verdict::Acceptee, 0, 0, 5, 1895929.25),
              Cas(u"11000045_DAS_2020.txt"_s, Verdict::Acceptee, 0, 4, 100, 344366792252.8),
              Cas(u"14000020_DAS_2021.txt"_s, Verdict::Rejetee, 15, 10, 10, 10111655310.57),
              Cas(u"12000037_DAS_2020.txt"_s, Verdict::Interrompue, 3, 2, 4, 1001668091.18)}) {
            DialogueScenario dialogue;
            dialogue.attendre({verdict == Verdict::Interrompue ? echec : resume(rejets, sansIncidence)});
            if (verdict == Verdict::Rejetee)
                dialogue.attendre({retour});
            ValidateurDas validateur;
            QCOMPARE(validateur.extraire(QFINDTESTDATA(u"fichiers/"_s + nom), dialogue), verdict);
            QCOMPARE(validateur.rejets.taille(), rejets);
            QCOMPARE(validateur.sansIncidence.taille(), sansIncidence);
            QCOMPARE(validateur.nbLignes, lignes);
            QCOMPARE(validateur.totalSalaires.valeur(), total);
        }
    }

    void nonOuvert()
    {
        DialogueScenario dialogue;
        ValidateurDas validateur;
        QVERIFY_THROWS_EXCEPTION(ErreurFichier,
                                 validateur.extraire(u"/absent/12345678_DAS_2024.txt"_s, dialogue));
        dialogue.attendre({info(u"Format Fichier Sélectionné Incorrect (Différent de .txt) !!!"_s)});
        QCOMPARE(validateur.extraire(u"/absent/12345678_DAS_2024.dat"_s, dialogue), Verdict::Interrompue);
    }
};

QTEST_GUILESS_MAIN(TestValidateurDas)
#include "test_validateurdas.moc"
