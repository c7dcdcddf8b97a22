#pragma once

#include <QObject>

class DernierRecours;
class QAbstractButton;
class QLineEdit;
class Recordset;

/// The search bar of a list of employees.
class RechercheSalaries : public QObject
{
    Q_OBJECT

public:
    struct Controles
    {
        QAbstractButton *nom;
        QAbstractButton *numero;
        QLineEdit *texte;
        QAbstractButton *chercher;
        QAbstractButton *tous;
    };

    RechercheSalaries(const Controles &controles, Recordset &salaries, DernierRecours &dernierRecours,
                      QObject *parent);

    /// As at the opening: no criterion, no text, the whole table.
    void recommencer();

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    void choisirCritere();
    void chercher();

    Controles m_controles;
    Recordset &m_salaries;
};
