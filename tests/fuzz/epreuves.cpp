#include "tests/fuzz/epreuves.h"

#include "batch/lot.h"
#include "rules/erreurs.h"
#include "rules/lecteurlignes.h"
#include "rules/texte.h"
#include "validators/decoupeur.h"

#include <QBuffer>
#include <QList>

#include <algorithm>
#include <array>
#include <string>

using namespace Qt::StringLiterals;

namespace {

void exiger(bool tenu, const char *regle)
{
    if (!tenu)
        throw EpreuveManquee(regle);
}

/// A device that deals its bytes out in pieces of odd sizes, as a slow disk or a network share may.
class Morceaux : public QIODevice
{
public:
    explicit Morceaux(QByteArrayView octets) : m_reste(octets) { open(ReadOnly | Unbuffered); }

protected:
    qint64 readData(char *sortie, qint64 place) override
    {
        m_taille = m_taille * 7 % 31 + 1;
        const qsizetype taille = std::min({m_reste.size(), static_cast<qsizetype>(place), m_taille});
        std::copy_n(m_reste.data(), taille, sortie);
        m_reste = m_reste.sliced(taille);
        return taille;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArrayView m_reste;
    qsizetype m_taille = 1;
};

/// The lines by the plainest means.
QList<QByteArray> lignesDe(QByteArrayView octets)
{
    QList<QByteArray> lignes = octets.toByteArray().split('\n');
    const QByteArray derniere = lignes.takeLast();
    for (QByteArray &ligne : lignes) {
        if (ligne.endsWith('\r'))
            ligne.chop(1);
    }
    if (!derniere.isEmpty())
        lignes.append(derniere);
    return lignes;
}

QList<QByteArray> lignesLues(QIODevice &source, qsizetype taille)
{
    LecteurLignes lecteur(source);
    QList<QByteArray> lignes;
    while (!lecteur.finie())
        lignes.append(lecteur.lire().toByteArray());
    exiger(lecteur.octetsLus() == taille, "every byte of the file belongs to a line");
    bool refusee = false;
    try {
        lecteur.lire();
    } catch (const ErreurFichier &) {
        refusee = true;
    }
    exiger(refusee, "nothing is read behind the end");
    return lignes;
}

template <std::size_t Nombre>
void eprouverCoupe(Decoupeur &decoupeur, const QByteArray &ligne)
{
    const QStringList attendus = decoder(ligne).replace(u'\'', u' ').split(u';');
    std::array<QStringView, Nombre> champs;
    try {
        decoupeur.decouper(ligne, champs);
    } catch (const ErreurConversion &) {
        exiger(attendus.size() <= static_cast<qsizetype>(Nombre),
               "only a line with too few fields is refused");
        return;
    }
    exiger(attendus.size() > static_cast<qsizetype>(Nombre), "a line with too few fields is refused");
    for (std::size_t i = 0; i < Nombre; ++i)
        exiger(champs[i] == Trim(attendus[static_cast<qsizetype>(i)]),
               "a field is what stands between two \";\"");
}

void eprouverColonnes(const QByteArray &ligne)
{
    constexpr std::array largeurs{3, 0, 5, 1};
    Decoupeur decoupeur(false);
    std::array<QStringView, largeurs.size()> champs;
    decoupeur.decouper(ligne, largeurs, champs);
    const QString texte = decoder(ligne);
    qsizetype debut = 0;
    for (std::size_t i = 0; i < champs.size(); ++i) {
        const qsizetype longueur = i + 1 < champs.size() ? largeurs[i] : texte.size();
        exiger(champs[i] == Trim(QString(texte.mid(debut, longueur))),
               "a field is what stands in its columns");
        debut += longueur;
    }
}

/// A file that is cut short after its size was asked.
class Raccourci : public QBuffer
{
public:
    using QBuffer::QBuffer;
    qint64 size() const override { return QBuffer::size() + 1; }
};

/// What holds for the files of one format.
struct Epreuve
{
    Format format;
    QString nom;
    QList<QByteArray> debuts; ///< good first lines
    QStringView retour;       ///< how the box begins that says that the declaration will be returned
};

struct Extraction
{
    Verdict verdict;
    QList<Boite> boites;
};

template <typename Source = QBuffer>
Extraction extraire(Validateur &validateur, const QString &nom, QByteArrayView octets)
{
    QByteArray donnees = octets.toByteArray();
    Source source(&donnees);
    DialogueEnregistreur dialogue;
    const Verdict verdict = validateur.extraire(source, nom, dialogue);
    return {verdict, dialogue.boites};
}

void eprouverListes(const ListesErreurs &listes, qint64 nombre, qint64 derniere)
{
    const qsizetype taille = listes.taille();
    exiger(nombre == taille, "the counter is the length of the lists");
    exiger(static_cast<qsizetype>(listes.O.size()) == taille && listes.N.taille() == taille &&
               listes.NP.taille() == taille,
           "the lists have one length");
    exiger(std::is_sorted(listes.O.begin(), listes.O.end()), "errors come in the order of the lines");
    exiger(listes.O.empty() || (listes.O.front() >= 1 && listes.O.back() <= derniere),
           "an error names a line of the file");
    for (qsizetype i = 0; i < taille; ++i) {
        exiger(listes.Entrees[i].startsWith(u"Ligne N°:"), "an entry begins with the number of its line");
        exiger(listes.Entrees[i].contains(listes.N[i]), "an entry holds the social-security number");
    }
}

void eprouverFin(const Validateur &validateur, const Extraction &fin, const Epreuve &epreuve)
{
    const auto texteCommence = [&](QStringView debut) {
        return std::any_of(fin.boites.begin(), fin.boites.end(),
                           [&](const Boite &boite) { return boite.texte.startsWith(debut); });
    };
    const bool resume = texteCommence(u"Extraction Terminée avec Nombre Erreurs : ");
    const bool anomalie = texteCommence(u"Votre fichier présente des anomalies");
    const bool retour = texteCommence(epreuve.retour);
    // That of a claim comes before the totals, which may fail.
    const bool ci = epreuve.format == Format::Ci;
    exiger(retour == (fin.verdict == Verdict::Rejetee) || (ci && fin.verdict == Verdict::Interrompue),
           "the box and the verdict agree");
    if (fin.verdict == Verdict::Interrompue) {
        exiger(!fin.boites.isEmpty(), "an interrupted run says why");
    } else {
        exiger(resume && !anomalie, "a run that came to its end has a summary and no failure");
        exiger(validateur.ongletsPermis(), "the end of a run turns the tabs on");
    }
    if (fin.verdict == Verdict::Acceptee) {
        exiger(epreuve.format != Format::Das || validateur.nbLignes > 0,
               "an accepted annual declaration has lines");
        exiger(!ci || validateur.nbErrRejet == 0, "an accepted claim has no reject");
    }
    const qint64 derniere = validateur.nbLignes + (fin.verdict == Verdict::Interrompue ? 1 : 0);
    eprouverListes(validateur.rejets, validateur.nbErrRejet, derniere);
    eprouverListes(validateur.sansIncidence, validateur.nbErrOK, derniere);
}

void eprouverFichier(QByteArrayView octets, const Epreuve &epreuve)
{
    const std::unique_ptr<Validateur> neuf = nouveauValidateur(epreuve.format);
    Validateur &validateur = *neuf;
    const Extraction premiere = extraire(validateur, epreuve.nom, octets);
    eprouverFin(validateur, premiere, epreuve);
    const qsizetype mots = validateur.rejets.E.taille();
    exiger(mots == validateur.rejets.taille() &&
               validateur.sansIncidence.E.taille() == validateur.sansIncidence.taille(),
           "the words stand beside the entries after a first extraction");

    const Extraction seconde = extraire(validateur, epreuve.nom, octets);
    eprouverFin(validateur, seconde, epreuve);
    exiger(seconde.verdict == premiere.verdict && seconde.boites == premiere.boites,
           "the same file is judged alike twice");
    exiger(validateur.rejets.E.taille() == 2 * mots, "the words of the first extraction stay");

    exiger(extraire<Raccourci>(validateur, epreuve.nom, octets).verdict == Verdict::Interrompue,
           "a file that shrank gets no verdict");
}

void eprouverFormat(QByteArrayView octets, const Epreuve &epreuve)
{
    eprouverFichier(octets, epreuve);
    for (const QByteArray &debut : epreuve.debuts)
        eprouverFichier(QByteArray(debut).append(octets), epreuve);
}

} // namespace

void eprouverDecoupe(QByteArrayView octets)
{
    const QList<QByteArray> attendues = lignesDe(octets);
    QByteArray donnees = octets.toByteArray();
    QBuffer source(&donnees);
    source.open(QIODevice::ReadOnly);
    Morceaux morceaux(octets);
    exiger(lignesLues(source, octets.size()) == attendues, "the lines end at LF and at the end of the file");
    exiger(lignesLues(morceaux, octets.size()) == attendues, "the lines do not hang on the pieces read");

    Decoupeur decoupeur;
    for (const QByteArray &ligne : attendues) {
        eprouverCoupe<31>(decoupeur, ligne);
        eprouverCoupe<5>(decoupeur, ligne);
        eprouverColonnes(ligne);
    }
}

void eprouverDas(QByteArrayView octets)
{
    static const Epreuve das{Format::Das,
                             u"12345678_das_2024.txt"_s,
                             {"DAS KORVANDEL VER 3.0\r\n12345678;2024;1;1000;2;\r\n"},
                             u"Votre Das Contient des Erreurs !!!"};
    eprouverFormat(octets, das);
}

void eprouverDac(QByteArrayView octets)
{
    static const Epreuve dac{Format::Dac,
                             u"12345678_dac_nominative_2024t1.txt"_s,
                             {"DAC NOMINATIVE KORVANDEL VER 1.0\r\n12345678;2024T1;1;1000;2;2;\r\n"},
                             u"Votre DAC Contient des Erreurs !!!"};
    eprouverFormat(octets, dac);
}

void eprouverCi(QByteArrayView octets)
{
    static const QByteArray marque = "DECLARATION CHOMAGE INTEMPERIE KORVANDEL VER ";
    static const Epreuve ci{
        Format::Ci,
        u"123456780000000001_ci.txt"_s,
        {marque + "2.0\r\n123456780000000001;05/01/2024;12/01/2024;3000;2;780;366.3;11.25;40;"
                  "00712345678901234561;AGENCE;0660112233;\r\n",
         marque + "1.0\r\n12345678000000000105/01/202412/01/20243000           2    780            "
                  "366.30         11.25            00712345678901234561AGENCE\r\n"},
        u"Votre Fichier de déclaration de la liste nominative vous sera retourné"};
    eprouverFormat(octets, ci);
}
