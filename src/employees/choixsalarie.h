#pragma once

#include <QString>

class Enregistrement;

/// What the picker gives to the screen that opened it.
struct ChoixSalarie
{
    /// Whether the clerk confirmed a row; the rest says nothing otherwise.
    bool choisi = false;
    QString Num_Salarie;
    qint64 cpt_z = 1;
    QString nom;
    QString prenom;
};

/// The choice of that employee.
ChoixSalarie choisirSalarie(const Enregistrement &ligne);
