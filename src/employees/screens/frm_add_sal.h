#pragma once

#include "employees/screens/ecranaffiliation.h"

/// Entry of employees, one behind the other until it is closed.
class frm_add_sal : public EcranAffiliation
{
    Q_OBJECT

public:
    frm_add_sal(Contexte &contexte, QWidget *parent);

    /// The number with which the entry begins.
    void proposerNumero(const QString &chiffres, const QString &cle);

protected:
    std::optional<Refus> enregistrer(FicheSalarie &fiche) override;
};

/// Opens the entry and waits for its end; tells why it can't open.
/// @param chiffres the ten digits of a number to begin with, none when empty
/// @return whether it was open
bool ouvrirAffiliation(Contexte &contexte, QWidget *parent, const QString &chiffres = {},
                       const QString &cle = {});
