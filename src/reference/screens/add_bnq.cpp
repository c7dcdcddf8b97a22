#include "reference/screens/add_bnq.h"

#include "rules/dialogue.h"
#include "screens/contexte.h"
#include "screens/focus.h"
#include "ui_add_bnq.h"

using namespace Qt::StringLiterals;

add_bnq::add_bnq(Contexte &contexte, QWidget *parent)
    : FenetreSaisie(contexte, parent), m_ui(std::make_unique<Ui::add_bnq>())
{
    m_ui->setupUi(this);
    m_champs = {m_ui->CodeBnq, m_ui->AbreviatBnq, m_ui->LibelleBnq};
    relier(m_ui->Command1, m_ui->CancelButton);
    surSortie(*m_ui->CodeBnq, contexte.dernierRecours, [this] { m_champs.quitterCode(m_contexte.dialogue); });
    surClic(m_ui->Command1, [this] { creer(); });
}

add_bnq::~add_bnq() = default;

void add_bnq::creer()
{
    FicheBanque fiche = m_champs.lire();
    if (const RefusBanque refus = creerBanque(m_contexte.base, fiche, m_contexte.dialogue)) {
        m_champs.reprendre(*refus);
        return;
    }
    emit ajoutee();
    m_champs.ecrire({m_ui->CodeBnq->vide(), {}, {}});
    m_contexte.dialogue.informer(u"Banque ajoutée avec succès!"_s);
    m_champs.reprendre(ChampBanque::CodeBnq);
}
