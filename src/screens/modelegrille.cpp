#include "screens/modelegrille.h"

#include "rules/date.h"
#include "rules/erreurs.h"
#include "storage/liste.h"

using namespace Qt::StringLiterals;

namespace {

QVariant alignement(Genre genre)
{
    const bool nombre = genre == Genre::Entier || genre == Genre::Montant;
    return QVariant::fromValue(Qt::Alignment((nombre ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter));
}

} // namespace

QString texteMontre(const QVariant &valeur)
{
    if (valeur.typeId() == qMetaTypeId<Currency>())
        return formatMasque(valeur.value<Currency>(), u"## ### ### ###.00");
    if (valeur.typeId() == QMetaType::QDate)
        return texteDate(valeur.toDate());
    return valeur.toString();
}

void ModeleGrille::setListe(Liste &liste)
{
    m_liste = &liste;
    setSourceModel(&liste);
}

void ModeleGrille::titrer(const QString &colonne, const QString &titre, bool compte)
{
    if (compte)
        m_comptes += m_liste->sectionDe(colonne);
    m_titres.insert(colonne.toLower(), titre);
    if (columnCount() > 0)
        emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

void ModeleGrille::marquer(std::function<bool(int ligne)> estMarquee, const QString &colonne,
                           const QPixmap &coche, const QBrush &gris)
{
    m_estMarquee = std::move(estMarquee);
    m_colonneMarquee = m_liste->sectionDe(colonne);
    m_coche = coche;
    m_sansCoche = QPixmap(coche.size());
    m_sansCoche.fill(Qt::transparent);
    m_gris = gris;
}

bool ModeleGrille::estMarquee(int ligne) const
{
    try {
        return m_estMarquee(ligne);
    } catch (const Erreur &) {
        return false; // a view asks, and nothing may be thrown through it
    }
}

QVariant ModeleGrille::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::TextAlignmentRole)
        return alignement(m_liste->genreColonne(index.column()));
    if (role == Qt::DisplayRole) {
        const QVariant valeur = QIdentityProxyModel::data(index, Qt::EditRole);
        if (m_comptes.contains(index.column()) && valeur.canConvert<Currency>())
            return valeur.value<Currency>().texte();
        return texteMontre(valeur);
    }
    if (m_estMarquee && role == Qt::ForegroundRole)
        return estMarquee(index.row()) ? QVariant(m_gris) : QVariant();
    if (m_estMarquee && role == Qt::DecorationRole && index.column() == m_colonneMarquee)
        return estMarquee(index.row()) ? m_coche : m_sansCoche;
    return QIdentityProxyModel::data(index, role);
}

QVariant ModeleGrille::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    if (role == Qt::DisplayRole) {
        const QString nom = m_liste->nomColonne(section);
        return m_titres.value(nom.toLower(), nom);
    }
    if (role == Qt::TextAlignmentRole)
        return alignement(m_liste->genreColonne(section));
    return {};
}
