#pragma once

#include <QElapsedTimer>
#include <QWidget>

#include <memory>

namespace Ui {
class FrmImpSal;
}
struct Contexte;

/// Import of a file of employees.
class FrmImpSal : public QWidget
{
    Q_OBJECT

public:
    explicit FrmImpSal(Contexte &contexte);
    ~FrmImpSal() override;

protected:
    void closeEvent(QCloseEvent *evenement) override;

private:
    void importer();
    void avancer(qint64 lignes);

    Contexte &m_contexte;
    std::unique_ptr<Ui::FrmImpSal> m_ui;
    QElapsedTimer m_dernierPas;
    bool m_enCours = false;
};
