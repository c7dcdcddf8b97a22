#pragma once

#include "screens/dernierrecours.h"

#include <QAbstractButton>
#include <QDialog>

struct Contexte;

/// A window in which a row is added or changed. It is modal to the window that opened it, Esc closes it, and
/// Enter in a field presses its default button. Run it with exec().
class FenetreSaisie : public QDialog
{
    Q_OBJECT

protected:
    FenetreSaisie(Contexte &contexte, QWidget *parent);

    /// To be called once the controls are there.
    /// @param valider the default button; a slot of the screen does its work and closes with accept()
    void relier(QAbstractButton *valider, QAbstractButton *fermer);

    template <typename Action>
    void surClic(QAbstractButton *bouton, Action action)
    {
        m_dernierRecours.connecter(bouton, &QAbstractButton::clicked, this, action);
    }

    Contexte &m_contexte;

private:
    DernierRecours &m_dernierRecours;
};
