#include "das/screens/frm_modif_lndas.h"

#include "declarations/lignes.h"
#include "screens/contexte.h"
#include "screens/focus.h"
#include "ui_frm_modif_lndas.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

frm_modif_lndas::frm_modif_lndas(Contexte &contexte, LignesDeclaration &lignes, QWidget *parent)
    : FenetreSaisie(contexte, parent), m_lignes(lignes), m_lue(lignes.liste().courant()),
      m_ui(std::make_unique<Ui::frm_modif_lndas>())
{
    m_ui->setupUi(this);
    m_champs = {m_ui->sal_annueledit, m_ui->nbj_travailctrl, m_ui->EOption,
                m_ui->SOption,        m_ui->mskdate,         m_ui->Clend_naiss,
                m_ui->Lab_nom,        m_ui->lab_prenom,      m_ui->Lab_date_naiss};
    m_champs.preparer(contexte.dernierRecours, contexte.dialogue);
    relier(m_ui->cmdok, m_ui->CancelButton);

    const QString numero = m_lue.texte(u"num_salarie");
    m_champs.ecrire(remplirFicheLigneDas(m_lue));
    m_ui->LabNumero->setText(numero);
    m_champs.montrer(salarieDe(lignes, numero, m_lue.entier(u"cpt_z")));
    reprendreSaisie(*m_ui->sal_annueledit);
    surClic(m_ui->cmdok, [this] { enregistrer(); });
}

frm_modif_lndas::~frm_modif_lndas() = default;

void frm_modif_lndas::keyPressEvent(QKeyEvent *evenement)
{
    if (!passerAuSuivant(*evenement, {m_ui->sal_annueledit, m_ui->nbj_travailctrl, m_ui->mskdate},
                         *m_ui->cmdok))
        FenetreSaisie::keyPressEvent(evenement);
}

void frm_modif_lndas::enregistrer()
{
    FicheLigneDas fiche;
    m_champs.lire(fiche);
    const ModificationLigneDas fin = modifierLigneDas(m_lignes, m_lue, fiche, m_contexte.dialogue);
    if (fin.issue == IssueModification::Faite)
        accept();
    else
        m_champs.reprendre(fin.focus);
}
