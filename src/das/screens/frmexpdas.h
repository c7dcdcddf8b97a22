#pragma once

#include "declarations/screens/ecrantransfert.h"

/// The lines of one campaign, to be copied into another one.
class frmexpdas : public EcranTransfert
{
    Q_OBJECT

public:
    explicit frmexpdas(Contexte &contexte);
};
