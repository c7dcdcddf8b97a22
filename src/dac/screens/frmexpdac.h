#pragma once

#include "declarations/screens/ecrantransfert.h"

/// The lines of one period, to be copied into another one.
class frmexpdac : public EcranTransfert
{
    Q_OBJECT

public:
    explicit frmexpdac(Contexte &contexte);
};
