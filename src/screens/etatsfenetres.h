#pragma once

#include <QSettings>

class QWidget;

/// The program's settings in the platform's own store, always the same one whoever asks.
QSettings reglages();

/// Remembers size, place and state of a window under its objectName.
void garderGeometrie(const QWidget &fenetre);
/// @return false when nothing usable is remembered; the window is then left as it is
bool reprendreGeometrie(QWidget &fenetre);
