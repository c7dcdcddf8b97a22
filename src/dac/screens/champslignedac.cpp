#include "dac/screens/champslignedac.h"

#include "screens/focus.h"
#include "ui_champslignedac.h"

#include <QAbstractButton>
#include <QAbstractItemView>

#include <algorithm>

ChampsLigneDac::ChampsLigneDac(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::ChampsLigneDac>())
{
    m_ui->setupUi(this);
    m_champs = {{m_ui->CmbES, m_ui->ChkDE},
                {m_ui->MskDateES, m_ui->ChkDA},
                {m_ui->TxtAssiette, m_ui->ChKDR},
                {m_ui->CmbDT, m_ui->ChKNbh},
                {m_ui->TxtNbJT, m_ui->ChkMth}};
    // What is frozen goes into the line: it must be read.
    QPalette lisible = palette();
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::ButtonText})
        lisible.setColor(QPalette::Disabled, role, QColor(0x58, 0x58, 0x58));
    for (const Champ &un : m_champs) {
        un.champ->setPalette(lisible);
        connect(un.gel, &QCheckBox::toggled, un.champ, &QWidget::setDisabled);
    }
    ecrire({});
}

ChampsLigneDac::~ChampsLigneDac() = default;

void ChampsLigneDac::sansGel()
{
    for (const Champ &un : m_champs)
        un.gel->hide();
}

void ChampsLigneDac::permettre(bool ouverts)
{
    for (const Champ &un : m_champs)
        un.champ->setEnabled(ouverts);
}

FicheLigneDac ChampsLigneDac::lire() const
{
    return {.Num_Salarie = {},
            .CmbES = m_ui->CmbES->currentIndex(),
            .CmbDT = m_ui->CmbDT->currentIndex(),
            .MskDateES = m_ui->MskDateES->text(),
            .TxtAssiette = m_ui->TxtAssiette->text(),
            .TxtNbJT = m_ui->TxtNbJT->text()};
}

void ChampsLigneDac::ecrire(const FicheLigneDac &fiche)
{
    m_ui->CmbES->setCurrentIndex(fiche.CmbES);
    m_ui->CmbDT->setCurrentIndex(fiche.CmbDT);
    m_ui->MskDateES->setText(fiche.MskDateES);
    m_ui->TxtAssiette->setText(fiche.TxtAssiette);
    m_ui->TxtNbJT->setText(fiche.TxtNbJT);
    // The letter of the next line is a search of its own, however fast the clerk types.
    for (const QComboBox *liste : {m_ui->CmbES, m_ui->CmbDT})
        liste->view()->keyboardSearch({});
}

void ChampsLigneDac::vider()
{
    const FicheLigneDac garde = lire();
    FicheLigneDac fiche;
    const auto garder = [&](auto FicheLigneDac::*valeur, const QCheckBox &gel) {
        if (gel.isChecked())
            fiche.*valeur = garde.*valeur;
    };
    garder(&FicheLigneDac::CmbES, *m_ui->ChkDE);
    garder(&FicheLigneDac::MskDateES, *m_ui->ChkDA);
    garder(&FicheLigneDac::TxtAssiette, *m_ui->ChKDR);
    garder(&FicheLigneDac::CmbDT, *m_ui->ChKNbh);
    garder(&FicheLigneDac::TxtNbJT, *m_ui->ChkMth);
    ecrire(fiche);
}

void ChampsLigneDac::commencer(QAbstractButton &bouton)
{
    const auto ouvert =
        std::find_if(m_champs.begin(), m_champs.end(), [](const Champ &un) { return un.champ->isEnabled(); });
    if (ouvert == m_champs.end())
        bouton.setFocus(Qt::TabFocusReason);
    else
        reprendreSaisie(*ouvert->champ);
}

void ChampsLigneDac::reprendre(const Refus &refus)
{
    for (const Champ &un : m_champs) {
        if (un.champ->objectName() == refus.controle)
            reprendreSaisie(un.champ->isEnabled() ? *un.champ : *un.gel);
    }
}

bool ChampsLigneDac::suivant(const QKeyEvent &touche, QAbstractButton &bouton)
{
    return passerAuSuivant(touche, champs(), bouton);
}

QList<QWidget *> ChampsLigneDac::champs() const
{
    QList<QWidget *> tous;
    for (const Champ &un : m_champs)
        tous += un.champ;
    return tous;
}
