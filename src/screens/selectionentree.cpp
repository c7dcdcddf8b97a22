#include "screens/selectionentree.h"

#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>

#include <utility>

namespace {

/// Whether the focus comes from elsewhere, and not back from another window, a menu or a list of choices.
bool estUneEntree(Qt::FocusReason raison)
{
    return raison != Qt::ActiveWindowFocusReason && raison != Qt::PopupFocusReason &&
           raison != Qt::MenuBarFocusReason;
}

class SelectionALEntree : public QObject
{
public:
    explicit SelectionALEntree(QLineEdit &champ) : QObject(&champ), m_champ(champ)
    {
        champ.installEventFilter(this);
        // A list that can be typed in takes the focus for its field.
        if (QWidget *liste = champ.focusProxy())
            liste->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override
    {
        if (evenement->type() == QEvent::FocusIn)
            entrer(static_cast<QFocusEvent *>(evenement)->reason());
        if (objet != &m_champ)
            return false;
        switch (evenement->type()) {
        case QEvent::MouseButtonPress:
            return presser(*static_cast<QMouseEvent *>(evenement));
        case QEvent::MouseMove:
            return glisser(*static_cast<QMouseEvent *>(evenement));
        case QEvent::MouseButtonRelease:
            return std::exchange(m_enfonce, false);
        default:
            return false;
        }
    }

private:
    void entrer(Qt::FocusReason raison)
    {
        if (!estUneEntree(raison))
            return;
        m_champ.selectAll();
        m_parClic = raison == Qt::MouseFocusReason;
    }

    /// The click that brings the focus: the field itself would place its cursor.
    bool presser(const QMouseEvent &souris)
    {
        m_enfonce = std::exchange(m_parClic, false) && souris.button() == Qt::LeftButton;
        m_depart = souris.position().toPoint();
        return m_enfonce;
    }

    bool glisser(const QMouseEvent &souris)
    {
        // A hand that trembles is not selecting.
        if (!m_enfonce ||
            (souris.position().toPoint() - m_depart).manhattanLength() < QApplication::startDragDistance())
            return m_enfonce;
        m_enfonce = false;
        m_champ.setCursorPosition(m_champ.cursorPositionAt(m_depart));
        return false;
    }

    QLineEdit &m_champ;
    QPoint m_depart;
    bool m_parClic = false; ///< a click has brought the focus, and is still to come
    bool m_enfonce = false; ///< the button of that click is still down
};

} // namespace

void selectionnerALEntree(QLineEdit &champ) { new SelectionALEntree(champ); }
