#pragma once

#include "screens/fenetreimport.h"

namespace Ui {
class FrmImpSal;
}

/// Import of a file of employees.
class FrmImpSal : public FenetreImport
{
    Q_OBJECT

public:
    explicit FrmImpSal(Contexte &contexte);
    ~FrmImpSal() override;

private:
    void importer() override;

    std::unique_ptr<Ui::FrmImpSal> m_ui;
};
