#include "dac/screens/frm_add_lndac.h"

#include "dac/genredac.h"
#include "dac/lignedac.h"
#include "declarations/declaration.h"
#include "declarations/lignes.h"
#include "declarations/salarieligne.h"
#include "employees/choixsalarie.h"
#include "employees/screens/frappesalaries.h"
#include "employees/screens/frm_ins_num_sal.h"
#include "rules/dialogue.h"
#include "screens/contexte.h"
#include "screens/focus.h"
#include "ui_frm_add_lndac.h"

#include <QKeyEvent>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

QList<ColonneRequete> colonnesFaites()
{
    return {{u"Num_Salarie"_s, u"s.Num_Salarie"_s},
            {u"cpt_z"_s, u"s.cpt_z"_s, Genre::Entier},
            {u"nom"_s, u"s.nom"_s},
            {u"prenom"_s, u"s.prenom"_s},
            {u"Assiette"_s, u"l.Assiette"_s, Genre::Montant},
            {u"NBJT"_s, u"l.NBJT"_s, Genre::Entier},
            {u"Type_Nbjt"_s, u"l.Type_Nbjt"_s},
            {u"Type_ES"_s, u"l.Type_ES"_s},
            {u"Date_ES"_s, u"l.Date_ES"_s, Genre::Jour},
            {u"date_naiss"_s, u"s.date_naiss"_s, Genre::Jour},
            {u"NumEmployeur"_s, u"l.NumEmployeur"_s},
            {u"Periode"_s, u"l.Periode"_s},
            {u"Type_dac"_s, u"l.Type_dac"_s, Genre::Entier}};
}

} // namespace

frm_add_Lndac::frm_add_Lndac(Contexte &contexte, LignesDeclaration &lignes, QWidget *parent)
    : FenetreSaisie(contexte, parent), m_lignes(lignes),
      m_salaries(contexte.base.Cnx, u"salarie"_s, {{u"nom"_s}, {u"prenom"_s}, {u"date_naiss"_s}}),
      m_faites(contexte.base.Cnx, colonnesFaites(), 2), m_ui(std::make_unique<Ui::frm_add_Lndac>())
{
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_ui->setupUi(this);
    ouvrirLignes();
    ouvrirSalaries();
    relier(m_ui->cmdok, m_ui->CancelButton);
    surClic(m_ui->CmdAff, [this] { prendreCourant(); });
    surClic(m_ui->cmdins, [this] { inserer(); });
    surClic(m_ui->CmdInit, [this] { recommencer(); });
    surClic(m_ui->cmdok, [this] { enregistrer(); });
    connect(m_ui->DataGrid1, &Grille::modificationDemandee, m_ui->CmdAff, &QAbstractButton::click);
    recommencer();
    resize(QSize(1180, 640).boundedTo(screen()->availableSize()));
}

frm_add_Lndac::~frm_add_Lndac() = default;

void frm_add_Lndac::ouvrirSalaries()
{
    m_salaries.ouvrir();
    m_ui->DataGrid1->lier(m_salaries,
                          {{u"Num_Salarie"_s, u"N° SS"_s},
                           {u"cpt_z"_s, u"Ordre"_s},
                           {u"nom"_s, u"Nom"_s},
                           {u"prenom"_s, u"Prénom"_s},
                           {u"date_naiss"_s, u"Date de naissance"_s}},
                          m_contexte.dernierRecours);
    m_ui->DataGrid1->marquer([this](int ligne) { return aUneLigne(ligne); });
    m_frappe = new FrappeSalaries(*m_ui->DataGrid1, *m_ui->cherchedit, m_contexte.base.Cnx, m_salaries,
                                  m_contexte.dernierRecours);
}

void frm_add_Lndac::ouvrirLignes()
{
    const Condition lignes = lignesDe(m_lignes.genre(), m_lignes.cle());
    m_faites.ouvrir(u"FROM Ligne_Dac AS l INNER JOIN salarie AS s ON s.Num_Salarie = l.NumSalarie AND "
                    "s.cpt_z = l.cpt_z WHERE "_s +
                        lignes.sql,
                    lignes.valeurs, u"s.nom, s.prenom, s.date_naiss, l.rowid"_s);
    m_ui->DataGrid2->lier(m_faites,
                          {{u"Num_Salarie"_s, u"N° SS"_s},
                           {u"nom"_s, u"Nom"_s},
                           {u"prenom"_s, u"Prénom"_s},
                           {u"Assiette"_s, u"Assiette"_s},
                           {u"NBJT"_s, u"Durée"_s},
                           {u"Type_Nbjt"_s, u"Unité"_s},
                           {u"Type_ES"_s, u"E/S"_s},
                           {u"Date_ES"_s, u"Date E/S"_s},
                           {u"date_naiss"_s, u"Date de naissance"_s},
                           {u"NumEmployeur"_s, u"N° employeur"_s},
                           {u"Periode"_s, u"Période"_s},
                           {u"Type_dac"_s, u"DAC"_s}},
                          m_contexte.dernierRecours);
    retenirFaites();
}

void frm_add_Lndac::retenirFaites()
{
    m_avecLigne.clear();
    for (int ligne = 0; ligne < m_faites.rowCount(); ++ligne) {
        const Enregistrement faite = m_faites.ligne(ligne);
        m_avecLigne.insert({faite.texte(0), faite.entier(1)});
    }
    montrerNombre();
}

/// Shows what another program has made of the employees and the lines.
void frm_add_Lndac::relire()
{
    m_salaries.requery();
    m_faites.requery();
    retenirFaites();
}

void frm_add_Lndac::montrerNombre()
{
    m_ui->FrameLignes->setTitle(u"Lignes de la DAC : %1"_s.arg(m_faites.rowCount()));
}

bool frm_add_Lndac::aUneLigne(int ligne) const
{
    const Enregistrement salarie = m_salaries.ligne(ligne);
    return !salarie.estVide() && m_avecLigne.contains({salarie.texte(0), salarie.entier(1)});
}

void frm_add_Lndac::keyPressEvent(QKeyEvent *evenement)
{
    if (evenement->key() == Qt::Key_Escape && m_pris)
        recommencer();
    else if (!m_ui->champs->suivant(*evenement, *m_ui->cmdok))
        FenetreSaisie::keyPressEvent(evenement);
}

void frm_add_Lndac::prendreCourant()
{
    const Enregistrement salarie = m_salaries.courant();
    if (salarie.estVide())
        m_contexte.dialogue.avertir(u"Veullez créer les employés en premier SVP!"_s);
    else
        prendre({salarie.texte(u"Num_Salarie"), salarie.entier(u"cpt_z")});
}

void frm_add_Lndac::inserer()
{
    frm_ins_num_sal choisir(m_contexte, this);
    choisir.exec();
    if (const ChoixSalarie &choix = choisir.choix(); choix.choisi)
        prendre({choix.Num_Salarie, choix.cpt_z});
}

void frm_add_Lndac::prendre(const Salarie &salarie)
{
    const auto &[numero, cpt_z] = salarie;
    if (!ctrlSansLigne(m_lignes, numero, cpt_z, m_contexte.dialogue))
        return relire();
    const SalarieMontre montre = salarieDe(m_contexte.base.Cnx, numero, cpt_z);
    m_ui->Lab_nom->setText(u"Nom : "_s + montre.nom);
    m_ui->lab_prenom->setText(u"Prénom : "_s + montre.prenom);
    m_ui->Lab_date_naiss->setText(u"Date.Naiss : "_s + montre.date_naiss);
    m_pris = salarie;
    m_frappe->oublier();
    m_ui->pages->setCurrentWidget(m_ui->pageSaisie);
    m_ui->champs->commencer(*m_ui->cmdok);
}

/// Gives the employee up, with what is not frozen, and goes back to the lists.
void frm_add_Lndac::recommencer()
{
    m_pris.reset();
    for (QLabel *label : {m_ui->Lab_nom, m_ui->lab_prenom, m_ui->Lab_date_naiss})
        label->clear();
    m_ui->champs->vider();
    m_frappe->oublier();
    m_ui->pages->setCurrentWidget(m_ui->pageListes);
    m_ui->DataGrid1->setFocus();
}

void frm_add_Lndac::enregistrer()
{
    if (!m_pris)
        return;
    FicheLigneDac fiche = m_ui->champs->lire();
    std::tie(fiche.Num_Salarie, fiche.cpt_z) = *m_pris;
    const auto refus = ajouterLigneDac(m_lignes, fiche, m_contexte.bornes, m_contexte.dialogue);
    if (refus && !refus->recommencer)
        return m_ui->champs->reprendre(refus->refus);
    if (!refus) {
        m_faites.ajouter({m_pris->first, m_pris->second});
        m_avecLigne.insert(*m_pris);
        montrerNombre();
        allerAuSuivant();
    } else {
        relire();
    }
    recommencer();
}

/// The next employee of the list who has no line yet.
void frm_add_Lndac::allerAuSuivant()
{
    int suivant = m_salaries.chercher({{u"Num_Salarie"_s, m_pris->first}, {u"cpt_z"_s, m_pris->second}}) + 1;
    while (suivant < m_salaries.nombre() && aUneLigne(suivant))
        ++suivant;
    m_salaries.allerA(suivant);
}
