#include "employees/screens/frmimpsal.h"

#include "employees/importsalaries.h"
#include "screens/contexte.h"
#include "storage/base.h"
#include "ui_frmimpsal.h"

using namespace Qt::StringLiterals;

FrmImpSal::FrmImpSal(Contexte &contexte)
    : FenetreImport(contexte, u"FrmImpSal"_s, u"Importation de salariés"_s,
                    u"Veuillez choisir le fichier des salariés avec le bouton « Importer... »."_s),
      m_ui(std::make_unique<Ui::FrmImpSal>())
{
    auto *resultats = new QGroupBox;
    m_ui->setupUi(resultats);
    placer(resultats);
}

FrmImpSal::~FrmImpSal() = default;

void FrmImpSal::importer()
{
    const auto compter = [this](const ImportSalaries &resultat) {
        m_ui->LabSalAdd->setText(u"Salariés Ajoutés : %1"_s.arg(resultat.ajoutes));
        m_ui->LabSalIgn->setText(u"Salariés Ignorés : %1"_s.arg(resultat.ignores));
        m_ui->LabTot->setText(u"Total : %1"_s.arg(resultat.ajoutes + resultat.ignores));
    };
    executer([&](const Avancement &avancer) {
        const ImportSalaries resultat =
            importerSalaries(m_contexte.base, m_contexte.dialogue, {avancer, compter});
        if (resultat.employeurAjoute)
            m_contexte.menu.accorderDeclarations();
    });
}
