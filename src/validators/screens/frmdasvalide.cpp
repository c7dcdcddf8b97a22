#include "validators/screens/frmdasvalide.h"

#include "rules/nombre.h"
#include "screens/contexte.h"
#include "screens/dernierrecours.h"
#include "screens/focus.h"
#include "ui_frmdasvalide.h"
#include "validators/validateurdas.h"

using namespace Qt::StringLiterals;

FrmDasValide::FrmDasValide(Contexte &contexte)
    : FrmValidateur(contexte, std::make_unique<ValidateurDas>()), m_ui(std::make_unique<Ui::FrmDasValide>())
{
    m_ui->setupUi(this);
    relier();
    for (std::size_t i = 0; i < m_boites.size(); ++i) {
        QLineEdit *boite = findChild<QLineEdit *>(SaisieDacs::Boites[i].toString());
        m_boites[i] = boite;
        surSortie(*boite, contexte.dernierRecours, [this, boite] { quitter(*boite); });
        connect(boite, &QLineEdit::returnPressed, this, [this] { focusNextChild(); });
    }
    remettreTitres();
    contexte.dernierRecours.connecter(m_ui->CmdVerifier, &QPushButton::clicked, this,
                                      &FrmDasValide::verifier);
}

FrmDasValide::~FrmDasValide() = default;

/// The amounts keyed, their years and the verdict on them were those of the file before.
void FrmDasValide::avantExtraction()
{
    ViderDacs();
    remettreTitres();
    m_ui->LabDAS3->clear();
}

/// Month or quarter alone, until a file gives the year.
void FrmDasValide::remettreTitres()
{
    for (const QLineEdit *boite : m_boites) {
        const QString periode = boite->objectName().sliced(3);
        findChild<QLabel *>(u"Lab"_s + periode)->setText(periode);
    }
}

SaisieDacs FrmDasValide::saisie() const
{
    SaisieDacs dacs;
    for (std::size_t i = 0; i < m_boites.size(); ++i)
        dacs.textes[i] = m_boites[i]->text();
    return dacs;
}

void FrmDasValide::SommeDacs() { m_ui->LabSommeDAC->setText(texteNombre(::SommeDacs(saisie()))); }

void FrmDasValide::ViderDacs()
{
    for (QLineEdit *boite : m_boites)
        boite->clear();
    m_ui->LabSommeDAC->clear();
}

void FrmDasValide::quitter(QLineEdit &boite)
{
    QString texte = boite.text();
    const bool accepte = quitterMontantDac(texte, m_contexte.dialogue);
    boite.setText(texte);
    if (accepte)
        SommeDacs();
    else
        reprendreSaisie(boite);
}

void FrmDasValide::verifier()
{
    m_ui->LabDAS3->clear();
    m_ui->LabDAS3->setText(verifierDacs(saisie(), m_ui->LabTotSalaires->text(), m_contexte.dialogue));
}
