#include "screens/fenetresaisie.h"

#include "screens/centrer.h"
#include "screens/contexte.h"
#include "screens/focus.h"

#include <QPushButton>

FenetreSaisie::FenetreSaisie(Contexte &contexte, QWidget *parent)
    : QDialog(parent,
              Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      m_contexte(contexte), m_dernierRecours(contexte.dernierRecours)
{
    setWindowModality(Qt::WindowModal);
    centrerALOuverture(*this);
}

void FenetreSaisie::habiller(const Habillage &habillage, QAbstractButton &valider)
{
    setObjectName(habillage.nom.toString());
    setWindowTitle(habillage.titre.toString());
    valider.setObjectName(habillage.bouton.toString());
    valider.setText(habillage.texteDuBouton.toString());
}

void FenetreSaisie::relier(QAbstractButton *valider, QAbstractButton *fermer)
{
    if (auto *premier = qobject_cast<QPushButton *>(valider))
        premier->setDefault(true);
    fermerPar(*fermer, *this);
}
