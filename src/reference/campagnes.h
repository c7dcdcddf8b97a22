#pragma once

#include <QStringList>

class Base;
class Dialogue;

/// Campaigns: a campaign is named after the 30 June that closes it. None is ever changed or removed.

/// The years that are offered for a new campaign: this one and the five before it, newest first.
QStringList anneesProposees();

/// Adds a campaign. The first fault is told and stops.
/// @param annee as typed
/// @return whether it was added
bool ajouterCampagne(Base &base, const QString &annee, Dialogue &dialogue);
