#include "declarations/screens/ecranentetes.h"

#include "declarations/entetes.h"
#include "declarations/exportdeclaration.h"
#include "declarations/screens/ecranlignes.h"
#include "screens/contexte.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

using namespace Qt::StringLiterals;

EcranEntetes::EcranEntetes(Contexte &contexte, const FormeEntetes &forme)
    : FenetreTable(contexte, contexte.base.*forme.genre.entetes), m_forme(forme)
{
}

EcranEntetes::~EcranEntetes() = default;

void EcranEntetes::relier(const ControlesEntetes &controles)
{
    m_controles = controles;
    FenetreTable::relier(
        {.grille = controles.DataGrid1,
         .fermer = controles.fermer,
         .modifier = controles.cmddetail,
         .supprimer = controles.cmdDelete,
         .autres = controles.autres + QList<QWidget *>{controles.cmdmod, controles.cmdexpor}},
        m_forme.colonnes);
    surClic(controles.cmdmod, [this] { m_forme.modifier(m_contexte, courante(), this); });
    surClic(controles.cmdDelete,
            [this] { supprimerEntete(m_contexte.base, m_forme.genre, courante(), m_contexte.dialogue); });
    surClic(controles.cmddetail, [this] { ouvrirLignes(); });
    surClic(controles.cmdexpor, [this] {
        exporter(m_forme.fichier, m_contexte.base, courante(), m_controles.chkChemin->isChecked(),
                 m_contexte.dialogue);
    });

    DernierRecours &recours = m_contexte.dernierRecours;
    const Recordset &entetes = m_contexte.base.*m_forme.genre.entetes;
    recours.connecter(&entetes, &Recordset::ligneCouranteChangee, this, &EcranEntetes::changerEntete);
    recours.connecter(&entetes, &QAbstractItemModel::dataChanged, this, &EcranEntetes::changerEntete);
    montrerSommes();
}

void EcranEntetes::remplirListe(QComboBox &liste, Recordset &table, const QString &colonne)
{
    table.requery();
    for (int ligne = 0; ligne < table.nombre(); ++ligne)
        liste.addItem(table.ligne(ligne).texte(colonne));
    liste.setCurrentIndex(-1);
}

Enregistrement EcranEntetes::courante() const { return (m_contexte.base.*m_forme.genre.entetes).courant(); }

void EcranEntetes::ouvrirLignes()
{
    if (!m_lignes) {
        const LignesDeclaration lignes(m_contexte.base, m_forme.genre, cleEntete(m_forme.genre, courante()));
        m_lignes = m_forme.lignes(m_contexte, lignes, this);
    }
    m_lignes->show();
    m_lignes->raise();
    m_lignes->activateWindow();
}

/// The lines list follows the header, whose key may have been changed.
void EcranEntetes::changerEntete()
{
    montrerSommes();
    if (!m_lignes)
        return;
    const Enregistrement entete = courante();
    if (entete.estVide())
        m_lignes->close();
    else
        m_lignes->suivre(cleEntete(m_forme.genre, entete));
}

void EcranEntetes::montrerSommes()
{
    const Recordset &entetes = m_contexte.base.*m_forme.genre.entetes;
    const Enregistrement entete = courante();
    const auto manque = [&](const QString &colonne) { return entete.estVide() || entete.estNul(colonne); };
    m_controles.calcsumEdit->setText(
        manque(m_forme.somme) ? QString()
                              : formatMasque(entete.montant(m_forme.somme), u"## ### ### ### ###.00"));
    m_controles.calcsalEdit->setText(
        manque(m_forme.effectif) ? QString() : figure(entetes, entete, m_forme.effectif).texte());
}
