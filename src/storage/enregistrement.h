#pragma once

#include "rules/nombre.h"

#include <QDate>
#include <QStringList>
#include <QVariant>

#include <memory>

/// What a column holds, as its declared type tells.
enum class Genre { Texte, Entier, Montant, Jour };

/// The kind that a declared type (char(30), Integer, Currency, Date) stands for; Texte for any other.
Genre genreDe(QStringView typeDeclare);

/// A column, by its name (any case) or by its place from 0.
class Col
{
public:
    Col(int rang) : m_rang(rang) {}
    Col(QStringView nom) : m_nom(nom) {}
    Col(const QString &nom) : m_nom(nom) {}
    Col(const char16_t *nom) : m_nom(nom) {}

    /// The place among these names. @throws ErreurBase when there is no such column
    int rang(const QStringList &noms) const;

private:
    QStringView m_nom;
    int m_rang = -1;
};

/// One row as it was read, with its columns' names: a value that stays what it is whatever happens to the
/// table. All readers throw ErreurBase for an unknown column and for a row that is none.
class Enregistrement
{
public:
    /// No row.
    Enregistrement() = default;
    /// @param rowid the row's number in its table; -1 for a row of a query
    Enregistrement(std::shared_ptr<const QStringList> noms, QVariantList valeurs, qint64 rowid = -1);

    /// Whether there is no row: nothing was current, or the row is gone.
    bool estVide() const { return m_valeurs.isEmpty(); }

    qint64 rowid() const { return m_rowid; }

    bool estNul(Col colonne) const { return valeur(colonne).isNull(); }

    /// As the database keeps it: QString, qint64 (amounts in ten-thousandths), ISO text of a day, or a null
    /// variant.
    QVariant valeur(Col colonne) const;

    /// Null gives the null text.
    QString texte(Col colonne) const;

    /// @throws ErreurConversion for Null and for what is no whole number
    qint64 entier(Col colonne) const;
    qint64 entier(Col colonne, qint64 siNul) const { return estNul(colonne) ? siNul : entier(colonne); }

    /// @throws ErreurConversion for Null and for what is no amount
    Currency montant(Col colonne) const;
    Currency montant(Col colonne, Currency siNul) const { return estNul(colonne) ? siNul : montant(colonne); }

    /// Null gives the null date. @throws ErreurConversion for what is no date
    QDate date(Col colonne) const;

protected:
    std::shared_ptr<const QStringList> m_noms;
    QVariantList m_valeurs;

private:
    qint64 m_rowid = -1;
};

/// The day of a stored text yyyy-mm-dd; an invalid one for any other text.
QDate jourStocke(const QVariant &valeur);
