#pragma once

#include "screens/fenetresaisie.h"
#include "storage/enregistrement.h"

#include <memory>

namespace Ui {
class frm_mod_ent;
}

/// Change of the two figures that a header declares: the one that is current when it opens.
class frm_mod_ent : public FenetreSaisie
{
    Q_OBJECT

public:
    frm_mod_ent(Contexte &contexte, QWidget *parent);
    ~frm_mod_ent() override;

private:
    void enregistrer();

    const Enregistrement m_lue;
    std::unique_ptr<Ui::frm_mod_ent> m_ui;
};
