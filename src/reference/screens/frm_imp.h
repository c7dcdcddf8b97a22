#pragma once

#include "screens/fenetretable.h"

#include <memory>

namespace Ui {
class Frm_imp;
}
class EcranEmployeur;

/// The employers.
class Frm_imp : public FenetreTable
{
    Q_OBJECT

public:
    explicit Frm_imp(Contexte &contexte);
    ~Frm_imp() override;

private:
    void ajouter();
    void supprimer();

    std::unique_ptr<Ui::Frm_imp> m_ui;
    /// As the last entry left it, fields reset; none before the first.
    EcranEmployeur *m_ajout = nullptr;
};
