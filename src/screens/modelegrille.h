#pragma once

#include <QBrush>
#include <QHash>
#include <QIdentityProxyModel>
#include <QPixmap>
#include <QSet>

#include <functional>

class Liste;

/// How a value of a list looks: dates dd/mm/yyyy, amounts "## ### ### ###.00", Null as nothing.
QString texteMontre(const QVariant &valeur);

/// A list as a grid shows it: titles above the columns, dates dd/mm/yyyy, amounts "## ### ### ###.00",
/// numbers on the right.
class ModeleGrille : public QIdentityProxyModel
{
public:
    using QIdentityProxyModel::QIdentityProxyModel;

    void setListe(Liste &liste);
    /// The title of a column; its name otherwise. @param compte whether it holds a count whatever its kind
    void titrer(const QString &colonne, const QString &titre, bool compte = false);
    /// Greys the rows for which it is true, with a tick in that column.
    void marquer(std::function<bool(int ligne)> estMarquee, const QString &colonne, const QPixmap &coche,
                 const QBrush &gris);

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    bool estMarquee(int ligne) const;

    Liste *m_liste = nullptr;
    QHash<QString, QString> m_titres;
    QSet<int> m_comptes;
    std::function<bool(int ligne)> m_estMarquee;
    int m_colonneMarquee = -1;
    QPixmap m_coche;
    QPixmap m_sansCoche; ///< as wide, so that texts stand under each other
    QBrush m_gris;
};
