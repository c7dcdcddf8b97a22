#include "employees/screens/frmimpsal.h"

#include "employees/importsalaries.h"
#include "screens/contexte.h"
#include "screens/dernierrecours.h"
#include "screens/focus.h"
#include "storage/base.h"
#include "ui_frmimpsal.h"

#include <QCloseEvent>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {

/// How often the window is painted during an import, in milliseconds.
constexpr qint64 pas = 50;

} // namespace

FrmImpSal::FrmImpSal(Contexte &contexte) : m_contexte(contexte), m_ui(std::make_unique<Ui::FrmImpSal>())
{
    m_ui->setupUi(this);
    boutonsParEntree(*this);
    contexte.dernierRecours.connecter(m_ui->CmdImport, &QAbstractButton::clicked, this, &FrmImpSal::importer);
    connect(m_ui->Command1, &QAbstractButton::clicked, this, &QWidget::close);
}

FrmImpSal::~FrmImpSal() = default;

void FrmImpSal::importer()
{
    m_enCours = true;
    m_ui->CmdImport->setEnabled(false);
    const auto fin = qScopeGuard([this] {
        m_ui->ProgressBar1->hide();
        unsetCursor();
        m_ui->CmdImport->setEnabled(true);
        m_enCours = false;
    });
    const auto compter = [this](const ImportSalaries &resultat) {
        m_ui->LabSalAdd->setText(u"Salariés Ajoutés : %1"_s.arg(resultat.ajoutes));
        m_ui->LabSalIgn->setText(u"Salariés Ignorés : %1"_s.arg(resultat.ignores));
        m_ui->LabTot->setText(u"Total : %1"_s.arg(resultat.ajoutes + resultat.ignores));
    };
    const ImportSalaries resultat = importerSalaries(m_contexte.base, m_contexte.dialogue,
                                                     {[this](qint64 lignes) { avancer(lignes); }, compter});
    if (resultat.employeurAjoute)
        m_contexte.menu.accorderDeclarations();
}

/// The bar turns from its beginning to its end again and again, a step each time that there is one to see.
void FrmImpSal::avancer(qint64 lignes)
{
    QProgressBar &barre = *m_ui->ProgressBar1;
    if (lignes == 0) {
        setCursor(Qt::WaitCursor);
        barre.setValue(barre.minimum());
        barre.show();
    } else if (m_dernierPas.elapsed() < pas) {
        return;
    } else {
        barre.setValue(barre.value() == barre.maximum() ? barre.minimum() : barre.value() + 1);
    }
    m_dernierPas.start();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

/// An import can't be left: its rows are half in.
void FrmImpSal::closeEvent(QCloseEvent *evenement) { evenement->setAccepted(!m_enCours); }
