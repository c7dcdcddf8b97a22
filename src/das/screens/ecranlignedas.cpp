#include "das/screens/ecranlignedas.h"

#include "declarations/lignes.h"
#include "rules/date.h"
#include "screens/contexte.h"
#include "screens/focus.h"
#include "ui_ecranlignedas.h"

using namespace Qt::StringLiterals;

namespace {

/// Where the two windows differ to the eye.
namespace difference {

constexpr Selon<QStringView> nom{u"frm_add_lndas", u"frm_modif_lndas"};
constexpr Selon<QStringView> titre{u"Ajouter une ligne DAS", u"Modifier une ligne DAS"};

} // namespace difference

} // namespace

EcranLigneDas::EcranLigneDas(Forme forme, Contexte &contexte, LignesDeclaration &lignes,
                             const Enregistrement &lue, QWidget *parent)
    : FenetreSaisie(contexte, parent), m_forme(forme), m_lignes(lignes), m_lue(lue),
      m_ui(std::make_unique<Ui::EcranLigneDas>())
{
    m_ui->setupUi(this);
    setObjectName(difference::nom[forme].toString());
    setWindowTitle(difference::titre[forme].toString());
    m_numero.poser(forme, *m_ui->champs, *m_ui->sal_annueledit);
    relierChamps();
    relier(m_ui->cmdok, m_ui->CancelButton);
    if (m_forme == Forme::Creation) {
        m_numero.relier(contexte, *this, [this] { m_ui->cmdok->setFocus(); });
        vider();
        m_ui->sal_annueledit->setText(u"00000000.00"_s);
        surClic(m_ui->cmdok, [this] { ajouter(); });
    } else {
        remplir();
        surClic(m_ui->cmdok, [this] { modifier(); });
    }
}

EcranLigneDas::~EcranLigneDas() = default;

/// What the controls do to each other. An option that is on is turned off by a second click: without one the
/// line has no movement.
void EcranLigneDas::relierChamps()
{
    const auto exclure = [](QRadioButton *option, QRadioButton *autre) {
        connect(option, &QRadioButton::toggled, autre, [autre](bool choisie) {
            if (choisie)
                autre->setChecked(false);
        });
    };
    exclure(m_ui->EOption, m_ui->SOption);
    exclure(m_ui->SOption, m_ui->EOption);
    connect(m_ui->Clend_naiss, &QCalendarWidget::clicked, m_ui->mskdate,
            [champ = m_ui->mskdate](QDate jour) { champ->setText(texteDate(jour)); });
    surSortie(*m_ui->mskdate, m_contexte.dernierRecours, [this] { quitterDate(); });
}

void EcranLigneDas::quitterDate()
{
    if (!ctrlDateLigneDas(m_ui->mskdate->text(), m_contexte.dialogue))
        reprendreSaisie(*m_ui->mskdate);
    else if (const auto jour = dateDe(m_ui->mskdate->text()))
        m_ui->Clend_naiss->setSelectedDate(*jour);
}

void EcranLigneDas::keyPressEvent(QKeyEvent *evenement)
{
    const QList<QWidget *> champs =
        m_numero.champs() + QList<QWidget *>{m_ui->sal_annueledit, m_ui->nbj_travailctrl, m_ui->mskdate};
    if (!passerAuSuivant(*evenement, champs, *m_ui->cmdok))
        FenetreSaisie::keyPressEvent(evenement);
}

FicheLigneDas EcranLigneDas::lire() const
{
    FicheLigneDas fiche;
    if (m_forme == Forme::Creation)
        static_cast<NumeroSaisi &>(fiche) = m_numero.lire();
    fiche.sal_annueledit = m_ui->sal_annueledit->text();
    fiche.nbj_travailctrl = {m_ui->nbj_travailctrl->nombre(), m_ui->nbj_travailctrl->unite()};
    fiche.EOption = m_ui->EOption->isChecked();
    fiche.SOption = m_ui->SOption->isChecked();
    fiche.mskdate = m_ui->mskdate->text();
    return fiche;
}

/// The fields of the line alone; those of the employee stay as they are.
void EcranLigneDas::ecrire(const FicheLigneDas &fiche)
{
    m_ui->sal_annueledit->setText(fiche.sal_annueledit);
    m_ui->nbj_travailctrl->setDuree(fiche.nbj_travailctrl.nombre, fiche.nbj_travailctrl.unite);
    m_ui->EOption->setChecked(fiche.EOption);
    m_ui->SOption->setChecked(fiche.SOption);
    m_ui->mskdate->setText(fiche.mskdate);
    if (const auto jour = dateDe(fiche.mskdate))
        m_ui->Clend_naiss->setSelectedDate(*jour);
}

void EcranLigneDas::remplir()
{
    ecrire(remplirFicheLigneDas(m_lue));
    m_numero.montrer(m_lignes.base().Cnx, m_lue.texte(u"num_salarie"), m_lue.entier(u"cpt_z"));
    reprendreSaisie(*m_ui->sal_annueledit);
}

/// Ready for the next line, the cursor on its number.
void EcranLigneDas::vider()
{
    FicheLigneDas vide;
    vide.sal_annueledit = u"0"_s;
    ecrire(vide);
    m_numero.vider();
}

void EcranLigneDas::ajouter()
{
    const auto refus = ajouterLigneDas(m_lignes, lire(), m_contexte.dialogue, [this] { vider(); });
    if (!refus)
        return;
    if (refus->creerSalarie)
        m_numero.creer();
    reprendreSaisie(*this, refus->refus);
}

void EcranLigneDas::modifier()
{
    if (const auto refus = modifierLigneDas(m_lignes, m_lue, lire(), m_contexte.dialogue))
        reprendreSaisie(*this, *refus);
    else
        accept();
}
