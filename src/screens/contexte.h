#pragma once

#include <QString>

class Base;
class DernierRecours;
class Dialogue;
struct BornesDePeriode;

/// The main menu as the screens see it.
class MenuPrincipal
{
public:
    virtual ~MenuPrincipal() = default;

    /// Says whether an entry may be used. An entry is enabled when it is allowed, its window exists and is
    /// not open; so this may be called while the window is open.
    /// @param entree the entry's name, such as "wdas"
    virtual void permettre(const QString &entree, bool permis) = 0;

    /// Opens the window of an entry as the clerk does; one that is open comes to the front.
    virtual void ouvrir(const QString &entree) = 0;
};

/// What a screen gets from the program. All of it lives longer than any screen.
struct Contexte
{
    Base &base;
    Dialogue &dialogue;
    DernierRecours &dernierRecours;
    BornesDePeriode &bornes;
    MenuPrincipal &menu;
};
