#include "ci/screens/frmentci.h"

#include "ci/exportci.h"
#include "ci/genreci.h"
#include "ci/screens/frm_mod_entci.h"
#include "ci/screens/frmlnci.h"
#include "screens/contexte.h"
#include "screens/focus.h"
#include "ui_frmentci.h"

using namespace Qt::StringLiterals;

namespace {

const FormeEntetes &formeEntetes()
{
    static const FormeEntetes forme{
        .genre = genreCi(),
        .fichier = fichierCi(),
        .colonnes = {{u"N_Identifiant"_s, u"Référence"_s},
                     {u"N_employeur"_s, u"N° employeur"_s},
                     {u"date_arret"_s, u"Date arrêt"_s},
                     {u"Date_reprise"_s, u"Date reprise"_s},
                     {u"Montant_Indemnise"_s, u"Indemnités"_s},
                     {u"Effect_Mis_arret"_s, u"Salariés"_s},
                     {u"sum_calc"_s, u"Cumul lignes"_s},
                     {u"total_calc"_s, u"Lignes"_s}},
        .somme = u"sum_calc"_s,
        .effectif = u"total_calc"_s,
        .lignes = [](Contexte &contexte, const LignesDeclaration &lignes, QWidget *parent) -> EcranLignes * {
            return new frmlnCi(contexte, lignes, parent);
        },
        .modifier = [](Contexte &contexte, const Enregistrement &entete,
                       QWidget *parent) { frm_mod_entci(contexte, entete, parent).exec(); },
    };
    return forme;
}

} // namespace

FrmEntCi::FrmEntCi(Contexte &contexte)
    : EcranEntetes(contexte, formeEntetes()), m_ui(std::make_unique<Ui::FrmEntCi>())
{
    m_ui->setupUi(this);
    remplirListe(*m_ui->champs->employeurs(), contexte.base.RsEmployeur, u"num_emp"_s);
    remplirListe(*m_ui->champs->banques(), contexte.base.RsBanque, u"Code"_s);
    m_ui->champs->relier(Forme::Creation, contexte);
    relier({.DataGrid1 = m_ui->DataGrid1,
            .cmdmod = m_ui->cmdmod,
            .cmdDelete = m_ui->cmdDelete,
            .cmddetail = m_ui->cmddetail,
            .cmdexpor = m_ui->cmdexpor,
            .fermer = m_ui->Command1,
            .chkChemin = m_ui->chkChemin,
            .calcsumEdit = m_ui->calcsumEdit,
            .calcsalEdit = m_ui->calcsalEdit,
            .autres = {m_ui->Frame5}});
    surClic(m_ui->cmdajt, [this] { ajouter(); });
}

FrmEntCi::~FrmEntCi() = default;

void FrmEntCi::keyPressEvent(QKeyEvent *evenement)
{
    if (!passerAuSuivant(*evenement, m_ui->champs->champs(), *m_ui->cmdajt))
        EcranEntetes::keyPressEvent(evenement);
}

void FrmEntCi::ajouter()
{
    if (const auto refus = ajouterEnteteCi(m_contexte.base, m_ui->champs->lire(), m_contexte.dialogue)) {
        reprendreSaisie(*this, *refus);
        return;
    }
    m_ui->champs->vider();
    m_ui->DataGrid1->setFocus();
}
