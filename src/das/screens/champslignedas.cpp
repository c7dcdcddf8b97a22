#include "das/screens/champslignedas.h"

#include "rules/date.h"
#include "screens/ctrlduree.h"
#include "screens/dernierrecours.h"
#include "screens/focus.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

void ChampsLigneDas::preparer(DernierRecours &dernierRecours, Dialogue &dialogue) const
{
    const auto exclure = [](QRadioButton *option, QRadioButton *autre) {
        QObject::connect(option, &QRadioButton::toggled, autre, [autre](bool choisie) {
            if (choisie)
                autre->setChecked(false);
        });
    };
    exclure(EOption, SOption);
    exclure(SOption, EOption);

    QObject::connect(Clend_naiss, &QCalendarWidget::clicked, mskdate,
                     [champ = mskdate](QDate jour) { champ->setText(texteDate(jour)); });
    surSortie(*mskdate, dernierRecours, [champ = mskdate, calendrier = Clend_naiss, &dialogue] {
        if (!ctrlDateLigneDas(champ->text(), dialogue))
            reprendreSaisie(*champ);
        else if (const auto jour = dateDe(champ->text()))
            calendrier->setSelectedDate(*jour);
    });
}

void ChampsLigneDas::lire(FicheLigneDas &fiche) const
{
    fiche.sal_annueledit = sal_annueledit->text();
    fiche.nbj_travailctrl = {nbj_travailctrl->nombre(), nbj_travailctrl->unite()};
    fiche.EOption = EOption->isChecked();
    fiche.SOption = SOption->isChecked();
    fiche.mskdate = mskdate->text();
}

void ChampsLigneDas::ecrire(const FicheLigneDas &fiche) const
{
    sal_annueledit->setText(fiche.sal_annueledit);
    nbj_travailctrl->setDuree(fiche.nbj_travailctrl.nombre, fiche.nbj_travailctrl.unite);
    EOption->setChecked(fiche.EOption);
    SOption->setChecked(fiche.SOption);
    mskdate->setText(fiche.mskdate);
    if (const auto jour = dateDe(fiche.mskdate))
        Clend_naiss->setSelectedDate(*jour);
}

void ChampsLigneDas::montrer(const SalarieMontre &salarie) const
{
    Lab_nom->setText(salarie.nom);
    lab_prenom->setText(salarie.prenom);
    Lab_date_naiss->setText(salarie.date_naiss);
}

bool ChampsLigneDas::reprendre(ChampLigneDas champ) const
{
    switch (champ) {
    case ChampLigneDas::sal_annueledit:
        reprendreSaisie(*sal_annueledit);
        return true;
    case ChampLigneDas::nbj_travailctrl:
        nbj_travailctrl->reprendre();
        return true;
    case ChampLigneDas::mskdate:
        reprendreSaisie(*mskdate);
        return true;
    case ChampLigneDas::num_saledit:
    case ChampLigneDas::mskcle:
        break;
    }
    return false;
}

bool passerAuSuivant(const QKeyEvent &touche, const QList<QWidget *> &champs, QAbstractButton &bouton)
{
    if (touche.key() != Qt::Key_Return && touche.key() != Qt::Key_Enter)
        return false;
    const QWidget *ici = QApplication::focusWidget();
    for (qsizetype i = 0; i < champs.size(); ++i) {
        if (champs[i] != ici && !champs[i]->isAncestorOf(ici))
            continue;
        if (i + 1 < champs.size()) {
            champs[i + 1]->setFocus(Qt::TabFocusReason);
        } else {
            // The focus leaves the last field first, so that what leaving it tells comes before the save.
            bouton.setFocus(Qt::TabFocusReason);
            if (bouton.hasFocus())
                bouton.click();
        }
        return true;
    }
    return false;
}
