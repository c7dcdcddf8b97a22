#include "dac/screens/frmdecnom.h"
#include "dac/screens/frmexpdac.h"
#include "screens/etatsfenetres.h"
#include "screens/grille.h"
#include "tests/dac/basedac.h"
#include "tests/screens/banc.h"

#include <QComboBox>

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
        for (int i = 1; i <= salaries; ++i) {
            ajouter(numero(i), 1,
                    {{u"nom"_s, u"NOM %1"_s.arg(i, 2, 10, QChar(u'0'))},
                     {u"prenom"_s, i % 2 == 1 ? u"ANNE" : u"YVES"}});
        }
    }

    /// The headers with a new one of the first period.
    std::unique_ptr<frmDecNom> entetes(qint64 type = 1)
    {
        entete(type);
        return ouvrir(new frmDecNom(contexte));
    }

    /// A line of the principal declaration.
    void ligne(int salarie)
    {
        base.Cnx.executer(u"INSERT INTO Ligne_Dac VALUES (?, 1, '202401', 1, '12345678', 300005000, 22, 'J', "
                          "'2020-01-01', 'E')"_s,
                          {numero(salarie)});
    }

    /// The window behind a button of the lines of the current header.
    void dansLesLignes(QWidget &deEntetes, const QString &bouton,
                       const std::function<void(QWidget &)> &gestes)
    {
        cliquer(deEntetes, u"cmddetail"_s);
        QWidget &lignes = *champ(deEntetes, u"frmlndac"_s);
        activer(lignes);
        dansLaFenetre(lignes, bouton, bouton == u"cmdajt" ? u"frm_add_Lndac"_s : u"frm_modif_lndac"_s,
                      gestes);
        QVERIFY(dialogue.acheve());
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

    /// From an empty list of headers to sixty lines, all but the first without a mouse.
    void soixanteLignes()
    {
        constexpr int salaries = 60;
        Donnees essai(salaries);
        const auto ecran = essai.ouvrir(new frmDecNom(essai.contexte));
        QCOMPARE(actifs(*ecran, u"cmdajt cmdmod cmdDelete cmddetail cmdexpor"_s), u"cmdajt"_s);
        champ(*ecran, u"CmbPeriode"_s)->setFocus();
        touche(Qt::Key_End);
        champ(*ecran, u"cmbemp"_s)->setFocus();
        touche(Qt::Key_Down);
        QCOMPARE(texte(*ecran, u"lab_RS"_s), u"SARL L'Étoile"_s);
        champ(*ecran, u"sumedit"_s)->setFocus();
        entrer({u"1 800 030,50"_s, u"60"_s});
        QCOMPARE(textes(*ecran, u"sumedit total_salEdit calcsumEdit"_s), u"0|0|"_s);

        essai.dansLesLignes(*ecran, u"cmdajt"_s, [&](QWidget &saisie) {
            touche(Qt::Key_Return);
            QCOMPARE(textes(saisie, u"Lab_nom lab_prenom Lab_date_naiss"_s),
                     u"Nom : NOM 01|Prénom : ANNE|Date.Naiss : 04/03/1988"_s);
            entrer({u"e"_s, u"01012020"_s, u"30000.5"_s, u"j"_s});
            taper(u"22"_s);
            for (const QString &gel : {u"ChkDE"_s, u"ChkDA"_s, u"ChKNbh"_s})
                cliquer(saisie, gel);
            champ(saisie, u"TxtNbJT"_s)->setFocus();
            touche(Qt::Key_Return);
            for (int i = 2; i <= salaries; ++i)
                entrer({{}, i == 2 ? u"30030"_s : u"30000"_s, u"22"_s}); // the first Enter takes the employee
            QCOMPARE(texte(saisie, u"FrameLignes"_s), u"Lignes de la DAC : 60"_s);
        });
        QCOMPARE(textes(*ecran, u"calcsumEdit calcsalEdit"_s), u"1 800 030.50|60"_s);
    }

    /// Finding an employee by what is typed; a key that nobody is left for is not taken.
    void frappe()
    {
        Donnees essai(12);
        essai.ajouter(u"690098141143"_s, 1, {{u"nom"_s, u"NOM"_s}, {u"prenom"_s, u"ÉLIE"_s}});
        const auto ecran = essai.entetes();
        essai.dansLesLignes(*ecran, u"cmdajt"_s, [&](QWidget &saisie) {
            const auto courant = [&] {
                return champ<Grille>(saisie, u"DataGrid1"_s)
                    ->currentIndex()
                    .siblingAtColumn(0)
                    .data()
                    .toString();
            };
            const QString onzieme = BaseDac::numero(11).left(10);
            for (const auto &[touches, pris, trouve] : {std::tuple{u"nom 05"_s, u"nom 05"_s, 5},
                                                        {u"zz"_s, QString(), 5},
                                                        {onzieme, onzieme, 11},
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

    /// What stays and what goes from one employee to the next; who has a line is marked, and refused.
    void gel()
    {
        Donnees essai(4);
        const auto ecran = essai.entetes();
        DialogueScenario &dialogue = essai.dialogue;
        essai.dansLesLignes(*ecran, u"cmdajt"_s, [&](QWidget &saisie) {
            cliquer(saisie, u"cmdok"_s); // without an employee
            auto *grille = champ<Grille>(saisie, u"DataGrid1"_s);
            grille->setFocus();
            entrer({{}, u"s"_s, u"15012024"_s, u"9000"_s, u"h"_s});
            QVERIFY(!grille->isVisible() && !champ(saisie, u"DataGrid2"_s)->isVisible());
            taper(u"80"_s);
            for (const QString &gel :
                 {u"ChkDE"_s, u"ChkDA"_s, u"ChKDR"_s, u"ChKNbh"_s, u"ChkMth"_s, u"ChkDA"_s})
                cliquer(saisie, gel);
            QCOMPARE(actifs(saisie, champs), u"MskDateES"_s);
            touche(Qt::Key_Escape);
            QVERIFY(saisie.isVisible() && grille->isVisible());
            QCOMPARE(textes(saisie, champs), u"Sortie|__/__/____|9000|Heures|80"_s);

            // The refusal of the open field gives it back, that of a frozen one gives its box.
            dialogue.attendreAvertissement(u"Veuillez saisir une date valide SVP"_s);
            entrer({{}, {}});
            QCOMPARE(focus(), u"MskDateES"_s);
            dialogue.attendreAvertissement(
                u"la durée travaillée en heure dépasse le seuil autorisé, veuillez rectifier SVP !"_s);
            entrer({u"02012024"_s});
            QCOMPARE(focus(), u"ChkMth"_s);
            champ(saisie, u"MskDateES"_s)->setFocus();
            taper(u"12012024"_s);
            cliquer(saisie, u"ChkDA"_s);
            cliquer(saisie, u"cmdok"_s);
            entrer({{}, {}}); // all frozen: two Enters for a line
            QCOMPARE(essai.sommes(), u"18000|2|0"_s);
            for (const int ligne : {0, 1, 2}) {
                const QModelIndex numero = grille->model()->index(ligne, 0);
                QCOMPARE(numero.data(Qt::ForegroundRole).isValid(), ligne < 2);
            }
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
        dialogue.attendreAvertissement(u"Veullez créer les employés en premier SVP!"_s);
        essai.dansLesLignes(*ecran, u"cmdajt"_s, [&](QWidget &saisie) { cliquer(saisie, u"CmdAff"_s); });
    }

    /// Two questions whose No ends otherwise: the employee without a number is given up, the other one stays.
    void questions()
    {
        Donnees essai(1);
        essai.ajouter(u"000000000000"_s, 3);
        essai.ligne(1);
        const auto ecran = essai.entetes(2);
        const QStringList ligne{{}, u"e"_s, u"01012020"_s, u"30000"_s, u"j"_s, u"22"_s};
        essai.dialogue.attendreQuestion(u"Cet employé n'a pas de numero SS, malgré qu'il est recruté depuis "
                                        u"plus de 3 mois, voulez vous tout "
                                        "de même valider cette saisie ?"_s,
                                        false);
        for (const bool oui : {false, true}) {
            essai.dialogue.attendreQuestion(u"Ce salarié existe dans une autre déclaration pour le même "
                                            u"employeur et pour la même période, "
                                            "voulez vous l'enregistrer dans cette DAC complémentaire ?"_s,
                                            oui);
        }
        essai.dansLesLignes(*ecran, u"cmdajt"_s, [&](QWidget &saisie) {
            entrer(ligne);
            QCOMPARE(focus() + textes(saisie, champs), u"DataGrid1|__/__/____|||"_s);
            touche(Qt::Key_Down);
            entrer(ligne);
            QCOMPARE(textes(saisie, champs), u"Entree|01/01/2020|30000|Jours|22"_s);
            cliquer(saisie, u"cmdok"_s);
            QCOMPARE(essai.sommes(), u"30000|1|1"_s);
        });
    }

    /// Deleted by another program behind the taking.
    void salarieDisparu()
    {
        Donnees essai(1);
        const auto ecran = essai.entetes();
        essai.dialogue.attendreAvertissement(u"ce salarié n'existe pas! Nous vous invitons à le créer"_s);
        essai.dansLesLignes(*ecran, u"cmdajt"_s, [&](QWidget &saisie) {
            entrer({{}, u"e"_s, u"01012020"_s, u"30000"_s, u"j"_s});
            essai.base.Cnx.executer(u"DELETE FROM salarie"_s);
            entrer({u"22"_s});
            QVERIFY(champ(saisie, u"DataGrid1"_s)->isVisible());
        });
        QVERIFY(!essai.base.Cnx.existe(u"SELECT 1 FROM Ligne_Dac"_s));
    }

    void modification()
    {
        Donnees essai(1);
        essai.ligne(1);
        const auto ecran = essai.entetes();
        essai.dansLesLignes(*ecran, u"cmdmod"_s, [&](QWidget &fenetre) {
            const auto demander = [&](bool oui) {
                essai.dialogue.attendreQuestion(u"êtes vous de vouloir effectuer cette modification ?"_s,
                                                oui);
            };
            const auto etat = [&] {
                return actifs(fenetre, champs).section(u' ', 0, 0) + u'|' +
                       textes(fenetre, u"cmdok cmdanul Lab_nom "_s + champs);
            };
            const QString lue = u"|Modifier|Fermer|NOM 01|Entree|01/01/2020|30000.5|Jours|22"_s;
            QCOMPARE(etat(), lue);
            entrer({{}, u"s"_s, u"31012024"_s}); // the first Enter opens the fields
            QCOMPARE(etat(), u"CmbES|Enregistrer|Annuler|NOM 01|Sortie|31/01/2024|30000.5|Jours|22"_s);
            cliquer(fenetre, u"cmdanul"_s);
            QCOMPARE(etat(), lue);

            demander(false);
            entrer({{}, u"s"_s, u"31012024"_s, u"20000"_s, u"h"_s, u"176"_s});
            champ(fenetre, u"TxtNbJT"_s)->setFocus();
            demander(true);
            essai.dialogue.attendreAvertissement(
                u"la durée travaillée en jours dépasse le seuil autorisé, veuillez rectifier SVP !"_s);
            entrer({u"177"_s});
            demander(true);
            entrer({u"176"_s}); // the refusal gave the field back
            QCOMPARE(etat(), u"|Modifier|Fermer|NOM 01|Sortie|31/01/2024|20000|Heures|176"_s);
            demander(true); // the second change is one of the line as it stands now
            entrer({{}, {}, {}, u"21000"_s, {}, {}});
            QCOMPARE(essai.sommes(), u"21000|1|0"_s);
            // Another program's change stays, and is what giving up shows.
            essai.base.Cnx.executer(u"UPDATE Ligne_Dac SET Assiette = 220000000"_s);
            demander(true);
            essai.dialogue.attendreCritique(
                u"Cette ligne de la table « Ligne_Dac » a été modifiée ou supprimée depuis qu'elle a "
                "été lue. La liste a été relue ; veuillez recommencer."_s);
            entrer({{}, {}, {}, u"23000"_s, {}, {}});
            cliquer(fenetre, u"cmdanul"_s);
            QCOMPARE(texte(fenetre, u"TxtAssiette"_s), u"22000"_s);
            cliquer(fenetre, u"cmdanul"_s);
            QVERIFY(!fenetre.isVisible());
        });
    }

    /// The captions and what is open, while the lines of a choice are shown and when they are not.
    void transfert()
    {
        Donnees essai(1);
        essai.ligne(1);
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
        champ<QComboBox>(*ecran, u"CmbPeriode"_s)->setCurrentText(u"202401"_s);
        champ<QComboBox>(*ecran, u"cmbemp"_s)->setCurrentIndex(0);
        essai.dialogue.attendreAvertissement(u"Veuillez selectionner la période de déstination SVP"_s);
        for (const auto &[bouton, attendu] : {std::pair{u"CmdAfficher"_s, montre},
                                              {u"Command1"_s, repos},
                                              {u"CmdAfficher"_s, montre},
                                              {u"cmdTransf"_s, montre}}) {
            cliquer(*ecran, bouton);
            QCOMPARE(etat(), attendu);
        }
        cliquer(*ecran, u"CmdTerminer"_s);
        QVERIFY(!ecran->isVisible());
        essai.base.Cnx.executer(u"DELETE FROM employeur"_s);
        essai.dialogue.attendreAvertissement(u"table employeur vide !!!!, opération non autorisée "_s);
        QVERIFY(!EcranTransfert::preparer<frmexpdac>(essai.contexte));
    }
};

QTEST_MAIN(TestEcransDac)
#include "test_ecrans_dac.moc"
