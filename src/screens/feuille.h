#pragma once

class QWidget;

/// The screen that holds this control: the nearest widget around it that is a window of its own or stands in
/// a sub-window of the main window.
QWidget *feuilleDe(QWidget *controle);
