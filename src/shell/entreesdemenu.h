#pragma once

#include <QList>
#include <QStyle>

#include <functional>

class QWidget;
struct Contexte;

/// Prepares and makes the window of a menu entry, without showing it. It returns nullptr when the window is
/// not to open (it has told why), and throws when what it needs is missing.
using Fabrique = std::function<QWidget *(Contexte &)>;

/// One line of the main menu.
struct EntreeDeMenu
{
    const char16_t *nom;
    const char16_t *libelle;
    /// The letter of its shortcut with Ctrl, 0 without one.
    char touche = 0;
    /// The submenu that holds it, nullptr on the menu bar.
    const char16_t *parent = nullptr;
    /// Empty for a submenu, and for an entry whose window is still to come: it stays off.
    Fabrique fabrique = {};
    /// Whether it is on in the delivered menu.
    bool permise = true;
    QStyle::StandardPixmap icone = QStyle::SP_CustomBase;
    /// The tick entry that turns it on, nullptr without one.
    const char16_t *activeePar = nullptr;
    /// Whether it is a tick entry; it is clear on delivery.
    bool coche = false;
};

/// The whole menu, each submenu before what it holds, and the window that each entry opens.
QList<EntreeDeMenu> entreesDeMenu();
