#include "validators/screens/modeleerreurs.h"

#include "validators/listeserreurs.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

ModeleErreurs::ModeleErreurs(const ListesErreurs &listes, QObject *parent)
    : QAbstractTableModel(parent), m_listes(listes)
{
}

void ModeleErreurs::actualiser()
{
    const auto taille =
        static_cast<int>(std::min<qsizetype>(m_listes.taille(), std::numeric_limits<int>::max()));
    if (taille < m_montrees) {
        beginResetModel();
        m_montrees = 0;
        endResetModel();
    }
    if (taille > m_montrees) {
        beginInsertRows({}, m_montrees, taille - 1);
        m_montrees = taille;
        endInsertRows();
    }
}

QString ModeleErreurs::entreePlusLongue() const { return m_listes.Entrees.plusLong(); }

int ModeleErreurs::rowCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : m_montrees; }

int ModeleErreurs::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : NombreColonnes;
}

QVariant ModeleErreurs::data(const QModelIndex &index, int role) const
{
    // Between two calls of actualiser() the lists may have been emptied.
    if (!index.isValid() || index.row() >= m_listes.taille())
        return {};
    const int rang = index.row();
    if (role == Qt::ToolTipRole)
        return m_listes.Entrees[rang];
    if (role == Qt::TextAlignmentRole && index.column() == Ligne)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case Ligne:
        return m_listes.O[static_cast<std::size_t>(rang)];
    case Entree:
        return m_listes.Entrees[rang];
    case Numero:
        return m_listes.N[rang];
    case Nom:
        return m_listes.NP[rang];
    default:
        return {};
    }
}

QVariant ModeleErreurs::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant((section == Ligne ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Ligne:
        return u"Ligne"_s;
    case Entree:
        return u"Erreur"_s;
    case Numero:
        return u"N° SS"_s;
    case Nom:
        return u"Nom et prénom"_s;
    default:
        return {};
    }
}
