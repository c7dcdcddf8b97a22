#include "reference/screens/frm_bnq.h"
#include "reference/screens/frm_imp.h"
#include "tests/screens/banc.h"
#include "tests/storage/baseessai.h"

using namespace Qt::StringLiterals;
using namespace boites;

namespace {

const QString boutons = u"ajouterBtn Command1 suppBtn"_s;
const QString cleFausse = u"Veillez saisir un numéro correct SVP"_s;
const QString blancs = u"Veuillez à ne pas insérer de blancs au début "_s;

Attente suppression(bool oui) { return question(u"confirmer la suppression?"_s, oui, u"confirmation"_s); }

/// The bench with employers of these numbers.
class BancEmployeurs : public BancSur<BaseEssai>
{
public:
    explicit BancEmployeurs(const QStringList &numeros = {})
    {
        for (const QString &numero : numeros)
            base.RsEmployeur.ajouter({{u"num_emp"_s, numero},
                                      {u"rais_soc"_s, u"Nom"},
                                      {u"adresse"_s, u"Ici"},
                                      {u"tel"_s, u""},
                                      {u"Mail"_s, u""}});
    }
    QString numeros() { return lignes(u"SELECT num_emp FROM employeur ORDER BY rowid"_s).join(u' '); }
};

} // namespace

/// The windows of employers and banks as a clerk's hands meet them.
class TestFenetresEmployeurs : public QObject
{
    Q_OBJECT

private slots:
    /// Number, key and names by the keyboard alone; the window is gone and its fields reset when the success
    /// is told.
    void ajouterAuClavier()
    {
        BancEmployeurs banc;
        const auto fenetre = banc.ouvrir(new Frm_imp(banc.contexte));
        QCOMPARE(actifs(*fenetre, boutons), u"ajouterBtn"_s);
        dansLaFenetre(*fenetre, u"ajouterBtn"_s, u"add_emp"_s, [&](QWidget &saisie) {
            QCOMPARE(focus(), u"num_empmask"_s);
            QCOMPARE(textes(saisie, u"num_empmask clemask"_s), u"________|  "_s);
            taper(u"1x2345678\t47\tL'Étoile; \"Sud\"\tRue\t\ta@b.dz"_s);
            banc.dialogue.aChaqueBoite = [&] {
                QVERIFY(!saisie.isVisible());
                QCOMPARE(actifs(*fenetre, boutons), boutons);
                QCOMPARE(banc.menu.accords, 1);
                QCOMPARE(textes(saisie, u"num_empmask clemask Rais_SocEdit"_s), u"________|99|"_s);
            };
            banc.dialogue.attendre({information(u"Employeur ajouté avec succès!"_s)});
            touche(Qt::Key_Return);
            banc.dialogue.aChaqueBoite = {};
        });
        QCOMPARE(banc.lignes(u"SELECT * FROM employeur"_s),
                 QStringList{u"12345678|L'Étoile; \"Sud\"|Rue||a@b.dz"_s});
        QCOMPARE(courante(*champ<QTableView>(*fenetre, u"DataGrid1"_s)), u"12345678"_s);

        // Once more: the fields are as the last entry left them, and new again after it was given up.
        for (const QString &cle : {u"99"_s, u"  "_s}) {
            dansLaFenetre(*fenetre, u"ajouterBtn"_s, u"add_emp"_s, [&](QWidget &saisie) {
                QCOMPARE(focus() + u'|' + texte(saisie, u"clemask"_s), u"num_empmask|"_s + cle);
                touche(Qt::Key_Escape);
                QVERIFY(!saisie.isVisible());
            });
        }
    }

    void quitterNumeroEtCle()
    {
        BancEmployeurs banc;
        const auto fenetre = banc.ouvrir(new Frm_imp(banc.contexte));
        dansLaFenetre(*fenetre, u"ajouterBtn"_s, u"add_emp"_s, [&](QWidget &saisie) {
            banc.dialogue.attendre({avertissement(blancs)});
            taper(u" 1\t"_s);
            QCOMPARE(focus() + u'|' + texte(saisie, u"num_empmask"_s), u"clemask|        "_s);

            // Leaving the key by Tab, by a click into a field and by a click on the button: one box each.
            banc.dialogue.attendre(
                {avertissement(cleFausse), avertissement(cleFausse), avertissement(cleFausse)});
            touche(Qt::Key_Tab);
            QCOMPARE(focus(), u"num_empmask"_s);
            taper(u"12345678\t48"_s);
            QCOMPARE(focus(), u"clemask"_s);
            cliquer(saisie, u"AdresseEdit"_s);
            QCOMPARE(focus() + u'|' + marque(), u"num_empmask|12345678"_s);
            touche(Qt::Key_Tab);
            cliquer(saisie, u"Command1"_s);
            QCOMPARE(focus(), u"num_empmask"_s);
            QVERIFY(banc.dialogue.acheve());

            // The closing button asks nothing.
            touche(Qt::Key_Tab);
            cliquer(saisie, u"CancelButton"_s);
            QVERIFY(!saisie.isVisible());
        });
    }

    /// A refusal leaves the window with its fields as the check wrote them; what is pasted may be grouped.
    void refusEtCollages()
    {
        BancEmployeurs banc;
        const auto fenetre = banc.ouvrir(new Frm_imp(banc.contexte));
        dansLaFenetre(*fenetre, u"ajouterBtn"_s, u"add_emp"_s, [&](QWidget &saisie) {
            coller(u"1234 5678 999"_s);
            taper(u"\t47\t"_s);
            coller(u"é"_s.repeated(60));
            taper(u"\tB\t"_s);
            coller(u" 06 60 11 22 33\n"_s);
            taper(u"4\ta b"_s);
            const QString champs = u"num_empmask Rais_SocEdit telEdit mailEdit"_s;
            const QString devant = u"12345678|"_s + u"é"_s.repeated(40) + u"|0660112233|"_s;
            QCOMPARE(textes(saisie, champs), devant + u"a b"_s);
            saisir(saisie, u"telEdit"_s, u"06 60 112"_s);
            banc.dialogue.attendre({avertissement(u"EMail incorrecte, manque du caractère '@' !!"_s),
                                    avertissement(u"Format E - Mail incorrecte"_s)});
            cliquer(saisie, u"Command1"_s);
            QVERIFY(saisie.isVisible());
            QCOMPARE(focus() + u'|' + textes(saisie, u"telEdit mailEdit"_s), u"mailEdit|0660112|ab"_s);
        });
    }

    void modifier()
    {
        BancEmployeurs banc({u"11111111"_s, u"12345678"_s});
        const auto fenetre = banc.ouvrir(new Frm_imp(banc.contexte));
        dansLaFenetre(*fenetre, u"Command1"_s, u"mod_emp"_s, [&](QWidget &saisie) {
            QCOMPARE(textes(saisie, u"num_empmask clemask"_s) + u'|' + marque(), u"12345678|47|12345678"_s);
            banc.dialogue.attendre({avertissement(u"Aucun Elément à Modifier"_s)});
            cliquer(saisie, u"OKButton"_s);
            QVERIFY(saisie.isVisible());

            champ(saisie, u"clemask"_s)->setFocus();
            touche(Qt::Key_Backspace);
            banc.dialogue.attendre({avertissement(u"Veillez Saisir un Numéro Correct SVP"_s)});
            touche(Qt::Key_Tab);
            QCOMPARE(focus(), u"num_empmask"_s);
            touche(Qt::Key_Delete);
            QCOMPARE(texte(saisie, u"num_empmask"_s), u"        "_s);
            taper(u"87654321\t43"_s);
            touche(Qt::Key_Return);
            QVERIFY(!saisie.isVisible());
        });
        QCOMPARE(banc.numeros(), u"11111111 87654321"_s);
        QCOMPARE(banc.base.RsEmployeur.texte(u"num_emp"), u"87654321"_s);

        // Another program deletes him under the open window: his neighbour is not written in his place.
        dansLaFenetre(*fenetre, u"Command1"_s, u"mod_emp"_s, [&](QWidget &saisie) {
            Connexion autre;
            autre.ouvrir(banc.chemin());
            autre.executer(u"DELETE FROM employeur WHERE num_emp = '87654321'"_s);
            for (int essai = 0; essai < 2; ++essai) {
                saisir(saisie, u"AdresseEdit"_s, u"Ailleurs"_s);
                banc.dialogue.attendre({critique(
                    u"Cette ligne de la table « employeur » a été modifiée ou supprimée depuis qu'elle a été "
                    "lue. La liste a été relue ; veuillez recommencer."_s)});
                cliquer(saisie, u"OKButton"_s);
                QVERIFY(banc.dialogue.acheve() && saisie.isVisible());
            }
        });
        QCOMPARE(banc.lignes(u"SELECT num_emp, adresse FROM employeur"_s), QStringList{u"11111111|Ici"_s});
    }

    void supprimerJusquAuDernier()
    {
        BancEmployeurs banc({u"11111111"_s, u"22222222"_s});
        const auto fenetre = banc.ouvrir(new Frm_imp(banc.contexte));
        champ(*fenetre, u"DataGrid1"_s)->setFocus();
        banc.dialogue.attendre({suppression(false), suppression(true)});
        touche(Qt::Key_Delete);
        touche(Qt::Key_Delete);
        QCOMPARE(banc.numeros() + u' ' + actifs(*fenetre, boutons), u"11111111 "_s + boutons);
        banc.dialogue.attendre({suppression(true)});
        cliquer(*fenetre, u"suppBtn"_s);
        QCOMPARE(actifs(*fenetre, boutons), u"ajouterBtn"_s);
        QCOMPARE(banc.menu.accords, 2);
        for (const Qt::Key sansEffet : {Qt::Key_Delete, Qt::Key_Return})
            QTest::keyClick(champ(*fenetre, u"DataGrid1"_s), sansEffet);
    }

    void banques()
    {
        BancEmployeurs banc;
        const auto fenetre = banc.ouvrir(new Frm_BNQ(banc.contexte));
        QCOMPARE(actifs(*fenetre, boutons), u"ajouterBtn"_s);
        dansLaFenetre(*fenetre, u"ajouterBtn"_s, u"add_bnq"_s, [&](QWidget &saisie) {
            QCOMPARE(texte(saisie, u"CodeBnq"_s), u"___"_s);
            banc.dialogue.attendre({avertissement(blancs)});
            taper(u" \t"_s);
            QCOMPARE(texte(saisie, u"CodeBnq"_s), u"   "_s);

            // The column is narrower than the field: the database refuses, and the fields stay.
            saisir(saisie, u"CodeBnq"_s, u"003\tABREVIATION\tBanque"_s);
            banc.dialogue.attendre({critique(
                u"La valeur « ABREVIATION » (11 caractères) est refusée dans la colonne Abreviat de la table "
                "Banque : 10 caractères au plus.\n(CHECK constraint failed: Banque.Abreviat char(10))"_s)});
            touche(Qt::Key_Return);
            QCOMPARE(texte(saisie, u"LibelleBnq"_s) + actifs(*fenetre, boutons), u"BanqueajouterBtn"_s);

            saisir(saisie, u"AbreviatBnq"_s, u"ABR"_s);
            banc.dialogue.attendre({information(u"Banque ajoutée avec succès!"_s)});
            touche(Qt::Key_Return);
            // Ready for the next one.
            QVERIFY(saisie.isVisible());
            QCOMPARE(actifs(*fenetre, boutons), boutons);
            QCOMPARE(focus() + u'|' + textes(saisie, u"CodeBnq LibelleBnq"_s), u"CodeBnq|___|"_s);
        });
        dansLaFenetre(*fenetre, u"Command1"_s, u"mod_bnq"_s, [&](QWidget &saisie) {
            QCOMPARE(texte(saisie, u"CodeBnq"_s), u"003"_s);
            touche(Qt::Key_End);
            touche(Qt::Key_Backspace);
            QCOMPARE(texte(saisie, u"CodeBnq"_s), u"00 "_s);
            banc.dialogue.attendre({avertissement(u" le code de la banque doit être sur 3 positions"_s)});
            touche(Qt::Key_Return);
            taper(u"004"_s);
            touche(Qt::Key_Return);
            QVERIFY(!saisie.isVisible());
        });
        QCOMPARE(banc.lignes(u"SELECT * FROM Banque"_s), QStringList{u"004|ABR|Banque"_s});
    }

    /// The delete button of the banks deletes the current employer, and the Delete key does nothing.
    void supprimerDepuisLesBanques()
    {
        BancEmployeurs banc({u"11111111"_s});
        for (const auto *code : {u"001", u"002"})
            banc.base.RsBanque.ajouter({{u"Code"_s, code}});
        const auto fenetre = banc.ouvrir(new Frm_BNQ(banc.contexte));
        auto &grille = *champ<QTableView>(*fenetre, u"DataGrid1"_s);
        QTest::keyClick(&grille, Qt::Key_Delete);

        banc.dialogue.attendre({suppression(true)});
        cliquer(*fenetre, u"suppBtn"_s);
        QVERIFY(banc.base.RsEmployeur.vide());
        QCOMPARE(banc.base.RsBanque.nombre(), 2);
        QCOMPARE(banc.menu.accords, 1);
        QCOMPARE(actifs(*fenetre, boutons), u"ajouterBtn"_s);
        // Neither another order nor a double click brings them back, but a new bank does.
        for (int fois = 0; fois < 2; ++fois)
            cliquerTete(grille, 0);
        QTest::keyClick(&grille, Qt::Key_Return);
        QCOMPARE(actifs(*fenetre, boutons), u"ajouterBtn"_s);
        dansLaFenetre(*fenetre, u"ajouterBtn"_s, u"add_bnq"_s, [&](QWidget &) {
            banc.dialogue.attendre({information(u"Banque ajoutée avec succès!"_s)});
            taper(u"003\tABR\tBanque"_s);
            touche(Qt::Key_Return);
            QCOMPARE(actifs(*fenetre, boutons), boutons);
        });
    }

    void pasDeFenetreSansTable()
    {
        BancEmployeurs banc;
        banc.base.RsEmployeur.fermer();
        QVERIFY_THROWS_EXCEPTION(ErreurBase, Frm_imp{banc.contexte});
    }
};

QTEST_MAIN(TestFenetresEmployeurs)

#include "test_fenetresemployeurs.moc"
