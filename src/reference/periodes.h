#pragma once

#include <QStringList>

class Base;
class Dialogue;

/// Periods of the nominative declarations. None is ever removed.

/// The years that are offered: this one and the ten before it, newest first.
QStringList exercicesProposes();

/// T1 to T4.
QStringList trimestres();

/// Adds a quarter: its three months and the quarter itself. The first fault is told and stops; rows added
/// before it stay.
/// @param annee, trimestre as chosen, empty for no choice
/// @return whether all four were added
bool ajouterPeriodes(Base &base, const QString &annee, const QString &trimestre, Dialogue &dialogue);
