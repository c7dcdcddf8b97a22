#include "declarations/screens/ecranmodificationentete.h"

#include "declarations/entetes.h"
#include "rules/dialogue.h"
#include "screens/contexte.h"
#include "screens/focus.h"
#include "ui_ecranmodificationentete.h"

using namespace Qt::StringLiterals;

EcranModificationEntete::EcranModificationEntete(Contexte &contexte, const FormeModificationEntete &forme,
                                                 const Enregistrement &lue, QWidget *parent)
    : FenetreSaisie(contexte, parent), m_forme(forme), m_lue(lue),
      m_ui(std::make_unique<Ui::EcranModificationEntete>())
{
    m_ui->setupUi(this);
    setObjectName(forme.nom);
    setWindowTitle(forme.titre);
    m_ui->LabSomme->setText(forme.libelleSomme);
    m_ui->LabNombre->setText(forme.libelleEffectif);
    m_ui->sumedit->setText(formatMasque(lue.montant(forme.entetes.somme, Currency()), u"## ### ### ###.00"));
    m_ui->totaledit->setText(QString::number(lue.entier(forme.entetes.effectif, 0)));
    relier(m_ui->cmdok, m_ui->cmdcancel);
    surSortie(*m_ui->sumedit, contexte.dernierRecours, [this] {
        if (!estMontantSaisi(m_ui->sumedit->text()))
            m_contexte.dialogue.avertir(u"Veuillez saisir un nombre!"_s);
    });
    surClic(m_ui->cmdok, [this] { enregistrer(); });
    reprendreSaisie(*m_ui->sumedit);
}

EcranModificationEntete::~EcranModificationEntete() = default;

void EcranModificationEntete::enregistrer()
{
    const auto refus = modifierEntete(m_contexte.base, m_forme.entetes, m_lue, m_ui->sumedit->text(),
                                      m_ui->totaledit->text(), m_contexte.dialogue);
    if (refus)
        reprendreSaisie(*this, *refus);
    else
        accept();
}
