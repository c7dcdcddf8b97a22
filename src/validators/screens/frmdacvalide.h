#pragma once

#include "validators/screens/frmvalidateur.h"

/// Validation of a nominative declaration's file before it goes to the fund.
class FrmDacValide : public FrmValidateur
{
    Q_OBJECT

public:
    explicit FrmDacValide(Contexte &contexte);
};
