#pragma once

#include "reference/screens/champsemployeur.h"
#include "screens/fenetresaisie.h"
#include "storage/enregistrement.h"

#include <memory>

namespace Ui {
class mod_emp;
}

/// Change of the employer that is current when it opens.
class mod_emp : public FenetreSaisie
{
    Q_OBJECT

public:
    mod_emp(Contexte &contexte, QWidget *parent);
    ~mod_emp() override;

private:
    void modifier();

    std::unique_ptr<Ui::mod_emp> m_ui;
    ChampsEmployeur m_champs;
    const Enregistrement m_ligne;
    FicheEmployeur m_lue;
};
