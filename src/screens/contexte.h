#pragma once

class QString;

class Base;
class DernierRecours;
class Dialogue;
struct BornesDePeriode;

/// The main menu as the screens see it.
class MenuPrincipal
{
public:
    virtual ~MenuPrincipal() = default;

    /// To be called when campaigns or employers came or went: the entry of the annual declarations is on as
    /// Base::declarationsPossibles() says, once its window is closed.
    virtual void accorderDeclarations() = 0;

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
