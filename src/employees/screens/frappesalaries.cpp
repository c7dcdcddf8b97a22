#include "employees/screens/frappesalaries.h"

#include "employees/salaries.h"
#include "screens/dernierrecours.h"
#include "screens/grille.h"
#include "storage/recordset.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>

FrappeSalaries::FrappeSalaries(Grille &grille, QLineEdit &champ, Connexion &cnx, Recordset &salaries,
                               DernierRecours &dernierRecours)
    : QObject(&grille), m_grille(grille), m_champ(champ), m_cnx(cnx), m_salaries(salaries),
      m_dernierRecours(dernierRecours)
{
    m_grille.installEventFilter(this);
    m_champ.installEventFilter(this);
    dernierRecours.connecter(&m_champ, &QLineEdit::textEdited, this, &FrappeSalaries::chercher);
}

void FrappeSalaries::oublier()
{
    m_trouve.clear();
    m_champ.clear();
}

bool FrappeSalaries::eventFilter(QObject *objet, QEvent *evenement)
{
    if (evenement->type() != QEvent::KeyPress)
        return false;
    auto &touche = *static_cast<QKeyEvent *>(evenement);
    if (touche.key() == Qt::Key_Escape && !m_trouve.isEmpty()) {
        oublier();
        return true;
    }
    return objet == &m_grille ? dansLaGrille(touche) : dansLeChamp(touche);
}

bool FrappeSalaries::dansLaGrille(const QKeyEvent &touche)
{
    if (touche.key() == Qt::Key_Backspace) {
        m_dernierRecours.agir(
            [this] { chercher(m_trouve.chopped(std::min<qsizetype>(1, m_trouve.size()))); });
        return true;
    }
    const QString texte = touche.text();
    const bool commande = touche.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (commande || texte.isEmpty() || !texte[0].isPrint()) {
        static constexpr Qt::Key ailleurs[] = {Qt::Key_Up,       Qt::Key_Down, Qt::Key_PageUp,
                                               Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
        if (std::find(std::begin(ailleurs), std::end(ailleurs), touche.key()) != std::end(ailleurs))
            oublier();
        return false;
    }
    m_dernierRecours.agir([&] { chercher(m_trouve + texte); });
    return true;
}

/// The keys that move in the list, and Enter, do it from here as well.
bool FrappeSalaries::dansLeChamp(QKeyEvent &touche)
{
    switch (touche.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        QApplication::sendEvent(&m_grille, &touche);
        return true;
    default:
        return false;
    }
}

void FrappeSalaries::chercher(const QString &texte)
{
    if (!texte.isEmpty()) {
        const int ligne = trouverSalarie(m_cnx, m_salaries, texte);
        if (ligne < 0) {
            QApplication::beep();
            m_champ.setText(m_trouve);
            return;
        }
        m_salaries.allerA(ligne);
    }
    m_trouve = texte;
    m_champ.setText(texte);
}
