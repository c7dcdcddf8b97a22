#include "das/screens/frmlndas.h"

#include "das/genredas.h"
#include "das/lignedas.h"
#include "das/screens/frm_add_lndas.h"
#include "das/screens/frm_modif_lndas.h"
#include "screens/centrer.h"
#include "screens/contexte.h"
#include "ui_frmlndas.h"

using namespace Qt::StringLiterals;

frmlndas::frmlndas(Contexte &contexte, const LignesDeclaration &lignes, QWidget *parent)
    : FenetreTable(contexte, lignes.liste()), m_lignes(lignes), m_ui(std::make_unique<Ui::frmlndas>())
{
    setParent(parent, Qt::Window);
    setAttribute(Qt::WA_DeleteOnClose);
    m_ui->setupUi(this);
    relier({.grille = m_ui->DataGrid1,
            .fermer = m_ui->cmdclose,
            .modifier = m_ui->cmdmod,
            .supprimer = m_ui->cmdsup},
           {{u"num_salarie"_s, u"N° SS"_s},
            {u"cpt_z"_s, u"N° ordre"_s},
            {u"sal_annuel"_s, u"Salaire annuel"_s},
            {u"nbj_travail"_s, u"Durée"_s},
            {u"type_dure"_s, u"Unité"_s},
            {u"date_es"_s, u"Date E/S"_s},
            {u"type_date_es"_s, u"E/S"_s}});
    surClic(m_ui->cmdajt, [this] { frm_add_lndas(m_contexte, m_lignes, this).exec(); });
    surClic(m_ui->cmdmod, [this] { frm_modif_lndas(m_contexte, m_lignes, this).exec(); });
    surClic(m_ui->cmdsup, [this] { m_lignes.supprimer(m_lignes.liste().courant(), m_contexte.dialogue); });
    surClic(m_ui->Cmdchr, [this] { m_lignes.chercher(m_ui->num_salarieedit->text()); });
    surClic(m_ui->cmdend, [this] { m_lignes.montrerToutes(); });
    connect(m_ui->num_salarieedit, &QLineEdit::returnPressed, m_ui->Cmdchr, &QPushButton::click);

    DernierRecours &recours = contexte.dernierRecours;
    recours.connecter(&m_lignes.liste(), &Recordset::ligneCouranteChangee, this, &frmlndas::montrerSalarie);
    montrerEntete();
    montrerSalarie();
    centrerALOuverture(*this);
    m_ui->DataGrid1->setFocus();
}

frmlndas::~frmlndas() = default;

void frmlndas::suivre(const CleDeclaration &cle)
{
    if (cle == m_lignes.cle())
        return;
    m_lignes.passerA(cle);
    montrerEntete();
}

void frmlndas::montrerEntete()
{
    const CleDeclaration &cle = m_lignes.cle();
    m_ui->LabCampagne->setText(u" Campagne     :   "_s + cle.periode);
    m_ui->LabType->setText(cle.type == 1 ? u"DAS Principale"_s : u"DAS Complémentaire"_s);
    const Enregistrement employeur = m_contexte.base.Cnx.premiere(
        u"SELECT rais_soc, adresse FROM employeur WHERE num_emp = ?"_s, {cle.employeur});
    m_ui->LabRaison->setText(employeur.estVide() ? QString() : employeur.texte(0));
    m_ui->LabAdresse->setText(employeur.estVide() ? QString() : employeur.texte(1));
}

void frmlndas::montrerSalarie()
{
    SalarieMontre salarie;
    if (const Enregistrement ligne = m_lignes.liste().courant(); !ligne.estVide())
        salarie = salarieDe(m_lignes, ligne.texte(u"num_salarie"), ligne.entier(u"cpt_z"));
    m_ui->LabNom->setText(u"Nom      :"_s + salarie.nom);
    m_ui->LabPrenom->setText(u"Prénom  : "_s + salarie.prenom);
    m_ui->LabCCP->setText(u"N° Compte CCP   : "_s + salarie.num_cpt_ccp);
    m_ui->LabBanque->setText(u"N° Compte Banque   : "_s + salarie.num_cpt_banc);
}
