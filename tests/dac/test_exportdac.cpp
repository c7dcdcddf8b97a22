#include "dac/exportdac.h"
#include "declarations/exportdeclaration.h"
#include "storage/lieux.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/dac/basedac.h"
#include "tests/storage/foyer.h"

#include <QBuffer>
#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Two lines of everything in order, under a header that agrees with them.
class Donnees : public BaseDac
{
public:
    Donnees()
    {
        base.RsPeriode.ajouter({{u"Code"_s, periode}, {u"Etat"_s, u"N"_s}});
        peuplerDac(2);
        entete();
        accorder();
    }

    QByteArray fichier()
    {
        QBuffer sortie;
        sortie.open(QIODevice::WriteOnly);
        ecrireDeclaration(fichierDac(), base, base.RsEnteteDac.courant(), sortie);
        return sortie.data();
    }

    bool exporter(bool fige)
    {
        return ::exporter(fichierDac(), base, base.RsEnteteDac.courant(), fige, dialogue);
    }

    DialogueScenario dialogue;
};

} // namespace

/// The file of the nominative declaration and the way to it.
class TestExportDac : public QObject
{
    Q_OBJECT

private slots:
    /// Each field full, and each field that has something to stand for it empty.
    void octets()
    {
        Donnees essai;
        Connexion &cnx = essai.base.Cnx;
        cnx.executer(u"UPDATE salarie SET nom = ' D''ÉTÉ; ', presume = 'O', NIN = '1098801231234500__', "
                     "Telephone = '0550112233', Email = 'a@b.dz', CinNumber = '12', profes = 'MAÇON ' "
                     "WHERE rowid = 1"_s);
        const QByteArray plein =
            "DAC NOMINATIVE KORVANDEL VER 1.0\r\n12345678;202401;1;60000,0003;2;0;\r\n"
            "882345000001;D'\xC9T\xC9;;PRENOM;04/03/1988;O;12345;0101;PAUL;DURAND;MARIE;N;1098801231234500__;"
            "00700000000000000097;00100000000048500097;MA\xC7ON;30000,0001;22;J;01/01/2020;E;0550112233;"
            "a@b.dz;12;004;12 RUE DES ROSIERS;\r\n";
        const QByteArray vide =
            "882345000002;;PRENOM;04/03/1988;N;00000;0000;PAUL;DURAND;MARIE;N;000000000000000000;"
            "00000000000000000000;00000000000000000000;;30000,0002;22;J;;;0000000000;Non fournie;"
            "000000000000000;000;;\r\n";
        const QString vider =
            u"UPDATE salarie SET nom = '', (NumActeNaiss, CommuneNaiss, NIN, num_cpt_ccp, num_cpt_banc, "
            u"profes, "
            "Telephone, Email, CinNumber, IdNat, adresse) = (%1, %1, %2, %1, %1, %1, %1, %3, %1, %1, %1) "
            "WHERE rowid = 2"_s;
        for (const auto &[tous, nin, email] : {std::tuple{u"NULL"_s, u"NULL"_s, u"NULL"_s},
                                               {u"''"_s, u"''"_s, u"''"_s},
                                               {u"''"_s, u"'__________________'"_s, u"'   '"_s}}) {
            cnx.executer(vider.arg(tous, nin, email));
            cnx.executer(u"UPDATE Ligne_Dac SET Date_ES = NULL, Type_ES = %1 WHERE rowid = 2"_s.arg(tous));
            QCOMPARE(essai.fichier(), plein + vide);
        }
        // The employer has eight characters there, and his lines are found by them without blanks.
        for (const auto &[stocke, desLignes, ecrit] :
             {std::tuple{"1234", "1234", "1234    "}, {" 12345678X", "12345678", "12345678"}}) {
            cnx.executer(u"UPDATE Entete_Dac SET NumEmployeur = '%1'"_s.arg(QLatin1String(stocke)));
            cnx.executer(u"UPDATE Ligne_Dac SET NumEmployeur = '%1'"_s.arg(QLatin1String(desLignes)));
            essai.base.RsEnteteDac.requery();
            QCOMPARE(essai.fichier(), QByteArray(plein).replace("12345678;", ecrit + QByteArray(";")) + vide);
        }
    }

    /// The name that is offered has the number, the fixed one has not; a failure with a chosen file is
    /// silent.
    void chemins()
    {
        Foyer foyer;
        Donnees essai;
        QVERIFY_THROWS_EXCEPTION(ErreurFatale, essai.exporter(true)); // no folder yet
        const QString choisi = foyer.chemin() + u"/a.txt"_s;
        const QString succes = u"DAC NOMINATIVE exportée avec succès vers "_s;
        for (const QString &chemin : {QString(), foyer.chemin() + u"/absent/a.txt"_s, choisi}) {
            essai.dialogue.attendreDestination(u"12345678_DAC_NOMINATIVE_202401_1.txt"_s, chemin);
            if (chemin.isEmpty())
                essai.dialogue.attendreBoite(u"Nom de fichier incorrect"_s);
            else if (chemin == choisi)
                essai.dialogue.attendreInformation(succes + QDir::toNativeSeparators(choisi));
            // The period is marked behind the box.
            essai.dialogue.aChaqueBoite = [&] { QCOMPARE(essai.base.RsPeriode.texte(u"Etat"), u"N"_s); };
            QCOMPARE(essai.exporter(false), chemin == choisi);
        }
        QCOMPARE(essai.base.RsPeriode.texte(u"Etat"), u"O"_s);

        essai.base.RsEnteteDac.modifier(essai.base.RsEnteteDac.courant(), {{u"Effectif_total"_s, 3}});
        essai.dialogue.attendreAvertissement(
            u"La somme des assiettes ou le nombre d'employé saisi dans l'en-tête DAC ne correspondent pas "
            u"aux "
            "sommes calculées sur les lignes de cette DAC.\nVerifiez vos lignes DAC SVP"_s);
        essai.dialogue.aChaqueBoite = {};
        QVERIFY(!essai.exporter(true));
    }
};

QTEST_GUILESS_MAIN(TestExportDac)
#include "test_exportdac.moc"
