#include "validators/screens/frmdasvalide.h"

#include "rules/nombre.h"
#include "screens/contexte.h"
#include "screens/dernierrecours.h"
#include "screens/focus.h"
#include "ui_frmvalidateur.h"
#include "ui_ongletdacs.h"
#include "validators/validateurdas.h"

using namespace Qt::StringLiterals;

namespace {

constexpr LibelleEntete entete[] = {
    {u"LabEmpl", u"N° Employeur :", u"N° Employeur", 0, 0, 90},
    {u"LabAnn", u"Année :", u"Année", 0, 2, 60},
    {u"LabNumDAS", u"N° DAS :", u"N° DAS", 1, 0, 90},
    {u"LabSalDAS", u"Mt Total Salaires :", u"Montant total des salaires", 2, 0, 130, 3},
    {u"LabNbDAS", u"Nb Total Salariés :", u"Nombre total de salariés", 3, 0, 60},
};

} // namespace

FrmDasValide::FrmDasValide(Contexte &contexte)
    : FrmValidateur(contexte, std::make_unique<ValidateurDas>(),
                    {u"FrmDasValide", u"Validation Déclaration Annuelle des Salaires (D.A.S)", entete}),
      m_ui(std::make_unique<Ui::OngletDacs>())
{
    ajouterOnglet();
    for (std::size_t i = 0; i < m_boites.size(); ++i) {
        QLineEdit *boite = findChild<QLineEdit *>(SaisieDacs::Boites[i].toString());
        m_boites[i] = boite;
        surSortie(*boite, contexte.dernierRecours, [this, boite] { quitter(*boite); });
        connect(boite, &QLineEdit::returnPressed, this, [this] { focusNextChild(); });
    }
    remettreTitres();
    contexte.dernierRecours.connecter(m_ui->CmdVerifier, &QPushButton::clicked, this,
                                      &FrmDasValide::verifier);
}

FrmDasValide::~FrmDasValide() = default;

/// The third tab, between the lists and the closing button.
void FrmDasValide::ajouterOnglet()
{
    auto *ligne = new QLabel(
        u"3° Onglet :                                                   La Saisie de vos DACs de Juillet à Juin et leur Confrontation avec la DAS "_s);
    ligne->setObjectName(u"LabelOnglet3"_s);
    m_cadre->cadre5->insertWidget(m_cadre->cadre5->indexOf(m_cadre->SSTab1), ligne);

    auto *onglet = new QWidget;
    m_ui->setupUi(onglet);
    m_cadre->SSTab1->addTab(onglet, onglet->windowTitle());
    boutonsParEntree(*onglet);
    QWidget *avant = m_cadre->CmdApercuOK;
    const auto suivre = [&](QWidget *champ) {
        setTabOrder(avant, champ);
        avant = champ;
    };
    for (const QStringView nom : SaisieDacs::Boites)
        suivre(findChild<QWidget *>(nom.toString()));
    suivre(m_ui->CmdVerifier);
    suivre(m_cadre->cmdexit);
}

/// The amounts keyed, their years and the verdict on them were those of the file before.
void FrmDasValide::avantExtraction()
{
    ViderDacs();
    remettreTitres();
    m_ui->LabDAS3->clear();
}

/// Month or quarter alone, until a file gives the year.
void FrmDasValide::remettreTitres()
{
    for (const QLineEdit *boite : m_boites) {
        const QString periode = boite->objectName().sliced(3);
        findChild<QLabel *>(u"Lab"_s + periode)->setText(periode);
    }
}

SaisieDacs FrmDasValide::saisie() const
{
    SaisieDacs dacs;
    for (std::size_t i = 0; i < m_boites.size(); ++i)
        dacs.textes[i] = m_boites[i]->text();
    return dacs;
}

void FrmDasValide::SommeDacs() { m_ui->LabSommeDAC->setText(texteNombre(::SommeDacs(saisie()))); }

void FrmDasValide::ViderDacs()
{
    for (QLineEdit *boite : m_boites)
        boite->clear();
    m_ui->LabSommeDAC->clear();
}

void FrmDasValide::quitter(QLineEdit &boite)
{
    QString texte = boite.text();
    const bool accepte = quitterMontantDac(texte, m_contexte.dialogue);
    boite.setText(texte);
    if (accepte)
        SommeDacs();
    else
        reprendreSaisie(boite);
}

void FrmDasValide::verifier()
{
    m_ui->LabDAS3->clear();
    m_ui->LabDAS3->setText(verifierDacs(saisie(), m_cadre->LabTotSalaires->text(), m_contexte.dialogue));
}
