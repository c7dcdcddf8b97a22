#pragma once

#include "dac/lignedac.h"

#include <QWidget>

#include <memory>
#include <vector>

namespace Ui {
class ChampsLigneDac;
}
class QAbstractButton;
class QCheckBox;
class QKeyEvent;

/// The five fields of a line, each with a box that freezes it.
class ChampsLigneDac : public QWidget
{
    Q_OBJECT

public:
    explicit ChampsLigneDac(QWidget *parent = nullptr);
    ~ChampsLigneDac() override;

    /// Takes the boxes away.
    void sansGel();
    void permettre(bool ouverts);

    /// The values of the fields; the employee is not among them.
    FicheLigneDac lire() const;
    void ecrire(const FicheLigneDac &fiche);
    /// Empties the fields that are not frozen.
    void vider();

    /// Gives the focus to the first open field, and to the button when there is none.
    void commencer(QAbstractButton &bouton);
    /// Gives the focus back to a refused field; to its box when it is frozen.
    void reprendre(const Refus &refus);
    /// Lets Enter go on to the next open field, and press the button behind the last one.
    bool suivant(const QKeyEvent &touche, QAbstractButton &bouton);

private:
    struct Champ
    {
        QWidget *champ;
        QCheckBox *gel;
    };

    QList<QWidget *> champs() const;

    std::unique_ptr<Ui::ChampsLigneDac> m_ui;
    std::vector<Champ> m_champs;
};
