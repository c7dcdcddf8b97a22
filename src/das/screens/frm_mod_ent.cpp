#include "das/screens/frm_mod_ent.h"

#include "das/genredas.h"
#include "declarations/entetes.h"
#include "rules/dialogue.h"
#include "screens/contexte.h"
#include "screens/focus.h"
#include "storage/base.h"
#include "ui_frm_mod_ent.h"

using namespace Qt::StringLiterals;

frm_mod_ent::frm_mod_ent(Contexte &contexte, QWidget *parent)
    : FenetreSaisie(contexte, parent), m_lue(contexte.base.RsEnteteDas.courant()),
      m_ui(std::make_unique<Ui::frm_mod_ent>())
{
    m_ui->setupUi(this);
    m_ui->sumedit->setText(formatMasque(m_lue.montant(u"sum_annuel", Currency()), u"## ### ### ###.00"));
    m_ui->totaledit->setText(QString::number(m_lue.entier(u"total_salarie", 0)));
    relier(m_ui->cmdok, m_ui->cmdcancel);
    surSortie(*m_ui->sumedit, contexte.dernierRecours, [this] {
        if (!estMontantSaisi(m_ui->sumedit->text()))
            m_contexte.dialogue.avertir(u"Veuillez saisir un nombre!"_s);
    });
    surClic(m_ui->cmdok, [this] { enregistrer(); });
    reprendreSaisie(*m_ui->sumedit);
}

frm_mod_ent::~frm_mod_ent() = default;

void frm_mod_ent::enregistrer()
{
    const RefusEntete refus = modifierEntete(m_contexte.base, genreDas(), m_lue, m_ui->sumedit->text(),
                                             m_ui->totaledit->text(), m_contexte.dialogue);
    if (!refus)
        accept();
    else
        reprendreSaisie(*refus == ChampEntete::sumedit ? *m_ui->sumedit : *m_ui->totaledit);
}
