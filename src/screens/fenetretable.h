#pragma once

#include "screens/dernierrecours.h"
#include "screens/grille.h"

#include <QAbstractButton>
#include <QWidget>

struct Contexte;
class Recordset;

/// A window on one table, opened from the menu: its grid, buttons that are off while there is no row, and a
/// button that closes it.
class FenetreTable : public QWidget
{
    Q_OBJECT

protected:
    struct Controles
    {
        Grille *grille;
        QAbstractButton *fermer;
        /// Pressed by Enter and by a double click on a row, too.
        QAbstractButton *modifier = nullptr;
        /// Pressed by the Delete key, too.
        QAbstractButton *supprimer = nullptr;
        /// More buttons that need a row, or boxes of them.
        QList<QWidget *> autres = {};
    };

    /// Requeries the table, in its own order again. @throws ErreurBase when it is not open: the window does
    /// not open then
    FenetreTable(Contexte &contexte, Recordset &recordset);

    /// To be called once the controls are there.
    void relier(const Controles &controles, const QList<ColonneGrille> &colonnes);

    template <typename Action>
    void surClic(QAbstractButton *bouton, Action action)
    {
        m_dernierRecours.connecter(bouton, &QAbstractButton::clicked, this, action);
    }

    Contexte &m_contexte;

private:
    DernierRecours &m_dernierRecours;
    Recordset &m_recordset;
};
