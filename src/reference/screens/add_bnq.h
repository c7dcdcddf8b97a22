#pragma once

#include "reference/screens/champsbanque.h"
#include "screens/fenetresaisie.h"

#include <memory>

namespace Ui {
class add_bnq;
}

/// Entry of new banks, one after the other.
class add_bnq : public FenetreSaisie
{
    Q_OBJECT

public:
    add_bnq(Contexte &contexte, QWidget *parent);
    ~add_bnq() override;

signals:
    void ajoutee();

private:
    void creer();

    std::unique_ptr<Ui::add_bnq> m_ui;
    ChampsBanque m_champs;
};
