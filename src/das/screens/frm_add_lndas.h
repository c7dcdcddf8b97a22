#pragma once

#include "das/screens/champslignedas.h"
#include "screens/fenetresaisie.h"

#include <memory>

namespace Ui {
class frm_add_lndas;
}
class LignesDeclaration;

/// Entry of lines, one behind the other until it is closed.
class frm_add_lndas : public FenetreSaisie
{
    Q_OBJECT

public:
    frm_add_lndas(Contexte &contexte, LignesDeclaration &lignes, QWidget *parent);
    ~frm_add_lndas() override;

protected:
    void keyPressEvent(QKeyEvent *evenement) override;

private:
    FicheLigneDas lire() const;
    void vider();
    void quitterCle();
    void inserer();
    void enregistrer();
    void reprendre(ChampLigneDas champ);

    LignesDeclaration &m_lignes;
    std::unique_ptr<Ui::frm_add_lndas> m_ui;
    ChampsLigneDas m_champs{};
    /// The employee's, while nobody else was picked.
    qint64 m_cpt_z = 1;
};
