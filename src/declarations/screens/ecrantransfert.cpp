#include "declarations/screens/ecrantransfert.h"

#include "declarations/declaration.h"
#include "declarations/entetes.h"
#include "declarations/screens/ecranentetes.h"
#include "declarations/transfert.h"
#include "screens/contexte.h"
#include "screens/dernierrecours.h"
#include "screens/focus.h"
#include "ui_ecrantransfert.h"

using namespace Qt::StringLiterals;

namespace {

/// No employer has this number: a list of its lines is empty.
const QString personne = u"XXXXX"_s;

} // namespace

EcranTransfert::EcranTransfert(Contexte &contexte, const FormeTransfert &forme)
    : m_contexte(contexte), m_forme(forme), m_ui(std::make_unique<Ui::EcranTransfert>()),
      m_lignes(contexte.base.Cnx, (contexte.base.*forme.transfert.entetes.genre.lignes).table())
{
    m_ui->setupUi(this);
    habiller();
    EcranEntetes::remplirListe(*m_ui->source, contexte.base.*forme.periodes, forme.colonnePeriode);
    EcranEntetes::remplirListe(*m_ui->cmbemp, contexte.base.RsEmployeur, u"num_emp"_s);
    m_lignes.ouvrir(lignesATransferer(forme.transfert, personne, {}));
    m_ui->DataGrid2->lier(m_lignes, forme.colonnes, contexte.dernierRecours);
    relier();
    permettre(false);
}

EcranTransfert::~EcranTransfert() = default;

bool EcranTransfert::permis(Contexte &contexte)
{
    return employeursPresents(contexte.base, contexte.dialogue);
}

void EcranTransfert::habiller()
{
    setObjectName(m_forme.nom);
    setWindowTitle(m_forme.titre);
    m_ui->LabSource->setText(m_forme.libellePeriode);
    m_ui->LabDestination->setText(m_forme.libelleDestination);
    m_ui->source->setObjectName(m_forme.controleSource);
    m_ui->source->setAccessibleName(m_forme.libellePeriode);
    m_ui->destination->setObjectName(m_forme.controleDestination);
    m_ui->destination->setAccessibleName(m_forme.libelleDestination);
    m_ui->CmdAfficher->setText(m_forme.afficher);
    m_ui->Frame1->setTitle(m_forme.titreListe);
    m_ui->DataGrid2->setAccessibleName(m_forme.titreListe);
}

void EcranTransfert::relier()
{
    boutonsParEntree(*this);
    fermerPar(*m_ui->CmdTerminer, *this);
    const auto surClic = [this](QAbstractButton *bouton, auto action) {
        m_contexte.dernierRecours.connecter(bouton, &QAbstractButton::clicked, this, action);
    };
    surClic(m_ui->CmdAfficher, [this] { afficher(); });
    surClic(m_ui->cmdTransf, [this] { transferer(); });
    surClic(m_ui->Command1, [this] {
        if (m_affichees)
            annuler();
        else
            close();
    });
}

void EcranTransfert::permettre(bool affichees)
{
    m_affichees = affichees;
    for (QWidget *choix : std::initializer_list<QWidget *>{m_ui->source, m_ui->cmbemp, m_ui->CmdAfficher})
        choix->setEnabled(!affichees);
    for (QWidget *suite : std::initializer_list<QWidget *>{m_ui->destination, m_ui->cmdTransf})
        suite->setEnabled(affichees);
    m_ui->Command1->setText(affichees ? u"Annuler"_s : u"Fermer"_s);
}

void EcranTransfert::afficher()
{
    if (m_ui->source->currentIndex() < 0 || m_ui->cmbemp->currentIndex() < 0)
        return;
    m_lignes.ouvrir(
        lignesATransferer(m_forme.transfert, m_ui->cmbemp->currentText(), m_ui->source->currentText()));
    m_ui->destination->clear();
    EcranEntetes::remplirListe(*m_ui->destination, m_contexte.base.*m_forme.periodes, m_forme.colonnePeriode);
    permettre(true);
    m_ui->destination->setFocus();
}

void EcranTransfert::annuler()
{
    m_lignes.ouvrir(lignesATransferer(m_forme.transfert, personne, m_ui->source->currentText()));
    m_ui->destination->setCurrentIndex(-1);
    permettre(false);
    m_ui->source->setFocus();
}

void EcranTransfert::transferer()
{
    const ChoixTransfert choix{.employeur = m_ui->cmbemp->currentText(),
                               .source = m_ui->source->currentText(),
                               .destination = m_ui->destination->currentText()};
    ::transferer(m_contexte.base, m_forme.transfert, choix, m_lignes, m_contexte.dialogue);
}
