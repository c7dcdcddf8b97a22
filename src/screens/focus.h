#pragma once

#include <QWidget>

#include <functional>

class DernierRecours;
class QAbstractButton;
class QKeyEvent;
struct Refus;

/// Gives the focus back to a refused field, with its text selected and its tab in front.
void reprendreSaisie(QWidget &champ);
/// The same for the control that a refusal names, if it names one.
/// @throws ErreurBase when the screen has no control of that name, which is a fault of the program
void reprendreSaisie(QWidget &feuille, const Refus &refus);

/// Lets Enter press the button that has the focus, as in a dialog.
void boutonsParEntree(QWidget &feuille);

/// Lets Enter go from field to field, past those that are off, and press the button behind the last one.
/// @return whether the key was an Enter in one of the fields
bool passerAuSuivant(const QKeyEvent &touche, const QList<QWidget *> &champs, QAbstractButton &bouton);

/// Makes the button close its window. Going to it is not leaving a field.
void fermerPar(QAbstractButton &bouton, QWidget &feuille);

/// Runs the action when the field is left for another control of the same screen, once per leaving: not when
/// a box opens, the window is left, hidden or closed, or the focus goes to the closing button. A click that
/// left the field does not press its button when the action has taken the focus elsewhere. When the field's
/// tab was left, the action runs behind the change of tabs.
/// @param champ the control; a field made of several controls counts as one
void surSortie(QWidget &champ, DernierRecours &dernierRecours, std::function<void()> action);
