#pragma once

#include "declarations/screens/ecranentetes.h"

#include <memory>

namespace Ui {
class FrmEntCi;
}

/// The headers of the claims for bad weather, and the way from them to the lines and the file.
class FrmEntCi : public EcranEntetes
{
    Q_OBJECT

public:
    explicit FrmEntCi(Contexte &contexte);
    ~FrmEntCi() override;

protected:
    void keyPressEvent(QKeyEvent *evenement) override;

private:
    void ajouter();

    std::unique_ptr<Ui::FrmEntCi> m_ui;
};
