#pragma once

#include "declarations/screens/ecranlignes.h"

/// The lines of one nominative declaration.
class frmlndac : public EcranLignes
{
    Q_OBJECT

public:
    frmlndac(Contexte &contexte, const LignesDeclaration &lignes, QWidget *parent);
};
