#pragma once

#include "screens/fenetretable.h"

#include <memory>
#include <optional>

namespace Ui {
class frmsalarie;
}
class RechercheSalaries;

/// The employees.
class frmsalarie : public FenetreTable
{
    Q_OBJECT

public:
    explicit frmsalarie(Contexte &contexte);
    ~frmsalarie() override;

protected:
    void showEvent(QShowEvent *evenement) override;
    void closeEvent(QCloseEvent *evenement) override;

private:
    void ajouter();
    void modifier();
    void montrerCourant();
    QString nationaliteDe(const QString &numero);

    Recordset &m_salaries;
    std::unique_ptr<Ui::frmsalarie> m_ui;
    RechercheSalaries *m_recherche = nullptr;
    /// The number whose nationality is shown. Thousands may share the number of those who have none.
    std::optional<QString> m_numeroMontre;
};
