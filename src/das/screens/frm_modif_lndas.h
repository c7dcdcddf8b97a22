#pragma once

#include "das/screens/champslignedas.h"
#include "screens/fenetresaisie.h"
#include "storage/enregistrement.h"

#include <memory>

namespace Ui {
class frm_modif_lndas;
}
class LignesDeclaration;

/// Change of the line that is current when it opens. Its employee stays.
class frm_modif_lndas : public FenetreSaisie
{
    Q_OBJECT

public:
    frm_modif_lndas(Contexte &contexte, LignesDeclaration &lignes, QWidget *parent);
    ~frm_modif_lndas() override;

protected:
    void keyPressEvent(QKeyEvent *evenement) override;

private:
    void enregistrer();

    LignesDeclaration &m_lignes;
    const Enregistrement m_lue;
    std::unique_ptr<Ui::frm_modif_lndas> m_ui;
    ChampsLigneDas m_champs{};
};
