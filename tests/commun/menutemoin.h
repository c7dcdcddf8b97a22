#pragma once

#include "screens/contexte.h"

#include <QStringList>

/// The main menu for a screen that stands alone.
class MenuTemoin : public MenuPrincipal
{
public:
    void accorderDeclarations() override { ++accords; }
    /// How often a screen said that campaigns or employers came or went.
    int accords = 0;

    void ouvrir(const QString &entree) override { ouvertes += entree; }
    /// The entries that a screen opened.
    QStringList ouvertes;
};
