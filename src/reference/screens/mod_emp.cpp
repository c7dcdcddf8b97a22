#include "reference/screens/mod_emp.h"

#include "reference/screens/devant.h"
#include "screens/contexte.h"
#include "screens/focus.h"
#include "storage/base.h"
#include "ui_mod_emp.h"

using namespace Qt::StringLiterals;

mod_emp::mod_emp(Contexte &contexte, QWidget *parent)
    : FenetreSaisie(contexte, parent), m_ui(std::make_unique<Ui::mod_emp>()),
      m_ligne(contexte.base.RsEmployeur.courant())
{
    m_ui->setupUi(this);
    m_champs = {m_ui->num_empmask, m_ui->clemask, m_ui->Rais_SocEdit,
                m_ui->AdresseEdit, m_ui->telEdit, m_ui->mailEdit};
    m_champs.preparer(u" "_s);
    m_champs.ecrire(lireFicheEmployeur(m_ligne));
    m_lue = m_champs.lire();
    m_champs.reprendre(ChampEmployeur::num_empmask);
    relier(m_ui->OKButton, m_ui->CancelButton);
    surSortie(*m_ui->clemask, contexte.dernierRecours, [this] {
        if (const RefusEmployeur refus = ctrlCleEmployeurModifie(m_champs.lire(), m_contexte.dialogue))
            m_champs.reprendre(*refus);
    });
    surClic(m_ui->OKButton, [this] { modifier(); });
}

mod_emp::~mod_emp() = default;

void mod_emp::modifier()
{
    FicheEmployeur fiche = m_champs.lire();
    const RefusEmployeur refus =
        modifierEmployeur(m_contexte.base, m_ligne, fiche, m_lue, m_contexte.dialogue);
    if (refus) {
        m_champs.ecrire(fiche);
        m_champs.reprendre(*refus);
        return;
    }
    accept();
    mettreDevant(*parentWidget());
}
