#pragma once

#include "screens/fenetresaisie.h"
#include "storage/enregistrement.h"

#include <memory>

namespace Ui {
class EcranModificationEntete;
}
struct EntetesNumerotees;

/// A change of a header, told by what it has of its own.
struct FormeModificationEntete
{
    QString nom; ///< objectName
    QString titre;
    QString libelleSomme;
    QString libelleEffectif;
    const EntetesNumerotees &entetes;
};

/// Change of the two figures that a header declares.
class EcranModificationEntete : public FenetreSaisie
{
    Q_OBJECT

public:
    /// @param lue the header as it was shown
    EcranModificationEntete(Contexte &contexte, const FormeModificationEntete &forme,
                            const Enregistrement &lue, QWidget *parent);
    ~EcranModificationEntete() override;

private:
    void enregistrer();

    const FormeModificationEntete &m_forme;
    const Enregistrement m_lue;
    std::unique_ptr<Ui::EcranModificationEntete> m_ui;
};
