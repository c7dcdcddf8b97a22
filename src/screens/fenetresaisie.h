#pragma once

#include "screens/dernierrecours.h"

#include <QAbstractButton>
#include <QDialog>

struct Contexte;

/// What tells one form of a record from the other to the eye: objectName and title of the window, objectName
/// and caption of the button that saves.
struct Habillage
{
    QStringView nom;
    QStringView titre;
    QStringView bouton;
    QStringView texteDuBouton;
};

/// A window in which a row is added or changed. It is modal to the window that opened it, Esc closes it, and
/// Enter in a field presses its default button. Run it with exec().
class FenetreSaisie : public QDialog
{
    Q_OBJECT

protected:
    FenetreSaisie(Contexte &contexte, QWidget *parent);

    void habiller(const Habillage &habillage, QAbstractButton &valider);

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
