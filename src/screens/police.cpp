#include "screens/police.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

using namespace Qt::StringLiterals;

Police::Police(double corpsPoints, bool gras)
{
    constexpr double centiemesParPoint = 2540.0 / 72;
    m_police.setFamilies({u"DejaVu Sans"_s, u"Arial"_s});
    m_police.setStyleHint(QFont::SansSerif);
    m_police.setPixelSize(qRound(corpsPoints * centiemesParPoint));
    m_police.setBold(gras);
    // Every character stands by itself: its width is the same everywhere, and it is itself when text is
    // copied out of a PDF.
    m_police.setKerning(false);
    m_police.setHintingPreference(QFont::PreferNoHinting);
    m_police.setStyleStrategy(QFont::PreferNoShaping);

    const QFontMetricsF mesures(m_police);
    m_interligne = mesures.height();
    m_montante = mesures.ascent();
    m_tabulation = 8 * mesures.horizontalAdvance(u'x');
    for (std::size_t i = 0; i < m_avances.size(); ++i)
        m_avances[i] = mesures.horizontalAdvance(QChar(static_cast<char16_t>(i)));
}

qreal Police::avance(qreal x, QChar c) const
{
    if (c == u'\t')
        return (std::floor(x / m_tabulation) + 1) * m_tabulation;
    const std::size_t rang = c.unicode();
    return x + (rang < m_avances.size() ? m_avances[rang] : QFontMetricsF(m_police).horizontalAdvance(c));
}

qreal Police::largeur(QStringView ligne) const
{
    qreal x = 0;
    for (const QChar c : ligne)
        x = avance(x, c);
    return x;
}

QList<QStringView> Police::lignes(QStringView texte, qreal largeur) const
{
    QList<QStringView> lignes;
    for (const QStringView paragraphe : texte.split(u'\n')) {
        qsizetype debut = 0;
        qsizetype coupure = 0; // where the line may end, behind a word
        bool mot = false;
        qreal x = 0;
        for (qsizetype i = 0; i < paragraphe.size(); ++i) {
            const QChar c = paragraphe[i];
            const bool blanc = c == u' ' || c == u'\t';
            if (blanc && mot)
                coupure = i;
            mot = mot || !blanc;
            x = avance(x, c);
            if (x > largeur && !blanc && i > debut) {
                const qsizetype fin = coupure > debut ? coupure : i;
                lignes += paragraphe.sliced(debut, fin - debut);
                debut = paragraphe[fin] == u' ' ? fin + 1 : fin;
                i = debut - 1;
                mot = false;
                x = 0;
            } else if (c == u'-' && mot) {
                coupure = i + 1;
            }
        }
        lignes += paragraphe.sliced(debut);
    }
    return lignes;
}

void Police::peindre(QPainter &peintre, QPointF coin, QStringView ligne) const
{
    qreal x = 0;
    for (const QStringView morceau : ligne.split(u'\t')) {
        if (!morceau.isEmpty())
            peintre.drawText(coin + QPointF(x, m_montante), morceau.toString());
        x = avance(x + largeur(morceau), u'\t');
    }
}
