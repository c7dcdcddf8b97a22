#include "screens/centrer.h"

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>

#include <algorithm>

namespace {

constexpr double UnitesParPouce = 1440;
constexpr double HauteurDuMenu = 1015;

QMdiArea *aireDe(const QWidget &fenetre)
{
    if (const QWidget *parent = fenetre.parentWidget()) {
        if (auto *aire = parent->window()->findChild<QMdiArea *>())
            return aire;
    }
    const auto fenetres = QApplication::topLevelWidgets();
    for (const QWidget *autre : fenetres) {
        if (auto *principale = qobject_cast<const QMainWindow *>(autre)) {
            if (auto *aire = principale->findChild<QMdiArea *>())
                return aire;
        }
    }
    return nullptr;
}

QPoint coin(const QSize &place, const QSize &taille)
{
    return {(place.width() - taille.width()) / 2, (place.height() - taille.height()) / 2};
}

class CentreurALOuverture : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override
    {
        if (evenement->type() == QEvent::Show) {
            CentrerFeuille(*static_cast<QWidget *>(objet));
            objet->removeEventFilter(this);
            deleteLater();
        }
        return false;
    }
};

} // namespace

void CentrerFeuille(QWidget &feuille)
{
    QWidget *fenetre = &feuille;
    if (!fenetre->isWindow() && qobject_cast<QMdiSubWindow *>(fenetre->parentWidget()))
        fenetre = fenetre->parentWidget();

    if (auto *enfant = qobject_cast<QMdiSubWindow *>(fenetre); enfant && enfant->mdiArea()) {
        const QPoint place = coin(enfant->mdiArea()->viewport()->size(), enfant->size());
        enfant->move(std::max(0, place.x()), std::max(0, place.y()));
        return;
    }

    const QMdiArea *aire = aireDe(*fenetre);
    if (!aire)
        return;
    const QWidget *principale = aire->window();
    QPoint place = principale->frameGeometry().topLeft() +
                   coin(aire->viewport()->size(), fenetre->frameGeometry().size());
    place.ry() += qRound(HauteurDuMenu / UnitesParPouce * fenetre->logicalDpiY());
    const QRect ecran = fenetre->screen()->availableGeometry();
    const QSize taille = fenetre->frameGeometry().size();
    place.setX(std::max(ecran.left(), std::min(place.x(), ecran.right() + 1 - taille.width())));
    place.setY(std::max(ecran.top(), std::min(place.y(), ecran.bottom() + 1 - taille.height())));
    fenetre->move(place);
}

void centrerALOuverture(QWidget &feuille) { feuille.installEventFilter(new CentreurALOuverture(&feuille)); }
