#include "reference/screens/frmannee.h"

#include "reference/campagnes.h"
#include "screens/contexte.h"
#include "screens/focus.h"
#include "screens/selectionentree.h"
#include "storage/base.h"
#include "ui_frmannee.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

frmannee::frmannee(Contexte &contexte)
    : FenetreTable(contexte, contexte.base.RsAnnee), m_ui(std::make_unique<Ui::frmannee>())
{
    m_ui->setupUi(this);
    relier({.grille = m_ui->DataGrid1, .fermer = m_ui->Command1},
           {{u"annee"_s, u"Année"_s}, {u"compagne"_s, u"Campagne"_s}});
    // A year that is typed is not to become the one offered that begins alike.
    m_ui->cmbannee->setCompleter(nullptr);
    m_ui->cmbannee->addItems(anneesProposees());
    selectionnerALEntree(*m_ui->cmbannee->lineEdit());
    connect(m_ui->cmbannee->lineEdit(), &QLineEdit::returnPressed, m_ui->cmb_add, &QPushButton::click);
    surClic(m_ui->cmb_add, [this] { ajouter(); });
    reprendreSaisie(*m_ui->cmbannee);
}

frmannee::~frmannee() = default;

void frmannee::ajouter()
{
    if (!ajouterCampagne(m_contexte.base, m_ui->cmbannee->currentText(), m_contexte.dialogue)) {
        reprendreSaisie(*m_ui->cmbannee);
        return;
    }
    m_ui->cmbannee->lineEdit()->selectAll(); // the next year is typed over this one
    m_contexte.menu.accorderDeclarations();
}
