#pragma once

#include "rules/calendrier.h"
#include "screens/contexte.h"
#include "screens/dernierrecours.h"
#include "tests/commun/dialoguescenario.h"
#include "tests/commun/gestes.h"
#include "tests/commun/menutemoin.h"

#include <functional>
#include <memory>

/// All that a window gets from the program, for the tests of windows: boxes that are expected one by one, the
/// last failure handler, the menu. Windows are driven through the routines of gestes.h.
class Banc
{
public:
    /// @param base open or not, as the windows need it; stays the caller's
    explicit Banc(Base &base);

    DialogueScenario dialogue;
    DernierRecours recours;
    MenuTemoin menu;
    BornesDePeriode bornes;
    Contexte contexte;

    /// Shows a window and waits until it gets the keys.
    template <typename Fenetre>
    std::unique_ptr<Fenetre> ouvrir(Fenetre *fenetre)
    {
        fenetre->show();
        activer(*fenetre);
        return std::unique_ptr<Fenetre>(fenetre);
    }

    /// Makes a window the one that gets the keys.
    static void activer(QWidget &fenetre);
};

/// The bench on a database of its own.
template <typename Donnees>
class BancSur : public Donnees, public Banc
{
public:
    BancSur() : Banc(Donnees::base) {}
};

/// Acts in the window that the next gesture opens modally, once it gets the keys; it is closed behind that.
/// The test fails when no window opens.
void dansLaFenetre(const std::function<void(QWidget &)> &gestes);
/// The same for a button that opens a window of that name; the window behind gets the keys again.
void dansLaFenetre(QWidget &ecran, const QString &bouton, const QString &fenetre,
                   const std::function<void(QWidget &)> &gestes);
