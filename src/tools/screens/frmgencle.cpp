#include "tools/screens/frmgencle.h"

#include "screens/contexte.h"
#include "screens/dernierrecours.h"
#include "screens/focus.h"
#include "tools/generateurcles.h"
#include "ui_frmgencle.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int ChiffresCompte = 20;
constexpr int LargeurCle = 5;

void montrer(QLabel &resultat, const std::optional<QString> &cle)
{
    if (cle)
        resultat.setText(*cle);
}

} // namespace

FrmGenCle::FrmGenCle(Contexte &contexte) : m_contexte(contexte), m_ui(std::make_unique<Ui::FrmGenCle>())
{
    m_ui->setupUi(this);
    boutonsParEntree(*this);
    m_ui->wCptRIPRIB->setMasque(QString(ChiffresCompte, u'#'));
    reinitialiser();
    const int chiffre = fontMetrics().horizontalAdvance(u'0');
    m_ui->wCptRIPRIB->setMinimumWidth((ChiffresCompte + 3) * chiffre);
    m_ui->LabSS->setMinimumWidth(LargeurCle * chiffre);

    for (ChampNombre *champ : {m_ui->TxtSS, m_ui->TxtCCP, static_cast<ChampNombre *>(m_ui->wCptRIPRIB)})
        connect(champ, &QLineEdit::returnPressed, m_ui->CmdGen, &QPushButton::click);
    DernierRecours &recours = m_contexte.dernierRecours;
    recours.connecter(m_ui->CmdGen, &QPushButton::clicked, this, [this] { generer(); });
    recours.connecter(m_ui->CmdInit, &QPushButton::clicked, this, [this] { reinitialiser(); });
    fermerPar(*m_ui->CmdClose, *this);
}

FrmGenCle::~FrmGenCle() = default;

void FrmGenCle::generer()
{
    // A number that has no key is told and leaves the other two.
    DernierRecours &recours = m_contexte.dernierRecours;
    recours.agir([&] { montrer(*m_ui->LabSS, cleDuSS(m_ui->TxtSS->text())); });
    recours.agir([&] { montrer(*m_ui->LabCCP, cleDuCCP(m_ui->TxtCCP->text())); });
    recours.agir(
        [&] { montrer(*m_ui->labRipRIB, verdictRipRib(m_ui->wCptRIPRIB->text(), m_contexte.dialogue)); });
}

/// The verdict on the account stays, which is meant.
void FrmGenCle::reinitialiser()
{
    for (ChampNombre *champ : {m_ui->TxtSS, m_ui->TxtCCP})
        champ->clear();
    for (QLabel *cle : {m_ui->LabCCP, m_ui->LabSS})
        cle->clear();
    m_ui->wCptRIPRIB->setText(QString(ChiffresCompte, u'0'));
}
