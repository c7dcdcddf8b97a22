#pragma once

#include "reference/screens/champsemployeur.h"
#include "screens/fenetresaisie.h"

#include <memory>

namespace Ui {
class add_emp;
}

/// Entry of a new employer.
class add_emp : public FenetreSaisie
{
    Q_OBJECT

public:
    add_emp(Contexte &contexte, QWidget *parent);
    ~add_emp() override;

private:
    void creer();

    std::unique_ptr<Ui::add_emp> m_ui;
    ChampsEmployeur m_champs;
};
