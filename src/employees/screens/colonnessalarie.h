#pragma once

#include "screens/grille.h"

/// The columns of a list of employees: all of the table, in its order.
QList<ColonneGrille> colonnesSalarie();
