#pragma once

#include "declarations/screens/ecranlignes.h"

/// The lines of one claim for bad weather.
class frmlnCi : public EcranLignes
{
    Q_OBJECT

public:
    frmlnCi(Contexte &contexte, const LignesDeclaration &lignes, QWidget *parent);
};
