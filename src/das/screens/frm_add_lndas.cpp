#include "das/screens/frm_add_lndas.h"

#include "declarations/lignes.h"
#include "employees/fichesalarie.h"
#include "employees/screens/frm_add_sal.h"
#include "employees/screens/frm_ins_num_sal.h"
#include "rules/dialogue.h"
#include "screens/contexte.h"
#include "screens/focus.h"
#include "ui_frm_add_lndas.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

frm_add_lndas::frm_add_lndas(Contexte &contexte, LignesDeclaration &lignes, QWidget *parent)
    : FenetreSaisie(contexte, parent), m_lignes(lignes), m_ui(std::make_unique<Ui::frm_add_lndas>())
{
    m_ui->setupUi(this);
    for (ChampMasque *champ : {m_ui->num_saledit, m_ui->mskcle})
        champ->setInvite(u" "_s);
    m_champs = {m_ui->sal_annueledit, m_ui->nbj_travailctrl, m_ui->EOption,
                m_ui->SOption,        m_ui->mskdate,         m_ui->Clend_naiss,
                m_ui->Lab_nom,        m_ui->lab_prenom,      m_ui->Lab_date_naiss};
    m_champs.preparer(contexte.dernierRecours, contexte.dialogue);
    relier(m_ui->cmdok, m_ui->CancelButton);
    vider();
    m_ui->sal_annueledit->setText(u"00000000.00"_s);
    surSortie(*m_ui->mskcle, contexte.dernierRecours, [this] { quitterCle(); });
    surClic(m_ui->cmdins, [this] { inserer(); });
    surClic(m_ui->cmdok, [this] { enregistrer(); });
}

frm_add_lndas::~frm_add_lndas() = default;

void frm_add_lndas::keyPressEvent(QKeyEvent *evenement)
{
    const QList<QWidget *> champs{m_ui->num_saledit, m_ui->mskcle, m_ui->sal_annueledit,
                                  m_ui->nbj_travailctrl, m_ui->mskdate};
    if (!passerAuSuivant(*evenement, champs, *m_ui->cmdok))
        FenetreSaisie::keyPressEvent(evenement);
}

FicheLigneDas frm_add_lndas::lire() const
{
    FicheLigneDas fiche;
    m_champs.lire(fiche);
    fiche.num_saledit = m_ui->num_saledit->text();
    fiche.mskcle = m_ui->mskcle->text();
    fiche.cpt_z = m_cpt_z;
    return fiche;
}

/// Ready for the next line, the cursor on its number.
void frm_add_lndas::vider()
{
    FicheLigneDas vide;
    vide.sal_annueledit = u"0"_s;
    m_champs.ecrire(vide);
    m_champs.montrer({});
    m_ui->num_saledit->setText(ChiffresBlancs.toString());
    m_ui->mskcle->setText(m_ui->mskcle->vide());
    m_cpt_z = 1;
    reprendreSaisie(*m_ui->num_saledit);
}

void frm_add_lndas::quitterCle()
{
    const FicheLigneDas fiche = lire();
    const SaisieNumero saisie = ctrlNumeroLigneDas(fiche, m_contexte.dialogue);
    if (saisie.numeroBon) {
        m_cpt_z = 1;
        m_champs.montrer(salarieDe(m_lignes, fiche.numero(), m_cpt_z));
    } else if (saisie.reprendre) {
        reprendreSaisie(*m_ui->num_saledit);
    }
}

void frm_add_lndas::inserer()
{
    frm_ins_num_sal choisir(m_contexte, this);
    choisir.exec();
    const ChoixSalarie &choix = choisir.choix();
    if (!choix.choisi)
        return;
    const QString chiffres = choix.Num_Salarie.left(10);
    m_ui->num_saledit->setText(chiffres);
    m_ui->mskcle->setText(chiffres == ChiffresBlancs ? u"00"_s : choix.Num_Salarie.mid(10));
    m_cpt_z = choix.cpt_z;
    m_champs.montrer(salarieDe(m_lignes, choix.Num_Salarie, choix.cpt_z));
    m_ui->cmdok->setFocus();
}

void frm_add_lndas::enregistrer()
{
    const FicheLigneDas fiche = lire();
    const auto refus = ajouterLigneDas(m_lignes, fiche, m_contexte.dialogue);
    if (!refus) {
        vider();
        return;
    }
    if (refus->creerSalarie)
        ouvrirAffiliation(m_contexte, this, numeroPourCreation(fiche.num_saledit), fiche.mskcle);
    reprendre(refus->focus);
}

void frm_add_lndas::reprendre(ChampLigneDas champ)
{
    if (!m_champs.reprendre(champ))
        reprendreSaisie(*m_ui->num_saledit);
}
