#include "screens/impressiontexte.h"

#include "rules/erreurs.h"

#include <QFontDatabase>
#include <QPageLayout>
#include <QPrinter>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal MargeMm = 12;

} // namespace

ImpressionTexte::ImpressionTexte(QPrinter &imprimante, int corpsPoints) : m_imprimante(imprimante)
{
    m_imprimante.setPageMargins({MargeMm, MargeMm, MargeMm, MargeMm}, QPageLayout::Millimeter);
    m_copies = m_imprimante.supportsMultipleCopies() ? 1 : std::max(1, m_imprimante.copyCount());
    if (!m_peintre.begin(&m_imprimante))
        throw ErreurFichier(
            u"L'impression n'a pas pu commencer : l'imprimante ou le fichier n'est pas accessible."_s);

    QFont police = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    police.setPointSize(corpsPoints);
    m_peintre.setFont(police);
    m_hauteurLigne = m_peintre.fontMetrics().lineSpacing();
    m_corps =
        QRect(QPoint(0, 0), m_imprimante.pageLayout().paintRectPixels(m_imprimante.resolution()).size());
    m_corps.adjust(0, 0, 0, -2 * m_hauteurLigne);
}

ImpressionTexte::~ImpressionTexte() = default;

void ImpressionTexte::nouveauDocument()
{
    if (m_page > 0)
        numeroter();
    m_page = 0;
    nouvellePage();
}

void ImpressionTexte::nouvellePage()
{
    ++m_page;
    m_y = m_corps.top();
    if (!voulue())
        return;
    if (m_entamee)
        m_imprimante.newPage();
    m_entamee = true;
}

bool ImpressionTexte::voulue() const
{
    return m_imprimante.printRange() != QPrinter::PageRange ||
           (m_page >= m_imprimante.fromPage() && m_page <= m_imprimante.toPage());
}

void ImpressionTexte::numeroter()
{
    if (!voulue())
        return;
    m_peintre.drawText(
        QRect(m_corps.left(), m_corps.bottom() + m_hauteurLigne, m_corps.width(), m_hauteurLigne),
        Qt::AlignRight | Qt::AlignVCenter, u"Page %1"_s.arg(m_page));
}

void ImpressionTexte::ligne(const QString &texte)
{
    constexpr int drapeaux = Qt::TextWordWrap | Qt::TextExpandTabs | Qt::TextDontClip;
    const QRect place(m_corps.left(), m_y, m_corps.width(), m_corps.height());
    const int hauteur = texte.isEmpty()
                            ? m_hauteurLigne
                            : m_peintre.fontMetrics().boundingRect(place, drapeaux, texte).height();
    if (m_y + hauteur > m_corps.bottom() && m_y > m_corps.top()) {
        numeroter();
        nouvellePage();
    }
    if (voulue())
        m_peintre.drawText(m_corps.adjusted(0, m_y - m_corps.top(), 0, 0), drapeaux, texte);
    m_y += hauteur;
}

void ImpressionTexte::finir()
{
    if (m_page > 0)
        numeroter();
    if (!m_peintre.end() || m_imprimante.printerState() == QPrinter::Error)
        throw ErreurFichier(u"L'impression n'a pas pu être terminée."_s);
}
