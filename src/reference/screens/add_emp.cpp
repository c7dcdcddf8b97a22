#include "reference/screens/add_emp.h"

#include "reference/screens/devant.h"
#include "reference/textesaisi.h"
#include "rules/dialogue.h"
#include "screens/contexte.h"
#include "screens/focus.h"
#include "storage/base.h"
#include "ui_add_emp.h"

using namespace Qt::StringLiterals;

add_emp::add_emp(Contexte &contexte, QWidget *parent)
    : FenetreSaisie(contexte, parent), m_ui(std::make_unique<Ui::add_emp>())
{
    m_ui->setupUi(this);
    m_champs = {m_ui->num_empmask, m_ui->clemask, m_ui->Rais_SocEdit,
                m_ui->AdresseEdit, m_ui->telEdit, m_ui->mailEdit};
    m_champs.preparer(u"_"_s);
    relier(m_ui->Command1, m_ui->CancelButton);
    surSortie(*m_ui->num_empmask, contexte.dernierRecours, [this] {
        QString numero = m_ui->num_empmask->text();
        if (refuserBlancAuDebut(numero, m_contexte.dialogue)) {
            m_ui->num_empmask->setText(numero);
            m_ui->num_empmask->setCursorPosition(0);
        }
    });
    surSortie(*m_ui->clemask, contexte.dernierRecours, [this] {
        if (const RefusEmployeur refus = ctrlCleNouvelEmployeur(m_champs.lire(), m_contexte.dialogue))
            m_champs.reprendre(*refus);
    });
    surClic(m_ui->Command1, [this] { creer(); });
}

add_emp::~add_emp() = default;

void add_emp::creer()
{
    Base &base = m_contexte.base;
    FicheEmployeur fiche = m_champs.lire();
    const RefusEmployeur refus = creerEmployeur(base, fiche, m_contexte.dialogue);
    if (refus) {
        m_champs.ecrire(fiche);
        m_champs.reprendre(*refus);
        return;
    }
    m_contexte.menu.accorderDeclarations();

    accept();
    mettreDevant(*parentWidget());
    // The key "99" is that of no number.
    m_champs.ecrire({m_ui->num_empmask->vide(), u"99"_s, {}, {}, {}, {}});
    m_champs.reprendre(ChampEmployeur::num_empmask);
    m_contexte.dialogue.informer(u"Employeur ajouté avec succès!"_s);
}
