#pragma once

#include "declarations/lignes.h"
#include "screens/fenetretable.h"

#include <memory>

namespace Ui {
class frmlndas;
}

/// The lines of one header. It stands beside the list of headers and follows its current row.
class frmlndas : public FenetreTable
{
    Q_OBJECT

public:
    /// @param lignes shows the lines of the header already
    frmlndas(Contexte &contexte, const LignesDeclaration &lignes, QWidget *parent);
    ~frmlndas() override;

    /// Shows the lines of another header.
    void suivre(const CleDeclaration &cle);

private:
    void montrerEntete();
    void montrerSalarie();

    LignesDeclaration m_lignes;
    std::unique_ptr<Ui::frmlndas> m_ui;
};
