#pragma once

#include <QString>

class Dialogue;
class ErreurBase;

/// Tells that a row could not be added, in the words of the action. They suppose that the row was at fault;
/// when it was the disk or another program instead, the cause is told as well.
void direRefusAjout(const QString &texte, const ErreurBase &erreur, Dialogue &dialogue);
