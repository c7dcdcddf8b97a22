#include "dac/screens/frmdecnom.h"
#include "dac/screens/frmexpdac.h"
#include "rules/saisie.h"
#include "rules/texte.h"
#include "screens/etatsfenetres.h"
#include "screens/grille.h"
#include "storage/lieux.h"
#include "tests/dac/basedac.h"
#include "tests/screens/banc.h"
#include "tests/storage/foyer.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>

using namespace Qt::StringLiterals;

namespace {

/// An employer with two periods and as many employees as are wanted, in the order of their names.
class Donnees : public BancSur<BaseDac>
{
public:
    explicit Donnees(int salaries)
    {
        for (const QString &code : {u"202401"_s, u"202402"_s})
            base.RsPeriode.ajouter({{u"Code"_s, code}, {u"Etat"_s, u"N"_s}});
        base.RsEmployeur.requery();
        for (int i = 1; i <= salaries; ++i) {
            ajouter(numero(i), 1,
                    {{u"nom"_s, QString(u"NOM "_s + ComplZeros(QString::number(i), 2))},
                     {u"prenom"_s, i % 2 == 1 ? u"ANNE" : u"YVES"},
                     {u"num_cpt_ccp"_s, u"007%1"_s.arg(i * 97, 17, 10, QChar(u'0'))}});
        }
    }

    /// A header of the first period, opened in its window.
    std::unique_ptr<frmDecNom> entete(qint64 type = 1)
    {
        BaseDac::entete(type);
        return ouvrir(new frmDecNom(contexte));
    }

    /// The bulk entry of the current header.
    void saisir(frmDecNom &entetes, const std::function<void(QWidget &)> &gestes)
    {
        cliquer(entetes, u"cmddetail"_s);
        QWidget &lignes = *champ(entetes, u"frmlndac"_s);
        activer(lignes);
        dansLaFenetre(lignes, u"cmdajt"_s, u"frm_add_Lndac"_s, gestes);
    }

    /// A line of the principal declaration.
    void ligne(int salarie, const QString &assiette)
    {
        base.Cnx.executer(u"INSERT INTO Ligne_Dac VALUES (?, 1, '202401', 1, '12345678', %1, 22, 'J', "
                          "'2020-01-01', 'E')"_s.arg(assiette),
                          {numero(salarie)});
    }

    QString sommes()
    {
        return lignes(u"SELECT Assiette_Calc / 10000, Effectif_Calc / 10000, Effectif_Reel FROM Entete_Dac"_s)
            .join(u' ');
    }
};

/// Types texts, each with an Enter behind it.
void entrer(const QStringList &saisies)
{
    for (const QString &saisie : saisies) {
        taper(saisie);
        touche(Qt::Key_Return);
    }
}

const QString champs = u"CmbES MskDateES TxtAssiette CmbDT TxtNbJT"_s;

} // namespace

/// The screens of the nominative declaration as a clerk uses them, hands on the keys.
class TestEcransDac : public QObject
{
    Q_OBJECT

private slots:
    void init() { reglages().clear(); }

    /// From an empty list of headers to the file.
    void route()
    {
        constexpr int salaries = 60;
        Foyer foyer;
        QVERIFY(QDir().mkpath(dossierExpor()));
        Donnees essai(salaries);
        const auto entetes = essai.ouvrir(new frmDecNom(essai.contexte));
        QCOMPARE(actifs(*entetes, u"cmdajt cmdmod cmdDelete cmddetail cmdexpor"_s), u"cmdajt"_s);
        champ(*entetes, u"CmbPeriode"_s)->setFocus();
        taper(u"202401"_s);
        champ(*entetes, u"cmbemp"_s)->setFocus();
        touche(Qt::Key_Down);
        QCOMPARE(texte(*entetes, u"lab_RS"_s), u"SARL L'Étoile"_s);
        champ(*entetes, u"sumedit"_s)->setFocus();
        entrer({u"1 800 030,50"_s, u"60"_s});
        QCOMPARE(textes(*entetes, u"sumedit total_salEdit calcsumEdit"_s), u"0|0|"_s);

        essai.saisir(*entetes, [&](QWidget &saisie) {
            // The first one with everything; movement, date and unit then stay.
            touche(Qt::Key_Return);
            QCOMPARE(textes(saisie, u"Lab_nom lab_prenom Lab_date_naiss"_s),
                     u"Nom : NOM 01|Prénom : ANNE|Date.Naiss : 04/03/1988"_s);
            entrer({u"e"_s, u"01012020"_s, u"30000.5"_s, u"j"_s});
            taper(u"22"_s);
            for (const QString &gel : {u"ChkDE"_s, u"ChkDA"_s, u"ChKNbh"_s}) {
                champ(saisie, gel)->setFocus();
                touche(Qt::Key_Space);
            }
            champ(saisie, u"TxtNbJT"_s)->setFocus();
            touche(Qt::Key_Return);
            // All others without a mouse: Enter takes the employee, and one behind each value.
            for (int i = 2; i <= salaries; ++i) {
                QCOMPARE(focus(), u"DataGrid1"_s);
                touche(Qt::Key_Return);
                entrer({i == 2 ? u"30030"_s : u"30000"_s, u"22"_s});
            }
            QCOMPARE(texte(saisie, u"FrameLignes"_s), u"Lignes de la DAC : 60"_s);
        });
        QCOMPARE(textes(*entetes, u"calcsumEdit calcsalEdit"_s), u"1 800 030.50|60"_s);
        champ(*entetes, u"frmlndac"_s)->close();
        Banc::activer(*entetes);

        champ<QCheckBox>(*entetes, u"chkChemin"_s)->setChecked(true);
        m_fichier = dossierExpor() + u"/12345678_DAC_NOMINATIVE_202401.txt"_s;
        essai.dialogue.attendreInformation(u"DAC NOMINATIVE exportée avec succès vers "_s +
                                           QDir::toNativeSeparators(m_fichier));
        cliquer(*entetes, u"cmdexpor"_s);
        QString attendu = u"DAC NOMINATIVE KORVANDEL VER 1.0\r\n12345678;202401;1;1800030,5;60;60;\r\n"_s;
        for (int i = 1; i <= salaries; ++i) {
            attendu += u"%1;NOM %2;%3;04/03/1988;N;12345;0101;PAUL;DURAND;MARIE;N;109880123123450006;007%4;"
                       "00000000000000000000;MAÇON;%5;22;J;01/01/2020;E;0550112233;Non fournie;"
                       "000000000000000;004;12 RUE DES ROSIERS;\r\n"_s.arg(BaseDac::numero(i))
                           .arg(i, 2, 10, QChar(u'0'))
                           .arg(i % 2 == 1 ? u"ANNE"_s : u"YVES"_s)
                           .arg(i * 97, 17, 10, QChar(u'0'))
                           .arg(i == 1   ? u"30000,5"_s
                                : i == 2 ? u"30030"_s
                                         : u"30000"_s);
        }
        QCOMPARE(lireFichier(m_fichier), encoder(attendu));
        QCOMPARE(essai.lignes(u"SELECT Code, Etat FROM Periode"_s),
                 (QStringList{u"202401|O"_s, u"202402|N"_s}));
    }

    /// Finding an employee by what is typed; a key that nobody is left for is not taken.
    void frappe()
    {
        Donnees essai(12);
        essai.ajouter(u"690098141143"_s, 1, {{u"nom"_s, u"NOM"_s}, {u"prenom"_s, u"ÉLIE"_s}});
        const auto entetes = essai.entete();
        essai.saisir(*entetes, [&](QWidget &saisie) {
            auto *grille = champ<Grille>(saisie, u"DataGrid1"_s);
            const auto courant = [&] { return grille->currentIndex().siblingAtColumn(0).data().toString(); };
            QCOMPARE(courant(), u"690098141143"_s);
            for (const auto &[touches, pris, trouve] :
                 {std::tuple{u"nom 05"_s, u"nom 05"_s, 5},
                  {u"zz"_s, QString(), 5},
                  {BaseDac::numero(11).left(10), BaseDac::numero(11).left(10), 11},
                  {u"nom 12 y"_s, u"nom 12 y"_s, 12},
                  {u"nom x02"_s, u"nom 02"_s, 2}}) {
                taper(touches);
                QCOMPARE(texte(saisie, u"cherchedit"_s), pris);
                QCOMPARE(courant(), BaseDac::numero(trouve));
                if (!pris.isEmpty())
                    touche(Qt::Key_Escape);
                QVERIFY(saisie.isVisible() && texte(saisie, u"cherchedit"_s).isEmpty());
            }
            taper(u"nom 03"_s);
            touche(Qt::Key_Down); // the next letter begins anew
            taper(u"6"_s);
            QCOMPARE(courant(), u"690098141143"_s);
            touche(Qt::Key_Escape);
            champ(saisie, u"cherchedit"_s)->setFocus();
            entrer({u"nom 07"_s});
            QCOMPARE(texte(saisie, u"Lab_nom"_s), u"Nom : NOM 07"_s);
        });
    }

    /// What stays and what goes, from one employee to the next.
    void gelEtRefus()
    {
        Donnees essai(4);
        const auto entetes = essai.entete();
        DialogueScenario &dialogue = essai.dialogue;
        essai.saisir(*entetes, [&](QWidget &saisie) {
            cliquer(saisie, u"cmdok"_s); // without an employee
            auto *grille = champ<Grille>(saisie, u"DataGrid1"_s);
            grille->setFocus();
            touche(Qt::Key_Return);
            QVERIFY(!grille->isVisible() && !champ(saisie, u"DataGrid2"_s)->isVisible());
            QCOMPARE(focus(), u"CmbES"_s);
            entrer({u"s"_s, u"15012024"_s, u"9000"_s, u"h"_s});
            taper(u"80"_s);
            for (const QString &gel :
                 {u"ChkDE"_s, u"ChkDA"_s, u"ChKDR"_s, u"ChKNbh"_s, u"ChkMth"_s, u"ChkDA"_s})
                cliquer(saisie, gel);
            QCOMPARE(actifs(saisie, champs), u"MskDateES"_s);
            touche(Qt::Key_Escape);
            QVERIFY(saisie.isVisible() && grille->isVisible());
            QCOMPARE(textes(saisie, champs), u"Sortie|__/__/____|9000|Heures|80"_s);

            // The one open field; its refusal gives it back, that of a frozen one gives its box.
            touche(Qt::Key_Return);
            dialogue.attendreAvertissement(u"Veuillez saisir une date valide SVP"_s);
            touche(Qt::Key_Return);
            QCOMPARE(focus(), u"MskDateES"_s);
            dialogue.attendreAvertissement(
                u"la durée travaillée en heure dépasse le seuil autorisé, veuillez rectifier SVP !"_s);
            entrer({u"02012024"_s});
            QCOMPARE(focus(), u"ChkMth"_s);
            champ(saisie, u"MskDateES"_s)->setFocus();
            taper(u"12012024"_s);
            cliquer(saisie, u"ChkDA"_s);
            cliquer(saisie, u"cmdok"_s);

            // All frozen: two Enters for a line. Who has one is marked, and refused.
            touche(Qt::Key_Return);
            QCOMPARE(focus(), u"cmdok"_s);
            touche(Qt::Key_Return);
            QCOMPARE(essai.sommes(), u"18000|2|0"_s);
            const auto marquee = [&](int ligne) {
                return grille->model()->index(ligne, 0).data(Qt::ForegroundRole).isValid();
            };
            QVERIFY(marquee(0) && marquee(1) && !marquee(2));
            touche(Qt::Key_Up);
            for (int fois = 0; fois < 2; ++fois) {
                dialogue.attendreAvertissement(
                    u"Vous avez déja créer une ligne pour ce salarié, ajout impossible !"_s);
            }
            touche(Qt::Key_Return);
            dansLaFenetre(saisie, u"cmdins"_s, u"frm_ins_num_sal"_s,
                          [](QWidget &liste) { cliquer(liste, u"cmdok"_s); });
            QVERIFY(grille->isVisible());
        });
        essai.base.Cnx.executer(u"DELETE FROM salarie"_s);
        essai.saisir(*entetes, [&](QWidget &saisie) {
            dialogue.attendreAvertissement(u"Veullez créer les employés en premier SVP!"_s);
            cliquer(saisie, u"CmdAff"_s);
        });
    }

    /// Two questions whose No ends otherwise: the employee without a number is given up, the other one stays.
    void questions()
    {
        Donnees essai(1);
        essai.ajouter(u"000000000000"_s, 3);
        essai.ligne(1, u"NULL"_s);
        const auto entetes = essai.entete(2);
        const QStringList ligne{u"e"_s, u"01012020"_s, u"30000"_s, u"j"_s, u"22"_s};
        essai.saisir(*entetes, [&](QWidget &saisie) {
            touche(Qt::Key_Return);
            essai.dialogue.attendreQuestion(
                u"Cet employé n'a pas de numero SS, malgré qu'il est recruté depuis plus de 3 mois, voulez "
                "vous tout de même valider cette saisie ?"_s,
                false);
            entrer(ligne);
            QCOMPARE(focus() + textes(saisie, champs), u"DataGrid1|__/__/____|||"_s);
            touche(Qt::Key_Down);
            touche(Qt::Key_Return);
            for (const bool oui : {false, true}) {
                essai.dialogue.attendreQuestion(
                    u"Ce salarié existe dans une autre déclaration pour le même employeur et pour la même "
                    "période, voulez vous l'enregistrer dans cette DAC complémentaire ?"_s,
                    oui);
            }
            entrer(ligne);
            QCOMPARE(textes(saisie, champs), u"Entree|01/01/2020|30000|Jours|22"_s);
            cliquer(saisie, u"cmdok"_s);
            QCOMPARE(essai.sommes(), u"30000|1|1"_s);
        });
    }

    void modification()
    {
        Donnees essai(1);
        essai.ligne(1, u"300005000"_s);
        const auto entetes = essai.entete();
        cliquer(*entetes, u"cmddetail"_s);
        QWidget &lignes = *champ(*entetes, u"frmlndac"_s);
        Banc::activer(lignes);
        dansLaFenetre(lignes, u"cmdmod"_s, u"frm_modif_lndac"_s, [&](QWidget &fenetre) {
            const auto demander = [&](bool oui) {
                essai.dialogue.attendreQuestion(u"êtes vous de vouloir effectuer cette modification ?"_s,
                                                oui);
            };
            const auto fermes = [&] {
                return actifs(fenetre, champs).isEmpty() &&
                       textes(fenetre, u"cmdok cmdanul"_s) == u"Modifier|Fermer"_s;
            };
            QVERIFY(fermes() && champ(fenetre, u"ChkDE"_s)->isHidden());
            const QString lue = u"NOM 01|Entree|01/01/2020|30000.5|Jours|22"_s;
            QCOMPARE(textes(fenetre, u"Lab_nom "_s + champs), lue);
            touche(Qt::Key_Return); // opens the fields
            QCOMPARE(focus() + u' ' + textes(fenetre, u"cmdok cmdanul"_s), u"CmbES Enregistrer|Annuler"_s);
            entrer({u"s"_s, u"31012024"_s});
            cliquer(fenetre, u"cmdanul"_s);
            QVERIFY(fermes());
            QCOMPARE(textes(fenetre, u"Lab_nom "_s + champs), lue);

            touche(Qt::Key_Return);
            demander(false);
            entrer({u"s"_s, u"31012024"_s, u"20000"_s, u"h"_s, u"176"_s});
            QVERIFY(!fermes());
            champ(fenetre, u"TxtNbJT"_s)->setFocus();
            demander(true);
            essai.dialogue.attendreAvertissement(
                u"la durée travaillée en jours dépasse le seuil autorisé, veuillez rectifier SVP !"_s);
            entrer({u"177"_s});
            QCOMPARE(focus(), u"TxtNbJT"_s);
            demander(true);
            entrer({u"176"_s});
            QVERIFY(fermes());
            QCOMPARE(essai.sommes(), u"20000|1|0"_s);
            touche(Qt::Key_Return); // the second change is one of the line as it stands now
            demander(true);
            entrer({{}, {}, u"21000"_s, {}, {}});
            QCOMPARE(essai.sommes(), u"21000|1|0"_s);
            cliquer(fenetre, u"cmdanul"_s);
            QVERIFY(!fenetre.isVisible());
        });
    }

    /// The captions and what is open, while the lines of a choice are shown and when they are not.
    void transfert()
    {
        Donnees essai(1);
        const auto entetes = essai.entete();
        essai.ligne(1, u"NULL"_s);
        essai.base.Cnx.executer(u"UPDATE Ligne_Dac SET Periode = '202402'"_s);
        const auto ecran = essai.ouvrir(new frmexpdac(essai.contexte));
        const auto etat = [&] {
            return actifs(*ecran, u"CmbPeriode cmbemp CmdAfficher CmbPeriodeDest cmdTransf"_s) + u", "_s +
                   texte(*ecran, u"Command1"_s) + u' ' +
                   QString::number(champ<Grille>(*ecran, u"DataGrid2"_s)->model()->rowCount());
        };
        const QString repos = u"CmbPeriode cmbemp CmdAfficher, Fermer 0"_s;
        const QString montre = u"CmbPeriodeDest cmdTransf, Annuler 1"_s;
        cliquer(*ecran, u"CmdAfficher"_s); // nothing without both choices
        QCOMPARE(etat(), repos);
        champ<QComboBox>(*ecran, u"CmbPeriode"_s)->setCurrentText(u"202402"_s);
        champ<QComboBox>(*ecran, u"cmbemp"_s)->setCurrentIndex(0);
        for (const auto &[bouton, attendu] :
             {std::pair{u"CmdAfficher"_s, montre}, {u"Command1"_s, repos}, {u"CmdAfficher"_s, montre}}) {
            cliquer(*ecran, bouton);
            QCOMPARE(etat(), attendu);
        }
        taper(u"202401"_s);
        essai.dialogue.attendreInformation(
            u"Transfert effectué avec succès, veuillez redemarrer l'application SVP"_s);
        cliquer(*ecran, u"cmdTransf"_s);
        QCOMPARE(etat(), montre);
        QCOMPARE(essai.sommes(), u"NULL|NULL|NULL"_s); // until a line changes
        cliquer(*ecran, u"CmdTerminer"_s);
        QVERIFY(!ecran->isVisible());
    }

private:
    /// What the last walk has exported.
    QString m_fichier;
};

QTEST_MAIN(TestEcransDac)
#include "test_ecrans_dac.moc"
