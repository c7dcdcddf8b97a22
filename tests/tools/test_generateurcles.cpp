#include "rules/calendrier.h"
#include "screens/champmasque.h"
#include "screens/contexte.h"
#include "screens/dernierrecours.h"
#include "screens/registrefenetres.h"
#include "storage/base.h"
#include "tests/commun/dialoguescenario.h"
#include "tools/screens/fenetresoutils.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

class SansMenu : public MenuPrincipal
{
public:
    void permettre(const QString &, bool) override {}
    void ouvrir(const QString &) override {}
};

} // namespace

/// The key generator, driven from its fields to its labels.
class TestGenerateurCles : public QObject
{
    Q_OBJECT

    Base m_base; // never opened: the window touches no table
    DialogueScenario m_dialogue;
    DernierRecours m_recours{m_dialogue, [] {}};
    BornesDePeriode m_bornes;
    SansMenu m_menu;
    Contexte m_contexte{m_base, m_dialogue, m_recours, m_bornes, m_menu};
    std::unique_ptr<QWidget> m_ecran;

    template <typename T>
    T &trouver(const char16_t *nom)
    {
        return *m_ecran->findChild<T *>(QString::fromUtf16(nom));
    }

    void saisir(const char16_t *champ, const QString &texte)
    {
        auto &ligne = trouver<QLineEdit>(champ);
        ligne.selectAll();
        QTest::keyClick(&ligne, Qt::Key_Delete);
        QTest::keyClicks(&ligne, texte);
    }

    QStringList resultats()
    {
        return {trouver<QLabel>(u"LabSS").text(), trouver<QLabel>(u"LabCCP").text(),
                trouver<QLabel>(u"labRipRIB").text()};
    }

    void cliquer(const char16_t *bouton) { QTest::mouseClick(&trouver<QPushButton>(bouton), Qt::LeftButton); }

private slots:
    void init()
    {
        RegistreFenetres registre;
        ajouterFenetresOutils(registre);
        m_ecran.reset(registre.fabrique(u"wGen"_s)(m_contexte));
        m_ecran->show();
        QVERIFY(QTest::qWaitForWindowActive(m_ecran.get()));
        for (const char16_t *label : {u"LabSS", u"LabCCP", u"labRipRIB"})
            trouver<QLabel>(label).setText(u"avant"_s);
    }

    void cleanup() { QVERIFY(m_dialogue.acheve()); }

    void generer_data()
    {
        QTest::addColumn<QString>("ss");
        QTest::addColumn<QString>("ccp");
        QTest::addColumn<QString>("compte");
        QTest::addColumn<QString>("avertissement");
        QTest::addColumn<QString>("attendu");
        const QString zeros(20, u'0');
        const QString nonNumerique = u"Compte RIB ou RIP non numérique "_s;
        QTest::newRow("all") << u"1234567890"_s << u"1234567"_s << u"00712345678901234561"_s << QString()
                             << u"29 68 Vrai"_s;
        QTest::newRow("blanks around")
            << u" 1234567890 "_s << u" 1234567 "_s << zeros << QString() << u"29 68 avant"_s;
        QTest::newRow("wrong account")
            << QString() << QString() << u"00712345678901234562"_s << QString() << u"avant avant Faux"_s;
        QTest::newRow("letters") << u"12a"_s << u"x'; --"_s << zeros << QString() << u"avant avant avant"_s;
        // The masked field takes no letter; what is left of it is an account with places open.
        QTest::newRow("account with letters")
            << u"12345678"_s << QString() << u"007abc"_s << nonNumerique << u"47 avant avant"_s;
        QTest::newRow("account with a gap")
            << QString() << u"1234567"_s << u"0071234567 901234561"_s << nonNumerique << u"avant 68 avant"_s;
        QTest::newRow("empty account")
            << QString() << QString() << QString() << nonNumerique << u"avant avant avant"_s;
    }

    void generer()
    {
        QFETCH(QString, ss);
        QFETCH(QString, ccp);
        QFETCH(QString, compte);
        QFETCH(QString, avertissement);
        QFETCH(QString, attendu);
        saisir(u"TxtSS", ss);
        saisir(u"TxtCCP", ccp);
        saisir(u"wCptRIPRIB", compte);
        if (!avertissement.isEmpty())
            m_dialogue.attendreAvertissement(avertissement);
        cliquer(u"CmdGen");
        QCOMPARE(resultats().join(u' '), attendu);
    }

    /// A number with a sign has no key: the failure is told and ends the action; a key worked out before it
    /// shows.
    void signe()
    {
        saisir(u"TxtSS", u"1234567890"_s);
        saisir(u"TxtCCP", u"-5"_s);
        m_dialogue.attendreCritique(u"« 000000-5 » n'est pas fait de chiffres seuls."_s);
        QTest::keyClick(&trouver<QLineEdit>(u"TxtSS"), Qt::Key_Return);
        QCOMPARE(resultats().join(u' '), u"29 avant avant"_s);
        QCOMPARE(trouver<QLineEdit>(u"TxtCCP").text(), u"-5"_s);
    }

    void reinitialiser()
    {
        saisir(u"TxtSS", u"1"_s);
        saisir(u"TxtCCP", u"2"_s);
        saisir(u"wCptRIPRIB", u"123"_s);
        cliquer(u"CmdInit");
        QCOMPARE(resultats(), (QStringList{QString(), QString(), u"avant"_s}));
        QCOMPARE(trouver<QLineEdit>(u"TxtSS").text() + trouver<QLineEdit>(u"TxtCCP").text(), QString());
        QCOMPARE(trouver<QLineEdit>(u"wCptRIPRIB").text(), QString(20, u'0'));
        cliquer(u"CmdClose");
        QVERIFY(!m_ecran->isVisible());
    }
};

QTEST_MAIN(TestGenerateurCles)
#include "test_generateurcles.moc"
