#include "reference/screens/frm_bnq.h"

#include "reference/banques.h"
#include "reference/screens/ecranbanque.h"
#include "screens/contexte.h"
#include "storage/base.h"
#include "ui_frm_bnq.h"

using namespace Qt::StringLiterals;

Frm_BNQ::Frm_BNQ(Contexte &contexte)
    : FenetreTable(contexte, contexte.base.RsBanque), m_ui(std::make_unique<Ui::Frm_BNQ>())
{
    m_ui->setupUi(this);
    // The delete button acts on the employers, so the Delete key over a bank does not press it.
    relier({.grille = m_ui->DataGrid1,
            .fermer = m_ui->cmdclose,
            .modifier = m_ui->Command1,
            .autres = {m_ui->suppBtn}},
           {{u"Code"_s, u"Code"_s}, {u"Abreviat"_s, u"Abréviation"_s}, {u"Libelle"_s, u"Désignation"_s}});
    // Behind those of the base: every change of the list sets the buttons anew.
    connect(&contexte.base.RsBanque, &QAbstractItemModel::modelReset, this, &Frm_BNQ::permettre);
    connect(&contexte.base.RsBanque, &QAbstractItemModel::rowsInserted, this, &Frm_BNQ::permettre);
    surClic(m_ui->ajouterBtn, [this] { ajouter(); });
    surClic(m_ui->Command1, [this] { EcranBanque(Forme::Modification, m_contexte, this).exec(); });
    surClic(m_ui->suppBtn, [this] { supprimer(); });
}

Frm_BNQ::~Frm_BNQ() = default;

void Frm_BNQ::ajouter()
{
    EcranBanque fenetre(Forme::Creation, m_contexte, this);
    connect(&fenetre, &EcranBanque::ajoutee, this, [this] {
        m_plusDEmployeur = false;
        permettre();
    });
    fenetre.exec();
}

void Frm_BNQ::supprimer()
{
    Base &base = m_contexte.base;
    if (!supprimerDepuisBanques(base, m_contexte.dialogue) || !base.RsEmployeur.vide())
        return;
    m_plusDEmployeur = true;
    permettre();
    m_contexte.menu.accorderDeclarations();
}

void Frm_BNQ::permettre()
{
    const bool permis = !m_plusDEmployeur && m_contexte.base.RsBanque.rowCount() > 0;
    m_ui->Command1->setEnabled(permis);
    m_ui->suppBtn->setEnabled(permis);
}
