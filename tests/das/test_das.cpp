#include "das/genredas.h"
#include "das/importdas.h"
#include "das/lignedas.h"
#include "declarations/entetes.h"
#include "declarations/lignes.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/das/basedas.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTest>
#include <QThread>

#include <cstdio>
#include <functional>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

const QString pasDeRefus;

const QString lesEntetes = u"SELECT num_emp, annee, Type, sum_annuel, total_salarie, sum_calc, total_calc "
                           "FROM entete_das ORDER BY rowid"_s;
const QString lesLignes =
    u"SELECT num_salarie, cpt_z, sal_annuel, nbj_travail, type_dure, date_es, type_date_es FROM ligne_das "
    "ORDER BY rowid"_s;

/// The control that gets the focus.
QString champ(const std::optional<Refus> &refus) { return refus ? refus->controle.toString() : pasDeRefus; }

FicheEntete ficheEntete(bool complementaire = false)
{
    return {BaseDas::employeur.toString(), u"2024"_s, complementaire, u"1 200 000.50"_s, u"00002"_s};
}

FicheLigneDas ficheLigne(int employe = 1)
{
    FicheLigneDas fiche;
    fiche.num_saledit = BaseDas::numero(employe).left(10);
    fiche.mskcle = BaseDas::numero(employe).right(2);
    fiche.sal_annueledit = u"600000"_s;
    fiche.nbj_travailctrl = {12, u'M'};
    return fiche;
}

QString question(const QString &moyenne, const QString &blancs)
{
    return u"le salaire déclaré mensuel moyen est de : "_s + moyenne + blancs +
           u"Da, Voulez vous valider ses données ?"_s;
}

/// What a test puts into the fields of a line, and what it expects.
struct CasLigne
{
    std::function<void(FicheLigneDas &)> saisir;
    /// The average of the question, where it comes; the clerk says yes when nothing is refused behind it.
    QString moyenne;
    QString refus;
    QString focus = {};
};

/// Says yes to everything.
class Consentant : public Dialogue
{
public:
    explicit Consentant(QString fichier = {}) : m_fichier(std::move(fichier)) {}
    QString choisirFichier(const QString &, const QString &) override { return m_fichier; }
    QString choisirDestination(const QString &, const QString &, const QString &) override { return {}; }

protected:
    bool montrer(const Boite &) override { return true; }

private:
    QString m_fichier;
};

constexpr int lignesAvantLaMort = 2000;

void direUneLigne()
{
    std::fputc('.', stdout);
    std::fflush(stdout);
}

/// Adds lines until it is killed, and tells of every one that is saved.
int ajouterSansFin(Base &base)
{
    LignesDeclaration lignes(base, genreDas(), cleEntete(genreDas(), base.RsEnteteDas.courant()));
    Consentant dialogue;
    for (int i = 1; i <= lignesAvantLaMort; ++i) {
        FicheLigneDas fiche = ficheLigne();
        fiche.num_saledit = u"0000000000"_s;
        fiche.mskcle = u"00"_s;
        fiche.cpt_z = i;
        if (ajouterLigneDas(lignes, fiche, dialogue))
            return 1;
        direUneLigne();
    }
    return 0;
}

/// The program that is killed: on this database, with this file when there is one.
int enfant(const QString &chemin, const QString &fichier)
{
    Base base;
    ouvrirPourSalaries(base, chemin);
    base.RsEnteteDas.ouvrir();
    if (fichier.isEmpty())
        return ajouterSansFin(base);
    Consentant dialogue(fichier);
    importerDas(base, dialogue, [](qint64) {
        direUneLigne();
        return true;
    });
    return 0;
}

/// Kills the program that long after its first line. @return how many lines it has told of
qint64 tuer(const QStringList &arguments, unsigned long microsecondes)
{
    QProcess programme;
    programme.start(QCoreApplication::applicationFilePath(), QStringList{u"--enfant"_s} + arguments);
    programme.waitForReadyRead();
    QThread::usleep(microsecondes);
    programme.kill();
    programme.waitForFinished();
    return programme.readAllStandardOutput().size();
}

} // namespace

Q_DECLARE_METATYPE(CasLigne)

/// Headers and lines of the annual declaration: what is refused in which order, and what is written.
class TestDas : public QObject
{
    Q_OBJECT

private slots:
    void enteteAjoute()
    {
        BaseDas essai;
        DialogueScenario dialogue;
        QCOMPARE(champ(ajouterEntete(essai.base, entetesDas(), ficheEntete(), dialogue)), pasDeRefus);
        FicheEntete nulle = ficheEntete(true);
        nulle.sumedit = u"0"_s;
        nulle.total_salEdit = u"00000"_s;
        QCOMPARE(champ(ajouterEntete(essai.base, entetesDas(), nulle, dialogue)), pasDeRefus);
        FicheEntete arrondie = ficheEntete(true);
        arrondie.sumedit = u"1,00005"_s;
        arrondie.total_salEdit = u"2.5"_s;
        QCOMPARE(champ(ajouterEntete(essai.base, entetesDas(), arrondie, dialogue)), pasDeRefus);
        QCOMPARE(essai.lignes(lesEntetes),
                 (QStringList{u"12345678|2024|1|12000005000|2|NULL|NULL"_s,
                              u"12345678|2024|2|0|0|NULL|NULL"_s, u"12345678|2024|3|10000|2|NULL|NULL"_s}));
        QCOMPARE(essai.base.RsEnteteDas.entier(u"Type"), 3);
    }

    void complementaireSansPrincipale()
    {
        const QString texte = u"Cet employeur ne possede pas de Das principale pour cet exercice, \n voulez "
                              "vous tout de même saisir une Das complémentaire ?"_s;
        BaseDas essai;
        DialogueScenario dialogue;
        dialogue.attendreQuestion(texte, false, {}, false, Icone::Information);
        QCOMPARE(champ(ajouterEntete(essai.base, entetesDas(), ficheEntete(true), dialogue)), u"cmplCheck"_s);
        QVERIFY(essai.base.RsEnteteDas.vide());
        dialogue.attendreQuestion(texte, true, {}, false, Icone::Information);
        QCOMPARE(champ(ajouterEntete(essai.base, entetesDas(), ficheEntete(true), dialogue)), pasDeRefus);
        QCOMPARE(essai.base.RsEnteteDas.entier(u"Type"), 2);

        // The highest number counts, and neither it nor another year stands in the way of a principal.
        essai.entete(7);
        essai.entete(9, {}, 0, 2023);
        QCOMPARE(champ(ajouterEntete(essai.base, entetesDas(), ficheEntete(true), dialogue)), pasDeRefus);
        QCOMPARE(essai.base.RsEnteteDas.entier(u"Type"), 8);
        QCOMPARE(champ(ajouterEntete(essai.base, entetesDas(), ficheEntete(), dialogue)), pasDeRefus);
        QCOMPARE(essai.base.RsEnteteDas.entier(u"Type"), 1);
    }

    void enteteRefuse_data()
    {
        QTest::addColumn<QStringList>("saisi");
        QTest::addColumn<QString>("boite");
        QTest::addColumn<QString>("focus");
        const auto cas = [](const char *nom, const QStringList &saisi, const QString &boite,
                            const char16_t *focus) {
            QTest::newRow(nom) << saisi << boite << QString::fromUtf16(focus);
        };
        const QString choix = u"Veuillez spécifier une année et un numéro d'employeur SVP"_s;
        const QString somme = u"Veuillez saisir une valeur correcte pour la somme des salaires!"_s;
        const QString nombre = u"Veuillez saisir un nombre de salariés correct!"_s;
        const QString valeurs = u"Valeurs incorrectes !"_s;
        const QString emp = BaseDas::employeur.toString();
        cas("rien", {u""_s, u""_s, u"x"_s, u"x"_s}, choix, u"cmbannee");
        cas("sans employeur", {u""_s, u"2024"_s, u"x"_s, u"x"_s}, choix, u"cmbemp");
        cas("employeur inconnu", {u"87654321"_s, u"2024"_s, u"x"_s, u"x"_s},
            u"Ce numéro d'employeur n'éxiste pas"_s, u"cmbemp");
        cas("principale avant sommes", {emp, u"2023"_s, u"x"_s, u"x"_s},
            u"Une Das existe avec la même année et numéro employeur"_s, u"cmplCheck");
        cas("somme avant nombre", {emp, u"2024"_s, u"1e3"_s, u"x"_s}, somme, u"sumedit");
        cas("somme vide", {emp, u"2024"_s, u""_s, u"1"_s}, somme, u"sumedit");
        cas("somme negative", {emp, u"2024"_s, u"-0.01"_s, u"1"_s}, somme, u"sumedit");
        cas("nombre", {emp, u"2024"_s, u"1"_s, u"1,2,3"_s}, nombre, u"total_salEdit");
        cas("nombre negatif", {emp, u"2024"_s, u"1"_s, u"-1"_s}, nombre, u"total_salEdit");
        cas("somme sans nombre", {emp, u"2024"_s, u"0.01"_s, u"00000"_s}, valeurs, u"sumedit");
        cas("nombre sans somme", {emp, u"2024"_s, u"0,00"_s, u"1"_s}, valeurs, u"sumedit");
    }

    void enteteRefuse()
    {
        QFETCH(QStringList, saisi);
        QFETCH(QString, boite);
        QFETCH(QString, focus);
        BaseDas essai;
        essai.entete(1, {}, 0, 2023);
        DialogueScenario dialogue;
        dialogue.attendreAvertissement(boite);
        QCOMPARE(champ(ajouterEntete(essai.base, entetesDas(),
                                     {saisi[0], saisi[1], false, saisi[2], saisi[3]}, dialogue)),
                 focus);
        QVERIFY(dialogue.acheve());
        QCOMPARE(essai.lignes(lesEntetes).size(), 1);
    }

    void sansAucunEmployeur()
    {
        BaseDas essai;
        essai.base.Cnx.executer(u"DELETE FROM employeur"_s);
        DialogueScenario dialogue;
        dialogue.attendreAvertissement(u"Il n'y a pas d'employeur!"_s);
        QCOMPARE(champ(ajouterEntete(essai.base, entetesDas(), ficheEntete(), dialogue)), u"cmbemp"_s);
    }

    void figuresTropGrandes()
    {
        BaseDas essai;
        DialogueScenario dialogue;
        FicheEntete fiche = ficheEntete();
        fiche.sumedit = u"922337203685477.5807"_s;
        fiche.total_salEdit = u"2147483648"_s;
        QVERIFY_THROWS_EXCEPTION(ErreurConversion, ajouterEntete(essai.base, entetesDas(), fiche, dialogue));
        fiche.total_salEdit = u"2147483647"_s;
        QCOMPARE(champ(ajouterEntete(essai.base, entetesDas(), fiche, dialogue)), pasDeRefus);
        QCOMPARE(essai.base.RsEnteteDas.montant(u"sum_annuel").texte(), u"922337203685477.5807"_s);
        fiche.cmplCheck = true;
        fiche.sumedit = u"922337203685477.5808"_s;
        QVERIFY_THROWS_EXCEPTION(ErreurConversion, ajouterEntete(essai.base, entetesDas(), fiche, dialogue));
    }

    void enteteModifie_data()
    {
        QTest::addColumn<QString>("somme");
        QTest::addColumn<QString>("effectif");
        QTest::addColumn<QString>("ecrit");
        QTest::newRow("masque") << u"1 234.5"_s << u"3"_s << u"12345000|3"_s;
        QTest::newRow("un") << u",01"_s << u"1"_s << u"100|1"_s;
        QTest::newRow("somme nulle") << u"0"_s << u"3"_s << QString();
        QTest::newRow("tout nul") << u"0"_s << u"0"_s << QString();
        QTest::newRow("moins d'un") << u"1"_s << u"0.99"_s << QString();
        QTest::newRow("negative") << u"-1"_s << u"1"_s << QString();
        QTest::newRow("texte") << u"abc"_s << u"1"_s << QString();
        QTest::newRow("vide") << u"1"_s << u""_s << QString();
    }

    void enteteModifie()
    {
        QFETCH(QString, somme);
        QFETCH(QString, effectif);
        QFETCH(QString, ecrit);
        BaseDas essai;
        essai.entete(1, Currency::deEntier(5), 5);
        DialogueScenario dialogue;
        if (ecrit.isEmpty())
            dialogue.attendreAvertissement(u"Valeurs incorrectes!"_s);
        const auto refus = modifierEntete(essai.base, entetesDas(), essai.base.RsEnteteDas.courant(), somme,
                                          effectif, dialogue);
        QCOMPARE(refus.has_value(), ecrit.isEmpty());
        QCOMPARE(essai.lignes(u"SELECT sum_annuel, total_salarie FROM entete_das"_s),
                 QStringList{ecrit.isEmpty() ? u"50000|5"_s : ecrit});
    }

    void enteteSupprime()
    {
        BaseDas essai;
        essai.entete(1);
        essai.entete(2);
        essai.ligne(BaseDas::numero(1), 1, {}, 2);
        DialogueScenario dialogue;
        const QString confirmation = u"Confirmation"_s;
        dialogue.attendreConfirmation(u"Confirmez la suppression ? "_s, false, confirmation);
        QVERIFY(!supprimerEntete(essai.base, genreDas(), essai.base.RsEnteteDas.courant(), dialogue));
        dialogue.attendreConfirmation(u"Confirmez la suppression ? "_s, true, confirmation);
        dialogue.attendreAvertissement(
            u"Impossible de supprimer l'entête, supprimez ses lignes DAS d'abord!"_s);
        QVERIFY(!supprimerEntete(essai.base, genreDas(), essai.base.RsEnteteDas.courant(), dialogue));
        QCOMPARE(essai.base.RsEnteteDas.nombre(), 2);

        // The other button does not look at the lines.
        dialogue.attendreConfirmation(u"Confirmez la suppression !"_s, true, confirmation);
        QVERIFY(supprimerEnteteSeul(essai.base, genreDas(), essai.base.RsEnteteDas.courant(), dialogue));
        QCOMPARE(essai.lignes(lesLignes).size(), 1);
        dialogue.attendreConfirmation(u"Confirmez la suppression ? "_s, true, confirmation);
        QVERIFY(supprimerEntete(essai.base, genreDas(), essai.base.RsEnteteDas.courant(), dialogue));
        QVERIFY(essai.lignes(lesEntetes).isEmpty());
    }

    void ligneControlee_data()
    {
        QTest::addColumn<CasLigne>("ajout");
        QTest::addColumn<CasLigne>("modification");
        const auto cas = [](const char *nom, std::function<void(FicheLigneDas &)> saisir,
                            const QString &moyenneAjout, const QString &refusAjout, const QString &focusAjout,
                            const QString &moyenneModif, const QString &refusModif,
                            const QString &focusModif) {
            QTest::newRow(nom) << CasLigne{saisir, moyenneAjout, refusAjout, focusAjout}
                               << CasLigne{saisir, moyenneModif, refusModif, focusModif};
        };
        /// Both screens alike: the average where nothing is refused before it.
        const auto memes = [&](const char *nom, std::function<void(FicheLigneDas &)> saisir,
                               const QString &refus, const QString &focus) {
            cas(nom, saisir, {}, refus, focus, {}, refus, focus);
        };
        const auto bons = [&](const char *nom, std::function<void(FicheLigneDas &)> saisir,
                              const QString &ajout, const QString &modification) {
            cas(nom, saisir, ajout, {}, pasDeRefus, modification, {}, pasDeRefus);
        };
        const QString montant = u"sal_annueledit"_s;
        const QString duree = u"nbj_travailctrl"_s;
        const QString date = u"mskdate"_s;
        const QString coherence = u"Date entrée ou durée travaillée erronée, veuillez rectifier SVP!"_s;
        const QString maximum = u"Durée de travail superieure au maximum autorisé!"_s;
        const QString correcte = u"Veuillez saisir une valeur correcte pour la durée de travail SVP"_s;
        const QString positive = u"Veuillez saisir une valeur positive de salaire annuel"_s;
        const QString compagne = u"La date est superieure à l'année de compagne!"_s;
        const auto mouvement = [](bool sortie, const QString &jour, qint64 nombre, QChar unite) {
            return [=](FicheLigneDas &f) {
                f.EOption = !sortie;
                f.SOption = sortie;
                f.mskdate = jour;
                f.nbj_travailctrl = {nombre, unite};
            };
        };
        const auto dureeSeule = [](qint64 nombre, QChar unite) {
            return [=](FicheLigneDas &f) { f.nbj_travailctrl = {nombre, unite}; };
        };

        cas(
            "pas un nombre",
            [](FicheLigneDas &f) {
                f.sal_annueledit = u"1.2.3"_s;
                f.mskdate = u"x"_s;
            },
            {}, u"Veuillez saisir un montant monètaire SVP"_s, montant, {}, u"Veuillez saisir un nombre!"_s,
            montant);
        cas(
            "zero et date",
            [&](FicheLigneDas &f) {
                f.sal_annueledit = u"0000.00"_s;
                f.EOption = true;
            },
            {}, u"Date d'Entree / Sortie incorrecte !"_s, date, {}, u"Veuillez saisir un montant SVP!"_s,
            montant);
        cas(
            "zero seul", [](FicheLigneDas &f) { f.sal_annueledit = u"0"_s; }, u".00"_s,
            u"Vous devez accompagner un salaire nul d'une durée de travail nulle!"_s, montant, {},
            u"Veuillez saisir un montant SVP!"_s, montant);
        cas("date sous une option", mouvement(true, u"31/06/2024"_s, 400, u'J'), {},
            u"Date d'Entree / Sortie incorrecte !"_s, date, {}, u"Date incorrecte !"_s, date);
        memes(
            "date sans option",
            [](FicheLigneDas &f) {
                f.mskdate = u"01/02/2024"_s;
                f.nbj_travailctrl = {};
            },
            u"Vous avez rempli le champ date sans indiquer s'il s'agit d'une date d'entrée ou de sortie!"_s,
            date);
        memes("apres la campagne", mouvement(false, u"01/07/2024"_s, -1, u'J'), compagne, date);
        memes("annee d'apres", mouvement(true, u"01/01/2025"_s, 1, u'J'), compagne, date);
        memes("duree negative", dureeSeule(-1, u'H'), correcte, duree);
        memes("duree immensement negative", dureeSeule(std::numeric_limits<qint64>::min(), u'M'), correcte,
              duree);
        memes("duree immense", dureeSeule(std::numeric_limits<qint64>::max(), u'M'), maximum, duree);
        memes("13 M", dureeSeule(13, u'M'), maximum, duree);
        memes("315 J", dureeSeule(315, u'J'), maximum, duree);
        memes("2513 H", dureeSeule(2513, u'H'), maximum, duree);
        cas("duree nulle", dureeSeule(0, u'J'), {}, correcte, duree, {}, {}, pasDeRefus);
        bons("12 M", dureeSeule(12, u'M'), u"50 000.00"_s, u"50 000.00"_s);
        bons("314 J", dureeSeule(314, u'J'), u"57 324.66"_s, u"42 038.30"_s);
        bons("2512 H", dureeSeule(2512, u'H'), u"41 400.44"_s, u"41 400.44"_s);
        bons("entree au premier jour", mouvement(false, u"01/07/2023"_s, 12, u'M'), u"50 000.00"_s,
             u"50 000.00"_s);
        bons("entree ancienne", mouvement(false, u"01/01/1990"_s, 12, u'M'), u"50 000.00"_s, u"50 000.00"_s);
        bons("sortie au dernier jour", mouvement(true, u"30/06/2024"_s, 12, u'M'), u"50 000.00"_s,
             u"50 000.00"_s);
        bons("entree le dernier jour, 8 H", mouvement(false, u"30/06/2024"_s, 8, u'H'), u"12 987 012.99"_s,
             u"12 987 012.99"_s);
        bons("sortie, autant de jours", mouvement(true, u"11/07/2023"_s, 10, u'J'), u"1 800 180.02"_s,
             u"1 320 132.01"_s);
        // The order behind the maxima: an addition looks at the dates first, a change at them last.
        cas("entree tardive, 12 M", mouvement(false, u"01/02/2024"_s, 12, u'M'), {}, coherence, date,
            u"50 000.00"_s, coherence, date);
        cas("entree le dernier jour, 9 H", mouvement(false, u"30/06/2024"_s, 9, u'H'), {}, coherence, date,
            u"11 560 693.64"_s, coherence, date);
        cas("sortie, un jour de trop", mouvement(true, u"11/07/2023"_s, 11, u'J'), {}, coherence, date,
            u"1 200 000.00"_s, coherence, date);
        cas("sortie avant la campagne", mouvement(true, u"30/06/2023"_s, 1, u'H'), {}, coherence, date,
            u"103 448 275.86"_s, coherence, date);
        cas(
            "negatif et incoherent",
            [=](FicheLigneDas &f) {
                mouvement(false, u"01/02/2024"_s, 12, u'M')(f);
                f.sal_annueledit = u"-600000"_s;
            },
            {}, coherence, date, {}, positive, montant);
        cas(
            "negatif", [](FicheLigneDas &f) { f.sal_annueledit = u"-600 000,00"_s; }, u"-50 000.00"_s,
            positive, montant, {}, positive, montant);
    }

    void ligneControlee()
    {
        QFETCH(CasLigne, ajout);
        QFETCH(CasLigne, modification);
        BaseDas essai;
        essai.ajouter(BaseDas::numero(1), 1);
        essai.ajouter(BaseDas::numero(2), 1);
        LignesDeclaration lignes(essai.base, genreDas(), essai.entete());

        {
            DialogueScenario dialogue;
            FicheLigneDas fiche = ficheLigne();
            ajout.saisir(fiche);
            if (!ajout.moyenne.isEmpty())
                dialogue.attendreQuestion(question(ajout.moyenne, u"  "_s), true);
            if (ajout.refus.isEmpty())
                dialogue.attendreInformation(u"Ligne DAS ajoutée avec succès !"_s);
            else
                dialogue.attendreAvertissement(ajout.refus);
            const auto refus = ajouterLigneDas(lignes, fiche, dialogue);
            QCOMPARE(refus ? refus->refus.controle.toString() : pasDeRefus, ajout.focus);
            QCOMPARE(essai.lignes(lesLignes).size(), ajout.refus.isEmpty() ? 1 : 0);
        }
        {
            essai.ligne(BaseDas::numero(2), 1, {{u"sal_annuel"_s, Currency::deEntier(1)}});
            lignes.montrerToutes();
            lignes.liste().allerA(lignes.liste().nombre() - 1);
            const QStringList avant = essai.lignes(lesLignes);
            DialogueScenario dialogue;
            FicheLigneDas fiche = ficheLigne();
            modification.saisir(fiche);
            if (!modification.moyenne.isEmpty())
                dialogue.attendreQuestion(question(modification.moyenne, u"   "_s), true);
            if (modification.refus.isEmpty())
                dialogue.attendreInformation(u"Ligne DAS modifiée avec succès!"_s);
            else
                dialogue.attendreAvertissement(modification.refus);
            QCOMPARE(champ(modifierLigneDas(lignes, lignes.liste().courant(), fiche, dialogue)),
                     modification.focus);
            QCOMPARE(essai.lignes(lesLignes) == avant, !modification.refus.isEmpty());
        }
    }

    void questionRefusee()
    {
        BaseDas essai;
        essai.ajouter(BaseDas::numero(1), 1);
        LignesDeclaration lignes(essai.base, genreDas(), essai.entete());
        DialogueScenario dialogue;
        dialogue.attendreQuestion(question(u"50 000.00"_s, u"  "_s), false);
        QVERIFY(ajouterLigneDas(lignes, ficheLigne(), dialogue).has_value());
        QVERIFY(essai.lignes(lesLignes).isEmpty());
    }

    void salarieDeLaLigne_data()
    {
        QTest::addColumn<QString>("numero");
        QTest::addColumn<QString>("cle");
        QTest::addColumn<qint64>("cpt_z");
        QTest::addColumn<QString>("boite");
        QTest::addColumn<bool>("inconnu");
        const QString connu = BaseDas::numero(1);
        const QString existe = u"une ligne das existe déja pour ce salarié!"_s;
        QTest::newRow("vide") << u"          "_s << u"  "_s << qint64{1}
                              << u"Vous n'avez pas sélectionné de salarié ! "_s << false;
        QTest::newRow("inconnu") << u"8823450009"_s << u"00"_s << qint64{1} << QString() << true;
        QTest::newRow("autre cpt_z") << connu.left(10) << connu.right(2) << qint64{2} << QString() << true;
        QTest::newRow("guillemet") << u"' OR ''='"_s << u"--"_s << qint64{1} << QString() << true;
        QTest::newRow("ligne presente") << connu.left(10) << connu.right(2) << qint64{1} << existe << false;
        QTest::newRow("sans numero, present") << u"0000000000"_s << u"00"_s << qint64{3} << existe << false;
    }

    void salarieDeLaLigne()
    {
        QFETCH(QString, numero);
        QFETCH(QString, cle);
        QFETCH(qint64, cpt_z);
        QFETCH(QString, boite);
        QFETCH(bool, inconnu);
        BaseDas essai;
        essai.ajouter(BaseDas::numero(1), 1);
        essai.ajouter(u"000000000000"_s, 3);
        const CleDeclaration declaration = essai.entete();
        essai.ligne(BaseDas::numero(1));
        essai.ligne(u"000000000000"_s, 3);
        LignesDeclaration lignes(essai.base, genreDas(), declaration);
        FicheLigneDas fiche = ficheLigne();
        fiche.num_saledit = numero;
        fiche.mskcle = cle;
        fiche.cpt_z = cpt_z;
        for (const bool creer : {false, true}) {
            DialogueScenario dialogue;
            if (inconnu) {
                dialogue.attendreAvertissement(u"ce salarié n'existe pas! Nous vous invitons à le créer"_s);
                dialogue.attendreQuestion(u"Ce salarié n'existe pas, voulez vous le créer?"_s, creer);
            } else {
                dialogue.attendreAvertissement(boite);
            }
            const auto refus = ajouterLigneDas(lignes, fiche, dialogue);
            QVERIFY(refus);
            QCOMPARE(refus->creerSalarie, inconnu && creer);
        }
        QCOMPARE(essai.lignes(lesLignes).size(), 2);
    }

    void lignesEtSommes()
    {
        BaseDas essai;
        const QString sommes = u"SELECT sum_calc, total_calc FROM entete_das WHERE Type = 1"_s;
        for (int i = 1; i <= 3; ++i)
            essai.ajouter(BaseDas::numero(i), 1);
        essai.ajouter(u"000000000000"_s, 7);
        essai.entete(2);
        const CleDeclaration declaration = essai.entete();
        essai.ligne(BaseDas::numero(1), 1, {}, 2); // of another declaration
        LignesDeclaration lignes(essai.base, genreDas(), declaration);
        const auto ajouter = [&](FicheLigneDas fiche, const QString &moyenne) {
            DialogueScenario dialogue;
            dialogue.attendreQuestion(question(moyenne, u"  "_s), true);
            dialogue.attendreInformation(u"Ligne DAS ajoutée avec succès !"_s);
            return !ajouterLigneDas(lignes, fiche, dialogue).has_value() && dialogue.acheve();
        };
        QVERIFY(ajouter(ficheLigne(2), u"50 000.00"_s));
        QCOMPARE(essai.lignes(sommes), QStringList{u"6000000000|1"_s});
        FicheLigneDas sortie = ficheLigne(1);
        sortie.sal_annueledit = u"0,1"_s;
        sortie.SOption = true;
        sortie.mskdate = u"30/06/2024"_s;
        QVERIFY(ajouter(sortie, u".01"_s));

        // The new line shows all of them again, and the sums never follow a search.
        lignes.chercher(u" 882345 "_s + BaseDas::numero(1).mid(6));
        QCOMPARE(lignes.liste().nombre(), 0);
        lignes.chercher(BaseDas::numero(1));
        QCOMPARE(lignes.liste().nombre(), 1);
        FicheLigneDas sansNumero = ficheLigne();
        sansNumero.num_saledit = u"0000000000"_s;
        sansNumero.mskcle = u"00"_s;
        sansNumero.cpt_z = 7;
        sansNumero.sal_annueledit = u"0.2"_s;
        QVERIFY(ajouter(sansNumero, u".02"_s));
        QCOMPARE(lignes.liste().nombre(), 3);
        QCOMPARE(lignes.liste().entier(u"cpt_z"), 7);
        QCOMPARE(essai.lignes(sommes), QStringList{u"6000003000|3"_s});

        QCOMPARE(essai.lignes(lesLignes).mid(1),
                 (QStringList{BaseDas::numero(2) + u"|1|6000000000|12|M|__/__/____|E"_s,
                              BaseDas::numero(1) + u"|1|1000|12|M|30/06/2024|S"_s,
                              u"000000000000|7|2000|12|M|__/__/____|E"_s}));

        // With no option a change leaves the movement alone.
        lignes.chercher(BaseDas::numero(1).left(10));
        DialogueScenario dialogue;
        FicheLigneDas modifiee = remplirFicheLigneDas(lignes.liste().courant());
        QVERIFY(modifiee.SOption && !modifiee.EOption);
        QCOMPARE(modifiee.mskdate, u"30/06/2024"_s);
        modifiee.SOption = false;
        modifiee.mskdate = u"__/__/____"_s;
        modifiee.sal_annueledit = u"5"_s;
        modifiee.nbj_travailctrl = {0, u'H'};
        dialogue.attendreInformation(u"Ligne DAS modifiée avec succès!"_s);
        QVERIFY(!modifierLigneDas(lignes, lignes.liste().courant(), modifiee, dialogue));
        QCOMPARE(essai.lignes(lesLignes).at(2), BaseDas::numero(1) + u"|1|50000|0|H|30/06/2024|S"_s);
        QCOMPARE(essai.lignes(sommes), QStringList{u"6000052000|3"_s});
        const QString confirmation = u"Confirmez la suppression de cette ligne DAS ?"_s;
        dialogue.attendreConfirmation(confirmation, false, u"Suppression"_s);
        lignes.supprimer(lignes.liste().courant(), dialogue);
        QCOMPARE(lignes.liste().nombre(), 1);
        dialogue.attendreConfirmation(confirmation, true, u"Suppression"_s);
        lignes.supprimer(lignes.liste().courant(), dialogue);
        QCOMPARE(essai.lignes(sommes), QStringList{u"6000002000|2"_s});
        lignes.chercher(u""_s);
        for (int i = 0; i < 2; ++i) {
            dialogue.attendreConfirmation(confirmation, true, u"Suppression"_s);
            lignes.supprimer(lignes.liste().courant(), dialogue);
        }
        QCOMPARE(essai.lignes(sommes), QStringList{u"0|0"_s});
        QCOMPARE(essai.lignes(lesLignes).size(), 1);
    }

    void sansLigneCourante()
    {
        BaseDas essai;
        LignesDeclaration lignes(essai.base, genreDas(), essai.entete());
        DialogueScenario dialogue;
        dialogue.attendreAvertissement(u"Aucun élément à modifier"_s);
        FicheLigneDas fiche = ficheLigne();
        fiche.nbj_travailctrl.nombre = -1;
        QVERIFY(modifierLigneDas(lignes, lignes.liste().courant(), fiche, dialogue).has_value());
    }

    /// Neither the line nor its sums stay when one of them can't be written.
    void ligneEtSommesEnsemble()
    {
        BaseDas essai;
        essai.ajouter(BaseDas::numero(1), 1);
        essai.ajouter(BaseDas::numero(2), 1);
        const CleDeclaration declaration = essai.entete();
        essai.ligne(BaseDas::numero(2), 1, {{u"sal_annuel"_s, Currency::deTexte(u"922337203685477.5807")}});
        LignesDeclaration lignes(essai.base, genreDas(), declaration);
        const QStringList avant = essai.lignes(lesLignes);
        {
            DialogueScenario dialogue;
            dialogue.attendreQuestion(question(u"50 000.00"_s, u"  "_s), true);
            QVERIFY_THROWS_EXCEPTION(ErreurBase, ajouterLigneDas(lignes, ficheLigne(1), dialogue));
        }
        QCOMPARE(essai.lignes(lesLignes), avant);
        QCOMPARE(lignes.liste().nombre(), 1);

        // The header is gone: the change screen says nothing, the line stays as it was.
        Connexion autre;
        autre.ouvrir(essai.chemin());
        autre.executer(u"DELETE FROM entete_das"_s);
        DialogueScenario dialogue;
        dialogue.attendreQuestion(question(u"50 000.00"_s, u"   "_s), true);
        QVERIFY(modifierLigneDas(lignes, lignes.liste().courant(), ficheLigne(2), dialogue) == Refus{});
        QCOMPARE(essai.lignes(lesLignes), avant);
        QVERIFY(!essai.base.Cnx.enTransaction());
    }

    /// An older file may have left the number empty: such a declaration is one like the others.
    void numeroVide()
    {
        BaseDas essai;
        essai.ajouter(BaseDas::numero(1), 1);
        essai.base.Cnx.executer(
            u"INSERT INTO entete_das (num_emp, annee, Type) VALUES ('12345678', 2024, '')"_s);
        essai.base.RsEnteteDas.requery();
        const CleDeclaration cle = cleEntete(genreDas(), essai.base.RsEnteteDas.courant());
        LignesDeclaration lignes(essai.base, genreDas(), cle);
        DialogueOui oui;
        QVERIFY(!ajouterLigneDas(lignes, ficheLigne(), oui));
        QCOMPARE(essai.lignes(u"SELECT typeof(type_das), type_das FROM ligne_das"_s),
                 QStringList{u"text|"_s});
        QCOMPARE(essai.lignes(u"SELECT total_calc FROM entete_das"_s), QStringList{u"1"_s});
        QVERIFY(!supprimerEntete(essai.base, genreDas(), essai.base.RsEnteteDas.courant(), oui));
        // It counts as the first one.
        QVERIFY(!ajouterEntete(essai.base, entetesDas(), ficheEntete(true), oui));
        QCOMPARE(essai.base.RsEnteteDas.entier(u"Type"), 2);

        essai.base.RsEnteteDas.allerA(essai.base.RsEnteteDas.chercher({{u"Type"_s, u""}}));
        lignes.supprimer(lignes.liste().courant(), oui);
        QVERIFY(supprimerEntete(essai.base, genreDas(), essai.base.RsEnteteDas.courant(), oui));
    }

    /// Search and refresh show other lines in the clerk's order, on the line that he was on.
    void rechercheDansLOrdre()
    {
        BaseDas essai;
        const CleDeclaration declaration = essai.entete();
        for (int i = 1; i <= 3; ++i)
            essai.ligne(BaseDas::numero(i));
        LignesDeclaration lignes(essai.base, genreDas(), declaration);
        const auto courante = [&] { return lignes.liste().texte(u"num_salarie"); };
        lignes.liste().trier(u"num_salarie"_s, Qt::DescendingOrder);
        lignes.liste().allerA(1);
        lignes.chercher(u"882345"_s);
        QCOMPARE(lignes.liste().ligne(0).texte(u"num_salarie"), BaseDas::numero(3));
        QCOMPARE(courante(), BaseDas::numero(2));
        lignes.chercher(BaseDas::numero(3));
        QCOMPARE(courante(), BaseDas::numero(3));
        lignes.montrerToutes();
        QCOMPARE(lignes.liste().ligneCourante(), 0);
        QCOMPARE(lignes.liste().ligne(2).texte(u"num_salarie"), BaseDas::numero(1));
    }

    /// Whenever the program dies, the lines that were saved are there, and the header tells of just these.
    void tuePendantUnAjout()
    {
        BaseDas essai;
        essai.base.Cnx.executer(
            u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?) "
            "INSERT INTO salarie (Num_Salarie, cpt_z) SELECT '000000000000', i FROM n"_s,
            {lignesAvantLaMort});
        essai.entete();
        for (int coup = 0; coup < 12; ++coup) {
            essai.base.Cnx.executer(u"DELETE FROM ligne_das"_s);
            const qint64 sauvees = tuer({essai.chemin()}, static_cast<unsigned long>(coup) * 3'700);
            QVERIFY(sauvees > 0);

            Connexion apres;
            apres.ouvrir(essai.chemin());
            QCOMPARE(apres.premiere(u"PRAGMA integrity_check"_s).texte(0), u"ok"_s);
            const Enregistrement lignes =
                apres.premiere(u"SELECT count(*), ifnull(sum(sal_annuel), 0) FROM ligne_das"_s);
            const Enregistrement entete = apres.premiere(u"SELECT total_calc, sum_calc FROM entete_das"_s);
            QVERIFY(lignes.entier(0) == sauvees || lignes.entier(0) == sauvees + 1);
            QCOMPARE(entete.entier(0), lignes.entier(0));
            QCOMPARE(entete.entier(1), lignes.entier(1));
        }
    }

    /// Whenever the program dies in an import, nothing of the file is there, or all of it.
    void tuePendantUnImport()
    {
        constexpr int lignes = 4000;
        BaseDas essai;
        const QByteArray ligne = QByteArray(73, ' ') + "04/03/1988" + QByteArray(256, ' ') + "1    1\n";
        const QString fichier =
            essai.fichier(u"das.txt"_s, "DAS KORVANDEL VER 1.0\n876543212023 1" + QByteArray(14, '0') +
                                            "1    1\n" + ligne.repeated(lignes));
        const QString comptes =
            u"SELECT (SELECT count(*) FROM employeur), (SELECT count(*) FROM entete_das), "
            "(SELECT count(*) FROM salarie), (SELECT count(*) FROM ligne_das)"_s;
        const QStringList rien{u"1|0|0|0"_s};
        const QStringList tout{u"2|1|%1|%1"_s.arg(lignes)};
        const auto defaire = [&essai] {
            for (const QString &table : {u"entete_das"_s, u"salarie"_s, u"ligne_das"_s})
                essai.base.Cnx.executer(u"DELETE FROM "_s + table);
            essai.base.Cnx.executer(u"DELETE FROM employeur WHERE rowid > 1"_s);
        };
        Consentant dialogue(fichier);
        QElapsedTimer duree;
        duree.start();
        QVERIFY(importerDas(essai.base, dialogue, [](qint64) { return true; }));
        const auto microsecondes = static_cast<unsigned long>(duree.nsecsElapsed() / 1000);
        QCOMPARE(essai.lignes(comptes), tout);

        int sansRien = 0;
        constexpr unsigned long coups = 12;
        for (unsigned long coup = 0; coup < coups; ++coup) {
            defaire();
            tuer({essai.chemin(), fichier}, microsecondes * coup / (coups - 3));
            Connexion apres;
            apres.ouvrir(essai.chemin());
            QCOMPARE(apres.premiere(u"PRAGMA integrity_check"_s).texte(0), u"ok"_s);
            const QStringList trouves = BaseDas::lignes(apres, comptes);
            QVERIFY2(trouves == rien || trouves == tout, qPrintable(trouves.join(u' ')));
            sansRien += trouves == rien ? 1 : 0;
        }
        qInfo("%d kills of %d fell into the import of %lu ms", sansRien, static_cast<int>(coups),
              microsecondes / 1000);
        QVERIFY(sansRien > 1);
    }

    void champsQuittes()
    {
        DialogueScenario dialogue;
        FicheLigneDas fiche = ficheLigne();
        QVERIFY(ctrlNumeroSaisi(fiche, dialogue).numeroBon);
        for (const QString &faux : {u"8823450002"_s, u"88234500  "_s, u"882345000_"_s}) {
            fiche.num_saledit = faux;
            dialogue.attendreAvertissement(u"Le numéro de sécurité sociale est incorrecte "_s);
            QVERIFY(ctrlNumeroSaisi(fiche, dialogue).reprendre);
        }
        fiche.num_saledit = u"0000000000"_s;
        fiche.mskcle = u"99"_s; // the very key of the zeros
        dialogue.attendreAvertissement(
            u"Le numéro de sécurité sociale est à blanc, sélectionnez le salarié à "
            "partir de la commande INSERER "_s);
        const SaisieNumero blanc = ctrlNumeroSaisi(fiche, dialogue);
        QVERIFY(!blanc.numeroBon && !blanc.reprendre);

        QVERIFY(ctrlDateLigneDas(u"__/__/____"_s, dialogue) && ctrlDateLigneDas(u"29/02/2024"_s, dialogue));
        dialogue.attendreAvertissement(u"Veuillez saisir une date correcte SVP"_s);
        QVERIFY(!ctrlDateLigneDas(u"29/02/2023"_s, dialogue));
        QCOMPARE(numeroPourCreation(u"1234      "_s), u"1234"_s);
        QCOMPARE(numeroPourCreation(u"12345     "_s), u"     12345"_s);
    }
};

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"--enfant")
        return enfant(arguments.value(2), arguments.value(3));
    TestDas test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_das.moc"
