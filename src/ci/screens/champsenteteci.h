#pragma once

#include "ci/enteteci.h"

#include <QWidget>

#include <memory>

namespace Ui {
class ChampsEnteteCi;
}
struct Contexte;
class QComboBox;
class QLineEdit;

/// The fields of a claim's header, for the entry and for the change. What each charge should be stands in its
/// tooltip, and comes into the field by F4 or by the button beside it.
class ChampsEnteteCi : public QWidget
{
    Q_OBJECT

public:
    explicit ChampsEnteteCi(QWidget *parent = nullptr);
    ~ChampsEnteteCi() override;

    /// To be called once. A change shows the fields that it can write, under its own names.
    void relier(Forme forme, Contexte &contexte);

    // The lists of an entry, to be filled
    QComboBox *employeurs() const;
    QComboBox *banques() const;

    /// The fields of an entry, in the order of the Enter key.
    QList<QWidget *> champs() const;

    FicheEnteteCi lire() const;
    void ecrire(const FicheEnteteCi &fiche);
    /// Ready for a new header.
    void vider();

private:
    void habiller(Forme forme);
    void relierListes(Contexte &contexte);
    void relierCharges(Contexte &contexte);
    void montrerAttendues();
    void reprendreAttendue(const ChargeCi &charge);
    QLineEdit *champ(const ChargeCi &charge) const;

    std::unique_ptr<Ui::ChampsEnteteCi> m_ui;
};
