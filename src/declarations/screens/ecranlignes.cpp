#include "declarations/screens/ecranlignes.h"

#include "declarations/salarieligne.h"
#include "screens/centrer.h"
#include "screens/contexte.h"
#include "ui_ecranlignes.h"

using namespace Qt::StringLiterals;

EcranLignes::EcranLignes(Contexte &contexte, const LignesDeclaration &lignes, const FormeLignes &forme,
                         QWidget *parent)
    : FenetreTable(contexte, lignes.liste()), m_lignes(lignes), m_forme(forme),
      m_ui(std::make_unique<Ui::EcranLignes>())
{
    setParent(parent, Qt::Window);
    setAttribute(Qt::WA_DeleteOnClose);
    m_ui->setupUi(this);
    setObjectName(forme.nom);
    setWindowTitle(forme.titre);
    m_ui->Frame1->setTitle(forme.titreListe);
    m_ui->DataGrid1->setAccessibleName(forme.titreListe);
    m_ui->DataGrid1->setMinimumWidth(forme.largeur);
    m_ui->LabCCP->setVisible(forme.avecComptes);
    m_ui->LabBanque->setVisible(forme.avecComptes);
    relier({.grille = m_ui->DataGrid1,
            .fermer = m_ui->cmdclose,
            .modifier = m_ui->cmdmod,
            .supprimer = m_ui->cmdsup},
           forme.colonnes);
    surClic(m_ui->cmdajt, [this] { m_forme.ajouter(m_contexte, m_lignes, this); });
    surClic(m_ui->cmdmod,
            [this] { m_forme.modifier(m_contexte, m_lignes, m_lignes.liste().courant(), this); });
    surClic(m_ui->cmdsup, [this] { m_lignes.supprimer(m_lignes.liste().courant(), m_contexte.dialogue); });
    surClic(m_ui->Cmdchr, [this] { m_lignes.chercher(m_ui->num_salarieedit->text()); });
    surClic(m_ui->cmdend, [this] { m_lignes.montrerToutes(); });
    connect(m_ui->num_salarieedit, &QLineEdit::returnPressed, m_ui->Cmdchr, &QPushButton::click);

    contexte.dernierRecours.connecter(&m_lignes.liste(), &Recordset::ligneCouranteChangee, this,
                                      &EcranLignes::montrerSalarie);
    suivreTables();
    montrerEntete();
    montrerSalarie();
    centrerALOuverture(*this);
    m_ui->DataGrid1->setFocus();
}

EcranLignes::~EcranLignes() = default;

void EcranLignes::suivreTables()
{
    DernierRecours &recours = m_contexte.dernierRecours;
    const auto suivre = [&](Recordset &table, auto action) {
        recours.connecter(&table, &QAbstractItemModel::dataChanged, this, action);
        recours.connecter(&table, &QAbstractItemModel::rowsInserted, this, action);
        recours.connecter(&table, &QAbstractItemModel::rowsRemoved, this, action);
        recours.connecter(&table, &QAbstractItemModel::modelReset, this, action);
    };
    suivre(m_contexte.base.RsSalarie, &EcranLignes::montrerSalarie);
    suivre(m_contexte.base.RsEmployeur, &EcranLignes::montrerEntete);
}

void EcranLignes::suivre(const CleDeclaration &cle)
{
    if (cle == m_lignes.cle())
        return;
    m_lignes.passerA(cle);
    montrerEntete();
}

void EcranLignes::montrerEntete()
{
    const BandeauLignes bandeau = m_forme.bandeau(m_lignes.cle());
    m_ui->LabCampagne->setText(bandeau.campagne);
    m_ui->LabType->setText(bandeau.type);
    const Enregistrement entete = lireEntete(m_contexte.base, m_lignes.genre(), m_lignes.cle());
    Enregistrement employeur;
    if (!entete.estVide()) {
        employeur =
            m_contexte.base.Cnx.premiere(u"SELECT rais_soc, adresse FROM employeur WHERE num_emp = ?"_s,
                                         {entete.texte(m_lignes.genre().employeur)});
    }
    m_ui->LabRaison->setText(employeur.estVide() ? QString() : employeur.texte(0));
    m_ui->LabAdresse->setText(employeur.estVide() ? QString() : employeur.texte(1));
}

void EcranLignes::montrerSalarie()
{
    SalarieMontre salarie;
    if (const Enregistrement ligne = m_lignes.liste().courant(); !ligne.estVide()) {
        salarie =
            salarieDe(m_contexte.base.Cnx, ligne.texte(m_lignes.genre().salarie), ligne.entier(u"cpt_z"));
    }
    m_ui->LabNom->setText(u"Nom      :"_s + salarie.nom);
    m_ui->LabPrenom->setText(u"Prénom  : "_s + salarie.prenom);
    m_ui->LabCCP->setText(u"N° Compte CCP   : "_s + salarie.num_cpt_ccp);
    m_ui->LabBanque->setText(u"N° Compte Banque   : "_s + salarie.num_cpt_banc);
}
