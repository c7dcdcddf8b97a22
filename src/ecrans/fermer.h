#pragma once

class QWidget;

/// Closes a screen, together with the sub-window that holds it.
void fermerFeuille(QWidget &feuille);
