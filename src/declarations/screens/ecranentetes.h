#pragma once

#include "declarations/declaration.h"
#include "screens/fenetretable.h"

#include <QPointer>

class EcranLignes;
class QCheckBox;
class QComboBox;
class QLineEdit;
class LignesDeclaration;
struct FichierDeclaration;

/// A list of headers, told by what it has of its own.
struct FormeEntetes
{
    const GenreDeclaration &genre;
    const FichierDeclaration &fichier;
    QList<ColonneGrille> colonnes;
    /// Which columns of the header stand under the list, as what the lines add up to.
    QString somme;
    QString effectif;
    EcranLignes *(*lignes)(Contexte &contexte, const LignesDeclaration &lignes, QWidget *parent);
    void (*modifier)(Contexte &contexte, const Enregistrement &entete, QWidget *parent);
};

/// The headers of a declaration, and the way from them to the lines and the file. How a header is added is
/// the window's own.
class EcranEntetes : public FenetreTable
{
    Q_OBJECT

public:
    /// Fills a list of choices with a column of the table as it is now; nothing is chosen.
    static void remplirListe(QComboBox &liste, Recordset &table, const QString &colonne);

protected:
    EcranEntetes(Contexte &contexte, const FormeEntetes &forme);
    ~EcranEntetes() override;

    struct ControlesEntetes
    {
        Grille *DataGrid1;
        QAbstractButton *cmdmod;
        QAbstractButton *cmdDelete;
        QAbstractButton *cmddetail;
        QAbstractButton *cmdexpor;
        QAbstractButton *fermer;
        QCheckBox *chkChemin;
        QLineEdit *calcsumEdit;
        QLineEdit *calcsalEdit;
        /// More that needs a row.
        QList<QWidget *> autres = {};
    };

    /// To be called once the controls are there.
    void relier(const ControlesEntetes &controles);

    /// The current header as it is shown.
    Enregistrement courante() const;

private:
    void ouvrirLignes();
    void changerEntete();
    void montrerSommes();

    const FormeEntetes &m_forme;
    ControlesEntetes m_controles{};
    QPointer<EcranLignes> m_lignes;
};
