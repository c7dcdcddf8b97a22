#pragma once

#include "reference/employeurs.h"
#include "screens/fenetresaisie.h"
#include "storage/enregistrement.h"

#include <memory>

namespace Ui {
class EcranEmployeur;
}

/// Entry of a new employer, add_emp, or change of the one that is current when it opens, mod_emp.
class EcranEmployeur : public FenetreSaisie
{
    Q_OBJECT

public:
    EcranEmployeur(Forme forme, Contexte &contexte, QWidget *parent);
    ~EcranEmployeur() override;

private:
    FicheEmployeur lire() const;
    void ecrire(const FicheEmployeur &fiche);
    void quitterNumero();
    void quitterCle();
    void enregistrer();
    void terminerCreation();

    const Forme m_forme;
    std::unique_ptr<Ui::EcranEmployeur> m_ui;
    /// The employer to be changed, as read and as shown at first.
    Enregistrement m_ligne;
    FicheEmployeur m_lue;
};
