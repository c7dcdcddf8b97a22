#include "declarations/screens/champsnumero.h"

#include "employees/fichesalarie.h"
#include "employees/screens/frm_add_sal.h"
#include "employees/screens/frm_ins_num_sal.h"
#include "screens/champmasque.h"
#include "screens/contexte.h"
#include "screens/focus.h"
#include "storage/base.h"

#include <QAbstractButton>
#include <QLabel>

using namespace Qt::StringLiterals;

void ChampsNumero::relier(Contexte &contexte, QWidget &ecran, const Controles &controles,
                          std::function<void()> choisi)
{
    m_contexte = &contexte;
    m_ecran = &ecran;
    m_controles = controles;
    for (ChampMasque *champ : {controles.num_saledit, controles.mskcle})
        champ->setInvite(u" "_s); // a form file can't hold a text of blanks alone
    surSortie(*controles.mskcle, contexte.dernierRecours, [this] { quitterCle(); });
    contexte.dernierRecours.connecter(controles.cmdins, &QAbstractButton::clicked, &ecran,
                                      [this, choisi = std::move(choisi)] { inserer(choisi); });
}

NumeroSaisi ChampsNumero::lire() const
{
    return {m_controles.num_saledit->text(), m_controles.mskcle->text(), m_cpt_z};
}

void ChampsNumero::vider()
{
    montrer({});
    m_controles.num_saledit->setText(ChiffresBlancs.toString());
    m_controles.mskcle->setText(m_controles.mskcle->vide());
    m_cpt_z = 1;
    reprendreSaisie(*m_controles.num_saledit);
}

void ChampsNumero::creer() const
{
    ouvrirAffiliation(*m_contexte, m_ecran, numeroPourCreation(m_controles.num_saledit->text()),
                      m_controles.mskcle->text());
}

void ChampsNumero::quitterCle()
{
    const NumeroSaisi saisi = lire();
    const SaisieNumero saisie = ctrlNumeroSaisi(saisi, m_contexte->dialogue);
    if (saisie.numeroBon) {
        m_cpt_z = 1;
        montrer(salarieDe(m_contexte->base.Cnx, saisi.numero(), m_cpt_z));
    } else if (saisie.reprendre) {
        reprendreSaisie(*m_controles.num_saledit);
    }
}

void ChampsNumero::inserer(const std::function<void()> &choisi)
{
    frm_ins_num_sal choisir(*m_contexte, m_ecran);
    choisir.exec();
    const ChoixSalarie &choix = choisir.choix();
    if (!choix.choisi)
        return;
    const QString chiffres = choix.Num_Salarie.left(10);
    m_controles.num_saledit->setText(chiffres);
    m_controles.mskcle->setText(chiffres == ChiffresBlancs ? u"00"_s : choix.Num_Salarie.mid(10));
    m_cpt_z = choix.cpt_z;
    montrer(salarieDe(m_contexte->base.Cnx, choix.Num_Salarie, choix.cpt_z));
    choisi();
}

void ChampsNumero::montrer(const SalarieMontre &salarie) const
{
    montrerSalarie(salarie, *m_controles.Lab_nom, *m_controles.lab_prenom, *m_controles.Lab_date_naiss);
}

void montrerSalarie(const SalarieMontre &salarie, QLabel &nom, QLabel &prenom, QLabel &naissance)
{
    nom.setText(salarie.nom);
    prenom.setText(salarie.prenom);
    naissance.setText(salarie.date_naiss);
}
