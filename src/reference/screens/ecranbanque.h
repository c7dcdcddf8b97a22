#pragma once

#include "reference/banques.h"
#include "rules/selon.h"
#include "screens/fenetresaisie.h"
#include "storage/enregistrement.h"

#include <memory>

namespace Ui {
class EcranBanque;
}

/// Entry of new banks, one after the other, add_bnq, or change of the bank that is current when it opens,
/// mod_bnq.
class EcranBanque : public FenetreSaisie
{
    Q_OBJECT

public:
    EcranBanque(Forme forme, Contexte &contexte, QWidget *parent);
    ~EcranBanque() override;

signals:
    void ajoutee();

private:
    FicheBanque lire() const;
    void ecrire(const FicheBanque &fiche);
    void quitterCode();
    void enregistrer();

    const Forme m_forme;
    std::unique_ptr<Ui::EcranBanque> m_ui;
    /// The bank to be changed, as read and as shown at first.
    Enregistrement m_ligne;
    FicheBanque m_lue;
};
