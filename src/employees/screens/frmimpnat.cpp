#include "employees/screens/frmimpnat.h"

#include "employees/nationalites.h"
#include "screens/contexte.h"
#include "screens/dernierrecours.h"
#include "screens/focus.h"
#include "storage/base.h"
#include "storage/lieux.h"
#include "ui_frmimpnat.h"

#include <QDir>

FrmImpNat::FrmImpNat(Contexte &contexte) : m_contexte(contexte), m_ui(std::make_unique<Ui::FrmImpNat>())
{
    m_ui->setupUi(this);
    boutonsParEntree(*this);
    m_ui->LabFichier->setText(QDir::toNativeSeparators(cheminCountry()));
    m_contexte.base.RsNationalite.requery();
    montrerNombre();
    m_ui->CmdImport->setFocus(); // and not the file's name, which can be copied
    DernierRecours &recours = m_contexte.dernierRecours;
    recours.connecter(m_ui->CmdImport, &QPushButton::clicked, this, [this] { importer(); });
    fermerPar(*m_ui->Command1, *this);
}

FrmImpNat::~FrmImpNat() = default;

void FrmImpNat::importer()
{
    importerNationalites(m_contexte.base, m_contexte.dialogue);
    montrerNombre();
}

void FrmImpNat::montrerNombre()
{
    m_ui->LabNombre->setText(QString::number(m_contexte.base.RsNationalite.nombre()));
}
