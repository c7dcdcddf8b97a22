#pragma once

#include <QString>

/// Filling and filtering of typed texts. Every number is entered in a masked field of exact length, so the
/// sides and limits of the filling differ from routine to routine.

/// Whether all characters are of "0123456789. ,", those of a typed amount; true for an empty text.
bool CarNumeriques(QStringView texte);

/// Whether no character is of "0123456789.,", as a person's name wants it; true for an empty text.
bool SansChiffre(QStringView texte);

/// Blanks on the right up to 10 characters for a text of 5 to 9; any other stays.
void CadrerBlancs(QString &texte);

/// Zeros on the left up to the length; a longer text stays.
QString ComplZeros(QStringView texte, qsizetype longueur);

/// Three characters with zeros on the left for a text of 1 to 3 characters, an empty text for any other.
QString CadrerNum2(QStringView texte);

/// Underscores on the right up to 18 characters for a text of 8 to 17, to fit a claim's reference to its
/// mask.
void CadrerSouligne(QString &texte);

/// Zeros on the left up to 15 characters; a longer text stays.
QString ZerosGauche(QStringView texte);

/// Zeros on the left up to 3 characters; a longer text stays.
QString Zeros3(QStringView texte);
