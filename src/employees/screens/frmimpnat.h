#pragma once

#include <QWidget>

#include <memory>

struct Contexte;

namespace Ui {
class FrmImpNat;
}

/// The import of the table of nationalities, which is done once.
class FrmImpNat : public QWidget
{
    Q_OBJECT

public:
    /// @throws ErreurBase when the table is not open
    explicit FrmImpNat(Contexte &contexte);
    ~FrmImpNat() override;

private:
    void importer();
    void montrerNombre();

    Contexte &m_contexte;
    std::unique_ptr<Ui::FrmImpNat> m_ui;
};
