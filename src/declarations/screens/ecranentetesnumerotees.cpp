#include "declarations/screens/ecranentetesnumerotees.h"

#include "declarations/entetes.h"
#include "rules/dialogue.h"
#include "screens/contexte.h"
#include "screens/focus.h"
#include "ui_ecranentetesnumerotees.h"

using namespace Qt::StringLiterals;

EcranEntetesNumerotees::EcranEntetesNumerotees(Contexte &contexte, const FormeEntetesNumerotees &forme)
    : EcranEntetes(contexte, forme.liste), m_forme(forme),
      m_ui(std::make_unique<Ui::EcranEntetesNumerotees>())
{
    m_ui->setupUi(this);
    habiller();
    remplirListe(*m_ui->periode, contexte.base.*forme.periodes, forme.colonnePeriode);
    remplirListe(*m_ui->cmbemp, contexte.base.RsEmployeur, u"num_emp"_s);
    relier({.DataGrid1 = m_ui->DataGrid1,
            .cmdmod = m_ui->cmdmod,
            .cmdDelete = m_ui->cmdDelete,
            .cmddetail = m_ui->cmddetail,
            .cmdexpor = m_ui->cmdexpor,
            .fermer = m_ui->Command1,
            .chkChemin = m_ui->chkChemin,
            .calcsumEdit = m_ui->calcsumEdit,
            .calcsalEdit = m_ui->calcsalEdit,
            .autres = ajouterBoutons()});
    surClic(m_ui->cmdajt, [this] { ajouter(); });
    connect(m_ui->sumedit, &QLineEdit::returnPressed, m_ui->total_salEdit,
            [this] { reprendreSaisie(*m_ui->total_salEdit); });
    connect(m_ui->total_salEdit, &QLineEdit::returnPressed, m_ui->cmdajt, &QPushButton::click);
    surSortie(*m_ui->sumedit, contexte.dernierRecours, [this] {
        if (!estMontantSaisi(m_ui->sumedit->text())) {
            m_contexte.dialogue.avertir(
                u"Veuillez saisir un nombre, comme montant total des salaires annuels SVP !"_s);
        }
    });
}

EcranEntetesNumerotees::~EcranEntetesNumerotees() = default;

void EcranEntetesNumerotees::habiller()
{
    setObjectName(m_forme.nom);
    setWindowTitle(m_forme.titre);
    m_ui->LabPeriode->setText(m_forme.libellePeriode);
    m_ui->periode->setObjectName(m_forme.entetes.controlePeriode.toString());
    m_ui->cmplCheck->setText(m_forme.complementaire);
    m_ui->LabDAS->setText(m_forme.aide);
    m_ui->LabSomme->setText(m_forme.libelleSomme);
    m_ui->total_salEdit->setText(u"00000"_s);
    m_ui->Frame2->setTitle(m_forme.titreListe);
    m_ui->DataGrid1->setAccessibleName(m_forme.titreListe);
    m_ui->LabCumul->setText(m_forme.libelleCumul);
    m_ui->LabNombreCalcule->setText(m_forme.libelleNombre);
    for (const auto &[champ, libelle] : {std::pair<QWidget *, QString>{m_ui->periode, m_forme.libellePeriode},
                                         {m_ui->sumedit, m_forme.libelleSomme},
                                         {m_ui->calcsumEdit, m_forme.libelleCumul}})
        champ->setAccessibleName(libelle);
    if (m_forme.raisonSociale) {
        auto *raison = new QLabel(this);
        raison->setObjectName(u"lab_RS"_s);
        raison->setTextFormat(Qt::PlainText);
        m_ui->champs->addWidget(raison, m_ui->champs->rowCount(), 0, 1, -1);
        connect(m_ui->cmbemp, &QComboBox::textActivated, raison, [this, raison](const QString &numero) {
            m_contexte.dernierRecours.agir([&] {
                const Enregistrement employeur = m_contexte.base.Cnx.premiere(
                    u"SELECT rais_soc FROM employeur WHERE num_emp = ?"_s, {numero});
                raison->setText(employeur.estVide() ? QString() : employeur.texte(0));
            });
        });
    }
}

/// The buttons of this declaration alone, in the order of Tab that their places give.
/// @return those that do something
QList<QWidget *> EcranEntetesNumerotees::ajouterBoutons()
{
    QList<QWidget *> actifs;
    for (const BoutonEntete &forme : m_forme.boutons) {
        auto *bouton = new QPushButton(forme.texte, this);
        bouton->setObjectName(forme.nom);
        bouton->setEnabled(false);
        m_ui->boutons->addWidget(bouton, forme.rangee, forme.colonne);
        if (!forme.action)
            continue;
        actifs += bouton;
        surClic(bouton, [this, action = forme.action] { action(m_contexte, courante(), this); });
    }
    QWidget *avant = nullptr;
    for (int rangee = 0; rangee < m_ui->boutons->rowCount(); ++rangee) {
        for (int colonne = 0; colonne < m_ui->boutons->columnCount(); ++colonne) {
            const QLayoutItem *place = m_ui->boutons->itemAtPosition(rangee, colonne);
            QWidget *ici = place ? place->widget() : nullptr;
            if (avant && ici && ici != avant)
                setTabOrder(avant, ici);
            avant = ici ? ici : avant;
        }
    }
    return actifs;
}

void EcranEntetesNumerotees::ajouter()
{
    const auto refus = ajouterEntete(m_contexte.base, m_forme.entetes,
                                     {.cmbemp = m_ui->cmbemp->currentText(),
                                      .periode = m_ui->periode->currentText(),
                                      .cmplCheck = m_ui->cmplCheck->isChecked(),
                                      .sumedit = m_ui->sumedit->text(),
                                      .total_salEdit = m_ui->total_salEdit->text()},
                                     m_contexte.dialogue);
    if (refus) {
        reprendreSaisie(*this, *refus);
        return;
    }
    m_ui->sumedit->setText(m_forme.sommeVide);
    m_ui->total_salEdit->setText(m_forme.effectifVide);
    if (m_forme.decoche)
        m_ui->cmplCheck->setChecked(false);
    m_ui->DataGrid1->setFocus();
}
