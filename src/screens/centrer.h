#pragma once

class QWidget;

/// Centres a window in the client area of the main window: left = (client width - width) / 2, top = (client
/// height - height) / 2. A window that is not a child of the main window counts from the main window's corner
/// and moves down a further 1015 units of 1/1440 inch, the height of the menu. A window that is too big keeps
/// its title in reach.
/// @param feuille a screen inside a sub-window, a sub-window, or a window of its own
void CentrerFeuille(QWidget &feuille);

/// Calls CentrerFeuille when the window is shown for the first time, once its size is known.
void centrerALOuverture(QWidget &feuille);
