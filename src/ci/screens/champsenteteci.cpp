#include "ci/screens/champsenteteci.h"

#include "screens/contexte.h"
#include "screens/dernierrecours.h"
#include "screens/focus.h"
#include "storage/base.h"
#include "ui_champsenteteci.h"

#include <QShortcut>

using namespace Qt::StringLiterals;

namespace {

const QString sansBanque = u"--"_s;

/// The prompt of the reference: in a change what is missing is to be seen.
constexpr Selon<QStringView> inviteReference{u" ", u"_"};

} // namespace

ChampsEnteteCi::ChampsEnteteCi(QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::ChampsEnteteCi>())
{
    m_ui->setupUi(this);
}

ChampsEnteteCi::~ChampsEnteteCi() = default;

void ChampsEnteteCi::relier(Forme forme, Contexte &contexte)
{
    habiller(forme);
    relierListes(contexte);
    relierCharges(contexte);
    surSortie(*m_ui->sumEdit, contexte.dernierRecours, [this, &contexte] {
        if (const auto montant = montantDe(m_ui->sumEdit->text()))
            m_ui->sumEdit->setText(texteMontantCi(*montant));
        quitterMontantCi(m_ui->sumEdit->text(), contexte.dialogue);
    });
    surSortie(*m_ui->MskAgbnq, contexte.dernierRecours,
              [this, &contexte] { quitterAgenceCi(m_ui->MskAgbnq->text(), contexte.dialogue); });
    vider();
}

void ChampsEnteteCi::habiller(Forme forme)
{
    m_ui->MskReference->setInvite(inviteReference[forme].toString());
    m_ui->total_salEdit->setInvite(u" "_s); // a count of fewer digits is a number, too
    m_ui->MskReference->setObjectName(champEnteteCi::reference[forme].toString());
    m_ui->sumEdit->setObjectName(champEnteteCi::montant[forme].toString());
    m_ui->total_salEdit->setObjectName(champEnteteCi::effectif[forme].toString());
    if (forme == Forme::Creation)
        return;
    for (QWidget *autre : std::initializer_list<QWidget *>{
             m_ui->Lab_cmbemp, m_ui->cmbemp, m_ui->Lab_CmbBnq, m_ui->CmbBnq, m_ui->LibBnq, m_ui->Lab_MskAgbnq,
             m_ui->MskAgbnq, m_ui->Lab_TxtTelephone, m_ui->TxtTelephone})
        autre->hide();
}

void ChampsEnteteCi::relierListes(Contexte &contexte)
{
    Connexion &cnx = contexte.base.Cnx;
    DernierRecours &recours = contexte.dernierRecours;
    recours.connecter(m_ui->cmbemp, &QComboBox::currentIndexChanged, this, [this, &cnx](int rang) {
        if (rang >= 0)
            m_ui->TxtTelephone->setText(telephoneEmployeur(cnx, m_ui->cmbemp->currentText()));
    });
    recours.connecter(m_ui->CmbBnq, &QComboBox::currentIndexChanged, this, [this, &cnx](int rang) {
        const QString nom = rang < 0 ? QString() : abreviationBanque(cnx, m_ui->CmbBnq->currentText());
        m_ui->LibBnq->setText(nom.isEmpty() ? sansBanque : nom);
    });
}

void ChampsEnteteCi::relierCharges(Contexte &contexte)
{
    DernierRecours &recours = contexte.dernierRecours;
    for (const ChargeCi &charge : chargesCi) {
        QLineEdit *montant = champ(charge);
        auto *touche = new QShortcut(Qt::Key_F4, montant, nullptr, nullptr, Qt::WidgetShortcut);
        recours.connecter(touche, &QShortcut::activated, this,
                          [this, &charge] { reprendreAttendue(charge); });
        recours.connecter(findChild<QToolButton *>(u"cmd"_s + charge.controle), &QToolButton::clicked, this,
                          [this, &charge] { reprendreAttendue(charge); });
        surSortie(*montant, recours, [montant, &charge, &contexte] {
            quitterChargeCi(charge, montant->text(), contexte.dialogue);
        });
    }
    recours.connecter(m_ui->sumEdit, &QLineEdit::textChanged, this, &ChampsEnteteCi::montrerAttendues);
    montrerAttendues();
}

void ChampsEnteteCi::montrerAttendues()
{
    const std::optional<Currency> montant = montantDe(m_ui->sumEdit->text());
    for (const ChargeCi &charge : chargesCi) {
        champ(charge)->setToolTip(montant ? u"montant attendu : "_s +
                                                texteMontantCi(chargeAttendue(charge, *montant)) + u" (F4)"_s
                                          : QString());
        findChild<QToolButton *>(u"cmd"_s + charge.controle)->setEnabled(montant.has_value());
    }
}

void ChampsEnteteCi::reprendreAttendue(const ChargeCi &charge)
{
    if (const auto montant = montantDe(m_ui->sumEdit->text()))
        champ(charge)->setText(texteMontantCi(chargeAttendue(charge, *montant)));
}

QLineEdit *ChampsEnteteCi::champ(const ChargeCi &charge) const
{
    return findChild<QLineEdit *>(charge.controle.toString());
}

QComboBox *ChampsEnteteCi::employeurs() const { return m_ui->cmbemp; }

QComboBox *ChampsEnteteCi::banques() const { return m_ui->CmbBnq; }

QList<QWidget *> ChampsEnteteCi::champs() const
{
    return {m_ui->cmbemp,         m_ui->TxtTelephone,  m_ui->MskReference, m_ui->MskDateArret,
            m_ui->MskDateReprise, m_ui->total_salEdit, m_ui->sumEdit,      m_ui->SS26,
            m_ui->SS1221,         m_ui->SS0375,        m_ui->CmbHS,        m_ui->CmbBnq,
            m_ui->MskAgbnq,       m_ui->MskNCompteBnq, m_ui->txtAgBnq};
}

FicheEnteteCi ChampsEnteteCi::lire() const
{
    return {.cmbemp = m_ui->cmbemp->currentText(),
            .MskReference = m_ui->MskReference->text(),
            .MskDateArret = m_ui->MskDateArret->text(),
            .MskDateReprise = m_ui->MskDateReprise->text(),
            .total_salEdit = m_ui->total_salEdit->text(),
            .sumEdit = m_ui->sumEdit->text(),
            .SS26 = m_ui->SS26->text(),
            .SS1221 = m_ui->SS1221->text(),
            .SS0375 = m_ui->SS0375->text(),
            .CmbHS = m_ui->CmbHS->currentText(),
            .CmbBnq = m_ui->CmbBnq->currentText(),
            .MskAgbnq = m_ui->MskAgbnq->text(),
            .MskNCompteBnq = m_ui->MskNCompteBnq->text(),
            .txtAgBnq = m_ui->txtAgBnq->text(),
            .TxtTelephone = m_ui->TxtTelephone->text()};
}

void ChampsEnteteCi::ecrire(const FicheEnteteCi &fiche)
{
    for (const auto &[liste, choix] :
         {std::pair{m_ui->cmbemp, &fiche.cmbemp}, std::pair{m_ui->CmbHS, &fiche.CmbHS},
          std::pair{m_ui->CmbBnq, &fiche.CmbBnq}})
        liste->setCurrentIndex(liste->findText(*choix));
    m_ui->MskReference->setText(fiche.MskReference);
    m_ui->MskDateArret->setText(fiche.MskDateArret);
    m_ui->MskDateReprise->setText(fiche.MskDateReprise);
    m_ui->total_salEdit->setText(fiche.total_salEdit);
    m_ui->sumEdit->setText(fiche.sumEdit);
    for (const ChargeCi &charge : chargesCi)
        champ(charge)->setText(fiche.*charge.champ);
    m_ui->MskAgbnq->setText(fiche.MskAgbnq);
    m_ui->MskNCompteBnq->setText(fiche.MskNCompteBnq);
    m_ui->txtAgBnq->setText(fiche.txtAgBnq);
    m_ui->TxtTelephone->setText(fiche.TxtTelephone);
}

void ChampsEnteteCi::vider()
{
    FicheEnteteCi fiche;
    fiche.total_salEdit = u"00000"_s;
    fiche.sumEdit = texteMontantCi({});
    for (const ChargeCi &charge : chargesCi)
        fiche.*charge.champ = texteMontantCi({});
    ecrire(fiche);
}
