#include "screens/miseenpage.h"

#include "screens/logo.h"

#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Hundredths of a millimetre.
constexpr qreal Mm = 100;

// What is left free between a cell's edges and its text.
constexpr qreal blancLateral(double corpsPoints) { return 0.14 * Mm * std::min(corpsPoints, 10.0); }
constexpr qreal BlancDeRangee = 1.2 * Mm;
constexpr qreal BlancDeLigne = 0.5 * Mm;

constexpr qreal Filet = 0.15 * Mm;
constexpr qreal FiletVignette = 0.3 * Mm;
constexpr qreal MargeVignette = 8 * Mm;
constexpr qreal CorpsPied = 8;
constexpr qreal HauteurPied = 6 * Mm;
const QColor Gris(232, 232, 232);

} // namespace

MiseEnPage::MiseEnPage(Document document) : m_document(std::move(document))
{
    m_feuille = QRectF(QPointF(), feuille().fullRect(QPageLayout::Millimeter).size() * Mm);
    m_zone = m_feuille.marginsRemoved(QMarginsF(1, 1, 1, 1) * (m_document.marge * Mm));
    if (m_document.vignette > 0) {
        const qreal cote = m_document.vignette * Mm;
        m_zone.setRect(m_feuille.center().x() - cote / 2, m_zone.top(), cote, cote);
        m_zone.adjust(MargeVignette, MargeVignette, -MargeVignette, -MargeVignette);
    }
    if (m_document.tableau.regle) {
        m_titres.reglee = true;
        for (const Colonne &colonne : std::as_const(m_document.tableau.colonnes)) {
            m_titres.cellules += Cellule{.texte = colonne.titre,
                                         .largeur = colonne.largeur,
                                         .corps = m_document.tableau.corps,
                                         .gras = true,
                                         .alignement = colonne.alignement,
                                         .grisee = true};
        }
    }
    paginer();
}

QPageLayout MiseEnPage::feuille() const
{
    QPageLayout feuille(QPageSize(QPageSize::A4),
                        m_document.paysage ? QPageLayout::Landscape : QPageLayout::Portrait, {});
    feuille.setMode(QPageLayout::FullPageMode);
    return feuille;
}

const Police &MiseEnPage::police(double corps, bool gras) const
{
    return m_polices.try_emplace({corps, gras}, corps, gras).first->second;
}

QList<qreal> MiseEnPage::largeurs(const Rangee &rangee) const
{
    qreal reste = m_zone.width();
    qsizetype libres = 0;
    for (const Cellule &cellule : rangee.cellules) {
        reste -= cellule.largeur * Mm;
        libres += cellule.largeur == 0;
    }
    QList<qreal> largeurs;
    for (const Cellule &cellule : rangee.cellules)
        largeurs += cellule.largeur > 0 ? cellule.largeur * Mm : reste / libres;
    return largeurs;
}

/// The height without what is free above.
qreal MiseEnPage::hauteur(const Rangee &rangee) const
{
    const QList<qreal> larges = largeurs(rangee);
    qreal hauteur = rangee.hauteur * Mm;
    for (qsizetype i = 0; i < larges.size(); ++i) {
        const Cellule &cellule = rangee.cellules[i];
        const Police &police = this->police(cellule.corps, cellule.gras);
        const auto lignes = police.lignes(cellule.texte, larges[i] - 2 * blancLateral(cellule.corps)).size();
        hauteur = std::max(hauteur, static_cast<qreal>(lignes) * police.interligne() + 2 * BlancDeRangee);
    }
    return hauteur;
}

qsizetype MiseEnPage::lireRangee(qsizetype rang, QStringList &textes, QList<Lignes> &lignes) const
{
    const Tableau &tableau = m_document.tableau;
    const Police &police = this->police(tableau.corps, false);
    textes.clear();
    lignes.clear();
    qsizetype hauteur = 1;
    for (int colonne = 0; colonne < tableau.colonnes.size(); ++colonne) {
        textes += tableau.cellule(rang, colonne);
        const qreal largeur = tableau.colonnes[colonne].largeur * Mm - 2 * blancLateral(tableau.corps);
        lignes += police.lignes(textes.last(), largeur);
        hauteur = std::max(hauteur, lignes.last().size());
    }
    return hauteur;
}

void MiseEnPage::paginer()
{
    m_debuts = {Debut{}};
    const Tableau &tableau = m_document.tableau;
    if (tableau.nombre > 0) {
        qreal libre = m_zone.height() - (m_document.numerote ? HauteurPied : 0);
        for (const Rangee &rangee : std::as_const(m_document.tete))
            libre -= rangee.avant * Mm + hauteur(rangee);
        if (tableau.regle)
            libre -= hauteur(m_titres);

        const qreal interligne = police(tableau.corps, false).interligne();
        const qreal blancs = tableau.regle ? 2 * BlancDeLigne : 0;
        const auto lignesParPage = static_cast<qsizetype>(std::max(1.0, (libre - blancs) / interligne));
        QStringList textes;
        QList<Lignes> lignes;
        qreal y = 0;
        for (qsizetype rang = 0; rang < tableau.nombre; ++rang) {
            qsizetype reste = lireRangee(rang, textes, lignes);
            const auto haute = [&] { return static_cast<qreal>(reste) * interligne + blancs; };
            if (y > 0 && y + haute() > libre) {
                m_debuts.push_back({rang, 0});
                y = 0;
            }
            for (qsizetype ligne = 0; reste > lignesParPage; reste -= lignesParPage)
                m_debuts.push_back({rang, ligne += lignesParPage});
            y += haute();
        }
    }
    m_debuts.push_back({tableau.nombre, 0});
}

void MiseEnPage::peindre(QPainter &peintre, int page, const QRectF &feuille) const
{
    peintre.save();
    peintre.translate(feuille.topLeft());
    // On a sheet of another size the page is made smaller or bigger as a whole.
    const qreal echelle =
        std::min(feuille.width() / m_feuille.width(), feuille.height() / m_feuille.height());
    peintre.scale(echelle, echelle);
    peintre.setPen(QPen(Qt::black, Filet));

    if (m_document.vignette > 0) {
        peintre.setPen(QPen(Qt::black, FiletVignette));
        peintre.drawRect(m_zone.adjusted(-MargeVignette, -MargeVignette, MargeVignette, MargeVignette));
        peintre.setPen(QPen(Qt::black, Filet));
    }
    QPointF coin = m_zone.topLeft();
    for (const Rangee &rangee : m_document.tete) {
        coin.ry() += rangee.avant * Mm;
        peindre(peintre, rangee, coin);
        coin.ry() += hauteur(rangee);
    }
    if (!m_document.tableau.colonnes.isEmpty())
        peindreTableau(peintre, page, coin);
    if (m_document.numerote) {
        const Police &pied = police(CorpsPied, false);
        const QString numero = u"Page %1 de %2"_s.arg(page).arg(pages());
        peintre.setFont(pied.police());
        pied.peindre(peintre, m_zone.bottomRight() - QPointF(pied.largeur(numero), pied.interligne()),
                     numero);
    }
    peintre.restore();
}

void MiseEnPage::peindre(QPainter &peintre, const Rangee &rangee, QPointF coin) const
{
    const qreal haute = hauteur(rangee);
    const QList<qreal> larges = largeurs(rangee);
    for (qsizetype i = 0; i < larges.size(); ++i) {
        const Cellule &cellule = rangee.cellules[i];
        const QRectF place(coin, QSizeF(larges[i], haute));
        if (cellule.grisee)
            peintre.fillRect(place, Gris);
        if (rangee.reglee)
            peintre.drawRect(place);
        if (cellule.logo > 0)
            peindreLogo(peintre, QRectF(coin, QSizeF(cellule.logo, cellule.logo) * Mm));
        const Police &police = this->police(cellule.corps, cellule.gras);
        const Lignes lignes = police.lignes(cellule.texte, larges[i] - 2 * blancLateral(cellule.corps));
        const bool centre = rangee.reglee || rangee.hauteur > 0;
        const qreal libre = haute - static_cast<qreal>(lignes.size()) * police.interligne();
        const qreal blanc = blancLateral(cellule.corps);
        peintre.setFont(police.police());
        peindreLignes(peintre, police, lignes,
                      place.adjusted(blanc, centre ? libre / 2 : BlancDeRangee, -blanc, 0),
                      cellule.alignement);
        coin.rx() += larges[i];
    }
}

void MiseEnPage::peindreTableau(QPainter &peintre, int page, QPointF coin) const
{
    const Tableau &tableau = m_document.tableau;
    qreal y = coin.y();
    if (tableau.regle) {
        peindre(peintre, m_titres, coin);
        y += hauteur(m_titres);
    }
    const Debut debut = m_debuts[static_cast<std::size_t>(page) - 1];
    const Debut fin = m_debuts[static_cast<std::size_t>(page)];
    const Police &police = this->police(tableau.corps, false);
    const qreal blanc = tableau.regle ? BlancDeLigne : 0;
    const qreal lateral = blancLateral(tableau.corps);
    peintre.setFont(police.police());
    const qreal haut = y;
    QList<QLineF> filets;
    QStringList textes;
    QList<Lignes> lignes;
    for (qsizetype rang = debut.rang; rang < fin.rang + (fin.ligne > 0); ++rang) {
        const qsizetype toutes = lireRangee(rang, textes, lignes);
        const qsizetype premiere = rang == debut.rang ? debut.ligne : 0;
        const qsizetype nombre = (rang == fin.rang ? fin.ligne : toutes) - premiere;
        QRectF place(coin.x(), y + blanc, 0, 0);
        for (qsizetype i = 0; i < lignes.size(); ++i) {
            place.setWidth(tableau.colonnes[i].largeur * Mm);
            peindreLignes(peintre, police, lignes[i].mid(premiere, nombre),
                          place.adjusted(lateral, 0, -lateral, 0), tableau.colonnes[i].alignement);
            place.moveLeft(place.right());
        }
        y += static_cast<qreal>(nombre) * police.interligne() + 2 * blanc;
        filets += QLineF(coin.x(), y, place.left(), y);
    }
    if (!tableau.regle)
        return;
    filets += QLineF(coin.x(), haut, coin.x(), y);
    for (const Colonne &colonne : tableau.colonnes) {
        coin.rx() += colonne.largeur * Mm;
        filets += QLineF(coin.x(), haut, coin.x(), y);
    }
    peintre.drawLines(filets);
}

void MiseEnPage::peindreLignes(QPainter &peintre, const Police &police, const Lignes &lignes,
                               const QRectF &place, Alignement alignement) const
{
    qreal y = place.top();
    for (const QStringView ligne : lignes) {
        qreal x = place.left();
        if (alignement != Alignement::Gauche) {
            const qreal libre = place.width() - police.largeur(ligne);
            x += alignement == Alignement::Droite ? libre : libre / 2;
        }
        police.peindre(peintre, {x, y}, ligne);
        y += police.interligne();
    }
}
