#pragma once

#include "screens/fenetretable.h"

#include <memory>

namespace Ui {
class frmannee;
}

/// The campaigns, to which the clerk adds years.
class frmannee : public FenetreTable
{
    Q_OBJECT

public:
    explicit frmannee(Contexte &contexte);
    ~frmannee() override;

private:
    void ajouter();

    std::unique_ptr<Ui::frmannee> m_ui;
};
