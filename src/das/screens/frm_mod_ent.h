#pragma once

#include "screens/fenetresaisie.h"

#include <memory>

namespace Ui {
class frm_mod_ent;
}

/// Change of the two figures that the current header declares.
class frm_mod_ent : public FenetreSaisie
{
    Q_OBJECT

public:
    frm_mod_ent(Contexte &contexte, QWidget *parent);
    ~frm_mod_ent() override;

private:
    void enregistrer();

    std::unique_ptr<Ui::frm_mod_ent> m_ui;
};
