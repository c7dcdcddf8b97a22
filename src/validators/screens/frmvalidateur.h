#pragma once

#include "validators/validateur.h"

#include <QElapsedTimer>
#include <QWidget>

#include <functional>
#include <memory>
#include <span>

class ModeleErreurs;
class QPlainTextEdit;
class QPrinter;
class QTableView;
struct Contexte;

namespace Ui {
class FrmValidateur;
}

/// A label that shows a field of the header, and where its caption stands in the grid, left of it.
struct LibelleEntete
{
    QStringView nom; ///< as the validator names it
    QStringView titre;
    QStringView nomAccessible;
    int ligne;
    int colonne;
    int largeur;
    int etendue = 1; ///< in columns
};

/// What a screen has of its own.
struct PresentationValidateur
{
    QStringView nom;
    QStringView titre;
    std::span<const LibelleEntete> entete;
};

/// What the screens of the validators are: the choice of the file, the extraction with its progress, the two
/// tables of errors, their print and its preview.
class FrmValidateur : public QWidget
{
    Q_OBJECT

public:
    /// Asks for the printer and the number of copies. @return false when cancelled
    std::function<bool(QPrinter &)> CDImprimer;

protected:
    FrmValidateur(Contexte &contexte, std::unique_ptr<Validateur> validateur,
                  const PresentationValidateur &presentation);
    ~FrmValidateur() override;

    /// The start of every extraction, behind the emptying of lists and labels.
    virtual void avantExtraction() {}

    bool eventFilter(QObject *objet, QEvent *evenement) override;

    Contexte &m_contexte;
    std::unique_ptr<Ui::FrmValidateur> m_cadre;

private:
    void placerEntete(std::span<const LibelleEntete> entete);
    void relier();
    void relierListe(QTableView &table, QPlainTextEdit &detail, const ListesErreurs &listes);
    void extraire();
    void avancer(qint64 lus, qint64 total);
    void actualiser();
    void imprimer(const ListesErreurs &listes);
    void montrer(const ListesErreurs &listes);

    std::unique_ptr<Validateur> m_validateur;
    QList<ModeleErreurs *> m_modeles;
    QElapsedTimer m_depuisPeinture;
};
