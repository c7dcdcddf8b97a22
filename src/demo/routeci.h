#pragma once

#include <QString>

class Commis;
struct Parcours;

/// Walks the road of a claim for bad weather: a site that stood still until a few days ago, with three of the
/// employees; then the validation of its file.
void declarerArret(const Commis &commis, const QString &employeur, Parcours &parcours);
