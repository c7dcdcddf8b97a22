#include "employees/nationalites.h"
#include "employees/screens/fenetresnationalites.h"
#include "rules/calendrier.h"
#include "screens/contexte.h"
#include "screens/dernierrecours.h"
#include "screens/registrefenetres.h"
#include "storage/base.h"
#include "storage/demarrage.h"
#include "storage/lieux.h"
#include "tests/commun/dialoguescenario.h"

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

const QString absent = u"Fichier Country Inexistant! Importation échouée!!"_s;
const QString deja = u"l'importation a été déja effectué"_s;
const QString reussie = u"Table nationalité importée Avec Succès. "_s;

class SansMenu : public MenuPrincipal
{
public:
    void permettre(const QString &, bool) override {}
    void ouvrir(const QString &) override {}
};

} // namespace

class TestNationalites : public QObject
{
    Q_OBJECT

    const QByteArray m_foyerDAvant = qgetenv("HOME");
    std::unique_ptr<QTemporaryDir> m_foyer;
    std::unique_ptr<Base> m_base;
    std::unique_ptr<DialogueScenario> m_dialogue;

    static void ecrire(const QByteArray &octets)
    {
        QFile fichier(cheminCountry());
        QVERIFY(fichier.open(QIODevice::WriteOnly));
        QCOMPARE(fichier.write(octets), octets.size());
    }

    QStringList lignes()
    {
        QStringList vues;
        Requete requete = m_base->Cnx.lire(u"SELECT ID, Libelle FROM Nationalite ORDER BY rowid"_s);
        while (requete.suivante())
            vues += QString(requete.texte(0) + u'|' + requete.texte(1));
        return vues;
    }

private slots:
    void init()
    {
        m_foyer = std::make_unique<QTemporaryDir>();
        qputenv("HOME", m_foyer->path().toUtf8());
        m_dialogue = std::make_unique<DialogueScenario>();
        m_base = std::make_unique<Base>();
        demarrer(*m_base, *m_dialogue);
    }

    void cleanup()
    {
        m_base.reset();
        qputenv("HOME", m_foyerDAvant);
        QVERIFY(m_dialogue->acheve());
    }

    void fichierLivre()
    {
        m_dialogue->attendreInformation(reussie);
        QVERIFY(importerNationalites(*m_base, *m_dialogue));
        const QStringList vues = lignes();
        // The employee screens take a place in this list for the code, and the fourth for the nationals.
        for (int i = 0; i < vues.size(); ++i)
            QCOMPARE(vues[i].left(4), QString(u"%1|"_s.arg(i + 1, 3, 10, QChar(u'0'))));
        QCOMPARE(vues[3], u"004|Algérie"_s);
        QCOMPARE(vues.last(), u"246|Zimbabwe"_s);
        QCOMPARE(m_base->RsNationalite.nombre(), vues.size());

        m_dialogue->attendreAvertissement(deja);
        QVERIFY(!importerNationalites(*m_base, *m_dialogue));
        QCOMPARE(lignes(), vues);
    }

    void fichiers_data()
    {
        QTest::addColumn<std::optional<QByteArray>>("octets");
        QTest::addColumn<QString>("avertissement");
        QTest::addColumn<bool>("bon");
        QTest::addColumn<QStringList>("attendu");
        using Octets = std::optional<QByteArray>;
        QTest::newRow("no file") << Octets() << absent << false << QStringList();
        QTest::newRow("empty file") << Octets("") << absent << false << QStringList();
        QTest::newRow("heading alone") << Octets("Num Pays") << QString() << true << QStringList();
        QTest::newRow("end mark") << Octets(
                                         "Num Pays\r\n001 Ici  \r\n 2 L\xE0-bas\r\nEndroit\r\n003Apres\r\n")
                                  << QString() << true << QStringList{u"001|Ici"_s, u"2|Là-bas"_s};
        QTest::newRow("no end mark, no last line end")
            << Octets("Num\n001Ici\n002D'Ailleurs; \"vrai\"") << QString() << true
            << QStringList{u"001|Ici"_s, u"002|D'Ailleurs; \"vrai\""_s};
        // Of the 43 columns of a name 40 are held, counted from its first letter.
        QTest::newRow("long name") << Octets(QByteArray("Num\n001   ").append(QByteArray(40, 'n')) +
                                             "X\n002" + QByteArray(41, 'm') + "\nEnd\n")
                                   << QString() << true
                                   << QStringList{u"001|"_s + QString(40, u'n'),
                                                  u"002|"_s + QString(40, u'm')};
    }

    void fichiers()
    {
        QFETCH(std::optional<QByteArray>, octets);
        QFETCH(QString, avertissement);
        QFETCH(bool, bon);
        QFETCH(QStringList, attendu);
        QVERIFY(QFile::remove(cheminCountry()));
        if (octets)
            ecrire(*octets);
        if (!avertissement.isEmpty())
            m_dialogue->attendreAvertissement(avertissement);
        if (bon)
            m_dialogue->attendreInformation(reussie);
        QCOMPARE(importerNationalites(*m_base, *m_dialogue), bon);
        QCOMPARE(lignes(), attendu);
        QCOMPARE(m_base->RsNationalite.nombre(), attendu.size());
    }

    /// A load that fails half-way ends without a word and leaves the table empty.
    void disquePlein()
    {
        QByteArray gros = "Num\r\n";
        for (int i = 0; i < 2000; ++i)
            gros += "001" + QByteArray(40, 'n') + "\r\n";
        ecrire(gros);
        m_base->Cnx.existe(
            u"PRAGMA max_page_count = %1"_s.arg(m_base->Cnx.premiere(u"PRAGMA page_count"_s).entier(0) + 2));
        QVERIFY(!importerNationalites(*m_base, *m_dialogue));
        QVERIFY(!m_base->Cnx.enTransaction());
        QVERIFY(lignes().isEmpty());
        m_base->Cnx.existe(u"PRAGMA max_page_count = 1000000"_s);
        m_dialogue->attendreInformation(reussie);
        QVERIFY(importerNationalites(*m_base, *m_dialogue));
        QCOMPARE(lignes().size(), 2000);
    }

    void fenetre()
    {
        DernierRecours recours(*m_dialogue, [this] { m_base->Cnx.annulerTransaction(); });
        BornesDePeriode bornes;
        SansMenu menu;
        Contexte contexte{*m_base, *m_dialogue, recours, bornes, menu};
        RegistreFenetres registre;
        ajouterFenetresNationalites(registre);
        const std::unique_ptr<QWidget> ecran(registre.fabrique(u"wImpTabNat"_s)(contexte));
        auto *importer = ecran->findChild<QPushButton *>(u"CmdImport"_s);
        QCOMPARE(ecran->focusWidget(), importer);
        ecran->show();
        QCOMPARE(ecran->objectName(), u"FrmImpNat"_s);
        auto *nombre = ecran->findChild<QLabel *>(u"LabNombre"_s);
        QCOMPARE(nombre->text(), u"0"_s);

        // Another program in the middle of its own work: told, and done at the next try.
        {
            Connexion autre;
            autre.ouvrir(cheminBase());
            Transaction tenue(autre);
            m_base->Cnx.existe(u"PRAGMA busy_timeout = 20"_s);
            m_dialogue->attendreCritique(
                u"La base de données « %1 » est occupée par un autre programme.\n(database is locked)"_s.arg(
                    cheminBase()));
            QTest::mouseClick(importer, Qt::LeftButton);
            QVERIFY(m_dialogue->acheve());
        }
        m_dialogue->attendreInformation(reussie);
        QTest::keyClick(importer, Qt::Key_Return);
        QCOMPARE(nombre->text(), u"246"_s);
        QTest::mouseClick(ecran->findChild<QPushButton *>(u"Command1"_s), Qt::LeftButton);
        QVERIFY(!ecran->isVisible());

        m_base->RsNationalite.fermer();
        QVERIFY_THROWS_EXCEPTION(ErreurBase, registre.fabrique(u"wImpTabNat"_s)(contexte));
    }
};

QTEST_MAIN(TestNationalites)
#include "test_nationalites.moc"
