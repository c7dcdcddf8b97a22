#pragma once

#include <QWidget>

#include <memory>

struct Contexte;

namespace Ui {
class FrmGenCle;
}

/// A calculator of the keys of SS and CCP numbers, which also checks that of a RIP or RIB.
class FrmGenCle : public QWidget
{
    Q_OBJECT

public:
    explicit FrmGenCle(Contexte &contexte);
    ~FrmGenCle() override;

private:
    void generer();
    void reinitialiser();

    Contexte &m_contexte;
    std::unique_ptr<Ui::FrmGenCle> m_ui;
};
