#pragma once

#include "das/lignedas.h"

#include <QList>

class ctrlDuree;
class DernierRecours;
class Dialogue;
class QAbstractButton;
class QCalendarWidget;
class QKeyEvent;
class QLabel;
class QLineEdit;
class QRadioButton;
class QWidget;

/// The controls that the two line screens share, and what they do to each other.
struct ChampsLigneDas
{
    QLineEdit *sal_annueledit;
    ctrlDuree *nbj_travailctrl;
    QRadioButton *EOption;
    QRadioButton *SOption;
    QLineEdit *mskdate;
    QCalendarWidget *Clend_naiss;
    QLabel *Lab_nom;
    QLabel *lab_prenom;
    QLabel *Lab_date_naiss;

    /// Connects the controls with each other. An option that is on is turned off by a second click: without
    /// one the line has no movement.
    void preparer(DernierRecours &dernierRecours, Dialogue &dialogue) const;

    /// The fields of the line alone; those of the employee stay as they are.
    void lire(FicheLigneDas &fiche) const;
    void ecrire(const FicheLigneDas &fiche) const;
    void montrer(const SalarieMontre &salarie) const;
    /// Gives the focus back to a refused field. @return false for a field that is not among these
    bool reprendre(ChampLigneDas champ) const;
};

/// Lets Enter go from field to field, and press the button behind the last one.
/// @return whether the key was an Enter in one of the fields
bool passerAuSuivant(const QKeyEvent &touche, const QList<QWidget *> &champs, QAbstractButton &bouton);
