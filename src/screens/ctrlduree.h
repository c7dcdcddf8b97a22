#pragma once

#include <QWidget>

class ChampNombre;
class QComboBox;

/// A time worked: a whole number and the letter of its unit. In the number the keys of the letters choose the
/// unit, so that a hand on the digits needs no list.
class ctrlDuree : public QWidget
{
    Q_OBJECT

public:
    explicit ctrlDuree(QWidget *parent = nullptr);

    /// The units to choose from; those of the annual declaration at first. The first one is the default.
    void setUnites(const QString &lettres);

    /// An empty field is 0; beyond 64 bits it is the biggest number.
    qint64 nombre() const;
    QChar unite() const;
    void setDuree(qint64 nombre, QChar unite);
    /// Back to nothing.
    void vider();

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    ChampNombre *m_nombre;
    QComboBox *m_unite;
};
