#include "reference/screens/mod_bnq.h"

#include "screens/champmasque.h"
#include "screens/contexte.h"
#include "screens/focus.h"
#include "storage/base.h"
#include "ui_mod_bnq.h"

using namespace Qt::StringLiterals;

mod_bnq::mod_bnq(Contexte &contexte, QWidget *parent)
    : FenetreSaisie(contexte, parent), m_ui(std::make_unique<Ui::mod_bnq>()),
      m_ligne(contexte.base.RsBanque.courant())
{
    m_ui->setupUi(this);
    m_champs = {m_ui->CodeBnq, m_ui->AbreviatBnq, m_ui->LibelleBnq};
    // Here and not in the form file, which can't hold a text of blanks alone.
    m_ui->CodeBnq->setInvite(u" "_s);
    m_champs.ecrire(lireFicheBanque(m_ligne));
    m_lue = m_champs.lire();
    m_champs.reprendre(ChampBanque::CodeBnq);
    relier(m_ui->OKButton, m_ui->CancelButton);
    surSortie(*m_ui->CodeBnq, contexte.dernierRecours, [this] { m_champs.quitterCode(m_contexte.dialogue); });
    surClic(m_ui->OKButton, [this] { modifier(); });
}

mod_bnq::~mod_bnq() = default;

void mod_bnq::modifier()
{
    FicheBanque fiche = m_champs.lire();
    if (const RefusBanque refus =
            modifierBanque(m_contexte.base, m_ligne, fiche, m_lue, m_contexte.dialogue)) {
        m_champs.reprendre(*refus);
        return;
    }
    accept();
}
