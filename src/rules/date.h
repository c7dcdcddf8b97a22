#pragma once

#include <QDate>
#include <QString>

#include <optional>

/// The day that a text d/m/yyyy names: day first, one or two digits for day and month, four for the year
/// (100 to 9999), blanks at both ends allowed. Nothing for any other text and for days that don't exist.
std::optional<QDate> dateDe(QStringView texte);

bool EstDate(QStringView texte);

/// The day of the text. @throws ErreurConversion when EstDate refuses it
QDate lireDate(QStringView texte);

/// dd/mm/yyyy
QString texteDate(QDate date);

/// A date field with nothing in it.
inline constexpr QStringView DateBlanche = u"__/__/____";

/// Today by the system's clock; every part of the program asks here.
QDate aujourdhui();
