#include "employees/screens/frmsalarie.h"

#include "employees/salaries.h"
#include "employees/screens/colonnessalarie.h"
#include "employees/screens/frm_add_sal.h"
#include "employees/screens/frm_mod_sal.h"
#include "employees/screens/recherchesalaries.h"
#include "rules/date.h"
#include "screens/contexte.h"
#include "screens/modelegrille.h"
#include "storage/base.h"
#include "ui_frmsalarie.h"

#include <QShowEvent>

using namespace Qt::StringLiterals;

frmsalarie::frmsalarie(Contexte &contexte)
    : FenetreTable(contexte, contexte.base.RsSalarie), m_salaries(contexte.base.RsSalarie),
      m_ui(std::make_unique<Ui::frmsalarie>())
{
    m_ui->setupUi(this);
    relier({.grille = m_ui->DataGrid1,
            .fermer = m_ui->cmdclose,
            .modifier = m_ui->cmdmodif,
            .supprimer = m_ui->cmdsup},
           colonnesSalarie());
    m_recherche = new RechercheSalaries({.nom = m_ui->Optionnom,
                                         .numero = m_ui->Optionnum_salarie,
                                         .texte = m_ui->cherchedit,
                                         .chercher = m_ui->Cmdchr,
                                         .tous = m_ui->cmdend},
                                        m_salaries, contexte.dernierRecours, this);
    m_ui->cmdend->setEnabled(!m_salaries.vide());
    surClic(m_ui->cmdajt, [this] { ajouter(); });
    surClic(m_ui->cmdmodif, [this] { modifier(); });
    surClic(m_ui->cmdsup, [this] { supprimerSalarie(m_contexte.base, m_contexte.dialogue); });

    DernierRecours &recours = contexte.dernierRecours;
    recours.connecter(&m_salaries, &Recordset::ligneCouranteChangee, this, &frmsalarie::montrerCourant);
    const auto relire = [this] {
        m_numeroMontre.reset();
        montrerCourant();
    };
    recours.connecter(&m_salaries, &QAbstractItemModel::dataChanged, this, relire);
    // The employee from whom the others of his number had it may be among those that came or went.
    const auto oublier = [this] { m_numeroMontre.reset(); };
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(&m_salaries, signal, this, oublier);
    connect(&m_salaries, &QAbstractItemModel::modelReset, this, oublier);
    montrerCourant();
}

frmsalarie::~frmsalarie() = default;

void frmsalarie::ajouter()
{
    // The window is shown anew behind the entry, with all that was entered.
    if (ouvrirAffiliation(m_contexte, this))
        m_recherche->recommencer();
}

void frmsalarie::modifier()
{
    if (m_salaries.ligneCourante() >= 0)
        ouvrirModification(m_contexte, this);
}

void frmsalarie::montrerCourant()
{
    m_ui->Frame3->setTitle(
        u"Liste Salariés  :  %1   Sur %2"_s.arg(m_salaries.ligneCourante() + 1).arg(m_salaries.nombre()));
    const std::pair<QLabel *, QString> details[] = {
        {m_ui->lab1, u"nom"_s},          {m_ui->lab2, u"prenom"_s},        {m_ui->lab3, u"sf"_s},
        {m_ui->lab4, u"Profes"_s},       {m_ui->lab5, u"date_naiss"_s},    {m_ui->lab6, u"lieu_naiss"_s},
        {m_ui->lab7, u"adresse"_s},      {m_ui->lab8, u"ville"_s},         {m_ui->lab9, u"c_postal"_s},
        {m_ui->lab10, u"num_cpt_ccp"_s}, {m_ui->lab11, u"num_cpt_banc"_s}, {m_ui->Lab14, u"sexe"_s},
        {m_ui->Lab15, u"Telephone"_s},   {m_ui->Lab16, u"CinNumber"_s},    {m_ui->Lab17, u"Email"_s}};
    for (const auto &[etiquette, colonne] : details) {
        const QModelIndex cellule =
            m_salaries.index(m_salaries.ligneCourante(), m_salaries.rangColonne(colonne));
        const QString texte = texteMontre(cellule.data(Qt::EditRole));
        etiquette->setText(texte);
        etiquette->setToolTip(texte); // whole where the window is narrow
    }
    const Enregistrement courant = m_salaries.courant();
    m_ui->Lab13->setText(courant.estVide() ? QString() : nationaliteDe(courant.texte(u"Num_Salarie")));
}

QString frmsalarie::nationaliteDe(const QString &numero)
{
    if (m_numeroMontre == numero)
        return m_ui->Lab13->text();
    const QString nationalite = nationaliteSalarie(m_contexte.base.Cnx, numero);
    m_numeroMontre = numero;
    return nationalite;
}

void frmsalarie::showEvent(QShowEvent *evenement)
{
    FenetreTable::showEvent(evenement);
    if (!evenement->spontaneous())
        m_ui->DataGrid1->setFocus(); // the list first, though the search stands above it
}

/// The other screens see the whole table again.
void frmsalarie::closeEvent(QCloseEvent *evenement)
{
    FenetreTable::closeEvent(evenement);
    m_contexte.dernierRecours.agir([this] { montrerTousSalaries(m_salaries); });
}
