#pragma once

#include "storage/enregistrement.h"

#include <QAbstractTableModel>

/// One column of an order.
struct Tri
{
    QString colonne;
    Qt::SortOrder sens = Qt::AscendingOrder;

    friend bool operator==(const Tri &, const Tri &) = default;
};

/// Rows with a current one and an order, as a Qt model: what a grid shows. The model gives values as they are
/// (QDate, Currency, qint64 and QString under Qt::EditRole, nothing for Null); how they look is the grid's.
class Liste : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    virtual bool estOuvert() const = 0;

    virtual QString nomColonne(int colonne) const = 0;
    virtual Genre genreColonne(int colonne) const = 0;
    /// The place of a column of that name, in any case; -1 when there is none.
    int sectionDe(QStringView colonne) const;

    /// -1 when there is none.
    virtual int ligneCourante() const = 0;
    virtual void allerA(int ligne) = 0;

    virtual QList<Tri> tri() const = 0;
    /// Orders by one column, then by entry.
    virtual void trier(const QString &colonne, Qt::SortOrder sens = Qt::AscendingOrder) = 0;

signals:
    /// Another row is current, or the same at another place.
    void ligneCouranteChangee(int ligne);

protected:
    /// A value as the database keeps it, in the type of its kind.
    static QVariant typee(const QVariant &valeur, Genre genre);
};
