#pragma once

#include "screens/contexte.h"
#include "shell/entreesdemenu.h"

#include <QMainWindow>
#include <QPointer>

#include <map>

class QAbstractButton;
class QKeySequence;
class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QMenu;

/// The main window: it holds the menu and the windows opened from it, one copy of each at a time.
class MDIForm : public QMainWindow, public MenuPrincipal
{
    Q_OBJECT

public:
    MDIForm(Base &base, Dialogue &dialogue, DernierRecours &dernierRecours, BornesDePeriode &bornes,
            const QList<EntreeDeMenu> &menu);

    /// The Load handler, to be called once the window is shown: lays down the folder of a first start, opens
    /// the database, brings it up to date and sets the menu. Ends the program where a start ends it.
    void charger();

    void accorderDeclarations() override;
    void ouvrir(const QString &entree) override { ouvrir(m_entrees.at(entree)); }

protected:
    void closeEvent(QCloseEvent *evenement) override;
    bool eventFilter(QObject *objet, QEvent *evenement) override;

private:
    struct Entree
    {
        QAction *action = nullptr;
        bool permise = true;
        bool sousMenu = false;
        Fabrique fabrique;
        QPointer<QMdiSubWindow> fenetre;
    };

    void faireLeMenu();
    void permettre(const QString &entree, bool permis);
    void ouvrir(Entree &entree);
    static void rafraichir(const Entree &entree);
    void faireCoche(const QString &nom, QMenu &menu);
    void activerGroupe(const QString &coche, bool active);
    QAbstractButton *boutonDeLaFenetreActive(const QKeySequence &touches) const;

    Contexte m_contexte;
    const QList<EntreeDeMenu> m_menu;
    QMdiArea *m_aire;
    QLabel *m_chemin;
    std::map<QString, Entree> m_entrees;
};
