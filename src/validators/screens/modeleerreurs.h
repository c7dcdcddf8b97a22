#pragma once

#include <QAbstractTableModel>

class ListesErreurs;

/// One set of error lists as a table: the line, the entry in full words, number and name. Texts are decoded
/// only for the rows that are shown.
class ModeleErreurs : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Colonne { Ligne, Entree, Numero, Nom, NombreColonnes };

    ModeleErreurs(const ListesErreurs &listes, QObject *parent);

    /// Takes over what the lists have become since the last call.
    void actualiser();

    QString entreePlusLongue() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const ListesErreurs &m_listes;
    int m_montrees = 0;
};
