#include "validators/screens/frmvalidateur.h"

#include "rules/dialogue.h"
#include "screens/contexte.h"
#include "screens/dernierrecours.h"
#include "screens/focus.h"
#include "screens/impression.h"
#include "screens/miseenpage.h"
#include "ui_frmvalidateur.h"
#include "validators/impression.h"
#include "validators/screens/modeleerreurs.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPrintDialog>
#include <QPrinter>

using namespace Qt::StringLiterals;

namespace {

/// How long the window may stand unpainted while a file is read.
constexpr qint64 PeintureMs = 50;

/// The full entries of the selected rows, one a line.
void copierEntrees(const QTableView &table)
{
    QList<int> lignes;
    for (const QItemSelectionRange &plage : table.selectionModel()->selection()) {
        for (int ligne = plage.top(); ligne <= plage.bottom(); ++ligne)
            lignes.append(ligne);
    }
    std::sort(lignes.begin(), lignes.end());
    lignes.erase(std::unique(lignes.begin(), lignes.end()), lignes.end());
    QString texte;
    for (const int ligne : lignes)
        texte += table.model()->index(ligne, ModeleErreurs::Entree).data().toString() + u'\n';
    if (!texte.isEmpty())
        QGuiApplication::clipboard()->setText(texte);
}

/// Makes room for the longest entry to be read whole. Beyond a few hundred characters the box below is
/// better.
void elargirEntree(QTableView &table)
{
    constexpr qsizetype caracteres = 300;
    const auto &modele = static_cast<const ModeleErreurs &>(*table.model());
    const int largeur = table.fontMetrics().horizontalAdvance(modele.entreePlusLongue().left(caracteres)) +
                        2 * table.fontMetrics().height();
    if (largeur > table.columnWidth(ModeleErreurs::Entree))
        table.setColumnWidth(ModeleErreurs::Entree, largeur);
}

} // namespace

FrmValidateur::FrmValidateur(Contexte &contexte, std::unique_ptr<Validateur> validateur,
                             const PresentationValidateur &presentation)
    : m_contexte(contexte), m_cadre(std::make_unique<Ui::FrmValidateur>()),
      m_validateur(std::move(validateur))
{
    CDImprimer = [this](QPrinter &imprimante) {
        return QPrintDialog(&imprimante, this).exec() == QDialog::Accepted;
    };
    m_cadre->setupUi(this);
    setObjectName(presentation.nom.toString());
    setWindowTitle(presentation.titre.toString());
    placerEntete(presentation.entete);
    const QList<Validateur::Libelle> resultats = m_validateur->libellesResultat();
    m_cadre->LabResultat->setObjectName(resultats[0].nom);
    m_cadre->LabResultat2->setObjectName(resultats[1].nom);
    relier();
}

FrmValidateur::~FrmValidateur() = default;

void FrmValidateur::placerEntete(std::span<const LibelleEntete> entete)
{
    for (const LibelleEntete &libelle : entete) {
        auto *titre = new QLabel(libelle.titre.toString());
        titre->setObjectName(u"Cap"_s + libelle.nom);
        auto *valeur = new QLabel;
        valeur->setObjectName(libelle.nom.toString());
        valeur->setAccessibleName(libelle.nomAccessible.toString());
        valeur->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        valeur->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        valeur->setMinimumWidth(libelle.largeur);
        valeur->setTextFormat(Qt::PlainText);
        valeur->setTextInteractionFlags(Qt::TextSelectableByMouse);
        m_cadre->grilleEntete->addWidget(titre, libelle.ligne, libelle.colonne);
        m_cadre->grilleEntete->addWidget(valeur, libelle.ligne, libelle.colonne + 1, 1, libelle.etendue);
    }
}

void FrmValidateur::relier()
{
    m_cadre->SSTab1->setEnabled(false);
    m_cadre->SSTab1->setCurrentIndex(0);
    m_cadre->BarreExtraction->hide();
    boutonsParEntree(*this);
    relierListe(*m_cadre->ListeErrRejet, *m_cadre->DetailListeErrRejet, m_validateur->rejets);
    relierListe(*m_cadre->ListeErrOK, *m_cadre->DetailListeErrOK, m_validateur->sansIncidence);
    actualiser();

    m_validateur->surAvancement = [this](qint64 lus, qint64 total) { avancer(lus, total); };
    const auto surClic = [this](QPushButton *bouton, auto action) {
        m_contexte.dernierRecours.connecter(bouton, &QPushButton::clicked, this, action);
    };
    surClic(m_cadre->CmdExtFichier, [this] { extraire(); });
    surClic(m_cadre->CmdImprimer, [this] { imprimer(m_validateur->rejets); });
    surClic(m_cadre->CmdImprimerOK, [this] { imprimer(m_validateur->sansIncidence); });
    surClic(m_cadre->CmdApercu, [this] { montrer(m_validateur->rejets); });
    surClic(m_cadre->CmdApercuOK, [this] { montrer(m_validateur->sansIncidence); });
    fermerPar(*m_cadre->cmdexit, *this);
}

void FrmValidateur::relierListe(QTableView &table, QPlainTextEdit &detail, const ListesErreurs &listes)
{
    auto *modele = new ModeleErreurs(listes, this);
    m_modeles.append(modele);
    table.setModel(modele);
    table.verticalHeader()->hide();
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + 6);
    const int chiffre = table.fontMetrics().horizontalAdvance(u'0');
    table.setColumnWidth(ModeleErreurs::Ligne, 10 * chiffre);
    table.setColumnWidth(ModeleErreurs::Entree, 100 * chiffre);
    table.setColumnWidth(ModeleErreurs::Numero, 17 * chiffre);
    table.setColumnWidth(ModeleErreurs::Nom, 32 * chiffre);
    table.setHorizontalScrollMode(QTableView::ScrollPerPixel);
    table.horizontalHeader()->setHighlightSections(false);

    // The whole entry of the current row stands below the table, to be read and selected.
    connect(table.selectionModel(), &QItemSelectionModel::currentRowChanged, &detail,
            [&detail](const QModelIndex &courante) {
                detail.setPlainText(courante.siblingAtColumn(ModeleErreurs::Entree).data().toString());
            });
    connect(modele, &QAbstractItemModel::modelReset, &detail, &QPlainTextEdit::clear);

    table.installEventFilter(this);
}

bool FrmValidateur::eventFilter(QObject *objet, QEvent *evenement)
{
    auto *table = qobject_cast<QTableView *>(objet);
    if (table && evenement->type() == QEvent::KeyPress) {
        const auto *touche = static_cast<QKeyEvent *>(evenement);
        if (touche->matches(QKeySequence::Copy)) {
            copierEntrees(*table);
            return true;
        }
        // Of themselves these keys go to a column, which says nothing to a list of whole lines.
        const bool debut = touche->key() == Qt::Key_Home;
        if ((debut || touche->key() == Qt::Key_End) && !(touche->modifiers() & Qt::ShiftModifier)) {
            table->selectRow(debut ? 0 : table->model()->rowCount() - 1);
            return true;
        }
    }
    return QWidget::eventFilter(objet, evenement);
}

void FrmValidateur::extraire()
{
    m_validateur->vider();
    avantExtraction();
    actualiser();
    const QString chemin = m_contexte.dialogue.choisirFichier(
        u"Sélectionner le fichier à valider"_s, u"Fichiers texte (*.txt *.TXT);;Tous les fichiers (*)"_s);

    Verdict verdict = Verdict::Interrompue;
    const auto finir = qScopeGuard([&] {
        m_cadre->BarreExtraction->hide();
        actualiser();
        for (auto *table : findChildren<QTableView *>()) {
            elargirEntree(*table);
            table->selectRow(0);
        }
        // The errors are read next; and one Enter too many for the boxes must not begin a new extraction.
        if (verdict == Verdict::Interrompue)
            return;
        if (auto *table = m_cadre->SSTab1->currentWidget()->findChild<QTableView *>())
            table->setFocus();
    });
    m_depuisPeinture.start();
    verdict = m_validateur->extraire(chemin, m_contexte.dialogue);
}

void FrmValidateur::avancer(qint64 lus, qint64 total)
{
    actualiser();
    if (lus < total && !m_depuisPeinture.hasExpired(PeintureMs))
        return;
    m_cadre->BarreExtraction->setValue(
        total > 0 ? static_cast<int>(lus * m_cadre->BarreExtraction->maximum() / total) : 0);
    m_cadre->BarreExtraction->setVisible(lus < total);
    // Clicks and keys wait until the run is over.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    m_depuisPeinture.start();
}

/// Shows the lists and labels as the validator has them.
void FrmValidateur::actualiser()
{
    for (ModeleErreurs *modele : std::as_const(m_modeles))
        modele->actualiser();
    for (const Validateur::Libelle &libelle : m_validateur->libelles()) {
        if (auto *label = findChild<QLabel *>(libelle.nom))
            label->setText(libelle.texte);
    }
    m_cadre->SSTab1->setEnabled(m_validateur->ongletsPermis());
}

void FrmValidateur::imprimer(const ListesErreurs &listes)
{
    if (listes.taille() == 0)
        return;
    const MiseEnPage pages(listeImprimee(listes, m_validateur->titreImpression(listes)));
    QPrinter imprimante(QPrinter::HighResolution);
    preparer(imprimante, pages);
    if (CDImprimer(imprimante))
        ::imprimer(pages, imprimante);
}

void FrmValidateur::montrer(const ListesErreurs &listes)
{
    if (listes.taille() > 0)
        montrerApercu(listeImprimee(listes, m_validateur->titreImpression(listes)), m_contexte, this);
}
