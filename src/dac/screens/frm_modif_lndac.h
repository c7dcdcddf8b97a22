#pragma once

#include "screens/fenetresaisie.h"
#include "storage/enregistrement.h"

#include <memory>

namespace Ui {
class frm_modif_lndac;
}
class LignesDeclaration;

/// Change of a line. Its fields are closed until the clerk asks for them; a save closes them again, and the
/// window stays.
class frm_modif_lndac : public FenetreSaisie
{
    Q_OBJECT

public:
    /// @param lue the line as it was shown
    frm_modif_lndac(Contexte &contexte, LignesDeclaration &lignes, const Enregistrement &lue,
                    QWidget *parent);
    ~frm_modif_lndac() override;

protected:
    void keyPressEvent(QKeyEvent *evenement) override;

private:
    void permettre(bool ouverts);
    void remplir();
    void valider();
    void reprendreLigne();
    void renoncer();

    LignesDeclaration &m_lignes;
    Enregistrement m_lue;
    std::unique_ptr<Ui::frm_modif_lndac> m_ui;
    bool m_ouverts = false;
};
