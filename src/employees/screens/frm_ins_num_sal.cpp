#include "employees/screens/frm_ins_num_sal.h"

#include "employees/screens/colonnessalarie.h"
#include "employees/screens/recherchesalaries.h"
#include "screens/contexte.h"
#include "storage/base.h"
#include "ui_frm_ins_num_sal.h"

using namespace Qt::StringLiterals;

frm_ins_num_sal::frm_ins_num_sal(Contexte &contexte, QWidget *parent)
    : FenetreSaisie(contexte, parent), m_salaries(contexte.base.Cnx, u"salarie"_s),
      m_ui(std::make_unique<Ui::frm_ins_num_sal>())
{
    m_ui->setupUi(this);
    m_salaries.ouvrir();
    relier(m_ui->cmdok, m_ui->cmdanul);
    m_ui->DataGrid1->lier(m_salaries, colonnesSalarie(), contexte.dernierRecours);
    new RechercheSalaries({.nom = m_ui->Optionnom,
                           .numero = m_ui->Optionnum_salarie,
                           .texte = m_ui->cherchedit,
                           .chercher = m_ui->Command1,
                           .tous = m_ui->cmdend},
                          m_salaries, contexte.dernierRecours, this);
    connect(m_ui->DataGrid1, &Grille::modificationDemandee, m_ui->cmdok, &QAbstractButton::click);
    surClic(m_ui->cmdok, [this] {
        m_choix = choisirSalarie(m_salaries.courant());
        accept();
    });
    const auto permettre = [this] { m_ui->cmdok->setEnabled(m_salaries.rowCount() > 0); };
    permettre();
    connect(&m_salaries, &QAbstractItemModel::modelReset, this, permettre);
    m_ui->DataGrid1->setFocus();
}

frm_ins_num_sal::~frm_ins_num_sal() = default;
