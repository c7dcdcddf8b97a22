#include "rules/saisie.h"

#include "rules/texte.h"

#include <algorithm>

using namespace Qt::StringLiterals;

bool CarNumeriques(QStringView texte)
{
    return std::all_of(texte.begin(), texte.end(),
                       [](QChar c) { return estChiffre(c) || c == u'.' || c == u',' || c == u' '; });
}

bool SansChiffre(QStringView texte)
{
    // Letters are all behind the digits.
    return std::all_of(texte.begin(), texte.end(),
                       [](QChar c) { return c > u'9' || (c < u'0' && c != u'.' && c != u','); });
}

void CadrerBlancs(QString &texte)
{
    if (texte.size() >= 5 && texte.size() <= 9)
        texte = texte.leftJustified(10, u' ');
}

QString ComplZeros(QStringView texte, qsizetype longueur)
{
    return texte.toString().rightJustified(longueur, u'0');
}

QString CadrerNum2(QStringView texte)
{
    if (texte.isEmpty() || texte.size() > 3)
        return u""_s;
    return ComplZeros(texte, 3);
}

void CadrerSouligne(QString &texte)
{
    if (texte.size() >= 8 && texte.size() <= 17)
        texte = texte.leftJustified(18, u'_');
}

QString ZerosGauche(QStringView texte) { return ComplZeros(texte, 15); }

QString Zeros3(QStringView texte) { return ComplZeros(texte, 3); }
