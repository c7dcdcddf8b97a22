#include "das/screens/frmentdas.h"

#include "das/exportdas.h"
#include "das/formulaires.h"
#include "das/genredas.h"
#include "das/screens/frm_mod_ent.h"
#include "das/screens/frmlndas.h"
#include "rules/dialogue.h"
#include "screens/contexte.h"
#include "screens/focus.h"
#include "screens/impression.h"
#include "storage/base.h"
#include "ui_frmentdas.h"

using namespace Qt::StringLiterals;

frmentdas::frmentdas(Contexte &contexte)
    : FenetreTable(contexte, contexte.base.RsEnteteDas), m_ui(std::make_unique<Ui::frmentdas>())
{
    m_ui->setupUi(this);
    remplirListes();
    relier({.grille = m_ui->DataGrid1,
            .fermer = m_ui->Command1,
            .modifier = m_ui->cmddetail,
            .supprimer = m_ui->cmdDelete,
            .autres = {m_ui->cmdmod, m_ui->cmdsup, m_ui->cmdexpor, m_ui->Cmdprint, m_ui->CmdPrintLn,
                       m_ui->CmdCD}},
           {{u"num_emp"_s, u"N° employeur"_s},
            {u"annee"_s, u"Année"_s},
            {u"Type"_s, u"DAS"_s},
            {u"sum_annuel"_s, u"Total salaires"_s},
            {u"total_salarie"_s, u"Nombre salariés"_s},
            {u"sum_calc"_s, u"Cumul lignes"_s},
            {u"total_calc"_s, u"Nombre lignes"_s}});

    Base &base = contexte.base;
    surClic(m_ui->cmdajt, [this] { ajouter(); });
    surClic(m_ui->cmdmod, [this] { frm_mod_ent(m_contexte, this).exec(); });
    surClic(m_ui->cmdDelete, [this, &base] {
        supprimerEntete(base, genreDas(), base.RsEnteteDas.courant(), m_contexte.dialogue);
    });
    surClic(m_ui->cmdsup, [this, &base] {
        supprimerEnteteSeul(base, genreDas(), base.RsEnteteDas.courant(), m_contexte.dialogue);
    });
    surClic(m_ui->cmddetail, [this] { ouvrirLignes(); });
    surClic(m_ui->cmdexpor,
            [this, &base] { exporterDas(base, m_ui->chkChemin->isChecked(), m_contexte.dialogue); });
    const auto imprimer = [this](QAbstractButton *bouton, auto formulaire) {
        surClic(bouton, [this, formulaire] {
            const std::optional<Document> document =
                formulaire(m_contexte.base, m_contexte.base.RsEnteteDas.courant(), m_contexte.dialogue);
            if (document)
                montrerApercu(*document, m_contexte, this);
        });
    };
    imprimer(m_ui->Cmdprint, DataReport1);
    imprimer(m_ui->CmdPrintLn, DataReport3);
    imprimer(m_ui->CmdCD, DataReport2);
    connect(m_ui->sumedit, &QLineEdit::returnPressed, m_ui->total_salEdit,
            [this] { reprendreSaisie(*m_ui->total_salEdit); });
    connect(m_ui->total_salEdit, &QLineEdit::returnPressed, m_ui->cmdajt, &QPushButton::click);
    surSortie(*m_ui->sumedit, contexte.dernierRecours, [this] {
        if (!estMontantSaisi(m_ui->sumedit->text())) {
            m_contexte.dialogue.avertir(
                u"Veuillez saisir un nombre, comme montant total des salaires annuels SVP !"_s);
        }
    });

    DernierRecours &recours = contexte.dernierRecours;
    recours.connecter(&base.RsEnteteDas, &Recordset::ligneCouranteChangee, this, &frmentdas::changerEntete);
    recours.connecter(&base.RsEnteteDas, &QAbstractItemModel::dataChanged, this, &frmentdas::montrerSommes);
    montrerSommes();
}

frmentdas::~frmentdas() = default;

void frmentdas::remplirListes()
{
    Base &base = m_contexte.base;
    const auto remplir = [](QComboBox *liste, Recordset &table, const QString &colonne) {
        table.requery();
        for (int ligne = 0; ligne < table.nombre(); ++ligne)
            liste->addItem(table.ligne(ligne).texte(colonne));
        liste->setCurrentIndex(-1);
    };
    remplir(m_ui->cmbannee, base.RsAnnee, u"annee"_s);
    remplir(m_ui->cmbemp, base.RsEmployeur, u"num_emp"_s);
}

void frmentdas::ajouter()
{
    const RefusEntete refus = ajouterEntete(m_contexte.base, genreDas(),
                                            {.cmbemp = m_ui->cmbemp->currentText(),
                                             .periode = m_ui->cmbannee->currentText(),
                                             .cmplCheck = m_ui->cmplCheck->isChecked(),
                                             .sumedit = m_ui->sumedit->text(),
                                             .total_salEdit = m_ui->total_salEdit->text()},
                                            m_contexte.dialogue);
    if (refus) {
        QWidget *champs[] = {m_ui->cmbannee, m_ui->cmbemp, m_ui->cmplCheck, m_ui->sumedit,
                             m_ui->total_salEdit};
        reprendreSaisie(*champs[static_cast<int>(*refus)]);
        return;
    }
    m_ui->sumedit->clear();
    m_ui->total_salEdit->setText(u"00000"_s);
    m_ui->DataGrid1->setFocus();
}

void frmentdas::ouvrirLignes()
{
    Base &base = m_contexte.base;
    if (!m_lignes) {
        const LignesDeclaration lignes(base, genreDas(), cleEntete(genreDas(), base.RsEnteteDas.courant()));
        m_lignes = new frmlndas(m_contexte, lignes, this);
    }
    m_lignes->show();
    m_lignes->raise();
    m_lignes->activateWindow();
}

/// The lines list follows the header.
void frmentdas::changerEntete()
{
    montrerSommes();
    if (!m_lignes)
        return;
    const Enregistrement entete = m_contexte.base.RsEnteteDas.courant();
    if (entete.estVide())
        m_lignes->close();
    else
        m_lignes->suivre(cleEntete(genreDas(), entete));
}

void frmentdas::montrerSommes()
{
    const Enregistrement entete = m_contexte.base.RsEnteteDas.courant();
    const auto texte = [&](const QString &colonne, auto montrer) {
        return entete.estVide() || entete.estNul(colonne) ? QString() : QString(montrer(colonne));
    };
    m_ui->calcsumEdit->setText(texte(u"sum_calc"_s, [&](const QString &colonne) {
        return formatMasque(entete.montant(colonne), u"## ### ### ### ###.00");
    }));
    m_ui->calcsalEdit->setText(texte(
        u"total_calc"_s, [&](const QString &colonne) { return QString::number(entete.entier(colonne)); }));
}
