#pragma once

#include <QStyle>

#include <span>

/// One line of the main menu.
struct EntreeDeMenu
{
    const char16_t *nom;
    const char16_t *libelle;
    /// The letter of its shortcut with Ctrl, 0 without one.
    char touche = 0;
    /// The submenu that holds it, nullptr on the menu bar.
    const char16_t *parent = nullptr;
    bool sousMenu = false;
    /// Whether it is on in the delivered menu.
    bool permise = true;
    QStyle::StandardPixmap icone = QStyle::SP_CustomBase;
    /// The tick entry that turns it on, nullptr without one.
    const char16_t *activeePar = nullptr;
    /// Whether it is a tick entry; it is clear on delivery.
    bool coche = false;
};

/// The whole menu, each submenu before what it holds.
std::span<const EntreeDeMenu> entreesDeMenu();
