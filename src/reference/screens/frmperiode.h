#pragma once

#include "screens/fenetretable.h"

#include <memory>

namespace Ui {
class frmPeriode;
}

/// The periods of the nominative declarations, to which the clerk adds quarters.
class frmPeriode : public FenetreTable
{
    Q_OBJECT

public:
    explicit frmPeriode(Contexte &contexte);
    ~frmPeriode() override;

private:
    void ajouter();

    std::unique_ptr<Ui::frmPeriode> m_ui;
};
