#pragma once

#include "screens/grille.h"
#include "storage/recordset.h"

#include <QWidget>

#include <memory>

namespace Ui {
class EcranTransfert;
}
class Base;
struct Contexte;
struct TransfertLignes;

/// A transfer of lines, told by what it has of its own.
struct FormeTransfert
{
    QString nom; ///< objectName
    QString titre;
    QString libellePeriode;
    QString libelleDestination;
    // objectNames of the two lists of periods
    QString controleSource;
    QString controleDestination;
    QString afficher;
    QString titreListe;
    QList<ColonneGrille> colonnes;
    const TransfertLignes &transfert;
    /// Where the periods to choose from come from.
    Recordset Base::*periodes;
    QString colonnePeriode;
};

/// The lines of an employer's period, to be copied into another one.
class EcranTransfert : public QWidget
{
    Q_OBJECT

public:
    /// The window of an entry; nullptr where there is no employer, which is told.
    template <typename Ecran>
    static QWidget *preparer(Contexte &contexte)
    {
        return permis(contexte) ? new Ecran(contexte) : nullptr;
    }

    EcranTransfert(Contexte &contexte, const FormeTransfert &forme);
    ~EcranTransfert() override;

private:
    static bool permis(Contexte &contexte);
    void habiller();
    void relier();
    void afficher();
    void annuler();
    void transferer();
    /// @param affichees whether the lines of a choice are shown
    void permettre(bool affichees);

    Contexte &m_contexte;
    const FormeTransfert &m_forme;
    std::unique_ptr<Ui::EcranTransfert> m_ui;
    Recordset m_lignes;
    bool m_affichees = false;
};
