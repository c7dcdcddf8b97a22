#include "reference/screens/frm_imp.h"

#include "reference/employeurs.h"
#include "reference/screens/ecranemployeur.h"
#include "screens/contexte.h"
#include "storage/base.h"
#include "ui_frm_imp.h"

#include <utility>

using namespace Qt::StringLiterals;

Frm_imp::Frm_imp(Contexte &contexte)
    : FenetreTable(contexte, contexte.base.RsEmployeur), m_ui(std::make_unique<Ui::Frm_imp>())
{
    m_ui->setupUi(this);
    relier({.grille = m_ui->DataGrid1,
            .fermer = m_ui->cmdclose,
            .modifier = m_ui->Command1,
            .supprimer = m_ui->suppBtn},
           {{u"num_emp"_s, u"N° employeur"_s},
            {u"rais_soc"_s, u"Raison sociale"_s},
            {u"adresse"_s, u"Adresse"_s},
            {u"tel"_s, u"Téléphone"_s},
            {u"Mail"_s, u"E-mail"_s}});
    surClic(m_ui->ajouterBtn, [this] { ajouter(); });
    surClic(m_ui->Command1, [this] { EcranEmployeur(Forme::Modification, m_contexte, this).exec(); });
    surClic(m_ui->suppBtn, [this] { supprimer(); });
}

Frm_imp::~Frm_imp() = default;

void Frm_imp::ajouter()
{
    if (!m_ajout)
        m_ajout = new EcranEmployeur(Forme::Creation, m_contexte, this);
    if (m_ajout->exec() == QDialog::Rejected)
        delete std::exchange(m_ajout, nullptr);
}

void Frm_imp::supprimer()
{
    if (supprimerEmployeur(m_contexte.base, m_contexte.dialogue))
        m_contexte.menu.accorderDeclarations();
}
