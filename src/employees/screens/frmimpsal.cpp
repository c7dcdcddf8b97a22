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
    const auto montrer = [this](const QString &ajoutes, const QString &ignores, const QString &total) {
        m_ui->LabSalAdd->setText(u"Salariés Ajoutés :"_s + ajoutes);
        m_ui->LabSalIgn->setText(u"Salariés Ignorés :"_s + ignores);
        m_ui->LabTot->setText(u"Total :"_s + total);
    };
    montrer({}, {}, {}); // the counts were those of the file before
    const auto compter = [&](const ImportSalaries &resultat) {
        montrer(u" %1"_s.arg(resultat.ajoutes), u" %1"_s.arg(resultat.ignores),
                u" %1"_s.arg(resultat.ajoutes + resultat.ignores));
    };
    executer([&](const Avancement &avancer) {
        const ImportSalaries resultat =
            importerSalaries(m_contexte.base, m_contexte.dialogue, {avancer, compter});
        if (resultat.employeurAjoute)
            m_contexte.menu.accorderDeclarations();
    });
}
