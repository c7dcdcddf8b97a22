#pragma once

#include "employees/choixsalarie.h"
#include "screens/fenetresaisie.h"
#include "storage/recordset.h"

#include <memory>

namespace Ui {
class frm_ins_num_sal;
}

/// The picker of an employee, on a list of its own. Run it with exec(), then ask for choix().
class frm_ins_num_sal : public FenetreSaisie
{
    Q_OBJECT

public:
    frm_ins_num_sal(Contexte &contexte, QWidget *parent);
    ~frm_ins_num_sal() override;

    const ChoixSalarie &choix() const { return m_choix; }

private:
    Recordset m_salaries;
    std::unique_ptr<Ui::frm_ins_num_sal> m_ui;
    ChoixSalarie m_choix;
};
