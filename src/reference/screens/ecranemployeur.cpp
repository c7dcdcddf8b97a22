#include "reference/screens/ecranemployeur.h"

#include "reference/screens/devant.h"
#include "reference/textesaisi.h"
#include "rules/dialogue.h"
#include "screens/contexte.h"
#include "screens/focus.h"
#include "storage/base.h"
#include "ui_ecranemployeur.h"

#include <QValidator>

using namespace Qt::StringLiterals;

namespace {

/// What tells the change from the entry to the eye: first the entry's.
namespace difference {

constexpr Selon<Habillage> habillage{
    {u"add_emp", u"Nouvelle affiliation", u"Command1", u"Créer"},
    {u"mod_emp", u"Modification d'un employeur", u"OKButton", u"Enregistrer"}};
constexpr Selon<QStringView> masque{u"########", u"99999999"};
constexpr Selon<QStringView> invite{u"_", u" "};
/// Whether leaving the number tells of a blank at its beginning.
constexpr Selon<bool> blancAuDebutDit{true, false};

} // namespace difference

constexpr qsizetype largeurTelephone = 10;

/// Keeps a telephone number within its width. A pasted number may be grouped: it loses its blanks rather than
/// its last digits.
class LimiteTelephone : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString &saisie, int &curseur) const override
    {
        if (saisie.size() <= largeurTelephone)
            return Acceptable;
        const auto estBlanc = [](QChar c) { return c.isSpace(); };
        curseur -= static_cast<int>(std::count_if(saisie.begin(), saisie.begin() + curseur, estBlanc));
        saisie.removeIf(estBlanc);
        return saisie.size() <= largeurTelephone ? Acceptable : Invalid;
    }
};

} // namespace

EcranEmployeur::EcranEmployeur(Forme forme, Contexte &contexte, QWidget *parent)
    : FenetreSaisie(contexte, parent), m_forme(forme), m_ui(std::make_unique<Ui::EcranEmployeur>())
{
    m_ui->setupUi(this);
    habiller(difference::habillage[forme], *m_ui->OKButton);
    m_ui->num_empmask->setMasque(difference::masque[forme].toString());
    m_ui->num_empmask->setInvite(difference::invite[forme].toString());
    m_ui->clemask->setInvite(u" "_s); // a form file can't hold a text of blanks alone
    m_ui->telEdit->setValidator(new LimiteTelephone(m_ui->telEdit));
    if (forme == Forme::Modification) {
        m_ligne = contexte.base.RsEmployeur.courant();
        ecrire(lireFicheEmployeur(m_ligne));
        m_lue = lire();
    }
    reprendreSaisie(*m_ui->num_empmask);

    relier(m_ui->OKButton, m_ui->CancelButton);
    if (difference::blancAuDebutDit[forme])
        surSortie(*m_ui->num_empmask, contexte.dernierRecours, [this] { quitterNumero(); });
    surSortie(*m_ui->clemask, contexte.dernierRecours, [this] { quitterCle(); });
    surClic(m_ui->OKButton, [this] { enregistrer(); });
}

EcranEmployeur::~EcranEmployeur() = default;

FicheEmployeur EcranEmployeur::lire() const
{
    return {m_ui->num_empmask->text(), m_ui->clemask->text(), m_ui->Rais_SocEdit->text(),
            m_ui->AdresseEdit->text(), m_ui->telEdit->text(), m_ui->mailEdit->text()};
}

void EcranEmployeur::ecrire(const FicheEmployeur &fiche)
{
    m_ui->num_empmask->setText(fiche.num_empmask);
    m_ui->clemask->setText(fiche.clemask);
    m_ui->Rais_SocEdit->setText(fiche.Rais_SocEdit);
    m_ui->AdresseEdit->setText(fiche.AdresseEdit);
    m_ui->telEdit->setText(fiche.telEdit);
    m_ui->mailEdit->setText(fiche.mailEdit);
}

void EcranEmployeur::quitterNumero()
{
    QString numero = m_ui->num_empmask->text();
    if (refuserBlancAuDebut(numero, m_contexte.dialogue))
        m_ui->num_empmask->setText(numero);
}

void EcranEmployeur::quitterCle()
{
    if (const auto refus = ctrlCleEmployeur(m_forme, lire(), m_contexte.dialogue))
        reprendreSaisie(*this, *refus);
}

void EcranEmployeur::enregistrer()
{
    Base &base = m_contexte.base;
    FicheEmployeur fiche = lire();
    const auto refus = m_forme == Forme::Creation
                           ? creerEmployeur(base, fiche, m_contexte.dialogue)
                           : modifierEmployeur(base, m_ligne, fiche, m_lue, m_contexte.dialogue);
    if (refus) {
        ecrire(fiche);
        reprendreSaisie(*this, *refus);
        return;
    }
    if (m_forme == Forme::Creation)
        m_contexte.menu.accorderDeclarations();
    accept();
    mettreDevant(*parentWidget());
    if (m_forme == Forme::Creation)
        terminerCreation();
}

/// The window is gone by now; it shows these fields when it comes back.
void EcranEmployeur::terminerCreation()
{
    // The key "99" is that of no number.
    ecrire({m_ui->num_empmask->vide(), u"99"_s, {}, {}, {}, {}});
    reprendreSaisie(*m_ui->num_empmask);
    m_contexte.dialogue.informer(u"Employeur ajouté avec succès!"_s);
}
