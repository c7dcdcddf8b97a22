#pragma once

#include "declarations/entetes.h"
#include "screens/fenetretable.h"

#include <QPointer>

#include <memory>

namespace Ui {
class frmentdas;
}
class frmlndas;

/// The headers of the annual declarations, and the way from them to the lines and the file.
class frmentdas : public FenetreTable
{
    Q_OBJECT

public:
    explicit frmentdas(Contexte &contexte);
    ~frmentdas() override;

private:
    void remplirListes();
    void ajouter();
    void ouvrirLignes();
    void changerEntete();
    void montrerSommes();

    std::unique_ptr<Ui::frmentdas> m_ui;
    QPointer<frmlndas> m_lignes;
};
