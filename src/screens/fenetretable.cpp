#include "screens/fenetretable.h"

#include "screens/contexte.h"
#include "screens/focus.h"
#include "storage/recordset.h"

FenetreTable::FenetreTable(Contexte &contexte, Recordset &recordset)
    : m_contexte(contexte), m_dernierRecours(contexte.dernierRecours), m_recordset(recordset)
{
    m_recordset.reprendreOrdre();
}

void FenetreTable::relier(const Controles &controles, const QList<ColonneGrille> &colonnes)
{
    boutonsParEntree(*this);
    controles.grille->lier(m_recordset, colonnes, m_dernierRecours);
    fermerPar(*controles.fermer, *this);
    if (controles.modifier)
        connect(controles.grille, &Grille::modificationDemandee, controles.modifier, &QAbstractButton::click);
    if (controles.supprimer)
        connect(controles.grille, &Grille::suppressionDemandee, controles.supprimer, &QAbstractButton::click);

    QList<QWidget *> avecLigne = controles.autres;
    for (QAbstractButton *bouton : {controles.modifier, controles.supprimer}) {
        if (bouton)
            avecLigne += bouton;
    }
    const auto permettre = [this, avecLigne] {
        for (QWidget *un : avecLigne)
            un->setEnabled(m_recordset.rowCount() > 0);
    };
    permettre();
    connect(&m_recordset, &QAbstractItemModel::rowsInserted, this, permettre);
    connect(&m_recordset, &QAbstractItemModel::rowsRemoved, this, permettre);
    connect(&m_recordset, &QAbstractItemModel::modelReset, this, permettre);
}
