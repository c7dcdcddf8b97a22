#pragma once

#include "declarations/lignes.h"
#include "screens/fenetretable.h"

#include <memory>

namespace Ui {
class EcranLignes;
}

/// What the head of a lines list says of its declaration.
struct BandeauLignes
{
    QString campagne;
    QString type;
};

/// A lines list, told by what it has of its own.
struct FormeLignes
{
    QString nom; ///< objectName
    QString titre;
    QString titreListe;
    QList<ColonneGrille> colonnes;
    /// How much room the list has at least.
    int largeur = 640;
    BandeauLignes (*bandeau)(const CleDeclaration &cle);
    /// Whether the accounts of the employee are shown beside the list.
    bool avecComptes = true;
    void (*ajouter)(Contexte &contexte, LignesDeclaration &lignes, QWidget *parent);
    void (*modifier)(Contexte &contexte, LignesDeclaration &lignes, const Enregistrement &ligne,
                     QWidget *parent);
};

/// The lines of one header. It stands beside the list of headers and follows its current row; names beside
/// the lines follow what other windows change.
class EcranLignes : public FenetreTable
{
    Q_OBJECT

public:
    /// @param lignes shows the lines of the header already
    EcranLignes(Contexte &contexte, const LignesDeclaration &lignes, const FormeLignes &forme,
                QWidget *parent);
    ~EcranLignes() override;

    /// Shows the lines of another header.
    void suivre(const CleDeclaration &cle);

private:
    void montrerEntete();
    void montrerSalarie();
    /// Does it again when the employees or the employers change.
    void suivreTables();

    LignesDeclaration m_lignes;
    const FormeLignes &m_forme;
    std::unique_ptr<Ui::EcranLignes> m_ui;
};
