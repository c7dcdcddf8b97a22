#pragma once

#include "ci/ligneci.h"
#include "declarations/screens/champsnumero.h"
#include "screens/fenetresaisie.h"
#include "storage/enregistrement.h"

#include <memory>

namespace Ui {
class EcranLigneCi;
}
class LignesDeclaration;

/// The form of a line: frm_add_LnCi for entry, one line behind the other until it is closed, and
/// frm_modif_lnCi for the change of a line, whose employee stays. The amount follows what is typed.
class EcranLigneCi : public FenetreSaisie
{
    Q_OBJECT

public:
    /// @param lue the line to change as it was shown
    EcranLigneCi(Forme forme, Contexte &contexte, LignesDeclaration &lignes, const Enregistrement &lue,
                 QWidget *parent);
    ~EcranLigneCi() override;

protected:
    void keyPressEvent(QKeyEvent *evenement) override;

private:
    void relierChamps();
    FicheLigneCi lire() const;
    void ecrire(const FicheLigneCi &fiche);
    void vider();
    void ajouter();
    void modifier();

    const Forme m_forme;
    LignesDeclaration &m_lignes;
    const Enregistrement m_lue;
    std::unique_ptr<Ui::EcranLigneCi> m_ui;
    ChampsNumero m_numero;
};
