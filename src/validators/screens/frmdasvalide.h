#pragma once

#include "validators/rapprochement.h"
#include "validators/screens/frmvalidateur.h"

class QLineEdit;

namespace Ui {
class OngletDacs;
}

/// Validation of an annual declaration's file before it goes to the fund.
class FrmDasValide : public FrmValidateur
{
    Q_OBJECT

public:
    explicit FrmDasValide(Contexte &contexte);
    ~FrmDasValide() override;

protected:
    void avantExtraction() override;

private:
    void ajouterOnglet();
    SaisieDacs saisie() const;
    void SommeDacs();
    void ViderDacs();
    void quitter(QLineEdit &boite);
    void verifier();
    void remettreTitres();

    std::array<QLineEdit *, SaisieDacs::Nombre> m_boites{};
    std::unique_ptr<Ui::OngletDacs> m_ui;
};
