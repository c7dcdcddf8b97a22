#pragma once

#include <QString>

class Commis;

/// Walks the road of a quarter's nominative declaration, for those employees who are in it: its periods, its
/// header, the bulk entry of its lines, its export into the fixed folder. @return the exported file
QString declarerTrimestre(const Commis &commis, const QString &employeur, const QString &campagne);

/// Reads the verdict of the validator on it.
void validerTrimestre(const Commis &commis);
