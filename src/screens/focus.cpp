#include "screens/focus.h"

#include "rules/erreurs.h"
#include "rules/refus.h"
#include "screens/dernierrecours.h"
#include "screens/feuille.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

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

} // namespace

void reprendreSaisie(QWidget &champ)
{
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

void marquerFermeture(QAbstractButton &bouton) { bouton.setProperty(Fermeture, true); }

void surSortie(QWidget &champ, DernierRecours &dernierRecours, std::function<void()> action)
{
    QObject::connect(
        qApp, &QApplication::focusChanged, &champ,
        [&champ, &dernierRecours, action = std::move(action)](QWidget *ancien, QWidget *nouveau) {
            if (enSortie || !contient(champ, ancien) || !nouveau || contient(champ, nouveau) ||
                nouveau->property(Fermeture).toBool() || feuilleDe(&champ) != feuilleDe(nouveau))
                return;
            const QPointer<QWidget> cible = nouveau;
            enSortie = true;
            dernierRecours.agir(action);
            enSortie = false;
            if (!cible)
                return;
            if (QApplication::focusWidget() != cible)
                new ClicAvale(cible);
            else if (auto *bouton = qobject_cast<QAbstractButton *>(cible.data()))
                releverSansClic(bouton);
        });
}
