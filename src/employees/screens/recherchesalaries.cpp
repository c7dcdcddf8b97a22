#include "employees/screens/recherchesalaries.h"

#include "employees/salaries.h"
#include "screens/dernierrecours.h"
#include "storage/recordset.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLineEdit>

RechercheSalaries::RechercheSalaries(const Controles &controles, Recordset &salaries,
                                     DernierRecours &dernierRecours, QObject *parent)
    : QObject(parent), m_controles(controles), m_salaries(salaries)
{
    for (QAbstractButton *critere : {m_controles.nom, m_controles.numero})
        connect(critere, &QAbstractButton::clicked, this, &RechercheSalaries::choisirCritere);
    dernierRecours.connecter(m_controles.chercher, &QAbstractButton::clicked, this,
                             &RechercheSalaries::chercher);
    dernierRecours.connecter(m_controles.tous, &QAbstractButton::clicked, this,
                             [this] { montrerTousSalaries(m_salaries); });
    m_controles.texte->installEventFilter(this);
}

void RechercheSalaries::choisirCritere()
{
    m_controles.chercher->setEnabled(true);
    m_controles.texte->setFocus();
}

void RechercheSalaries::chercher()
{
    const CritereSalarie critere = m_controles.nom->isChecked()      ? CritereSalarie::Nom
                                   : m_controles.numero->isChecked() ? CritereSalarie::Numero
                                                                     : CritereSalarie::Aucun;
    if (chercherSalaries(m_salaries, critere, m_controles.texte->text()))
        m_controles.tous->setEnabled(true);
}

void RechercheSalaries::recommencer()
{
    for (QAbstractButton *critere : {m_controles.nom, m_controles.numero}) {
        critere->setAutoExclusive(false); // one of a group can't be cleared
        critere->setChecked(false);
        critere->setAutoExclusive(true);
    }
    m_controles.texte->clear();
    m_controles.chercher->setEnabled(false);
    montrerTousSalaries(m_salaries);
    m_controles.tous->setEnabled(!m_salaries.vide());
}

/// Enter in the text searches; it would press the default button of a dialog.
bool RechercheSalaries::eventFilter(QObject *objet, QEvent *evenement)
{
    if (evenement->type() == QEvent::KeyPress) {
        const int touche = static_cast<QKeyEvent *>(evenement)->key();
        if (touche == Qt::Key_Return || touche == Qt::Key_Enter) {
            m_controles.chercher->click();
            return true;
        }
    }
    return QObject::eventFilter(objet, evenement);
}
