#pragma once

#include "employees/screens/ecranaffiliation.h"

/// Change of the current employee of RsSalarie.
class frm_mod_sal : public EcranAffiliation
{
    Q_OBJECT

public:
    frm_mod_sal(Contexte &contexte, QWidget *parent);

protected:
    std::optional<Refus> enregistrer(FicheSalarie &fiche) override;

private:
    AncienNumero m_ancien;
};

/// Opens the change and waits for its end; tells why it can't open.
void ouvrirModification(Contexte &contexte, QWidget *parent);
