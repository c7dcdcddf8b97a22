#include "batch/rapport.h"

#include "batch/lot.h"
#include "rules/texte.h"

#include <QLocale>

#include <charconv>

using namespace Qt::StringLiterals;

namespace {

std::string_view nomIcone(Icone icone)
{
    switch (icone) {
    case Icone::Information:
        return "information";
    case Icone::Avertissement:
        return "avertissement";
    case Icone::Critique:
        return "critique";
    case Icone::Aucune:
    case Icone::Question:
        break;
    }
    return "aucune";
}

/// The verdict's name, without accents for machines.
std::string_view nomVerdict(Verdict verdict, bool accents)
{
    switch (verdict) {
    case Verdict::Acceptee:
        return accents ? "acceptée" : "acceptee";
    case Verdict::Rejetee:
        return accents ? "rejetée" : "rejetee";
    case Verdict::Interrompue:
        break;
    }
    return "interrompue";
}

std::string_view vue(const QByteArray &octets)
{
    return {octets.constData(), static_cast<std::size_t>(octets.size())};
}

/// What a report tells of a file, the same members where nothing could be validated.
struct Faits
{
    explicit Faits(const Resultat &resultat) : format(nomFormat(resultat.format))
    {
        if (const Validateur *validateur = resultat.validateur.get()) {
            rejets = &validateur->rejets;
            sansIncidence = &validateur->sansIncidence;
            nbErrRejet = validateur->nbErrRejet;
            nbErrOK = validateur->nbErrOK;
            nbLignes = validateur->nbLignes;
            total = validateur->totalSalaires.valeur();
            libelles = validateur->libellesResultat();
        }
    }

    const ListesErreurs vides;
    const ListesErreurs *rejets = &vides;
    const ListesErreurs *sansIncidence = &vides;
    QString format;
    qint64 nbErrRejet = 0;
    qint64 nbErrOK = 0;
    qint64 nbLignes = 0;
    double total = 0;
    QList<Validateur::Libelle> libelles;
};

} // namespace

Rapport::Rapport(std::function<void(std::string_view)> sortie) : m_sortie(std::move(sortie)) {}

void Rapport::json(const Resultat &resultat)
{
    const Faits faits(resultat);
    const QByteArray total = QByteArray::number(faits.total, 'g', QLocale::FloatingPointShortest);

    brut("{\"fichier\": ");
    chaine(resultat.fichier);
    brut(", \"format\": ");
    chaine(faits.format);
    brut(", \"messages\": [");
    std::string_view separateur;
    for (const Boite &boite : resultat.messages) {
        brut(separateur);
        brut("{\"titre\": ");
        chaine(boite.titre);
        brut(", \"texte\": ");
        chaine(boite.texte);
        brut(", \"icone\": \"");
        brut(nomIcone(boite.icone));
        brut("\"}");
        separateur = ", ";
    }
    brut("]");
    listeJson("rejets", *faits.rejets);
    listeJson("sansIncidence", *faits.sansIncidence);
    brut(", \"nbErrRejet\": ");
    nombre(faits.nbErrRejet);
    brut(", \"nbErrOK\": ");
    nombre(faits.nbErrOK);
    brut(", \"nbLignes\": ");
    nombre(faits.nbLignes);
    brut(", \"totalSalaires\": ");
    brut(vue(total));
    brut(", \"libelles\": {");
    separateur = {};
    for (const Validateur::Libelle &libelle : faits.libelles) {
        brut(separateur);
        chaine(libelle.nom);
        brut(": ");
        chaine(libelle.texte);
        separateur = ", ";
    }
    brut("}, \"verdict\": \"");
    brut(nomVerdict(resultat.verdict, false));
    brut("\"}\n");
    vider();
}

void Rapport::texte(const Resultat &resultat)
{
    const Faits faits(resultat);
    const QByteArray total = QByteArray::number(faits.total, 'f', 2);

    ecrire(resultat.fichier, Forme::Lisible);
    brut(" (");
    if (faits.format.isEmpty())
        brut("format inconnu");
    ecrire(faits.format, Forme::Lisible);
    brut(") : ");
    brut(nomVerdict(resultat.verdict, true));
    brut("\n");
    if (resultat.validateur) {
        brut("  ");
        nombre(faits.nbErrRejet);
        brut(" de rejet, ");
        nombre(faits.nbErrOK);
        brut(" sans incidence, ");
        nombre(faits.nbLignes);
        brut(" lignes, total des salaires ");
        brut(vue(total));
        brut("\n");
    }
    if (!resultat.messages.isEmpty())
        brut("  Messages :\n");
    for (const Boite &boite : resultat.messages) {
        brut("    [");
        ecrire(boite.titre, Forme::Lisible);
        brut("] ");
        alinea(boite.texte);
    }
    for (const Validateur::Libelle &libelle : faits.libelles) {
        if (libelle.texte.isEmpty())
            continue;
        brut("  ");
        ecrire(libelle.nom, Forme::Lisible);
        brut(" : ");
        alinea(libelle.texte);
    }
    listeLisible("  Erreurs de rejet :\n", *faits.rejets);
    listeLisible("  Erreurs sans incidence :\n", *faits.sansIncidence);
    vider();
}

void Rapport::brut(std::string_view octets)
{
    if (octets.size() > m_tampon.size() - m_rempli)
        vider();
    std::copy(octets.begin(), octets.end(), m_tampon.begin() + static_cast<std::ptrdiff_t>(m_rempli));
    m_rempli += octets.size();
}

void Rapport::vider()
{
    m_sortie({m_tampon.data(), m_rempli});
    m_rempli = 0;
}

void Rapport::nombre(qint64 valeur)
{
    std::array<char, 24> chiffres;
    const auto fin = std::to_chars(chiffres.data(), chiffres.data() + chiffres.size(), valeur).ptr;
    brut({chiffres.data(), fin});
}

void Rapport::caractere(char32_t c, Forme forme)
{
    const bool json = forme == Forme::Json;
    if (json && (c == U'"' || c == U'\\')) {
        brut("\\");
    } else if (json && c == U'\n') {
        brut("\\n");
        return;
    } else if (json ? c < 0x20 : !QChar::isPrint(c)) {
        constexpr std::string_view chiffres = "0123456789abcdef";
        brut("\\u");
        for (int place = c > 0xFFFF ? 20 : 12; place >= 0; place -= 4)
            brut(chiffres.substr(c >> place & 0xF, 1));
        return;
    }
    const auto octet = [](char32_t bits) { return static_cast<char>(bits); };
    const auto suite = [](char32_t bits) { return static_cast<char>(0x80 | (bits & 0x3F)); };
    if (c < 0x80) {
        const char seul = octet(c);
        brut({&seul, 1});
    } else if (c < 0x800) {
        const std::array<char, 2> utf8{octet(0xC0 | c >> 6), suite(c)};
        brut({utf8.data(), utf8.size()});
    } else if (c < 0x10000) {
        const std::array<char, 3> utf8{octet(0xE0 | c >> 12), suite(c >> 6), suite(c)};
        brut({utf8.data(), utf8.size()});
    } else {
        const std::array<char, 4> utf8{octet(0xF0 | c >> 18), suite(c >> 12), suite(c >> 6), suite(c)};
        brut({utf8.data(), utf8.size()});
    }
}

void Rapport::ecrire(QStringView texte, Forme forme)
{
    for (qsizetype i = 0; i < texte.size(); ++i) {
        char32_t c = texte[i].unicode();
        if (QChar::isHighSurrogate(c) && i + 1 < texte.size() && texte[i + 1].isLowSurrogate())
            c = QChar::surrogateToUcs4(static_cast<char16_t>(c), texte[++i].unicode());
        else if (QChar::isSurrogate(c))
            c = QChar::ReplacementCharacter;
        caractere(c, forme);
    }
}

void Rapport::ecrire(const ListeTextes &liste, qsizetype rang, Forme forme)
{
    // Piece by piece: a single text may be as large as the file.
    std::array<char16_t, 4096> morceau;
    QByteArrayView reste = liste.octets(rang);
    while (!reste.isEmpty()) {
        const auto taille = std::min<qsizetype>(reste.size(), morceau.size());
        decoder(reste.first(taille), morceau.data(), false);
        ecrire(QStringView(morceau.data(), taille), forme);
        reste = reste.sliced(taille);
    }
}

void Rapport::alinea(QStringView texte)
{
    while (texte.endsWith(u'\n'))
        texte.chop(1);
    for (const QStringView ligne : QStringTokenizer(texte, u'\n')) {
        if (ligne.begin() != texte.begin())
            brut("\n      ");
        ecrire(ligne, Forme::Lisible);
    }
    brut("\n");
}

void Rapport::chaine(QStringView texte)
{
    brut("\"");
    ecrire(texte, Forme::Json);
    brut("\"");
}

void Rapport::chaine(const ListeTextes &liste, qsizetype rang)
{
    brut("\"");
    ecrire(liste, rang, Forme::Json);
    brut("\"");
}

void Rapport::listeJson(std::string_view nom, const ListesErreurs &listes)
{
    brut(", \"");
    brut(nom);
    brut("\": [");
    for (qsizetype i = 0; i < listes.taille(); ++i) {
        brut(i == 0 ? "{\"entree\": " : ", {\"entree\": ");
        chaine(listes.Entrees, i);
        brut(", \"ligne\": ");
        nombre(listes.O[static_cast<std::size_t>(i)]);
        brut(", \"numero\": ");
        chaine(listes.N, i);
        brut(", \"nom\": ");
        chaine(listes.NP, i);
        brut(", \"mots\": ");
        chaine(listes.E, i);
        brut("}");
    }
    brut("]");
}

void Rapport::listeLisible(std::string_view titre, const ListesErreurs &listes)
{
    if (listes.taille() == 0)
        return;
    brut(titre);
    for (qsizetype i = 0; i < listes.taille(); ++i) {
        brut("    ");
        ecrire(listes.Entrees, i, Forme::Lisible);
        brut("\n");
    }
}
