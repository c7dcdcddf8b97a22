#pragma once

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <span>

/// The text of the program: characters of the code page windows-1252, one UTF-16 unit each.

/// The text without the blanks (U+0020) at both ends; tabs, underscores and no-break spaces stay.
inline QStringView Trim(QStringView texte)
{
    while (texte.startsWith(u' '))
        texte = texte.sliced(1);
    while (texte.endsWith(u' '))
        texte.chop(1);
    return texte;
}

/// The first characters, fewer where the text is shorter.
inline QStringView debutDe(QStringView texte, qsizetype nombre)
{
    return texte.first(std::min(texte.size(), nombre));
}

/// The last characters, fewer where the text is shorter.
inline QStringView finDe(QStringView texte, qsizetype nombre)
{
    return texte.last(std::min(texte.size(), nombre));
}

/// The characters from a place on, which is counted from 1; fewer where the text ends before.
inline QStringView milieuDe(QStringView texte, qsizetype place, qsizetype nombre)
{
    return texte.size() < place ? QStringView() : debutDe(texte.sliced(place - 1), nombre);
}

/// The text without any blank (U+0020), inner ones included.
QString sansBlancs(QStringView texte);

/// The text without the blanks at its end: the form in which the store keeps texts.
QStringView sansBlancsFinaux(QStringView texte);

/// The capital of a character where windows-1252 has it as one character, else the character itself.
QChar majuscule(QChar c);

/// The text in capitals, character by character, of the same length: é gives É, ß stays.
QString majuscules(QStringView texte);

/// The same in place.
void mettreEnMajuscules(std::span<QChar> texte);

/// Whether the character is one of "0123456789" (no other digits of Unicode).
constexpr bool estChiffre(QChar c) { return c >= u'0' && c <= u'9'; }

/// Whether all characters are digits; true for an empty text.
bool chiffresSeuls(QStringView texte);

/// The text with every character of windows-1252 as its byte; a character that the page lacks gives "?".
/// The five bytes without a character (81 8D 8F 90 9D) stand for the characters of the same rank.
QByteArray encoder(QStringView texte);

/// The text of bytes in windows-1252, one character a byte.
QString decoder(QByteArrayView octets);

/// Decodes into a buffer that has room for one character a byte.
/// @param apostrophesEnBlancs whether "'" is read as a blank, as the validators do in data lines
void decoder(QByteArrayView octets, char16_t *sortie, bool apostrophesEnBlancs);
