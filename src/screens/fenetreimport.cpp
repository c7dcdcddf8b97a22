#include "screens/fenetreimport.h"

#include "screens/contexte.h"
#include "screens/dernierrecours.h"
#include "screens/focus.h"
#include "ui_fenetreimport.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {

/// How often the window is painted during an import, in milliseconds.
constexpr qint64 pas = 50;

bool estSaisie(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
    case QEvent::Drop:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}

} // namespace

FenetreImport::FenetreImport(Contexte &contexte, const QString &nom, const QString &titre,
                             const QString &invitation)
    : m_contexte(contexte), m_ui(std::make_unique<Ui::FenetreImport>())
{
    m_ui->setupUi(this);
    setObjectName(nom);
    setWindowTitle(titre);
    m_ui->LabInvite->setText(invitation);
    for (QWidget *controle :
         std::initializer_list<QWidget *>{m_ui->ProgressBar1, m_ui->LabLignes, m_ui->CmdArreter}) {
        QSizePolicy place = controle->sizePolicy();
        place.setRetainSizeWhenHidden(true); // the window keeps its shape when they come and go
        controle->setSizePolicy(place);
    }
    boutonsParEntree(*this);
    montrerCours(false);
    contexte.dernierRecours.connecter(m_ui->CmdImport, &QAbstractButton::clicked, this,
                                      [this] { importer(); });
    connect(m_ui->CmdArreter, &QAbstractButton::clicked, this, [this] { m_arret = true; });
    fermerPar(*m_ui->Command1, *this);
    m_ui->CmdImport->setFocus();
}

FenetreImport::~FenetreImport() = default;

void FenetreImport::placer(QWidget *resultats) { m_ui->feuilleResultats->addWidget(resultats); }

void FenetreImport::executer(const std::function<void(const Avancement &)> &import)
{
    m_enCours = true;
    m_arret = false;
    m_ui->CmdImport->setEnabled(false);
    const auto fin = qScopeGuard([this] {
        m_enCours = false;
        m_ui->CmdImport->setEnabled(true);
        m_ui->CmdImport->setFocus();
        montrerCours(false);
        unsetCursor();
    });
    import([this](qint64 lignes) { return avancer(lignes);
});
}

void FenetreImport::montrerCours(bool enCours)
{
    m_ui->ProgressBar1->setVisible(enCours);
    m_ui->LabLignes->setVisible(enCours);
    m_ui->CmdArreter->setVisible(enCours);
    m_ui->Command1->setEnabled(!enCours);
}

/// The bar turns from its beginning to its end again and again, a step each time that there is one to see.
bool FenetreImport::avancer(qint64 lignes)
{
    QProgressBar &barre = *m_ui->ProgressBar1;
    if (lignes == 0) {
        setCursor(Qt::WaitCursor);
        m_ui->CmdArreter->setCursor(Qt::ArrowCursor);
        barre.setValue(barre.minimum());
        montrerCours(true);
        m_ui->CmdArreter->setFocus();
    } else if (m_depuisPeinture.elapsed() < pas) {
        return true;
    } else {
        barre.setValue(barre.value() == barre.maximum() ? barre.minimum() : barre.value() + 1);
    }
    m_ui->LabLignes->setText(u"Lignes lues : %1"_s.arg(lignes));
    m_depuisPeinture.start();
    qApp->installEventFilter(this);
    QCoreApplication::processEvents();
    qApp->removeEventFilter(this);
    return !m_arret;
}

/// Only while the window is painted in the middle of an import: boxes take their input as ever, also one that
/// a failure opens meanwhile.
bool FenetreImport::eventFilter(QObject *objet, QEvent *evenement)
{
    // What the window system brings goes to a window first, and from there to a control.
    if (QApplication::activeModalWidget() || objet->isWindowType() || objet == m_ui->CmdArreter ||
        !estSaisie(evenement->type()))
        return QWidget::eventFilter(objet, evenement);
    evenement->ignore();
    return true;
}

/// An import can't be left, only stopped: its rows are half in.
void FenetreImport::closeEvent(QCloseEvent *evenement) { evenement->setAccepted(!m_enCours); }
