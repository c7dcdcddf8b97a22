#pragma once

#include "rules/nombre.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QStringBuilder>
#include <QVariant>

#include <concepts>
#include <optional>

/// A value on its way into the database, in the form in which the database keeps it: texts without their
/// trailing blanks, amounts as a count of ten-thousandths, days as yyyy-mm-dd. There is no way in for a
/// floating-point number or a truth value: no column holds one.
class Valeur
{
public:
    /// Null.
    Valeur() = default;
    Valeur(std::nullptr_t) {}

    /// A text, the empty one included, is never Null.
    Valeur(QStringView texte);
    Valeur(const QString &texte) : Valeur(QStringView(texte)) {}
    Valeur(const char16_t *texte) : Valeur(QStringView(texte)) {}
    template <typename A, typename B>
    Valeur(const QStringBuilder<A, B> &texte) : Valeur(QString(texte))
    {
    }

    template <std::integral T>
    requires(!std::same_as<T, bool> && !std::same_as<T, char> && !std::same_as<T, char16_t>) Valeur(T entier)
        : m_variante(static_cast<qint64>(entier))
    {
    }

    Valeur(Currency montant) : m_variante(montant.dixMilliemes()) {}

    /// A day; Null when it is not valid.
    Valeur(QDate jour);

    /// Null for nothing.
    template <typename T>
    Valeur(const std::optional<T> &valeur) : Valeur(valeur ? Valeur(*valeur) : Valeur())
    {
    }

    /// A value exactly as the database gave it, to be compared with what is there.
    static Valeur brute(const QVariant &variante);

    bool estNulle() const { return m_variante.isNull(); }
    const QVariant &variante() const { return m_variante; }

private:
    QVariant m_variante;
};

using Valeurs = QList<Valeur>;

/// A column and the value that it gets.
struct Champ
{
    QString colonne;
    Valeur valeur;
};

using Champs = QList<Champ>;
