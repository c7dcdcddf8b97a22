#pragma once

#include <QString>

class Dialogue;

/// The number of an employee who has none.
inline constexpr QStringView NumeroBlanc = u"000000000000";

/// Keys and forms of the numbers that identify persons, employers and accounts.

/// Key of a social-security or employer number: 99 less the sum of its digits, those in odd positions twice.
/// The sum is not reduced, so large digits give a text such as "0-36"; an empty number gives "99".
/// @throws ErreurConversion when a character is no digit
QString CleSS(QStringView numero);

/// Whether the last two characters are the key of those before them.
/// @throws ErreurConversion when one of those before them is no digit
bool cleSSJuste(QStringView numeroAvecCle);

/// Key of a CCP account: the last two characters of the text of the weighted sum of its 8 digits, where a sum
/// below 10 gives a blank and a digit. The body loses its blanks and gets zeros up to 8 digits, in place.
/// @throws ErreurConversion when one of the first 8 characters is no digit
QString CleCCP(QString &corps);

/// Remainder by 97 of the 17 digits behind the bank code of a RIB, or behind "007" of a RIP: "0" when the
/// number is right, "-1" when the text can't be worked on.
QString CleRIB(QStringView chiffres);

/// Whether the text is a valid CCP account, or a valid RIP when it has 20 digits. A text shorter than 20
/// characters that has zeros in front is narrowed to what stands behind them.
bool CtrlCompteCCP(QStringView &compte);

/// Whether the text is a RIP of 20 characters, not zero, with the prefix "007" and a right key.
bool CtrlRIP(QStringView compte);

/// Whether the text is a bank account, whatever the bank: 20 digits, not all zeros, and a right key. Without
/// a word.
bool compteBancaireValide(QStringView compte);

/// Whether a person can be paid: a valid CCP account or RIP, or else a valid bank account.
bool comptePayable(QStringView ccp, QStringView bancaire);

/// Whether the text of the mask is a telephone number; tells why not.
bool CtrlTelephone(QStringView texte, Dialogue &dialogue);

/// The same without a word; the text must also have exactly 10 characters.
bool TelephoneValide(QStringView texte);

/// Whether the text has an "@", and a "." among its last four characters; tells why not. Callers ask only for
/// a field that is not blank: an empty text is refused.
bool CtrlMail(QStringView texte, Dialogue &dialogue);

/// The same without a word.
bool MailValide(QStringView texte);
