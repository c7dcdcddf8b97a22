#include "rules/nombre.h"

#include "rules/erreurs.h"
#include "rules/texte.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 UniteCurrency = 10'000;

[[noreturn]] void refuserNombre(QStringView texte)
{
    throw ErreurConversion(u"« %1 » n'est pas un nombre."_s.arg(texte));
}

[[noreturn]] void refuserDepassement(const QString &texte)
{
    throw ErreurConversion(u"Dépassement de capacité : « %1 » est un montant trop grand."_s.arg(texte));
}

/// The value of plain ASCII text of digits with at most one "."
double versDouble(const char *debut, const char *fin)
{
    double valeur = 0;
    const auto [_, erreur] = std::from_chars(debut, fin, valeur, std::chars_format::fixed);
    if (erreur == std::errc::result_out_of_range) {
        // Too large where a digit other than zero stands before the point, too small otherwise.
        const std::string_view texte(debut, static_cast<std::size_t>(fin - debut));
        const bool grand = texte.substr(0, texte.find('.')).find_first_not_of('0') != std::string_view::npos;
        return grand ? std::numeric_limits<double>::infinity() : 0;
    }
    return valeur;
}

/// A number as decimal digits, in the form that the masks and the plain text need.
struct Decimal
{
    bool negatif = false;
    /// Significant digits; empty for zero.
    QByteArray chiffres;
    /// How many of the digits stand before the point; may be negative or beyond the digits.
    int avantPoint = 0;

    /// Rounds half away from zero, so that at most this many digits stay.
    void arrondir(int garder)
    {
        if (garder >= chiffres.size())
            return;
        if (garder < 0) {
            chiffres.clear();
            return;
        }
        const bool monte = chiffres[garder] >= '5';
        chiffres.truncate(garder);
        if (!monte)
            return;
        int i = garder - 1;
        while (i >= 0 && chiffres[i] == '9')
            chiffres[i--] = '0';
        if (i >= 0) {
            ++chiffres[i];
        } else {
            chiffres.prepend('1');
            ++avantPoint;
        }
    }

    void oterZeros()
    {
        while (chiffres.endsWith('0'))
            chiffres.chop(1);
        while (chiffres.startsWith('0')) {
            chiffres.remove(0, 1);
            --avantPoint;
        }
        if (chiffres.isEmpty()) {
            avantPoint = 0;
            negatif = false;
        }
    }

    /// The digit at a place: 0 is the unit, -1 the first decimal.
    char chiffre(int place) const
    {
        const int i = avantPoint - 1 - place;
        return i >= 0 && i < chiffres.size() ? chiffres[i] : '0';
    }
};

constexpr int ChiffresSignificatifs = 15;

Decimal decimalDe(double valeur)
{
    if (!std::isfinite(valeur))
        throw ErreurConversion(u"Dépassement de capacité : le nombre est trop grand."_s);
    // "-d.dddddddddddddde+xx": the digits and the place of the point are read from the scientific form.
    const QByteArray texte = QByteArray::number(valeur, 'e', ChiffresSignificatifs - 1);
    const auto exposant = texte.indexOf('e');
    Decimal decimal;
    decimal.negatif = texte.startsWith('-');
    decimal.chiffres = texte.first(exposant);
    decimal.chiffres.replace("-", "").replace(".", "");
    decimal.avantPoint = texte.sliced(exposant + 1).toInt() + 1;
    decimal.oterZeros();
    return decimal;
}

Decimal decimalDe(Currency valeur)
{
    Decimal decimal;
    decimal.negatif = valeur.dixMilliemes() < 0;
    const auto compte = static_cast<quint64>(valeur.dixMilliemes());
    decimal.chiffres = QByteArray::number(decimal.negatif ? 0 - compte : compte);
    decimal.avantPoint = static_cast<int>(decimal.chiffres.size()) - 4;
    decimal.oterZeros();
    return decimal;
}

/// @throws ErreurConversion for a text that is no number
Decimal decimalDe(QStringView texte)
{
    if (!EstNumerique(texte))
        refuserNombre(texte);
    Decimal decimal;
    bool apresPoint = false;
    for (const QChar c : texte) {
        if (estChiffre(c)) {
            decimal.chiffres += static_cast<char>(c.unicode());
            decimal.avantPoint += apresPoint ? 0 : 1;
        } else if (c == u'-') {
            decimal.negatif = true;
        } else if (c == SepDecimal || c == SepAutre) {
            apresPoint = true;
        }
    }
    decimal.oterZeros();
    return decimal;
}

/// To the last digit.
Decimal operator*(const Decimal &a, const Decimal &b)
{
    std::vector<int> places(static_cast<std::size_t>(a.chiffres.size() + b.chiffres.size()));
    for (qsizetype i = a.chiffres.size() - 1; i >= 0; --i) {
        for (qsizetype j = b.chiffres.size() - 1; j >= 0; --j) {
            const auto place = static_cast<std::size_t>(i + j + 1);
            places[place] += (a.chiffres[i] - '0') * (b.chiffres[j] - '0');
            places[place - 1] += places[place] / 10;
            places[place] %= 10;
        }
    }
    Decimal produit;
    produit.negatif = a.negatif != b.negatif;
    produit.avantPoint = a.avantPoint + b.avantPoint;
    for (const int chiffre : places)
        produit.chiffres += static_cast<char>('0' + chiffre);
    produit.oterZeros();
    return produit;
}

/// Plain text: "0" before the point when nothing else stands there, decimals as far as the digits go.
QString texteSimple(const Decimal &decimal, QLatin1Char separateur)
{
    QString texte;
    if (decimal.negatif)
        texte += u'-';
    for (int place = std::max(decimal.avantPoint, 1) - 1; place >= 0; --place)
        texte += QLatin1Char(decimal.chiffre(place));
    const int decimales = static_cast<int>(decimal.chiffres.size()) - decimal.avantPoint;
    if (decimales > 0) {
        texte += separateur;
        for (int place = -1; place >= -decimales; --place)
            texte += QLatin1Char(decimal.chiffre(place));
    }
    return texte;
}

/// What a mask asks for.
struct Masque
{
    bool groupe = false;
    int entiersForces = 0;
    int decimalesForcees = 0;
    int decimales = 0;
    bool parentheses = false;

    explicit Masque(QStringView texte)
    {
        const auto section = texte.indexOf(u';');
        parentheses = section >= 0 && texte.sliced(section + 1).startsWith(u'(');
        const QStringView positif = section >= 0 ? texte.first(section) : texte;
        const auto point = positif.indexOf(u'.');
        const QStringView entiers = Trim(point >= 0 ? positif.first(point) : positif);
        groupe = entiers.contains(u' ') || entiers.contains(u',');
        entiersForces = static_cast<int>(entiers.count(u'0'));
        if (point >= 0) {
            const QStringView decimaux = positif.sliced(point + 1);
            decimalesForcees = static_cast<int>(decimaux.count(u'0'));
            decimales = decimalesForcees + static_cast<int>(decimaux.count(u'#'));
        }
    }
};

QString formater(Decimal decimal, const Masque &masque)
{
    decimal.arrondir(ChiffresSignificatifs);
    decimal.arrondir(decimal.avantPoint + masque.decimales);
    decimal.oterZeros();

    QString texte;
    for (int place = std::max(decimal.avantPoint, masque.entiersForces) - 1; place >= 0; --place) {
        texte += QLatin1Char(decimal.chiffre(place));
        if (masque.groupe && place > 0 && place % 3 == 0)
            texte += u' ';
    }
    const int presentes = static_cast<int>(decimal.chiffres.size()) - decimal.avantPoint;
    const int decimales = std::max(masque.decimalesForcees, std::min(presentes, masque.decimales));
    if (decimales > 0) {
        texte += SepDecimal;
        for (int place = -1; place >= -decimales; --place)
            texte += QLatin1Char(decimal.chiffre(place));
    }
    if (!decimal.negatif)
        return texte;
    return masque.parentheses ? QString(u'(' + texte + u')') : QString(u'-' + texte);
}

} // namespace

void DetecterDecimale()
{
    if (LireMontant(u"25.23") * 25 != LireMontant(u"630,75"))
        throw ErreurConversion(u"Les montants ne sont pas lus correctement sur cette machine."_s);
}

bool EstNumerique(QStringView texte)
{
    texte = Trim(texte);
    if (!texte.isEmpty() && (texte[0] == u'+' || texte[0] == u'-'))
        texte = texte.sliced(1);
    bool chiffre = false;
    bool separateur = false;
    for (const QChar c : texte) {
        if (estChiffre(c)) {
            chiffre = true;
        } else if ((c == SepDecimal || c == SepAutre) && !separateur) {
            separateur = true;
        } else {
            return false;
        }
    }
    return chiffre;
}

double Val(QStringView texte)
{
    // What a usual field holds is summed as it comes: 18 digits fit the whole number, and a quotient of two
    // numbers that are exact as double is the double nearest to the text.
    constexpr int chiffresMax = 18;
    constexpr qint64 exactMax = qint64(1) << std::numeric_limits<double>::digits;
    static constexpr std::array<double, chiffresMax + 1> puissances = {
        1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8, 1e9,
        1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18};
    bool negatif = false;
    bool signePossible = true;
    bool point = false;
    qint64 compte = 0;
    int chiffres = 0;
    std::size_t decimales = 0;
    for (const QChar c : texte) {
        if (c == u' ')
            continue;
        if (estChiffre(c)) {
            if (++chiffres > chiffresMax)
                break;
            compte = compte * 10 + (c.unicode() - u'0');
            decimales += point;
        } else if (signePossible && (c == u'-' || c == u'+')) {
            negatif = c == u'-';
        } else if (c == SepDecimal && !point) {
            point = true;
        } else {
            break;
        }
        signePossible = false;
    }
    if (chiffres <= chiffresMax && (decimales == 0 || compte <= exactMax)) {
        double valeur = static_cast<double>(compte);
        if (decimales > 0)
            valeur /= puissances[decimales];
        return negatif ? -valeur : valeur;
    }

    std::string propre;
    point = false;
    for (const QChar c : texte) {
        if (c == u' ' || (propre.empty() && (c == u'-' || c == u'+')))
            continue;
        if (c == SepDecimal && !point)
            point = true;
        else if (!estChiffre(c))
            break;
        propre += static_cast<char>(c.unicode());
    }
    const double valeur = versDouble(propre.data(), propre.data() + propre.size());
    return negatif ? -valeur : valeur;
}

double lireNombre(QStringView texte)
{
    if (!EstNumerique(texte))
        refuserNombre(texte);
    return Val(QString(texte.toString()).replace(SepAutre, SepDecimal));
}

qint64 lireEntier(QStringView texte)
{
    const double arrondi = std::nearbyint(lireNombre(sansBlancs(texte)));
    if (std::abs(arrondi) > std::numeric_limits<qint32>::max())
        throw ErreurConversion(u"« %1 » est un nombre trop grand."_s.arg(texte));
    return static_cast<qint64>(arrondi);
}

/// What a text comes to in ten-thousandths that is a number of few digits, without a blank and with no more
/// than four decimals: there is nothing to round, and no overflow. Nothing for any other text.
static std::optional<qint64> dixMilliemesUsuels(QStringView texte)
{
    constexpr qsizetype chiffresMax = 14;
    const bool negatif = texte.startsWith(u'-');
    if (negatif)
        texte = texte.sliced(1);
    if (texte.isEmpty() || texte.size() > chiffresMax || !estChiffre(texte[0]))
        return std::nullopt;
    qint64 compte = 0;
    int decimales = -1; // -1 before the separator
    for (const QChar c : texte) {
        if (estChiffre(c)) {
            compte = compte * 10 + (c.unicode() - u'0');
            decimales += decimales >= 0;
        } else if ((c == SepDecimal || c == SepAutre) && decimales < 0) {
            decimales = 0;
        } else {
            return std::nullopt;
        }
    }
    if (decimales > 4)
        return std::nullopt;
    for (int i = std::max(decimales, 0); i < 4; ++i)
        compte *= 10;
    return negatif ? -compte : compte;
}

Currency Currency::deEntier(qint64 valeur) { return Currency(UniteCurrency) * valeur; }

Currency Currency::deTexte(QStringView texte)
{
    if (const std::optional<qint64> usuel = dixMilliemesUsuels(texte))
        return Currency(*usuel);
    const QString propre = sansBlancs(texte);
    if (!EstNumerique(propre))
        refuserNombre(texte);

    bool negatif = false;
    qint64 compte = 0;
    int decimales = -1; // -1 before the separator
    bool impair = false;
    int premierEcarte = -1; // first digit beyond the fourth decimal
    bool resteApres = false;
    const auto pousser = [&](int chiffre) {
        constexpr qint64 limite = std::numeric_limits<qint64>::max();
        if (compte > (limite - chiffre) / 10)
            refuserDepassement(propre);
        compte = compte * 10 + chiffre;
        impair = chiffre % 2 != 0;
    };
    for (const QChar c : propre) {
        if (c == u'-') {
            negatif = true;
        } else if (c == SepDecimal || c == SepAutre) {
            decimales = 0;
        } else if (estChiffre(c)) {
            const int chiffre = c.unicode() - u'0';
            if (decimales < 4) {
                pousser(chiffre);
                if (decimales >= 0)
                    ++decimales;
            } else if (premierEcarte < 0) {
                premierEcarte = chiffre;
            } else {
                resteApres = resteApres || chiffre != 0;
            }
        }
    }
    for (int i = std::max(decimales, 0); i < 4; ++i)
        pousser(0);
    if (premierEcarte > 5 || (premierEcarte == 5 && (resteApres || impair))) {
        if (compte == std::numeric_limits<qint64>::max())
            refuserDepassement(propre);
        ++compte;
    }
    return Currency(negatif ? -compte : compte);
}

QString Currency::texte(QLatin1Char separateur) const { return texteSimple(decimalDe(*this), separateur); }

Currency Currency::operator-() const { return Currency() - *this; }

Currency &Currency::operator+=(Currency autre)
{
    const qint64 max = std::numeric_limits<qint64>::max();
    const qint64 min = std::numeric_limits<qint64>::min();
    if ((autre.m_compte > 0 && m_compte > max - autre.m_compte) ||
        (autre.m_compte < 0 && m_compte < min - autre.m_compte))
        refuserDepassement(texte() + u" + "_s + autre.texte());
    m_compte += autre.m_compte;
    return *this;
}

Currency &Currency::operator-=(Currency autre)
{
    const qint64 max = std::numeric_limits<qint64>::max();
    const qint64 min = std::numeric_limits<qint64>::min();
    if ((autre.m_compte < 0 && m_compte > max + autre.m_compte) ||
        (autre.m_compte > 0 && m_compte < min + autre.m_compte))
        refuserDepassement(texte() + u" - "_s + autre.texte());
    m_compte -= autre.m_compte;
    return *this;
}

Currency operator*(Currency a, qint64 facteur)
{
    qint64 produit = 0;
    if (qMulOverflow(a.m_compte, facteur, &produit))
        refuserDepassement(a.texte() + u" x "_s + QString::number(facteur));
    return Currency(produit);
}

std::optional<Currency> montantDe(QStringView texte)
{
    try {
        return LireMontant(texte);
    } catch (const ErreurConversion &) {
        return {};
    }
}

QString texteNombre(double valeur) { return texteSimple(decimalDe(valeur), SepDecimal); }

qsizetype decimales(double valeur)
{
    const QString texte = texteNombre(valeur);
    const qsizetype point = texte.indexOf(SepDecimal);
    return point < 0 ? 0 : texte.size() - point - 1;
}

double arrondi(double valeur, qsizetype chiffres)
{
    const double facteur = std::pow(10.0, static_cast<double>(chiffres));
    const double grandi = valeur * facteur;
    return std::isfinite(grandi) && std::abs(grandi) < 1e15 ? std::nearbyint(grandi) / facteur : valeur;
}

QString formatMasque(double valeur, QStringView masque)
{
    return formater(decimalDe(valeur), Masque(masque));
}

QString formatMasque(Currency valeur, QStringView masque)
{
    return formater(decimalDe(valeur), Masque(masque));
}

QString formatProduit(std::initializer_list<QStringView> facteurs, QStringView masque)
{
    Decimal produit = decimalDe(u"1");
    for (const QStringView facteur : facteurs)
        produit = produit * decimalDe(facteur);
    return formater(produit, Masque(masque));
}
