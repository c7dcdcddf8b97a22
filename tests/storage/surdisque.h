#pragma once

#include <QSet>
#include <QString>

// What this program brings to the disk is noted instead of done: it uses the function below in the system's
// place.

/// The files and folders that fsync() was asked for, by their names of then.
QSet<QString> &misSurDisque();

/// From now on fsync() fails so; 0 lets it succeed again.
void refuserLeDisque(int erreur);
