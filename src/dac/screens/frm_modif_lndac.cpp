#include "dac/screens/frm_modif_lndac.h"

#include "dac/lignedac.h"
#include "declarations/lignes.h"
#include "declarations/screens/champsnumero.h"
#include "screens/contexte.h"
#include "ui_frm_modif_lndac.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

frm_modif_lndac::frm_modif_lndac(Contexte &contexte, LignesDeclaration &lignes, const Enregistrement &lue,
                                 QWidget *parent)
    : FenetreSaisie(contexte, parent), m_lignes(lignes), m_lue(lue),
      m_ui(std::make_unique<Ui::frm_modif_lndac>())
{
    m_ui->setupUi(this);
    m_ui->champs->sansGel();
    m_ui->cmdok->setDefault(true);
    surClic(m_ui->cmdok, [this] { valider(); });
    surClic(m_ui->cmdanul, [this] { renoncer(); });
    ChampsNumero salarie;
    salarie.poser(Forme::Modification, *m_ui->salarie, *m_ui->champs);
    salarie.montrer(lignes.base().Cnx, lue.texte(u"NumSalarie"), lue.entier(u"cpt_z"));
    remplir();
    permettre(false);
}

frm_modif_lndac::~frm_modif_lndac() = default;

void frm_modif_lndac::keyPressEvent(QKeyEvent *evenement)
{
    if (evenement->key() == Qt::Key_Escape && m_ouverts)
        renoncer();
    else if (!m_ui->champs->suivant(*evenement, *m_ui->cmdok))
        FenetreSaisie::keyPressEvent(evenement);
}

void frm_modif_lndac::permettre(bool ouverts)
{
    m_ouverts = ouverts;
    m_ui->champs->permettre(ouverts);
    m_ui->cmdok->setText(ouverts ? u"Enregistrer"_s : u"Modifier"_s);
    m_ui->cmdanul->setText(ouverts ? u"Annuler"_s : u"Fermer"_s);
    if (ouverts)
        m_ui->champs->commencer(*m_ui->cmdok);
    else
        m_ui->cmdok->setFocus();
}

void frm_modif_lndac::remplir() { m_ui->champs->ecrire(remplirFicheLigneDac(m_lue)); }

void frm_modif_lndac::valider()
{
    if (!m_ouverts)
        return permettre(true);
    FicheLigneDac fiche = m_ui->champs->lire();
    fiche.Num_Salarie = m_lue.texte(u"NumSalarie");
    if (const auto refus = modifierLigneDac(m_lignes, m_lue, fiche, m_contexte.bornes, m_contexte.dialogue))
        return m_ui->champs->reprendre(refus->refus);
    reprendreLigne();
}

/// Shows the line as it is now, its fields closed; one that another program has deleted closes the window.
void frm_modif_lndac::reprendreLigne()
{
    const Recordset &liste = m_lignes.liste();
    const int rang =
        liste.chercher({{u"NumSalarie"_s, m_lue.texte(u"NumSalarie")}, {u"cpt_z"_s, m_lue.entier(u"cpt_z")}});
    if (rang < 0 || liste.ligne(rang).estVide()) {
        close();
        return;
    }
    m_lue = liste.ligne(rang);
    remplir();
    permettre(false);
}

/// Takes the line's values back, or closes when nothing is open.
void frm_modif_lndac::renoncer()
{
    if (m_ouverts)
        reprendreLigne();
    else
        close();
}
