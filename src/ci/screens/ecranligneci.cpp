#include "ci/screens/ecranligneci.h"

#include "declarations/lignes.h"
#include "screens/contexte.h"
#include "screens/focus.h"
#include "ui_ecranligneci.h"

using namespace Qt::StringLiterals;

namespace {

/// Where the two windows differ to the eye.
namespace difference {

constexpr Selon<QStringView> nom{u"frm_add_LnCi", u"frm_modif_lnCi"};
constexpr Selon<QStringView> titre{u"Ajouter une ligne CI", u"Modifier une ligne CI"};

} // namespace difference

} // namespace

EcranLigneCi::EcranLigneCi(Forme forme, Contexte &contexte, LignesDeclaration &lignes,
                           const Enregistrement &lue, QWidget *parent)
    : FenetreSaisie(contexte, parent), m_forme(forme), m_lignes(lignes), m_lue(lue),
      m_ui(std::make_unique<Ui::EcranLigneCi>())
{
    m_ui->setupUi(this);
    setObjectName(difference::nom[forme].toString());
    setWindowTitle(difference::titre[forme].toString());
    m_numero.poser(forme, *m_ui->champs, *m_ui->MskDateEmbauche);
    relierChamps();
    relier(m_ui->cmdok, m_ui->CancelButton);
    if (forme == Forme::Creation) {
        m_numero.relier(contexte, *this, [this] { m_ui->MskDateEmbauche->setFocus(); });
        ecrire(proposerLigneCi(lignes));
        m_ui->LblMontantIndemnise->setText(m_ui->TxtMtHoraire->text());
        m_numero.vider();
        surClic(m_ui->cmdok, [this] { ajouter(); });
    } else {
        ecrire(remplirFicheLigneCi(lue));
        m_numero.montrer(lignes.base().Cnx, lue.texte(u"N_SecSoc"), lue.entier(u"Cpt_z"));
        reprendreSaisie(*m_ui->MskDateEmbauche);
        surClic(m_ui->cmdok, [this] { modifier(); });
    }
}

EcranLigneCi::~EcranLigneCi() = default;

void EcranLigneCi::relierChamps()
{
    const auto calculer = [this] {
        m_ui->LblMontantIndemnise->setText(
            montantIndemnise(m_ui->TxtNbHeure->text(), m_ui->TxtMtHoraire->text()));
    };
    DernierRecours &recours = m_contexte.dernierRecours;
    connect(m_ui->TxtNbHeure, &QLineEdit::textEdited, m_ui->TxtNbHeure, [champ = m_ui->TxtNbHeure] {
        const int curseur = champ->cursorPosition();
        champ->setText(heuresSaisies(champ->text()));
        champ->setCursorPosition(curseur);
    });
    recours.connecter(m_ui->TxtNbHeure, &QLineEdit::textChanged, this, calculer);
    recours.connecter(m_ui->TxtMtHoraire, &QLineEdit::textChanged, this, calculer);
    surSortie(*m_ui->TxtNbHeure, recours,
              [this] { quitterHeuresCi(m_ui->TxtNbHeure->text(), m_contexte.dialogue); });
    surSortie(*m_ui->TxtMtHoraire, recours,
              [this] { quitterSalaireCi(m_ui->TxtMtHoraire->text(), m_contexte.dialogue); });
}

void EcranLigneCi::keyPressEvent(QKeyEvent *evenement)
{
    const QList<QWidget *> champs =
        m_numero.champs() + QList<QWidget *>{m_ui->MskDateEmbauche, m_ui->MskDateArret, m_ui->MskDateReprise,
                                             m_ui->TxtNbHeure, m_ui->TxtMtHoraire};
    if (!passerAuSuivant(*evenement, champs, *m_ui->cmdok))
        FenetreSaisie::keyPressEvent(evenement);
}

FicheLigneCi EcranLigneCi::lire() const
{
    FicheLigneCi fiche;
    if (m_forme == Forme::Creation)
        static_cast<NumeroSaisi &>(fiche) = m_numero.lire();
    fiche.MskDateEmbauche = m_ui->MskDateEmbauche->text();
    fiche.MskDateArret = m_ui->MskDateArret->text();
    fiche.MskDateReprise = m_ui->MskDateReprise->text();
    fiche.TxtNbHeure = m_ui->TxtNbHeure->text();
    fiche.TxtMtHoraire = m_ui->TxtMtHoraire->text();
    return fiche;
}

/// The fields of the line alone; those of the employee stay as they are.
void EcranLigneCi::ecrire(const FicheLigneCi &fiche)
{
    m_ui->MskDateEmbauche->setText(fiche.MskDateEmbauche);
    m_ui->MskDateArret->setText(fiche.MskDateArret);
    m_ui->MskDateReprise->setText(fiche.MskDateReprise);
    m_ui->TxtNbHeure->setText(fiche.TxtNbHeure);
    m_ui->TxtMtHoraire->setText(fiche.TxtMtHoraire);
}

/// Ready for the next line, the cursor on its number. Hours and wage stay: those of a site are often alike.
void EcranLigneCi::vider()
{
    FicheLigneCi fiche = lire();
    fiche.MskDateEmbauche.clear();
    fiche.MskDateArret.clear();
    fiche.MskDateReprise.clear();
    ecrire(fiche);
    m_numero.vider();
}

void EcranLigneCi::ajouter()
{
    const AjoutLigneCi actions{[this] { m_numero.creer(); }, [this] { vider(); }};
    if (const auto refus = ajouterLigneCi(m_lignes, lire(), actions, m_contexte.dialogue))
        reprendreSaisie(*this, *refus);
}

void EcranLigneCi::modifier()
{
    if (const auto refus = modifierLigneCi(m_lignes, m_lue, lire(), m_contexte.dialogue))
        reprendreSaisie(*this, *refus);
    else
        accept();
}
