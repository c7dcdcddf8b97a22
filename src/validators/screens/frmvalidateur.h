#pragma once

#include "validators/validateur.h"

#include <QElapsedTimer>
#include <QWidget>

#include <functional>
#include <memory>

class ModeleErreurs;
class QPrinter;
class QProgressBar;
class QTabWidget;
struct Contexte;

/// What the screens of the validators share: the choice of the file, the extraction with its progress, the
/// two tables of errors, their print and its preview. A screen brings its controls, under the names that are
/// the same on all, and labels named as its validator names them.
class FrmValidateur : public QWidget
{
    Q_OBJECT

public:
    /// Asks for the printer and the number of copies. @return false when cancelled
    std::function<bool(QPrinter &)> CDImprimer;

protected:
    FrmValidateur(Contexte &contexte, std::unique_ptr<Validateur> validateur);
    ~FrmValidateur() override;

    /// To be called once the controls are there.
    void relier();

    /// The start of every extraction, behind the emptying of lists and labels.
    virtual void avantExtraction() {}

    bool eventFilter(QObject *objet, QEvent *evenement) override;

    Contexte &m_contexte;

private:
    void relierListe(const QString &nom, const ListesErreurs &listes);
    void extraire();
    void avancer(qint64 lus, qint64 total);
    void actualiser();
    void imprimer(const ListesErreurs &listes);
    void montrer(const ListesErreurs &listes);

    std::unique_ptr<Validateur> m_validateur;
    QList<ModeleErreurs *> m_modeles;
    QTabWidget *m_onglets = nullptr;
    QProgressBar *m_avancement = nullptr;
    QElapsedTimer m_depuisPeinture;
};
