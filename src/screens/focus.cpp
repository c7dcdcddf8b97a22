#include "screens/focus.h"

#include "rules/erreurs.h"
#include "rules/refus.h"
#include "screens/dernierrecours.h"
#include "screens/feuille.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr char Fermeture[] = "fermeture";

/// Whether an action on leaving is under way, in any field: where it puts the focus is not another leaving.
bool enSortie = false;

bool contient(const QWidget &champ, const QWidget *controle)
{
    return controle && (controle == &champ || champ.isAncestorOf(controle));
}

/// Eats the click that is on its way to a control, up to the end of the event under way.
class ClicAvale : public QObject
{
public:
    explicit ClicAvale(QWidget *cible) : QObject(cible)
    {
        cible->installEventFilter(this);
        QTimer::singleShot(0, this, [this, cible] {
            cible->removeEventFilter(this);
            deleteLater();
        });
    }

protected:
    bool eventFilter(QObject *, QEvent *evenement) override
    {
        return evenement->type() == QEvent::MouseButtonPress;
    }
};

/// The action may have opened a box, which got the release of the mouse instead of the pressed button.
void releverSansClic(QAbstractButton *bouton)
{
    QTimer::singleShot(0, bouton, [bouton] {
        if (QGuiApplication::mouseButtons() == Qt::NoButton)
            bouton->setDown(false);
    });
}

/// Turns the tabs around a control so that it shows.
void montrerOnglet(QWidget &champ)
{
    for (QWidget *page = &champ; page && !page->isWindow(); page = page->parentWidget()) {
        const QWidget *pages = page->parentWidget();
        if (auto *onglets = pages ? qobject_cast<QTabWidget *>(pages->parentWidget()) : nullptr)
            onglets->setCurrentWidget(page);
    }
}

} // namespace

void reprendreSaisie(QWidget &champ)
{
    if (QWidget *dedans = champ.focusProxy())
        return reprendreSaisie(*dedans);
    montrerOnglet(champ);
    champ.setFocus(Qt::OtherFocusReason);
    auto *texte = qobject_cast<QLineEdit *>(&champ);
    if (auto *liste = qobject_cast<QComboBox *>(&champ))
        texte = liste->lineEdit();
    if (texte)
        texte->selectAll();
}

void reprendreSaisie(QWidget &feuille, const Refus &refus)
{
    if (refus.controle.isEmpty())
        return;
    auto *champ = feuille.findChild<QWidget *>(refus.controle.toString());
    if (!champ) {
        throw ErreurBase(u"La fenêtre « %1 » n'a pas de champ « %2 »."_s.arg(feuille.objectName(),
                                                                             refus.controle.toString()));
    }
    reprendreSaisie(*champ);
}

void boutonsParEntree(QWidget &feuille)
{
    const auto boutons = feuille.findChildren<QPushButton *>();
    for (QPushButton *bouton : boutons)
        bouton->setAutoDefault(true);
}

bool passerAuSuivant(const QKeyEvent &touche, const QList<QWidget *> &champs, QAbstractButton &bouton)
{
    if (touche.key() != Qt::Key_Return && touche.key() != Qt::Key_Enter)
        return false;
    const auto ici = std::find_if(champs.begin(), champs.end(), [](const QWidget *champ) {
        return contient(*champ, QApplication::focusWidget());
    });
    if (ici == champs.end())
        return false;
    const auto suivant =
        std::find_if(ici + 1, champs.end(), [](const QWidget *champ) { return champ->isEnabled(); });
    if (suivant != champs.end()) {
        (*suivant)->setFocus(Qt::TabFocusReason);
    } else {
        // The focus leaves the last field first, so that what leaving it tells comes before the press.
        bouton.setFocus(Qt::TabFocusReason);
        if (bouton.hasFocus())
            bouton.click();
    }
    return true;
}

void fermerPar(QAbstractButton &bouton, QWidget &feuille)
{
    bouton.setProperty(Fermeture, true);
    QObject::connect(&bouton, &QAbstractButton::clicked, &feuille, &QWidget::close);
}

void surSortie(QWidget &champ, DernierRecours &dernierRecours, std::function<void()> action)
{
    const auto sortir = [&champ, &dernierRecours, action = std::move(action)] {
        if (!feuilleDe(&champ)->isVisible())
            return; // it is closing, and hands the focus on while it goes
        enSortie = true;
        dernierRecours.agir(action);
        enSortie = false;
    };
    QObject::connect(qApp, &QApplication::focusChanged, &champ,
                     [&champ, sortir](QWidget *ancien, QWidget *nouveau) {
                         if (enSortie || !contient(champ, ancien) || !nouveau || contient(champ, nouveau) ||
                             feuilleDe(&champ) != feuilleDe(nouveau))
                             return;
                         if (!champ.isVisible()) {
                             // Its tab goes. Only when the other one is there can a box open and the focus
                             // stay.
                             QTimer::singleShot(0, &champ, sortir);
                             return;
                         }
                         if (nouveau->property(Fermeture).toBool())
                             return;
                         const QPointer<QWidget> cible = nouveau;
                         sortir();
                         if (!cible)
                             return;
                         if (QApplication::focusWidget() != cible)
                             new ClicAvale(cible);
                         else if (auto *bouton = qobject_cast<QAbstractButton *>(cible.data()))
                             releverSansClic(bouton);
                     });
}
