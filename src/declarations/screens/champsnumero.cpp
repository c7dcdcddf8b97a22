#include "declarations/screens/champsnumero.h"

#include "employees/fichesalarie.h"
#include "employees/screens/frm_add_sal.h"
#include "employees/screens/frm_ins_num_sal.h"
#include "screens/champmasque.h"
#include "screens/contexte.h"
#include "screens/focus.h"
#include "storage/base.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

QLabel *titre(const QString &nom, const QString &texte, QWidget *feuille)
{
    auto *libelle = new QLabel(texte, feuille);
    libelle->setObjectName(nom);
    return libelle;
}

QLabel *valeur(const QString &nom, const QString &description, QWidget *feuille)
{
    QLabel *libelle = titre(nom, {}, feuille);
    libelle->setAccessibleName(description);
    libelle->setTextFormat(Qt::PlainText);
    libelle->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return libelle;
}

ChampMasque *masque(const QString &nom, const QString &description, const QString &forme, int largeur,
                    QWidget *feuille)
{
    auto *champ = new ChampMasque(feuille);
    champ->setObjectName(nom);
    champ->setAccessibleName(description);
    champ->setMasque(forme);
    champ->setInvite(u" "_s);
    champ->setFixedWidth(largeur);
    return champ;
}

} // namespace

void ChampsNumero::poser(Forme forme, QGridLayout &champs, QWidget &suivant)
{
    QWidget *feuille = champs.parentWidget();
    QLabel *titreNumero = titre(u"Titre_numero"_s, u"N° SS :"_s, feuille);
    auto *rangee = new QHBoxLayout;
    if (forme == Forme::Creation) {
        poserSaisie(feuille);
        for (QWidget *un : std::initializer_list<QWidget *>{m_chiffres, m_titreCle, m_cle, m_inserer})
            rangee->addWidget(un);
        titreNumero->setBuddy(m_chiffres);
        QWidget::setTabOrder(m_chiffres, m_cle);
        QWidget::setTabOrder(m_cle, m_inserer);
        QWidget::setTabOrder(m_inserer, &suivant);
    } else {
        m_numero = valeur(u"LabNumero"_s, u"Numéro de sécurité sociale"_s, feuille);
        rangee->addWidget(m_numero);
    }
    rangee->addStretch();
    champs.addWidget(titreNumero, 0, 0);
    champs.addLayout(rangee, 0, 1);

    m_nom = valeur(u"Lab_nom"_s, u"Nom"_s, feuille);
    m_prenom = valeur(u"lab_prenom"_s, u"Prénom"_s, feuille);
    m_naissance = valeur(u"Lab_date_naiss"_s, u"Date de naissance"_s, feuille);
    champs.addWidget(titre(u"Titre_nom"_s, u"Nom :"_s, feuille), 1, 0);
    champs.addWidget(m_nom, 1, 1);
    champs.addWidget(titre(u"Titre_prenom"_s, u"Prénom :"_s, feuille), 2, 0);
    champs.addWidget(m_prenom, 2, 1);
    champs.addWidget(titre(u"Titre_date_naiss"_s, u"Né(e) le :"_s, feuille), 3, 0);
    champs.addWidget(m_naissance, 3, 1);
}

void ChampsNumero::poserSaisie(QWidget *feuille)
{
    m_chiffres = masque(u"num_saledit"_s, u"Numéro de sécurité sociale, dix chiffres"_s, u"##########"_s, 110,
                        feuille);
    m_titreCle = titre(u"LabCle"_s, u"Clé :"_s, feuille);
    m_cle = masque(u"mskcle"_s, u"Clé du numéro"_s, u"##"_s, 40, feuille);
    m_titreCle->setBuddy(m_cle);
    m_inserer = new QPushButton(u"&Insérer"_s, feuille);
    m_inserer->setObjectName(u"cmdins"_s);
    m_inserer->setToolTip(u"choisir un salarié dans la liste"_s);
}

void ChampsNumero::relier(Contexte &contexte, QWidget &ecran, std::function<void()> choisi)
{
    m_contexte = &contexte;
    m_ecran = &ecran;
    surSortie(*m_cle, contexte.dernierRecours, [this] { quitterCle(); });
    contexte.dernierRecours.connecter(m_inserer, &QAbstractButton::clicked, &ecran,
                                      [this, choisi = std::move(choisi)] { inserer(choisi); });
}

QList<QWidget *> ChampsNumero::champs() const
{
    return m_chiffres ? QList<QWidget *>{m_chiffres, m_cle} : QList<QWidget *>{};
}

NumeroSaisi ChampsNumero::lire() const { return {m_chiffres->text(), m_cle->text(), m_cpt_z}; }

void ChampsNumero::vider()
{
    montrer({});
    m_chiffres->setText(ChiffresBlancs.toString());
    m_cle->setText(m_cle->vide());
    m_cpt_z = 1;
    reprendreSaisie(*m_chiffres);
}

void ChampsNumero::creer() const
{
    ouvrirAffiliation(*m_contexte, m_ecran, numeroPourCreation(m_chiffres->text()), m_cle->text());
}

void ChampsNumero::montrer(Connexion &cnx, const QString &numero, qint64 cpt_z) const
{
    m_numero->setText(numero);
    montrer(salarieDe(cnx, numero, cpt_z));
}

void ChampsNumero::quitterCle()
{
    const NumeroSaisi saisi = lire();
    const SaisieNumero saisie = ctrlNumeroSaisi(saisi, m_contexte->dialogue);
    if (saisie.numeroBon) {
        m_cpt_z = 1;
        montrer(salarieDe(m_contexte->base.Cnx, saisi.numero(), m_cpt_z));
    } else if (saisie.reprendre) {
        reprendreSaisie(*m_chiffres);
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
    m_chiffres->setText(chiffres);
    m_cle->setText(chiffres == ChiffresBlancs ? u"00"_s : choix.Num_Salarie.mid(10));
    m_cpt_z = choix.cpt_z;
    montrer(salarieDe(m_contexte->base.Cnx, choix.Num_Salarie, choix.cpt_z));
    choisi();
}

void ChampsNumero::montrer(const SalarieMontre &salarie) const
{
    m_nom->setText(salarie.nom);
    m_prenom->setText(salarie.prenom);
    m_naissance->setText(salarie.date_naiss);
}
