#include "rules/texte.h"

#include <array>

namespace {

/// Characters of the bytes 80 to 9F; all other bytes are the character of the same rank.
constexpr std::array<char16_t, 32> hauts = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                            0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                            0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                            0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr bool estHaut(unsigned char octet) { return octet >= 0x80 && octet < 0xA0; }

/// The byte of a character, or -1 where the code page lacks it.
int octetDe(char16_t c)
{
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return c;
    for (std::size_t i = 0; i < hauts.size(); ++i) {
        if (hauts[i] == c)
            return 0x80 + static_cast<int>(i);
    }
    return -1;
}

/// Capitals of the characters below U+0100, where nearly all texts live.
std::array<char16_t, 256> capitalesBasses()
{
    std::array<char16_t, 256> table{};
    for (char16_t c = 0; c < 256; ++c) {
        const QChar haut = QChar(c).toUpper();
        table[c] = octetDe(haut.unicode()) >= 0 ? haut.unicode() : c;
    }
    return table;
}

/// The capital of a character from U+0100 on.
QChar majusculeRare(QChar c)
{
    const QChar haut = c.toUpper();
    return octetDe(haut.unicode()) >= 0 ? haut : c;
}

const std::array<char16_t, 256> capitales = capitalesBasses();

} // namespace

QString sansBlancs(QStringView texte)
{
    QString resultat = texte.toString();
    resultat.remove(u' ');
    return resultat;
}

QStringView sansBlancsFinaux(QStringView texte)
{
    qsizetype fin = texte.size();
    while (fin > 0 && texte[fin - 1] == u' ')
        --fin;
    return texte.first(fin);
}

QChar majuscule(QChar c)
{
    return c.unicode() < capitales.size() ? QChar(capitales[c.unicode()]) : majusculeRare(c);
}

QString majuscules(QStringView texte)
{
    QString resultat = texte.toString();
    mettreEnMajuscules({resultat.data(), static_cast<std::size_t>(resultat.size())});
    return resultat;
}

void mettreEnMajuscules(std::span<QChar> texte)
{
    for (QChar &c : texte)
        c = majuscule(c);
}

bool chiffresSeuls(QStringView texte)
{
    for (const QChar c : texte) {
        if (!estChiffre(c))
            return false;
    }
    return true;
}

QByteArray encoder(QStringView texte)
{
    QByteArray octets(texte.size(), Qt::Uninitialized);
    char *sortie = octets.data();
    for (const QChar c : texte) {
        const int octet = octetDe(c.unicode());
        *sortie++ = octet < 0 ? '?' : static_cast<char>(octet);
    }
    return octets;
}

QString decoder(QByteArrayView octets)
{
    QString texte(octets.size(), Qt::Uninitialized);
    decoder(octets, reinterpret_cast<char16_t *>(texte.data()), false);
    return texte;
}

void decoder(QByteArrayView octets, char16_t *sortie, bool apostrophesEnBlancs)
{
    const auto *entree = reinterpret_cast<const unsigned char *>(octets.data());
    const qsizetype taille = octets.size();

    // Two passes that compilers turn into vector code, and a third one only over the lines that hold
    // characters of a rank of their own.
    const char16_t apostrophe = apostrophesEnBlancs ? u' ' : u'\'';
    for (qsizetype i = 0; i < taille; ++i)
        sortie[i] = entree[i] == '\'' ? apostrophe : entree[i];
    unsigned char particuliers = 0;
    for (qsizetype i = 0; i < taille; ++i)
        particuliers |= static_cast<unsigned char>(estHaut(entree[i]));
    if (!particuliers)
        return;
    for (qsizetype i = 0; i < taille; ++i) {
        if (estHaut(entree[i]))
            sortie[i] = hauts[entree[i] - 0x80];
    }
}
