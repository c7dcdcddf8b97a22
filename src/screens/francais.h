#pragma once

class QApplication;

/// Makes Qt speak French (its buttons, its file and print dialogs, its menus), whatever the machine's
/// language. Numbers and dates of the program don't depend on it.
void parlerFrancais(QApplication &application);
