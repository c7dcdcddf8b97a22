#pragma once

class QWidget;

/// Brings a screen in front of the other ones of the main window.
void mettreDevant(QWidget &feuille);
