#include "rules/date.h"

#include "rules/erreurs.h"
#include "rules/texte.h"

using namespace Qt::StringLiterals;

namespace {

/// Reads one run of digits at the head of the text and takes it off.
/// @return its value, or -1 when the count of digits is out of bounds
int chiffresEnTete(QStringView &texte, int auMoins, int auPlus)
{
    int valeur = 0;
    int nombre = 0;
    while (nombre < texte.size() && estChiffre(texte[nombre])) {
        if (nombre == auPlus)
            return -1;
        valeur = valeur * 10 + (texte[nombre].unicode() - u'0');
        ++nombre;
    }
    texte = texte.sliced(nombre);
    return nombre < auMoins ? -1 : valeur;
}

bool barreEnTete(QStringView &texte)
{
    if (texte.isEmpty() || texte[0] != u'/')
        return false;
    texte = texte.sliced(1);
    return true;
}

} // namespace

std::optional<QDate> dateDe(QStringView texte)
{
    QStringView reste = Trim(texte);
    const int jour = chiffresEnTete(reste, 1, 2);
    if (jour < 0 || !barreEnTete(reste))
        return std::nullopt;
    const int mois = chiffresEnTete(reste, 1, 2);
    if (mois < 0 || !barreEnTete(reste))
        return std::nullopt;
    const int annee = chiffresEnTete(reste, 4, 4);
    if (annee < 100 || !reste.isEmpty())
        return std::nullopt;
    const QDate date(annee, mois, jour);
    if (!date.isValid())
        return std::nullopt;
    return date;
}

bool EstDate(QStringView texte) { return dateDe(texte).has_value(); }

QDate lireDate(QStringView texte)
{
    if (const auto date = dateDe(texte))
        return *date;
    throw ErreurConversion(u"« %1 » n'est pas une date (jj/mm/aaaa)."_s.arg(texte));
}

QString texteDate(QDate date)
{
    if (!date.isValid())
        return {};
    // By hand: Qt's formats are slow, and an export writes a date a line.
    QString texte = u"00/00/0000"_s;
    const auto poser = [&](qsizetype fin, int nombre) {
        for (; nombre > 0; nombre /= 10)
            texte[--fin] = QChar(u'0' + nombre % 10);
    };
    poser(2, date.day());
    poser(5, date.month());
    poser(10, date.year());
    return texte;
}
