#pragma once

#include "rules/document.h"
#include "screens/police.h"

#include <QPageLayout>
#include <QRectF>

#include <map>
#include <vector>

class QPainter;

/// The pages of a document, laid out once.
class MiseEnPage
{
public:
    explicit MiseEnPage(Document document);

    const Document &document() const { return m_document; }
    /// A4 as the document wants it, without margins: those are the document's own.
    QPageLayout feuille() const;
    int pages() const { return static_cast<int>(m_debuts.size()) - 1; }
    /// Paints a page, counted from 1, over the whole sheet.
    /// @param feuille the sheet in the painter's units
    void peindre(QPainter &peintre, int page, const QRectF &feuille) const;

private:
    /// Where a page begins.
    struct Debut
    {
        qsizetype rang = 0;
        /// The line of the row, for what goes on from the page before.
        qsizetype ligne = 0;
    };
    using Lignes = QList<QStringView>;

    const Police &police(double corps, bool gras) const;
    QList<qreal> largeurs(const Rangee &rangee) const;
    qreal hauteur(const Rangee &rangee) const;
    void peindre(QPainter &peintre, const Rangee &rangee, QPointF coin) const;
    void peindreTableau(QPainter &peintre, int page, QPointF coin) const;
    void peindreLignes(QPainter &peintre, const Police &police, const Lignes &lignes, const QRectF &place,
                       Alignement alignement) const;
    /// The texts of a row and how many lines the longest has.
    qsizetype lireRangee(qsizetype rang, QStringList &textes, QList<Lignes> &lignes) const;
    void paginer();

    Document m_document;
    mutable std::map<std::pair<double, bool>, Police> m_polices;
    QRectF m_feuille;
    QRectF m_zone;
    Rangee m_titres;
    /// The start of each page, and the end of the last.
    std::vector<Debut> m_debuts;
};
