#include "frmdasvalide.h"

#include "ui_frmdasvalide.h"
#include "validateurdas.h"

FrmDasValide::FrmDasValide(Contexte &contexte)
    : FrmValidateur(contexte, std::make_unique<ValidateurDas>()), m_ui(std::make_unique<Ui::FrmDasValide>())
{
    m_ui->setupUi(this);
    // The reconciliation with the monthly declarations is not part of the program yet.
    m_ui->SSTab1->setTabEnabled(2, false);
    relier();
}

FrmDasValide::~FrmDasValide() = default;
