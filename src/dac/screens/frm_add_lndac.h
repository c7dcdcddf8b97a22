#pragma once

#include "screens/fenetresaisie.h"
#include "storage/listerequete.h"
#include "storage/recordset.h"

#include <QSet>

#include <memory>
#include <optional>
#include <utility>

namespace Ui {
class frm_add_Lndac;
}
class FrappeSalaries;
class LignesDeclaration;

/// Entry of many lines: the employees on one side and the lines made on the other, until an employee is
/// taken; then the fields of his line, some of them frozen from one employee to the next.
class frm_add_Lndac : public FenetreSaisie
{
    Q_OBJECT

public:
    frm_add_Lndac(Contexte &contexte, LignesDeclaration &lignes, QWidget *parent);
    ~frm_add_Lndac() override;

protected:
    void keyPressEvent(QKeyEvent *evenement) override;

private:
    /// Number and cpt_z.
    using Salarie = std::pair<QString, qint64>;

    void ouvrirSalaries();
    void ouvrirLignes();
    void retenirFaites();
    void relire();
    void montrerNombre();
    bool aUneLigne(int ligne) const;
    void prendreCourant();
    void inserer();
    void prendre(const Salarie &salarie);
    void recommencer();
    void enregistrer();
    void allerAuSuivant();

    LignesDeclaration &m_lignes;
    Recordset m_salaries;
    ListeRequete m_faites;
    QSet<Salarie> m_avecLigne; ///< among the employees who are there
    std::optional<Salarie> m_pris;
    std::unique_ptr<Ui::frm_add_Lndac> m_ui;
    FrappeSalaries *m_frappe = nullptr;
};
