#pragma once

#include <QString>

class Dialogue;

/// The text on one line: every line end is a blank.
QString surUneLigne(QString texte);

/// Refuses a number that begins with a blank, when its field is left: it is told, and the field is all blanks
/// again. @return whether it was refused
bool refuserBlancAuDebut(QString &champ, Dialogue &dialogue);
