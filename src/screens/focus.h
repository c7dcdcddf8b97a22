#pragma once

#include <QWidget>

#include <functional>

class DernierRecours;
class QAbstractButton;
struct Refus;

/// Gives the focus back to a refused field, with its text selected.
void reprendreSaisie(QWidget &champ);
/// The same for the control that a refusal names, if it names one.
/// @throws ErreurBase when the screen has no control of that name, which is a fault of the program
void reprendreSaisie(QWidget &feuille, const Refus &refus);

/// Lets Enter press the button that has the focus, as in a dialog.
void boutonsParEntree(QWidget &feuille);

/// Marks a button that closes its window: going to it is not leaving a field.
void marquerFermeture(QAbstractButton &bouton);

/// Runs the action when the field is left for another control of the same screen, once per leaving: not when
/// a box opens, the window is left or closed, or the focus goes to the closing button. A click that left the
/// field does not press its button when the action has taken the focus elsewhere.
/// @param champ the control; a field made of several controls counts as one
void surSortie(QWidget &champ, DernierRecours &dernierRecours, std::function<void()> action);
