#pragma once

#include "das/lignedas.h"
#include "declarations/screens/champsnumero.h"
#include "rules/selon.h"
#include "screens/fenetresaisie.h"
#include "storage/enregistrement.h"

#include <memory>

namespace Ui {
class EcranLigneDas;
}
class LignesDeclaration;

/// The form of a line: frm_add_lndas for entry, one line behind the other until it is closed, and
/// frm_modif_lndas for the change of a line, whose employee stays.
class EcranLigneDas : public FenetreSaisie
{
    Q_OBJECT

public:
    /// @param lue the line to change as it was shown
    EcranLigneDas(Forme forme, Contexte &contexte, LignesDeclaration &lignes, const Enregistrement &lue,
                  QWidget *parent);
    ~EcranLigneDas() override;

protected:
    void keyPressEvent(QKeyEvent *evenement) override;

private:
    void relierChamps();
    FicheLigneDas lire() const;
    void ecrire(const FicheLigneDas &fiche);
    void remplir();
    void vider();
    void quitterDate();
    void ajouter();
    void modifier();

    const Forme m_forme;
    LignesDeclaration &m_lignes;
    const Enregistrement m_lue;
    std::unique_ptr<Ui::EcranLigneDas> m_ui;
    ChampsNumero m_numero;
};
