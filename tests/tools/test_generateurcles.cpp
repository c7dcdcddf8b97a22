#include "storage/base.h"
#include "tests/commun/cas.h"
#include "tests/screens/banc.h"
#include "tools/screens/frmgencle.h"

#include <QLabel>

using namespace Qt::StringLiterals;
using namespace boites;

/// The key generator, driven from its fields to its labels.
class TestGenerateurCles : public QObject
{
    Q_OBJECT

    /// The three fields, the boxes and the three results.
    using Cas = std::tuple<const char *, QString, QString, QString, Attentes, QString>;

    const QString m_labels = u"LabSS LabCCP labRipRIB"_s;
    Base m_base; // never opened: the window touches no table
    Banc m_banc{m_base};
    std::unique_ptr<QWidget> m_ecran;

    void remplir(const QString &ss, const QString &ccp, const QString &compte)
    {
        saisir(*m_ecran, u"TxtSS"_s, ss);
        saisir(*m_ecran, u"TxtCCP"_s, ccp);
        saisir(*m_ecran, u"wCptRIPRIB"_s, compte);
    }

private slots:
    void init()
    {
        m_ecran = m_banc.ouvrir(new FrmGenCle(m_banc.contexte));
        for (const QString &label : m_labels.split(u' '))
            champ<QLabel>(*m_ecran, label)->setText(u"avant"_s);
    }

    void cleanup() { QVERIFY(m_banc.dialogue.acheve()); }

    void generer_data()
    {
        const QString zeros(20, u'0');
        const QString rip = u"00712345678901234561"_s;
        const Attentes nonNumerique{avertissement(u"Compte RIB ou RIP non numérique "_s)};
        lignesDuTest<Cas>(
            {{"all", u"1234567890"_s, u"1234567"_s, rip, {}, u"29|68|Vrai"_s},
             {"blanks around", u" 1234567890 "_s, u" 1234567 "_s, zeros, {}, u"29|68|avant"_s},
             {"wrong account", {}, {}, u"00712345678901234562"_s, {}, u"avant|avant|Faux"_s},
             {"letters", u"12a"_s, u"x'; --"_s, zeros, {}, u"avant|avant|avant"_s},
             // The masked field takes no letter; what is left of it is an account with places open.
             {"account with letters", u"12345678"_s, {}, u"007abc"_s, nonNumerique, u"47|avant|avant"_s},
             {"account with a gap",
              {},
              u"1234567"_s,
              u"0071234567 901234561"_s,
              nonNumerique,
              u"avant|68|avant"_s},
             {"empty account", {}, {}, {}, nonNumerique, u"avant|avant|avant"_s},
             // A number with a sign has no key: that is told, and the others show what they have.
             {"signs",
              u"-1"_s,
              u"-5"_s,
              rip,
              {critique(u"« -1 » n'est pas fait de chiffres seuls."_s),
               critique(u"« 000000-5 » n'est pas fait de chiffres seuls."_s)},
              u"avant|avant|Vrai"_s}});
    }

    void generer()
    {
        QFETCH(Cas, cas);
        const auto &[nom, ss, ccp, compte, boites, attendu] = cas;
        remplir(ss, ccp, compte);
        m_banc.dialogue.attendre(boites);
        touche(Qt::Key_Return);
        QCOMPARE(textes(*m_ecran, m_labels), attendu);
        QCOMPARE(texte(*m_ecran, u"TxtCCP"_s), ccp);
    }

    void reinitialiser()
    {
        remplir(u"1"_s, u"2"_s, u"123"_s);
        cliquer(*m_ecran, u"CmdInit"_s);
        QCOMPARE(textes(*m_ecran, m_labels + u" TxtSS TxtCCP wCptRIPRIB"_s),
                 u"||avant|||"_s + QString(20, u'0'));
        cliquer(*m_ecran, u"CmdClose"_s);
        QVERIFY(!m_ecran->isVisible());
    }
};

QTEST_MAIN(TestGenerateurCles)
#include "test_generateurcles.moc"
