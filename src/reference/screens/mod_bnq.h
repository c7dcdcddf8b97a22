#pragma once

#include "reference/screens/champsbanque.h"
#include "screens/fenetresaisie.h"
#include "storage/enregistrement.h"

#include <memory>

namespace Ui {
class mod_bnq;
}

/// Change of the bank that is current when it opens.
class mod_bnq : public FenetreSaisie
{
    Q_OBJECT

public:
    mod_bnq(Contexte &contexte, QWidget *parent);
    ~mod_bnq() override;

private:
    void modifier();

    std::unique_ptr<Ui::mod_bnq> m_ui;
    ChampsBanque m_champs;
    const Enregistrement m_ligne;
    FicheBanque m_lue;
};
