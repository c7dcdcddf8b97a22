#pragma once

#include "screens/fenetresaisie.h"
#include "storage/enregistrement.h"

#include <memory>

namespace Ui {
class frm_mod_entci;
}

/// Change of a claim's header, its reference included.
class frm_mod_entci : public FenetreSaisie
{
    Q_OBJECT

public:
    /// @param lue the header as it was shown
    frm_mod_entci(Contexte &contexte, const Enregistrement &lue, QWidget *parent);
    ~frm_mod_entci() override;

private:
    void enregistrer();

    const Enregistrement m_lue;
    std::unique_ptr<Ui::frm_mod_entci> m_ui;
};
