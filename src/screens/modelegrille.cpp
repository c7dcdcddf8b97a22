#include "screens/modelegrille.h"

#include "rules/date.h"
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

void ModeleGrille::titrer(const QString &colonne, const QString &titre)
{
    m_titres.insert(colonne.toLower(), titre);
    if (columnCount() > 0)
        emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

QVariant ModeleGrille::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::TextAlignmentRole)
        return alignement(m_liste->genreColonne(index.column()));
    if (role == Qt::DisplayRole)
        return texteMontre(QIdentityProxyModel::data(index, Qt::EditRole));
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
