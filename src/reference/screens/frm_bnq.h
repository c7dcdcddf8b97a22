#pragma once

#include "screens/fenetretable.h"

#include <memory>

namespace Ui {
class Frm_BNQ;
}

/// The banks.
class Frm_BNQ : public FenetreTable
{
    Q_OBJECT

public:
    explicit Frm_BNQ(Contexte &contexte);
    ~Frm_BNQ() override;

private:
    void ajouter();
    void supprimer();
    void permettre();

    std::unique_ptr<Ui::Frm_BNQ> m_ui;
    /// The delete button has deleted the last employer: the buttons stay off until a bank is added.
    bool m_plusDEmployeur = false;
};
