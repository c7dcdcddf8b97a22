#include "employees/screens/frm_mod_sal.h"

#include "screens/contexte.h"
#include "storage/base.h"
#include "ui_ecranaffiliation.h"

using namespace Qt::StringLiterals;

frm_mod_sal::frm_mod_sal(Contexte &contexte, QWidget *parent)
    : EcranAffiliation(Forme::Modification, contexte, parent)
{
    const FicheRemplie remplie = remplirFiche(contexte.base.RsSalarie.courant(), contexte.base.Cnx);
    m_ancien = remplie.ancien;
    m_ui->LblCpt_z->setText(QString::number(m_ancien.cpt_z));
    montrer(remplie.fiche);
    commencer();
}

std::optional<Refus> frm_mod_sal::enregistrer(FicheSalarie &fiche)
{
    return modifierSalarie(fiche, m_ancien, m_contexte.base, m_contexte.dialogue,
                           {[this](const FicheSalarie &rendue) { montrer(rendue); }, [this] { accept(); }});
}

void ouvrirModification(Contexte &contexte, QWidget *parent)
{
    if (nationalitesImportees(contexte.base.Cnx, contexte.dialogue))
        frm_mod_sal(contexte, parent).exec();
}
