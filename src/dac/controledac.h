#pragma once

#include <QString>

class Base;
class Dialogue;

/// The control of a nominative declaration before its export: the identity of every employee, the commune,
/// the nationality and the account of nationals, the share of those with a valid account and of entries
/// without a NIN, and no account given to two people. The first fault is told and stops.
/// @return whether the export may go on
bool CtrlDacNominative(Base &base, const QString &NumEmployeur, const QString &Periode, qint64 Type_dac,
                       Dialogue &dialogue);
