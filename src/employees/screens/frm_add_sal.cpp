#include "employees/screens/frm_add_sal.h"

#include "screens/champmasque.h"
#include "screens/contexte.h"
#include "storage/base.h"
#include "ui_ecranaffiliation.h"

using namespace Qt::StringLiterals;

frm_add_sal::frm_add_sal(Contexte &contexte, QWidget *parent)
    : EcranAffiliation(Forme::Creation, contexte, parent)
{
    delete m_ui->LblCpt_z; // an entry has no old number to keep
    montrer(ficheALOuverture());
    commencer();
}

void frm_add_sal::proposerNumero(const QString &chiffres, const QString &cle)
{
    m_ui->num_salmask->setText(chiffres);
    m_ui->clemask->setText(cle);
}

std::optional<Refus> frm_add_sal::enregistrer(FicheSalarie &fiche)
{
    const auto vider = [this, &fiche] {
        montrer(fiche);
        m_ui->lieu_naissedit->clear();
        m_ui->cle_ccpmask->setText(m_ui->cle_ccpmask->vide());
        commencer();
    };
    return creerSalarie(fiche, m_contexte.base, m_contexte.dialogue,
                        {[this](const FicheSalarie &rendue) { montrer(rendue); }, vider});
}

bool ouvrirAffiliation(Contexte &contexte, QWidget *parent, const QString &chiffres, const QString &cle)
{
    if (!nationalitesImportees(contexte.base.Cnx, contexte.dialogue))
        return false;
    frm_add_sal ecran(contexte, parent);
    if (!chiffres.isEmpty())
        ecran.proposerNumero(chiffres, cle);
    ecran.exec();
    return true;
}
