#include "shell/mdiform.h"

#include "rules/dialogue.h"
#include "rules/nombre.h"
#include "screens/centrer.h"
#include "screens/dernierrecours.h"
#include "screens/etatsfenetres.h"
#include "shell/fenetrefille.h"
#include "storage/base.h"
#include "storage/demarrage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QSet>
#include <QShortcutEvent>
#include <QStatusBar>

#include <memory>

using namespace Qt::StringLiterals;

MDIForm::MDIForm(Base &base, Dialogue &dialogue, DernierRecours &dernierRecours, BornesDePeriode &bornes,
                 const QList<EntreeDeMenu> &menu)
    : m_contexte{base, dialogue, dernierRecours, bornes, *this}, m_menu(menu), m_aire(new QMdiArea),
      m_chemin(new QLabel)
{
    setObjectName(u"MDIForm"_s);
    setWindowTitle(TitreApplication + u' ' + QLatin1String(DAS_VERSION));
    m_aire->setObjectName(u"Aire"_s);
    m_aire->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_aire->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    // The window that was in use before comes to the front when one closes: another may lie hidden.
    m_aire->setActivationOrder(QMdiArea::ActivationHistoryOrder);
    m_aire->setAccessibleName(u"Fenêtres ouvertes"_s);
    m_aire->setBackground(palette().color(QPalette::Window).darker(112));
    setCentralWidget(m_aire);
    m_chemin->setObjectName(u"LabBase"_s);
    m_chemin->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_chemin->setContentsMargins(6, 0, 6, 0);
    statusBar()->addWidget(m_chemin);
    faireLeMenu();
    qApp->installEventFilter(this);
    if (!reprendreGeometrie(*this))
        resize(QSize(1100, 720).boundedTo(screen()->availableSize()));
}

void MDIForm::charger()
{
    DernierRecours &recours = m_contexte.dernierRecours;
    bool finProgramme = false;
    recours.agir([&] {
        finProgramme = demarrer(m_contexte.base, m_contexte.dialogue) == Demarrage::FinProgramme;
        // A start that did not get as far as the employers leaves the menu as it is delivered.
        if (m_contexte.base.RsEmployeur.estOuvert())
            accorderDeclarations();
    });
    if (finProgramme) {
        QCoreApplication::exit(0);
        return;
    }
    recours.agir(DetecterDecimale);
    if (m_contexte.base.Cnx.estOuverte())
        m_chemin->setText(u"Base de données : "_s + QDir::toNativeSeparators(m_contexte.base.Cnx.chemin()));
}

void MDIForm::faireLeMenu()
{
    menuBar()->setAccessibleName(u"Menu principal"_s);
    QHash<QString, QMenu *> sousMenus;
    QSet<QString> parents;
    for (const EntreeDeMenu &ligne : m_menu)
        parents.insert(QString::fromUtf16(ligne.parent));
    for (const EntreeDeMenu &ligne : m_menu) {
        const QString nom = QString::fromUtf16(ligne.nom);
        const QString libelle = QString::fromUtf16(ligne.libelle);
        QMenu *parent = ligne.parent ? sousMenus.value(QString::fromUtf16(ligne.parent)) : nullptr;

        Entree &entree = m_entrees[nom];
        entree.permise = ligne.permise;
        entree.sousMenu = parents.contains(nom);
        if (entree.sousMenu) {
            auto *menu = parent ? parent->addMenu(libelle) : menuBar()->addMenu(libelle);
            menu->setObjectName(nom);
            sousMenus.insert(nom, menu);
            entree.action = menu->menuAction();
        } else {
            entree.action = parent->addAction(libelle);
            entree.fabrique = ligne.fabrique;
        }
        entree.action->setObjectName(nom);
        if (ligne.touche)
            entree.action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key(ligne.touche)));
        if (ligne.icone != QStyle::SP_CustomBase)
            entree.action->setIcon(style()->standardIcon(ligne.icone));

        if (nom == u"wquit"_s) {
            m_contexte.dernierRecours.connecter(entree.action, &QAction::triggered, this, &QWidget::close);
        } else if (ligne.coche) {
            faireCoche(nom, *parent);
        } else {
            if (!entree.sousMenu) {
                m_contexte.dernierRecours.connecter(entree.action, &QAction::triggered, this,
                                                    [this, &entree] { ouvrir(entree); });
            }
            rafraichir(entree);
        }
    }
}

/// Some entries are off in the delivered menu. The clerk turns them on, group by group, for good.
void MDIForm::faireCoche(const QString &nom, QMenu &menu)
{
    QAction *action = m_entrees.at(nom).action;
    const QList<QAction *> actions = menu.actions();
    const QAction *precedente = actions.size() > 1 ? actions[actions.size() - 2] : nullptr;
    if (precedente && !precedente->isCheckable())
        menu.insertSeparator(action);

    const QString cle = u"menu/"_s + nom;
    action->setCheckable(true);
    action->setChecked(reglages().value(cle, false).toBool());
    activerGroupe(nom, action->isChecked());
    m_contexte.dernierRecours.connecter(action, &QAction::toggled, this, [this, nom, cle](bool active) {
        reglages().setValue(cle, active);
        activerGroupe(nom, active);
    });
}

void MDIForm::activerGroupe(const QString &coche, bool active)
{
    for (const EntreeDeMenu &ligne : m_menu) {
        if (ligne.activeePar && coche == QStringView(ligne.activeePar))
            permettre(QString::fromUtf16(ligne.nom), active);
    }
}

void MDIForm::rafraichir(const Entree &entree)
{
    entree.action->setEnabled(entree.permise && (entree.sousMenu || (entree.fabrique && !entree.fenetre)));
}

void MDIForm::permettre(const QString &entree, bool permis)
{
    Entree &visee = m_entrees.at(entree);
    visee.permise = permis;
    rafraichir(visee);
}

void MDIForm::accorderDeclarations() { permettre(u"wdas"_s, m_contexte.base.declarationsPossibles()); }

void MDIForm::ouvrir(Entree &entree)
{
    if (entree.fenetre) {
        if (entree.fenetre->isMinimized())
            entree.fenetre->showNormal();
        m_aire->setActiveSubWindow(entree.fenetre);
        return;
    }
    QWidget *feuille = entree.fabrique(m_contexte);
    if (!feuille)
        return;
    auto *fenetre = new FenetreFille(feuille);
    m_aire->addSubWindow(fenetre);
    const int boutonsDuCadre = 140;
    const int titre = fenetre->fontMetrics().horizontalAdvance(fenetre->windowTitle()) + boutonsDuCadre;
    // In an area that is too small the window keeps its place for every control, and the area scrolls.
    fenetre->resize(fenetre->sizeHint()
                        .expandedTo(QSize(titre, 0))
                        .boundedTo(m_aire->viewport()->size())
                        .expandedTo(fenetre->minimumSizeHint()));
    CentrerFeuille(*fenetre);
    connect(fenetre, &FenetreFille::fermee, this, [&entree] {
        entree.fenetre = nullptr;
        rafraichir(entree);
    });
    entree.fenetre = fenetre;
    fenetre->show();
    rafraichir(entree);
}

/// The button of the active window that has these keys and can be pressed, nullptr without one.
QAbstractButton *MDIForm::boutonDeLaFenetreActive(const QKeySequence &touches) const
{
    const QMdiSubWindow *fenetre = m_aire->activeSubWindow();
    if (!fenetre || !isActiveWindow())
        return nullptr;
    const auto boutons = fenetre->findChildren<QAbstractButton *>();
    for (QAbstractButton *bouton : boutons) {
        if (bouton->shortcut() == touches && bouton->isVisible() && bouton->isEnabled())
            return bouton;
    }
    return nullptr;
}

bool MDIForm::eventFilter(QObject *objet, QEvent *evenement)
{
    if (evenement->type() == QEvent::ShortcutOverride) {
        // Text fields would keep some of the menu's keys for themselves, Ctrl+E on X11 among them.
        const QKeySequence touches(static_cast<QKeyEvent *>(evenement)->keyCombination());
        for (const auto &[nom, entree] : m_entrees) {
            if (entree.action->shortcut() == touches) {
                evenement->ignore();
                return true;
            }
        }
    }
    if (evenement->type() == QEvent::Shortcut) {
        // "&Ajouter" and "&Aide", "&Fermer" and "&Fichier" share their keys: the window comes before the
        // menu.
        const auto *raccourci = static_cast<QShortcutEvent *>(evenement);
        QAbstractButton *bouton = boutonDeLaFenetreActive(raccourci->key());
        if (raccourci->isAmbiguous() && bouton) {
            bouton->setFocus(Qt::ShortcutFocusReason);
            bouton->animateClick();
            return true;
        }
    }
    return QMainWindow::eventFilter(objet, evenement);
}

void MDIForm::closeEvent(QCloseEvent *evenement)
{
    m_aire->closeAllSubWindows();
    for (const auto &[nom, entree] : m_entrees) {
        // A screen in the middle of its work refuses: its routine is still on the stack.
        if (entree.fenetre) {
            evenement->ignore();
            return;
        }
    }
    garderGeometrie(*this);
    evenement->accept();
}
