#pragma once

#include <QHash>
#include <QIdentityProxyModel>

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
    /// The title of a column; its name otherwise.
    void titrer(const QString &colonne, const QString &titre);

    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    Liste *m_liste = nullptr;
    QHash<QString, QString> m_titres;
};
