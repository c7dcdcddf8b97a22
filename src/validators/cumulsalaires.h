#pragma once

#include <QStringView>

/// A sum of wages to the hundredth, exact as far as 64 bits reach.
class CumulSalaires
{
public:
    /// Adds digits with a "." as separator; decimals behind the second are dropped.
    /// @throws ErreurConversion when one of the first two is no digit, and when no floating-point number
    /// holds the sum
    void ajouter(QStringView salaire);

    double valeur() const
    {
        const qint64 entier = m_centiemes / 100;
        return static_cast<double>(entier) + static_cast<double>(m_centiemes % 100) / 100 + m_debordement;
    }

private:
    qint64 m_centiemes = 0;
    double m_debordement = 0;
};
