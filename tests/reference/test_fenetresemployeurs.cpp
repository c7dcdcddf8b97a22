#include "reference/screens/frm_bnq.h"
#include "reference/screens/frm_imp.h"
#include "rules/calendrier.h"
#include "screens/champmasque.h"
#include "screens/dernierrecours.h"
#include "screens/grille.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/commun/menutemoin.h"
#include "tests/reference/basereference.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// Looks around at every box.
class DialogueTemoin : public DialogueScenario
{
public:
    std::function<void()> aChaqueBoite;

protected:
    bool montrer(const Boite &boite) override
    {
        if (aChaqueBoite)
            aChaqueBoite();
        return DialogueScenario::montrer(boite);
    }
};

} // namespace

/// The windows of employers and banks as a clerk's hands meet them.
class TestFenetresEmployeurs : public QObject
{
    Q_OBJECT

    std::unique_ptr<BaseReference> m_essai;
    std::unique_ptr<DialogueTemoin> m_dialogue;
    std::unique_ptr<DernierRecours> m_recours;
    std::unique_ptr<QWidget> m_fenetre;
    MenuTemoin m_menu;
    BornesDePeriode m_bornes;
    std::unique_ptr<Contexte> m_contexte;
    int m_saisies = 0; ///< entry windows that were opened and acted in

    template <typename T = QWidget>
    T &trouver(QWidget &fenetre, const char16_t *nom)
    {
        T *controle = fenetre.findChild<T *>(QString::fromUtf16(nom));
        if (!controle)
            qFatal("no control %s", qPrintable(QString::fromUtf16(nom)));
        return *controle;
    }

    QString texte(QWidget &fenetre, const char16_t *nom) { return trouver<QLineEdit>(fenetre, nom).text(); }
    bool permis(const char16_t *nom) { return trouver(*m_fenetre, nom).isEnabled(); }
    void cliquer(QWidget &fenetre, const char16_t *nom)
    {
        QTest::mouseClick(&trouver(fenetre, nom), Qt::LeftButton);
    }

    /// Types into whatever has the focus, which a tab moves on.
    static void taper(const QString &touches)
    {
        for (const QChar c : touches)
            QTest::keyClicks(QApplication::focusWidget(), c);
    }
    static void touche(Qt::Key touche) { QTest::keyClick(QApplication::focusWidget(), touche); }
    static QString focus()
    {
        return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
    }
    static void coller(const QString &texte)
    {
        QGuiApplication::clipboard()->setText(texte);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::ControlModifier);
    }

    template <typename Ecran>
    QWidget &ouvrir()
    {
        m_fenetre = std::make_unique<Ecran>(*m_contexte);
        m_fenetre->show();
        if (!QTest::qWaitForWindowActive(m_fenetre.get()))
            qFatal("the window does not become active");
        return *m_fenetre;
    }

    /// Presses a button that opens an entry window, and acts in that window.
    void dans(const char16_t *bouton, const QString &fenetre, const std::function<void(QWidget &)> &gestes)
    {
        const int avant = m_saisies;
        QTimer::singleShot(0, this, [&] {
            QWidget *saisie = QApplication::activeModalWidget();
            QVERIFY(saisie);
            const auto fermer = qScopeGuard([saisie] { saisie->close(); });
            QCOMPARE(saisie->objectName(), fenetre);
            QTRY_COMPARE(QApplication::activeWindow(), saisie);
            ++m_saisies;
            gestes(*saisie);
        });
        cliquer(*m_fenetre, bouton);
        QCOMPARE(m_saisies, avant + 1);
    }

    void employeur(const QString &numero, const QString &nom)
    {
        m_essai->base.RsEmployeur.ajouter({{u"num_emp"_s, numero},
                                           {u"rais_soc"_s, nom},
                                           {u"adresse"_s, u"Ici"},
                                           {u"tel"_s, u""},
                                           {u"Mail"_s, u""}});
    }

private slots:
    void init()
    {
        m_essai = std::make_unique<BaseReference>();
        m_dialogue = std::make_unique<DialogueTemoin>();
        m_recours = std::make_unique<DernierRecours>(*m_dialogue, [] {});
        m_contexte =
            std::make_unique<Contexte>(Contexte{m_essai->base, *m_dialogue, *m_recours, m_bornes, m_menu});
        m_menu.accords = 0;
    }

    void cleanup()
    {
        m_fenetre.reset();
        QVERIFY(m_dialogue->acheve());
        m_essai.reset();
    }

    /// Number, key and names by the keyboard alone; the window is gone and its fields reset when the success
    /// is told.
    void ajouterAuClavier()
    {
        m_essai->base.RsAnnee.ajouter({{u"annee"_s, 2024}});
        ouvrir<Frm_imp>();
        QVERIFY(!permis(u"Command1") && !permis(u"suppBtn"));

        dans(u"ajouterBtn", u"add_emp"_s, [&](QWidget &saisie) {
            QCOMPARE(focus(), u"num_empmask"_s);
            QCOMPARE(texte(saisie, u"num_empmask"), u"________"_s);
            QCOMPARE(texte(saisie, u"clemask"), u"  "_s);
            const QStringList suite{u"1x2345678"_s, u"47"_s, u"L'Étoile; \"Sud\""_s,
                                    u"Rue"_s,       u""_s,   u"a@b.dz"_s};
            for (const QString &touches : suite) {
                taper(touches);
                if (touches != suite.last())
                    touche(Qt::Key_Tab);
            }
            m_dialogue->aChaqueBoite = [&] {
                QVERIFY(!saisie.isVisible());
                QVERIFY(permis(u"Command1") && permis(u"suppBtn"));
                QCOMPARE(m_menu.accords, 1);
                QCOMPARE(texte(saisie, u"num_empmask"), u"________"_s);
                QCOMPARE(texte(saisie, u"clemask"), u"99"_s);
                QCOMPARE(texte(saisie, u"Rais_SocEdit"), u""_s);
            };
            m_dialogue->attendreInformation(u"Employeur ajouté avec succès!"_s);
            touche(Qt::Key_Return);
            m_dialogue->aChaqueBoite = {};
        });
        QCOMPARE(m_essai->lignes(u"SELECT num_emp || rais_soc || adresse || tel || Mail FROM employeur"_s),
                 QStringList{u"12345678L'Étoile; \"Sud\"Ruea@b.dz"_s});
        QCOMPARE(
            trouver<Grille>(*m_fenetre, u"DataGrid1").currentIndex().siblingAtColumn(0).data().toString(),
            u"12345678"_s);

        // Once more: the fields are as the last entry left them, and new again after it was given up.
        for (const QString &cle : {u"99"_s, u"  "_s}) {
            dans(u"ajouterBtn", u"add_emp"_s, [&](QWidget &saisie) {
                QCOMPARE(focus(), u"num_empmask"_s);
                QCOMPARE(texte(saisie, u"clemask"), cle);
                touche(Qt::Key_Escape);
                QVERIFY(!saisie.isVisible());
            });
        }
    }

    void quitterNumeroEtCle()
    {
        ouvrir<Frm_imp>();
        dans(u"ajouterBtn", u"add_emp"_s, [&](QWidget &saisie) {
            const QString cleFausse = u"Veillez saisir un numéro correct SVP"_s;
            taper(u" 1"_s);
            m_dialogue->attendreAvertissement(u"Veuillez à ne pas insérer de blancs au début "_s);
            touche(Qt::Key_Tab);
            QCOMPARE(texte(saisie, u"num_empmask"), u"        "_s);
            QCOMPARE(focus(), u"clemask"_s);

            // Leaving the key by Tab, by a click into a field and by a click on the button: one box each.
            m_dialogue->attendreAvertissement(cleFausse);
            touche(Qt::Key_Tab);
            QCOMPARE(focus(), u"num_empmask"_s);
            taper(u"12345678\t48"_s);
            QCOMPARE(focus(), u"clemask"_s);
            m_dialogue->attendreAvertissement(cleFausse);
            cliquer(saisie, u"AdresseEdit");
            QCOMPARE(focus(), u"num_empmask"_s);
            QCOMPARE(trouver<QLineEdit>(saisie, u"num_empmask").selectedText(), u"12345678"_s);
            touche(Qt::Key_Tab);
            m_dialogue->attendreAvertissement(cleFausse);
            cliquer(saisie, u"Command1");
            QCOMPARE(focus(), u"num_empmask"_s);
            QVERIFY(m_dialogue->acheve());

            // The closing button asks nothing.
            touche(Qt::Key_Tab);
            cliquer(saisie, u"CancelButton");
            QVERIFY(!saisie.isVisible());
        });
        QVERIFY(m_essai->base.RsEmployeur.vide());
    }

    void refusGardeLaFenetre()
    {
        ouvrir<Frm_imp>();
        dans(u"ajouterBtn", u"add_emp"_s, [&](QWidget &saisie) {
            taper(u"12345678\t47\tA\tB"_s);
            trouver(saisie, u"telEdit").setFocus();
            taper(u"06 60 112"_s);
            trouver(saisie, u"mailEdit").setFocus();
            taper(u"a b"_s);
            m_dialogue->attendreAvertissement(u"EMail incorrecte, manque du caractère '@' !!"_s);
            m_dialogue->attendreAvertissement(u"Format E - Mail incorrecte"_s);
            cliquer(saisie, u"Command1");
            QVERIFY(saisie.isVisible());
            QCOMPARE(focus(), u"mailEdit"_s);
            QCOMPARE(texte(saisie, u"telEdit"), u"0660112"_s);
            QCOMPARE(texte(saisie, u"mailEdit"), u"ab"_s);
        });
    }

    void collages()
    {
        ouvrir<Frm_imp>();
        dans(u"ajouterBtn", u"add_emp"_s, [&](QWidget &saisie) {
            coller(u"1234 5678 999"_s);
            QCOMPARE(texte(saisie, u"num_empmask"), u"12345678"_s);
            trouver(saisie, u"Rais_SocEdit").setFocus();
            coller(u"é"_s.repeated(60));
            QCOMPARE(texte(saisie, u"Rais_SocEdit"), u"é"_s.repeated(40));
            trouver(saisie, u"telEdit").setFocus();
            coller(u" 06 60 11 22 33\n"_s);
            QCOMPARE(texte(saisie, u"telEdit"), u"0660112233"_s);
            taper(u"4"_s);
            QCOMPARE(texte(saisie, u"telEdit"), u"0660112233"_s);
        });
    }

    void modifier()
    {
        employeur(u"11111111"_s, u"Un"_s);
        employeur(u"12345678"_s, u"Deux"_s);
        ouvrir<Frm_imp>();
        dans(u"Command1", u"mod_emp"_s, [&](QWidget &saisie) {
            QCOMPARE(texte(saisie, u"num_empmask"), u"12345678"_s);
            QCOMPARE(texte(saisie, u"clemask"), u"47"_s);
            QCOMPARE(trouver<QLineEdit>(saisie, u"num_empmask").selectedText(), u"12345678"_s);
            m_dialogue->attendreAvertissement(u"Aucun Elément à Modifier"_s);
            cliquer(saisie, u"OKButton");
            QVERIFY(saisie.isVisible());

            trouver(saisie, u"clemask").setFocus();
            touche(Qt::Key_Backspace);
            m_dialogue->attendreAvertissement(u"Veillez Saisir un Numéro Correct SVP"_s);
            touche(Qt::Key_Tab);
            QCOMPARE(focus(), u"num_empmask"_s);
            touche(Qt::Key_Delete);
            QCOMPARE(texte(saisie, u"num_empmask"), u"        "_s);
            taper(u"87654321"_s);
            touche(Qt::Key_Tab);
            taper(u"43"_s);
            touche(Qt::Key_Return);
            QVERIFY(!saisie.isVisible());
        });
        QCOMPARE(m_essai->lignes(u"SELECT num_emp FROM employeur ORDER BY rowid"_s),
                 (QStringList{u"11111111"_s, u"87654321"_s}));
        QCOMPARE(m_essai->base.RsEmployeur.texte(u"num_emp"), u"87654321"_s);
    }

    /// Another program deletes the employer under the open window: his neighbour is not written in his place.
    void supprimeAilleurs()
    {
        employeur(u"11111111"_s, u"Un"_s);
        employeur(u"12345678"_s, u"Deux"_s);
        ouvrir<Frm_imp>();
        dans(u"Command1", u"mod_emp"_s, [&](QWidget &saisie) {
            Connexion autre;
            autre.ouvrir(m_essai->chemin());
            autre.executer(u"DELETE FROM employeur WHERE num_emp = '12345678'"_s);
            for (int essai = 0; essai < 2; ++essai) {
                trouver<QLineEdit>(saisie, u"AdresseEdit").setText(u"Ailleurs"_s);
                m_dialogue->attendreCritique(
                    u"Cette ligne de la table « employeur » a été modifiée ou supprimée depuis qu'elle a été "
                    "lue. La liste a été relue ; veuillez recommencer."_s);
                cliquer(saisie, u"OKButton");
                QVERIFY(m_dialogue->acheve() && saisie.isVisible());
                QCOMPARE(m_essai->lignes(u"SELECT num_emp || adresse FROM employeur"_s),
                         QStringList{u"11111111Ici"_s});
            }
        });
    }

    void supprimerJusquAuDernier()
    {
        employeur(u"11111111"_s, u"Un"_s);
        employeur(u"22222222"_s, u"Deux"_s);
        QWidget &grille = trouver(ouvrir<Frm_imp>(), u"DataGrid1");
        const auto attendre = [&](bool oui) {
            m_dialogue->attendreQuestion(u"confirmer la suppression?"_s, oui, u"confirmation"_s);
        };
        attendre(false);
        QTest::keyClick(&grille, Qt::Key_Delete);
        attendre(true);
        QTest::keyClick(&grille, Qt::Key_Delete);
        QCOMPARE(m_essai->lignes(u"SELECT num_emp FROM employeur"_s), QStringList{u"11111111"_s});
        QVERIFY(permis(u"suppBtn"));
        attendre(true);
        cliquer(*m_fenetre, u"suppBtn");
        QVERIFY(!permis(u"suppBtn") && !permis(u"Command1") && permis(u"ajouterBtn"));
        QCOMPARE(m_menu.accords, 2);
        QTest::keyClick(&grille, Qt::Key_Delete);
        QTest::keyClick(&grille, Qt::Key_Return);
    }

    void banques()
    {
        ouvrir<Frm_BNQ>();
        QVERIFY(!permis(u"Command1") && !permis(u"suppBtn"));
        dans(u"ajouterBtn", u"add_bnq"_s, [&](QWidget &saisie) {
            QCOMPARE(texte(saisie, u"CodeBnq"), u"___"_s);
            taper(u" "_s);
            m_dialogue->attendreAvertissement(u"Veuillez à ne pas insérer de blancs au début "_s);
            touche(Qt::Key_Tab);
            QCOMPARE(texte(saisie, u"CodeBnq"), u"   "_s);

            // The column is narrower than the field: the database refuses, and the fields stay.
            trouver(saisie, u"CodeBnq").setFocus();
            taper(u"003"_s);
            touche(Qt::Key_Tab);
            taper(u"ABREVIATION\tBanque"_s);
            m_dialogue->attendreCritique(
                u"La valeur « ABREVIATION » (11 caractères) est refusée dans la colonne Abreviat de la table "
                "Banque : 10 caractères au plus.\n(CHECK constraint failed: Banque.Abreviat char(10))"_s);
            touche(Qt::Key_Return);
            QCOMPARE(texte(saisie, u"LibelleBnq"), u"Banque"_s);
            QVERIFY(!permis(u"suppBtn"));

            trouver(saisie, u"AbreviatBnq").setFocus();
            coller(u"ABR"_s);
            m_dialogue->attendreInformation(u"Banque ajoutée avec succès!"_s);
            touche(Qt::Key_Return);
            // Ready for the next one.
            QVERIFY(saisie.isVisible() && permis(u"suppBtn") && permis(u"Command1"));
            QCOMPARE(focus(), u"CodeBnq"_s);
            QCOMPARE(texte(saisie, u"CodeBnq"), u"___"_s);
            QCOMPARE(texte(saisie, u"LibelleBnq"), u""_s);
        });
        dans(u"Command1", u"mod_bnq"_s, [&](QWidget &saisie) {
            QCOMPARE(texte(saisie, u"CodeBnq"), u"003"_s);
            touche(Qt::Key_End);
            touche(Qt::Key_Backspace);
            QCOMPARE(texte(saisie, u"CodeBnq"), u"00 "_s);
            m_dialogue->attendreAvertissement(u" le code de la banque doit être sur 3 positions"_s);
            touche(Qt::Key_Return);
            taper(u"004"_s);
            touche(Qt::Key_Return);
            QVERIFY(!saisie.isVisible());
        });
        QCOMPARE(m_essai->lignes(u"SELECT Code || Abreviat || Libelle FROM Banque"_s),
                 QStringList{u"004ABRBanque"_s});
    }

    /// The delete button of the banks deletes the current employer, and the Delete key does nothing.
    void supprimerDepuisLesBanques()
    {
        employeur(u"11111111"_s, u"Un"_s);
        m_essai->base.RsBanque.ajouter({{u"Code"_s, u"001"}});
        m_essai->base.RsBanque.ajouter({{u"Code"_s, u"002"}});
        auto &grille = trouver<Grille>(ouvrir<Frm_BNQ>(), u"DataGrid1");
        QTest::keyClick(&grille, Qt::Key_Delete);

        m_dialogue->attendreQuestion(u"confirmer la suppression?"_s, true, u"confirmation"_s);
        cliquer(*m_fenetre, u"suppBtn");
        QVERIFY(m_essai->base.RsEmployeur.vide());
        QCOMPARE(m_essai->base.RsBanque.nombre(), 2);
        QCOMPARE(m_menu.accords, 1);
        QVERIFY(!permis(u"suppBtn") && !permis(u"Command1"));
        // Neither another order nor a double click brings them back.
        QHeaderView *tete = grille.horizontalHeader();
        for (int fois = 0; fois < 2; ++fois)
            QTest::mouseClick(tete->viewport(), Qt::LeftButton, {}, {10, tete->height() / 2});
        QVERIFY(!permis(u"suppBtn") && !permis(u"Command1"));
        QTest::keyClick(&grille, Qt::Key_Return);
    }

    void pasDeFenetreSansTable()
    {
        m_essai->base.RsEmployeur.fermer();
        QVERIFY_THROWS_EXCEPTION(ErreurBase, Frm_imp{*m_contexte});
    }
};

QTEST_MAIN(TestFenetresEmployeurs)

#include "test_fenetresemployeurs.moc"
