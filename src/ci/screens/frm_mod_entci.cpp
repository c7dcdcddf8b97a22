#include "ci/screens/frm_mod_entci.h"

#include "screens/contexte.h"
#include "screens/focus.h"
#include "ui_frm_mod_entci.h"

frm_mod_entci::frm_mod_entci(Contexte &contexte, const Enregistrement &lue, QWidget *parent)
    : FenetreSaisie(contexte, parent), m_lue(lue), m_ui(std::make_unique<Ui::frm_mod_entci>())
{
    m_ui->setupUi(this);
    m_ui->champs->relier(Forme::Modification, contexte);
    m_ui->champs->ecrire(remplirFicheEnteteCi(lue));
    relier(m_ui->cmdok, m_ui->cmdcancel);
    surClic(m_ui->cmdok, [this] { enregistrer(); });
    reprendreSaisie(*this, Refus{champEnteteCi::reference[Forme::Modification], {}});
}

frm_mod_entci::~frm_mod_entci() = default;

void frm_mod_entci::enregistrer()
{
    FicheEnteteCi fiche = m_ui->champs->lire();
    fiche.cmbemp = m_lue.texte(u"N_employeur"); // not to be changed
    if (const auto refus = modifierEnteteCi(m_contexte.base, m_lue, fiche, m_contexte.dialogue))
        reprendreSaisie(*this, *refus);
    else
        accept();
}
