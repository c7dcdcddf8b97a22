#pragma once

#include "frmvalidateur.h"

namespace Ui {
class FrmDasValide;
}

/// Validation of an annual declaration's file before it goes to the fund.
class FrmDasValide : public FrmValidateur
{
    Q_OBJECT

public:
    explicit FrmDasValide(Contexte &contexte);
    ~FrmDasValide() override;

private:
    std::unique_ptr<Ui::FrmDasValide> m_ui;
};
