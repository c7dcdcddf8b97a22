#pragma once

#include <QString>

class Base;
class Connexion;
class Dialogue;
class Recordset;

enum class CritereSalarie { Aucun, Nom, Numero };

/// Shows the employees whose name or number begins with the text, blanks around it dropped.
/// @return false when nothing was done: the list shows no employee, or the text or the criterion is missing
bool chercherSalaries(Recordset &salaries, CritereSalarie critere, QStringView texte);

/// Shows the whole table again, in its own order; the current row stays where it can.
void montrerTousSalaries(Recordset &salaries);

/// The first employee whose number, for a text of digits, or name begins with the text; a first name may
/// follow behind a blank. @return his place in the list, -1 without one
int trouverSalarie(Connexion &cnx, const Recordset &salaries, QStringView texte);

/// The nationality of the employee of that number; empty when none is known. All employees without a number
/// show that of the first of them: that is required.
QString nationaliteSalarie(Connexion &cnx, QStringView numero);

/// Asks, and deletes the current employee of RsSalarie. Lines of annual declarations alone protect him, those
/// of the others stay behind.
void supprimerSalarie(Base &base, Dialogue &dialogue);
