#include "reference/screens/ecranbanque.h"

#include "reference/textesaisi.h"
#include "rules/dialogue.h"
#include "screens/contexte.h"
#include "screens/focus.h"
#include "storage/base.h"
#include "ui_ecranbanque.h"

using namespace Qt::StringLiterals;

namespace {

/// What tells the change from the entry to the eye: first the entry's.
namespace difference {

constexpr Selon<Habillage> habillage{{u"add_bnq", u"Nouvelle banque", u"Command1", u"Créer"},
                                     {u"mod_bnq", u"Modification d'une banque", u"OKButton", u"Enregistrer"}};
constexpr Selon<QStringView> masque{u"###", u"999"};
constexpr Selon<QStringView> invite{u"_", u" "};

} // namespace difference

} // namespace

EcranBanque::EcranBanque(Forme forme, Contexte &contexte, QWidget *parent)
    : FenetreSaisie(contexte, parent), m_forme(forme), m_ui(std::make_unique<Ui::EcranBanque>())
{
    m_ui->setupUi(this);
    habiller(difference::habillage[forme], *m_ui->OKButton);
    m_ui->CodeBnq->setMasque(difference::masque[forme].toString());
    m_ui->CodeBnq->setInvite(difference::invite[forme].toString());
    if (forme == Forme::Modification) {
        m_ligne = contexte.base.RsBanque.courant();
        ecrire(lireFicheBanque(m_ligne));
        m_lue = lire();
    }
    reprendreSaisie(*m_ui->CodeBnq);

    relier(m_ui->OKButton, m_ui->CancelButton);
    surSortie(*m_ui->CodeBnq, contexte.dernierRecours, [this] { quitterCode(); });
    surClic(m_ui->OKButton, [this] { enregistrer(); });
}

EcranBanque::~EcranBanque() = default;

FicheBanque EcranBanque::lire() const
{
    return {m_ui->CodeBnq->text(), m_ui->AbreviatBnq->text(), m_ui->LibelleBnq->text()};
}

void EcranBanque::ecrire(const FicheBanque &fiche)
{
    m_ui->CodeBnq->setText(fiche.CodeBnq);
    m_ui->AbreviatBnq->setText(fiche.AbreviatBnq);
    m_ui->LibelleBnq->setText(fiche.LibelleBnq);
}

void EcranBanque::quitterCode()
{
    QString code = m_ui->CodeBnq->text();
    if (refuserBlancAuDebut(code, m_contexte.dialogue))
        m_ui->CodeBnq->setText(code);
}

void EcranBanque::enregistrer()
{
    Base &base = m_contexte.base;
    FicheBanque fiche = lire();
    const auto refus = m_forme == Forme::Creation
                           ? creerBanque(base, fiche, m_contexte.dialogue)
                           : modifierBanque(base, m_ligne, fiche, m_lue, m_contexte.dialogue);
    if (refus) {
        reprendreSaisie(*this, *refus);
        return;
    }
    if (m_forme == Forme::Modification) {
        accept();
        return;
    }
    emit ajoutee();
    ecrire({m_ui->CodeBnq->vide(), {}, {}});
    m_contexte.dialogue.informer(u"Banque ajoutée avec succès!"_s);
    reprendreSaisie(*m_ui->CodeBnq);
}
