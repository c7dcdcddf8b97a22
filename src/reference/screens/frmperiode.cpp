#include "reference/screens/frmperiode.h"

#include "reference/periodes.h"
#include "screens/contexte.h"
#include "screens/focus.h"
#include "storage/base.h"
#include "ui_frmperiode.h"

using namespace Qt::StringLiterals;

frmPeriode::frmPeriode(Contexte &contexte)
    : FenetreTable(contexte, contexte.base.RsPeriode), m_ui(std::make_unique<Ui::frmPeriode>())
{
    m_ui->setupUi(this);
    relier({.grille = m_ui->DataGrid1, .fermer = m_ui->Command1},
           {{u"Code"_s, u"Période"_s}, {u"Etat"_s, u"Exportée"_s}});
    m_ui->cmbannee->addItems(exercicesProposes());
    m_ui->CmbMois->addItems(trimestres());
    for (QComboBox *liste : {m_ui->cmbannee, m_ui->CmbMois})
        liste->setCurrentIndex(-1);
    surClic(m_ui->cmb_add, [this] { ajouter(); });
}

frmPeriode::~frmPeriode() = default;

void frmPeriode::ajouter()
{
    if (ajouterPeriodes(m_contexte.base, m_ui->cmbannee->currentText(), m_ui->CmbMois->currentText(),
                        m_contexte.dialogue))
        return;
    const bool anneeChoisie = m_ui->cmbannee->currentIndex() >= 0;
    reprendreSaisie(anneeChoisie ? *m_ui->CmbMois : *m_ui->cmbannee);
}
