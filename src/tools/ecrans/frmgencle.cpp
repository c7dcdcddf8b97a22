#include "frmgencle.h"

#include "contexte.h"
#include "dernierrecours.h"
#include "focus.h"
#include "generateurcles.h"
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

    for (QLineEdit *champ : {m_ui->TxtSS, m_ui->TxtCCP, static_cast<QLineEdit *>(m_ui->wCptRIPRIB)})
        connect(champ, &QLineEdit::returnPressed, m_ui->CmdGen, &QPushButton::click);
    DernierRecours &recours = m_contexte.dernierRecours;
    recours.connecter(m_ui->CmdGen, &QPushButton::clicked, this, [this] { generer(); });
    recours.connecter(m_ui->CmdInit, &QPushButton::clicked, this, [this] { reinitialiser(); });
    recours.connecter(m_ui->CmdClose, &QPushButton::clicked, this, [this] { close(); });
}

FrmGenCle::~FrmGenCle() = default;

void FrmGenCle::generer()
{
    const ClesGenerees cles =
        GenererCles(m_ui->TxtSS->text(), m_ui->TxtCCP->text(), m_ui->wCptRIPRIB->text(), m_contexte.dialogue);
    montrer(*m_ui->LabSS, cles.LabSS);
    montrer(*m_ui->LabCCP, cles.LabCCP);
    montrer(*m_ui->labRipRIB, cles.labRipRIB);
}

/// The verdict on the account stays, which is meant.
void FrmGenCle::reinitialiser()
{
    for (QLineEdit *champ : {m_ui->TxtSS, m_ui->TxtCCP})
        champ->clear();
    for (QLabel *cle : {m_ui->LabCCP, m_ui->LabSS})
        cle->clear();
    m_ui->wCptRIPRIB->setText(QString(ChiffresCompte, u'0'));
}
