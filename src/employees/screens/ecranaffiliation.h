#pragma once

#include "employees/affiliation.h"
#include "screens/fenetresaisie.h"

#include <memory>

namespace Ui {
class EcranAffiliation;
}
class QLineEdit;

/// What the entry and the change of an employee share: the fields, what they do to each other, and the way of
/// a save. One .ui serves both, because they differ in a caption and one field.
class EcranAffiliation : public FenetreSaisie
{
    Q_OBJECT

protected:
    EcranAffiliation(Forme ecran, Contexte &contexte, QWidget *parent);
    ~EcranAffiliation() override;

    FicheSalarie lire() const;
    void montrer(const FicheSalarie &fiche);
    /// Puts the cursor where an entry begins.
    void commencer();

    virtual std::optional<Refus> enregistrer(FicheSalarie &fiche) = 0;

    bool eventFilter(QObject *objet, QEvent *evenement) override;

    std::unique_ptr<Ui::EcranAffiliation> m_ui;

private:
    void preparerListes();
    void suivreSaisie();
    void valider();
    void permettre();
    void chargerCommunes();
    void quitterDate();
    void communeSansWilaya();
    void limiterAdresse();

    const Forme m_ecran;
};
