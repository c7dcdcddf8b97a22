#pragma once

#include "declarations/screens/ecranentetes.h"

#include <memory>

namespace Ui {
class EcranEntetesNumerotees;
}
struct EntetesNumerotees;

/// A button that only one declaration has: where it stands among the others, and what it does with the
/// current header.
struct BoutonEntete
{
    QString nom; ///< objectName
    QString texte;
    int rangee;
    int colonne;
    /// Nothing yet: the button stays off.
    void (*action)(Contexte &contexte, const Enregistrement &entete, QWidget *ecran) = nullptr;
};

/// A list of headers with numbers, told by what it has of its own.
struct FormeEntetesNumerotees
{
    QString nom; ///< objectName
    FormeEntetes liste;
    const EntetesNumerotees &entetes;
    /// Where the periods to choose from come from.
    Recordset Base::*periodes;
    QString colonnePeriode;
    QList<BoutonEntete> boutons = {};

    // What the fields are called

    QString titre;
    QString libellePeriode;
    QString complementaire;
    QString aide;
    QString libelleSomme;
    QString titreListe;
    QString libelleCumul;
    QString libelleNombre;

    // The fields behind an add

    QString sommeVide;
    QString effectifVide;
    /// Whether the box of the complementary declarations is cleared.
    bool decoche = false;
    /// Whether the trade name of the chosen employer is shown.
    bool raisonSociale = false;
};

/// The headers that stand for an employer and a period under a number.
class EcranEntetesNumerotees : public EcranEntetes
{
    Q_OBJECT

public:
    EcranEntetesNumerotees(Contexte &contexte, const FormeEntetesNumerotees &forme);
    ~EcranEntetesNumerotees() override;

private:
    void habiller();
    QList<QWidget *> ajouterBoutons();
    void ajouter();

    const FormeEntetesNumerotees &m_forme;
    std::unique_ptr<Ui::EcranEntetesNumerotees> m_ui;
};
