#pragma once

#include <QString>

class Commis;

/// Walks the road of a claim for bad weather: a site that stood still until a few days ago, with three of the
/// employees. @return the file that was exported
QString declarerArret(const Commis &commis, const QString &employeur);
