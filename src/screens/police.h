#pragma once

#include <QFont>
#include <QList>
#include <QPointF>
#include <QString>

#include <array>

class QPainter;

/// A face in one size, measured without regard to any device, so that lines break at the same places on
/// paper, in a PDF and on the screen. Lengths are in hundredths of a millimetre.
class Police
{
public:
    Police(double corpsPoints, bool gras);

    const QFont &police() const { return m_police; }
    qreal interligne() const { return m_interligne; }
    qreal montante() const { return m_montante; }
    /// Where a line ends that begins at 0; tabs stand at multiples of eight characters.
    qreal largeur(QStringView ligne) const;
    /// The lines of the text in that width: parted at blanks, within a word only if it is too long.
    QList<QStringView> lignes(QStringView texte, qreal largeur) const;
    /// @param coin the upper left end of the line
    void peindre(QPainter &peintre, QPointF coin, QStringView ligne) const;

private:
    qreal avance(qreal x, QChar c) const;

    QFont m_police;
    qreal m_interligne = 0;
    qreal m_montante = 0;
    qreal m_tabulation = 0;
    std::array<qreal, 256> m_avances{};
};
