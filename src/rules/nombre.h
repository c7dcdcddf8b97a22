#pragma once

#include <QLatin1Char>
#include <QString>

#include <compare>
#include <initializer_list>
#include <optional>

/// The decimal separator in labels, messages and masks, and the other one. Readers take both.
inline constexpr QLatin1Char SepDecimal('.');
inline constexpr QLatin1Char SepAutre(',');

/// Proves at start that amounts are read alike whatever the regional setting of the machine.
/// @throws ErreurConversion if they are not
void DetecterDecimale();

/// Whether the text is a number: blanks at both ends, an optional sign, digits with at most one separator
/// ("." or ","), at least one digit. No exponent, no grouping.
bool EstNumerique(QStringView texte);

/// The number at the head of the text, 0 when there is none: blanks are skipped wherever they stand, "."
/// alone is a separator, and reading stops at the first character that does not belong. "12,5" gives 12.
double Val(QStringView texte);

/// The number of a text that EstNumerique accepts. @throws ErreurConversion for any other
double lireNombre(QStringView texte);

/// The whole number that a column takes of a typed or read text: all blanks dropped, rounded half to even.
/// @throws ErreurConversion for a text that is no number and beyond the 32 bits of such a column
qint64 lireEntier(QStringView texte);

/// An exact amount: a 64-bit count of ten-thousandths.
class Currency
{
public:
    constexpr Currency() = default;

    static constexpr Currency deDixMilliemes(qint64 compte) { return Currency(compte); }
    /// @throws ErreurConversion beyond 922 337 203 685 477
    static Currency deEntier(qint64 valeur);
    /// The text of EstNumerique's form, all blanks dropped, rounded half to even at the fourth decimal.
    /// @throws ErreurConversion for a text of another form and on overflow
    static Currency deTexte(QStringView texte);

    constexpr qint64 dixMilliemes() const { return m_compte; }

    /// Plain text: no grouping, no superfluous zeros, "-" in front of a negative.
    QString texte(QLatin1Char separateur = SepDecimal) const;

    /// @throws ErreurConversion on overflow, as all arithmetic here
    Currency operator-() const;
    Currency &operator+=(Currency autre);
    Currency &operator-=(Currency autre);
    friend Currency operator+(Currency a, Currency b) { return a += b; }
    friend Currency operator-(Currency a, Currency b) { return a -= b; }
    friend Currency operator*(Currency a, qint64 facteur);

    friend constexpr auto operator<=>(Currency, Currency) = default;

private:
    constexpr explicit Currency(qint64 compte) : m_compte(compte) {}

    qint64 m_compte = 0;
};

/// A typed or read amount. @throws ErreurConversion for a text that is no number, never a silent 0
inline Currency LireMontant(QStringView texte) { return Currency::deTexte(texte); }

/// The amount of a text; nothing for one that is no number, or too big.
std::optional<Currency> montantDe(QStringView texte);

/// Plain text of a number: at most 15 significant digits, no exponent, no grouping, no superfluous zeros.
QString texteNombre(double valeur);

/// How many decimals the plain text of the number has.
qsizetype decimales(double valeur);
/// The number with so many decimals: rid of what a sum or a difference brought in that the machine can't hold
/// exactly. Beyond what fits there is nothing to round.
double arrondi(double valeur, qsizetype chiffres);

/// The number through a mask such as "## ### ### ###.00" or "#,##0.00;(#,##0.00)". The value is taken to its
/// 15 significant digits, then rounded half away from zero to the mask's decimals. Groups are of three
/// digits, parted by a blank where the mask groups; before the point only a mask with "0" there shows a lone
/// zero.
QString formatMasque(double valeur, QStringView masque);
QString formatMasque(Currency valeur, QStringView masque);

/// The product of numbers in the form of EstNumerique through a mask. It is exact, so that it is rounded
/// once.
/// @throws ErreurConversion for a text that is no number
QString formatProduit(std::initializer_list<QStringView> facteurs, QStringView masque);
