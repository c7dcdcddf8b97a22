#pragma once

#include "declarations/screens/ecranlignes.h"

/// The lines of one annual declaration.
class frmlndas : public EcranLignes
{
    Q_OBJECT

public:
    frmlndas(Contexte &contexte, const LignesDeclaration &lignes, QWidget *parent);
};
