#include "employees/nationalites.h"
#include "employees/screens/frmimpnat.h"
#include "storage/demarrage.h"
#include "storage/lieux.h"
#include "tests/commun/cas.h"
#include "tests/screens/banc.h"
#include "tests/storage/baseessai.h"
#include "tests/storage/foyer.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace boites;

namespace {

const Attente reussie = information(u"Table nationalité importée Avec Succès. "_s);

} // namespace

class TestNationalites : public QObject
{
    Q_OBJECT

    /// The file, none when null, and the rows.
    using Cas = std::tuple<const char *, QByteArray, QStringList>;

    std::unique_ptr<Foyer> m_foyer;
    std::unique_ptr<BancSur<BaseEssai>> m_banc;

    Base &base() { return m_banc->base; }
    QStringList lignes() { return m_banc->lignes(u"SELECT * FROM Nationalite ORDER BY rowid"_s); }

private slots:
    void init()
    {
        m_foyer = std::make_unique<Foyer>();
        Base livree; // its start lays down the file
        m_banc = std::make_unique<BancSur<BaseEssai>>();
        demarrer(livree, m_banc->dialogue);
    }

    void cleanup()
    {
        m_foyer.reset();
        QVERIFY(m_banc->dialogue.acheve());
    }

    void fichierLivre()
    {
        m_banc->dialogue.attendre({reussie});
        QVERIFY(importerNationalites(base(), m_banc->dialogue));
        const QStringList vues = lignes();
        // The employee screens take a place in this list for the code, and the fourth for the nationals.
        for (int i = 0; i < vues.size(); ++i)
            QCOMPARE(vues[i].left(4), u"%1|"_s.arg(i + 1, 3, 10, QChar(u'0')));
        QCOMPARE(vues[3], u"004|Algérie"_s);
        QCOMPARE(vues.last(), u"246|Zimbabwe"_s);
        QCOMPARE(base().RsNationalite.nombre(), vues.size());

        m_banc->dialogue.attendre({avertissement(u"l'importation a été déja effectué"_s)});
        QVERIFY(!importerNationalites(base(), m_banc->dialogue));
        QCOMPARE(lignes(), vues);
    }

    void fichiers_data()
    {
        lignesDuTest<Cas>({{"no file", {}, {}},
                           {"empty file", "", {}},
                           {"heading alone", "Num Pays", {}},
                           {"end mark",
                            "Num Pays\r\n001 Ici  \r\n 2 L\xE0-bas\r\nEndroit\r\n003Apres\r\n",
                            {u"001|Ici"_s, u"2|Là-bas"_s}},
                           {"no end mark, no last line end",
                            "Num\n001Ici\n002D'Ailleurs; \"vrai\"",
                            {u"001|Ici"_s, u"002|D'Ailleurs; \"vrai\""_s}},
                           // Of the 43 columns of a name 40 are held, counted from its first letter.
                           {"long name",
                            "Num\n001   " + QByteArray(40, 'n') + "X\n002" + QByteArray(41, 'm') + "\nEnd\n",
                            {u"001|"_s + QString(40, u'n'), u"002|"_s + QString(40, u'm')}}});
    }

    void fichiers()
    {
        QFETCH(Cas, cas);
        const auto &[nom, octets, attendu] = cas;
        QVERIFY(QFile::remove(cheminCountry()));
        if (!octets.isNull())
            ecrireFichier(cheminCountry(), octets);
        const bool bon = !octets.isEmpty();
        m_banc->dialogue.attendre(
            {bon ? reussie : avertissement(u"Fichier Country Inexistant! Importation échouée!!"_s)});
        QCOMPARE(importerNationalites(base(), m_banc->dialogue), bon);
        QCOMPARE(lignes(), attendu);
        QCOMPARE(base().RsNationalite.nombre(), attendu.size());
    }

    /// A load that fails half-way ends without a word and leaves the table empty.
    void disquePlein()
    {
        ecrireFichier(cheminCountry(), "Num\r\n" + ("001" + QByteArray(40, 'n') + "\r\n").repeated(2000));
        limiterPages(base().Cnx, 2);
        QVERIFY(!importerNationalites(base(), m_banc->dialogue));
        QVERIFY(!base().Cnx.enTransaction());
        QVERIFY(lignes().isEmpty());
        limiterPages(base().Cnx);
        m_banc->dialogue.attendre({reussie});
        QVERIFY(importerNationalites(base(), m_banc->dialogue));
        QCOMPARE(lignes().size(), 2000);
    }

    void fenetre()
    {
        const auto ecran = m_banc->ouvrir(new FrmImpNat(m_banc->contexte));
        QCOMPARE(ecran->objectName() + u'|' + focus() + u'|' + texte(*ecran, u"LabNombre"_s),
                 u"FrmImpNat|CmdImport|0"_s);

        // Another program in the middle of its own work: told, and done at the next try.
        {
            Connexion autre;
            autre.ouvrir(m_banc->chemin());
            Transaction tenue(autre);
            base().Cnx.existe(u"PRAGMA busy_timeout = 20"_s);
            m_banc->dialogue.attendre({critique(
                u"La base de données « %1 » est occupée par un autre programme.\n(database is locked)"_s.arg(
                    m_banc->chemin()))});
            cliquer(*ecran, u"CmdImport"_s);
            QVERIFY(m_banc->dialogue.acheve());
        }
        m_banc->dialogue.attendre({reussie});
        touche(Qt::Key_Return);
        QCOMPARE(texte(*ecran, u"LabNombre"_s), u"246"_s);
        cliquer(*ecran, u"Command1"_s);
        QVERIFY(!ecran->isVisible());

        base().RsNationalite.fermer();
        QVERIFY_THROWS_EXCEPTION(ErreurBase, FrmImpNat{m_banc->contexte});
    }
};

QTEST_MAIN(TestNationalites)
#include "test_nationalites.moc"
