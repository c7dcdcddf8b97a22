#include "employees/screens/ecranaffiliation.h"

#include "rules/date.h"
#include "rules/dialogue.h"
#include "rules/texte.h"
#include "screens/contexte.h"
#include "screens/focus.h"
#include "screens/selectionentree.h"
#include "storage/base.h"
#include "ui_ecranaffiliation.h"

#include <QFocusEvent>
#include <QSignalBlocker>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int LongueurAdresse = 50;

constexpr Selon<Habillage> habillage{
    {u"frm_add_sal", u"AFFILIATION SALARIE", u"cmdok", u"Créer"},
    {u"frm_mod_sal", u"MODIFICATION AFFILIATION SALARIE", u"cmdok", u"Enregistrer"}};

// Fields that hold the text already are left alone: their cursor and their undo would be lost.

void mettre(QLineEdit &champ, const QString &texte)
{
    if (champ.text() != texte)
        champ.setText(texte);
}

void mettre(QPlainTextEdit &champ, const QString &texte)
{
    if (champ.toPlainText() != texte)
        champ.setPlainText(texte);
}

void mettre(QCheckBox &boite, bool coche)
{
    const QSignalBlocker garde(boite);
    boite.setChecked(coche);
}

void choisir(QComboBox &liste, const QString &texte)
{
    liste.setCurrentIndex(texte.isEmpty() ? -1
                                          : liste.findText(texte, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

void remplir(QComboBox &liste, const QStringList &textes)
{
    liste.clear();
    liste.addItems(textes);
    liste.setCurrentIndex(-1);
}

bool vientDUnAutreControle(const QEvent &evenement)
{
    const Qt::FocusReason raison = static_cast<const QFocusEvent &>(evenement).reason();
    return raison != Qt::ActiveWindowFocusReason && raison != Qt::PopupFocusReason;
}

} // namespace

EcranAffiliation::EcranAffiliation(Forme ecran, Contexte &contexte, QWidget *parent)
    : FenetreSaisie(contexte, parent), m_ui(std::make_unique<Ui::EcranAffiliation>()), m_ecran(ecran)
{
    m_ui->setupUi(this);
    habiller(habillage[ecran], *m_ui->cmdok);
    if (!difference::aLieuNaissance[ecran]) {
        delete m_ui->LabLieu;
        delete m_ui->lieu_naissedit;
    }
    for (ChampMasque *champ : {m_ui->num_salmask, m_ui->clemask, m_ui->cle_ccpmask})
        champ->setInvite(u" "_s); // a .ui loses a blank
    relier(m_ui->cmdok, m_ui->cmdanul);
    surClic(m_ui->cmdok, [this] { valider(); });
    preparerListes();
    suivreSaisie();
}

EcranAffiliation::~EcranAffiliation() = default;

void EcranAffiliation::preparerListes()
{
    Connexion &cnx = m_contexte.base.Cnx;
    remplir(*m_ui->CmbWilaya, listeWilayas(cnx));
    remplir(*m_ui->CmbNationalite, listeNationalites(cnx));
    m_ui->CmbSexe->setCurrentIndex(-1);
    m_ui->sfedit->setCurrentIndex(-1);
}

void EcranAffiliation::suivreSaisie()
{
    DernierRecours &recours = m_contexte.dernierRecours;
    recours.connecter(m_ui->blancCheck, &QCheckBox::toggled, this, [this](bool coche) {
        FicheSalarie fiche = lire();
        cocherBlanc(fiche, coche);
        montrer(fiche);
        (coche ? static_cast<QWidget *>(m_ui->nomedit) : m_ui->num_salmask)->setFocus();
    });
    recours.connecter(m_ui->etrangerCheck, &QCheckBox::toggled, this, [this](bool coche) {
        FicheSalarie fiche = lire();
        cocherEtranger(fiche, coche);
        montrer(fiche);
        if (coche)
            m_ui->profesedit->setFocus();
    });
    recours.connecter(m_ui->CmbWilaya, &QComboBox::currentIndexChanged, this, [this] { chargerCommunes(); });
    surSortie(*m_ui->mskdate, recours, [this] { quitterDate(); });

    for (QLineEdit *champ : {m_ui->nomedit, m_ui->prenomedit, m_ui->PrenomPere, m_ui->NomMere,
                             m_ui->PrenomMere, m_ui->profesedit, m_ui->villeEdit})
        surSortie(*champ, recours, [champ] { mettre(*champ, majuscules(champ->text())); });
    surSortie(*m_ui->adredit, recours,
              [this] { mettre(*m_ui->adredit, majuscules(m_ui->adredit->toPlainText())); });
    connect(m_ui->adredit, &QPlainTextEdit::textChanged, this, &EcranAffiliation::limiterAdresse);

    if (difference::mailSelectionne[m_ecran])
        selectionnerALEntree(*m_ui->TxtEmail);
    if (m_ecran == Forme::Creation)
        recours.connecter(m_ui->CmbCommune, &QComboBox::activated, this, [this] { communeSansWilaya(); });
    else
        m_ui->CmbCommune->installEventFilter(this);
}

bool EcranAffiliation::eventFilter(QObject *objet, QEvent *evenement)
{
    if (objet == m_ui->CmbCommune && evenement->type() == QEvent::FocusIn &&
        vientDUnAutreControle(*evenement)) {
        // Once the event is done: a box can't open inside it.
        QTimer::singleShot(0, this,
                           [this] { m_contexte.dernierRecours.agir([this] { communeSansWilaya(); }); });
    }
    return FenetreSaisie::eventFilter(objet, evenement);
}

void EcranAffiliation::communeSansWilaya()
{
    if (m_ui->CmbWilaya->currentIndex() >= 0)
        return;
    const QString texte = difference::communeSansWilaya[m_ecran].toString();
    if (m_ecran == Forme::Creation) {
        m_contexte.dialogue.avertir(texte);
    } else {
        m_contexte.dialogue.informer(texte);
        m_ui->CmbWilaya->setFocus();
    }
}

void EcranAffiliation::quitterDate()
{
    if (EstDate(m_ui->mskdate->text()))
        return;
    m_contexte.dialogue.avertir(u"Veuillez saisir une date correcte SVP"_s);
    reprendreSaisie(*m_ui->mskdate);
}

void EcranAffiliation::chargerCommunes()
{
    // Without a wilaya the list keeps the communes of the last one.
    if (m_ui->CmbWilaya->currentIndex() >= 0)
        remplir(*m_ui->CmbCommune, listeCommunes(m_contexte.base.Cnx, m_ui->CmbWilaya->currentText()));
}

/// Takes back what was typed or pasted beyond the limit, and nothing that stood there before.
void EcranAffiliation::limiterAdresse()
{
    const auto trop = static_cast<int>(m_ui->adredit->toPlainText().size()) - LongueurAdresse;
    if (trop <= 0)
        return;
    QTextCursor curseur = m_ui->adredit->textCursor();
    if (curseur.position() < trop)
        curseur.movePosition(QTextCursor::End);
    curseur.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor, trop);
    curseur.removeSelectedText();
}

FicheSalarie EcranAffiliation::lire() const
{
    FicheSalarie fiche;
    fiche.blancCheck = m_ui->blancCheck->isChecked();
    fiche.num_salmask = m_ui->num_salmask->text();
    fiche.clemask = m_ui->clemask->text();
    fiche.nomedit = m_ui->nomedit->text();
    fiche.prenomedit = m_ui->prenomedit->text();
    fiche.CmbSexe = m_ui->CmbSexe->currentIndex();
    fiche.mskdate = m_ui->mskdate->text();
    fiche.presumeCheck = m_ui->presumeCheck->isChecked();
    fiche.CmbWilaya = m_ui->CmbWilaya->currentText();
    fiche.CmbCommune = m_ui->CmbCommune->currentText();
    fiche.sfedit = m_ui->sfedit->currentText();
    fiche.etrangerCheck = m_ui->etrangerCheck->isChecked();
    fiche.CmbNationalite = m_ui->CmbNationalite->currentIndex();
    fiche.MskNumActeNaiss = m_ui->MskNumActeNaiss->text();
    fiche.MskNin = m_ui->MskNin->text();
    fiche.TxtPIN = m_ui->TxtPIN->text();
    fiche.PrenomPere = m_ui->PrenomPere->text();
    fiche.NomMere = m_ui->NomMere->text();
    fiche.PrenomMere = m_ui->PrenomMere->text();
    fiche.profesedit = m_ui->profesedit->text();
    fiche.adredit = m_ui->adredit->toPlainText();
    fiche.villeEdit = m_ui->villeEdit->text();
    fiche.c_postalEdit = m_ui->c_postalEdit->text();
    fiche.MskNTel = m_ui->MskNTel->text();
    fiche.TxtEmail = m_ui->TxtEmail->text();
    fiche.num_cpt_ccpedit = m_ui->num_cpt_ccpedit->text();
    fiche.num_cpt_bancedit = m_ui->num_cpt_bancedit->text();
    return fiche;
}

void EcranAffiliation::montrer(const FicheSalarie &fiche)
{
    mettre(*m_ui->blancCheck, fiche.blancCheck);
    mettre(*m_ui->num_salmask, fiche.num_salmask);
    mettre(*m_ui->clemask, fiche.clemask);
    mettre(*m_ui->nomedit, fiche.nomedit);
    mettre(*m_ui->prenomedit, fiche.prenomedit);
    m_ui->CmbSexe->setCurrentIndex(fiche.CmbSexe);
    mettre(*m_ui->mskdate, fiche.mskdate);
    mettre(*m_ui->presumeCheck, fiche.presumeCheck);
    choisir(*m_ui->CmbWilaya, fiche.CmbWilaya); // fills the communes
    choisir(*m_ui->CmbCommune, fiche.CmbCommune);
    // What other programs stored is shown as it is; the save mends it.
    if (!fiche.sfedit.isEmpty() &&
        m_ui->sfedit->findText(fiche.sfedit, Qt::MatchExactly | Qt::MatchCaseSensitive) < 0)
        m_ui->sfedit->addItem(fiche.sfedit);
    choisir(*m_ui->sfedit, fiche.sfedit);
    mettre(*m_ui->etrangerCheck, fiche.etrangerCheck);
    m_ui->CmbNationalite->setCurrentIndex(fiche.CmbNationalite);
    mettre(*m_ui->MskNumActeNaiss, fiche.MskNumActeNaiss);
    mettre(*m_ui->MskNin, fiche.MskNin);
    mettre(*m_ui->TxtPIN, fiche.TxtPIN);
    mettre(*m_ui->PrenomPere, fiche.PrenomPere);
    mettre(*m_ui->NomMere, fiche.NomMere);
    mettre(*m_ui->PrenomMere, fiche.PrenomMere);
    mettre(*m_ui->profesedit, fiche.profesedit);
    mettre(*m_ui->adredit, fiche.adredit);
    mettre(*m_ui->villeEdit, fiche.villeEdit);
    mettre(*m_ui->c_postalEdit, fiche.c_postalEdit);
    mettre(*m_ui->MskNTel, fiche.MskNTel);
    mettre(*m_ui->TxtEmail, fiche.TxtEmail);
    mettre(*m_ui->num_cpt_ccpedit, fiche.num_cpt_ccpedit);
    mettre(*m_ui->num_cpt_bancedit, fiche.num_cpt_bancedit);
    permettre();
}

void EcranAffiliation::permettre()
{
    const bool numerote = !m_ui->blancCheck->isChecked();
    m_ui->num_salmask->setEnabled(numerote);
    m_ui->clemask->setEnabled(numerote);

    const bool national = !m_ui->etrangerCheck->isChecked();
    m_ui->CmbNationalite->setEnabled(!national);
    for (QWidget *champ : std::initializer_list<QWidget *>{m_ui->MskNumActeNaiss, m_ui->MskNin,
                                                           m_ui->CmbWilaya, m_ui->CmbCommune})
        champ->setEnabled(national);
}

void EcranAffiliation::commencer() { reprendreSaisie(*m_ui->num_salmask); }

void EcranAffiliation::valider()
{
    FicheSalarie fiche = lire();
    const std::optional<Refus> refus = enregistrer(fiche);
    if (refus)
        reprendreSaisie(*this, *refus);
}
