#pragma once

#include "validators/screens/frmvalidateur.h"

/// Validation of a bad-weather claim's file before it goes to the fund.
class FrmFileCI : public FrmValidateur
{
    Q_OBJECT

public:
    explicit FrmFileCI(Contexte &contexte);
};
