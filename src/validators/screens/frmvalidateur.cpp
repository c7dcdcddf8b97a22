#include "validators/screens/frmvalidateur.h"

#include "rules/dialogue.h"
#include "screens/contexte.h"
#include "screens/dernierrecours.h"
#include "screens/focus.h"
#include "screens/impression.h"
#include "screens/miseenpage.h"
#include "validators/impression.h"
#include "validators/screens/modeleerreurs.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>

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

FrmValidateur::FrmValidateur(Contexte &contexte, std::unique_ptr<Validateur> validateur)
    : m_contexte(contexte), m_validateur(std::move(validateur))
{
    CDImprimer = [this](QPrinter &imprimante) {
        return QPrintDialog(&imprimante, this).exec() == QDialog::Accepted;
    };
}

FrmValidateur::~FrmValidateur() = default;

void FrmValidateur::relier()
{
    m_onglets = findChild<QTabWidget *>(u"SSTab1"_s);
    m_avancement = findChild<QProgressBar *>(u"BarreExtraction"_s);
    m_onglets->setEnabled(false);
    m_onglets->setCurrentIndex(0);
    m_avancement->hide();
    boutonsParEntree(*this);
    relierListe(u"ListeErrRejet"_s, m_validateur->rejets);
    relierListe(u"ListeErrOK"_s, m_validateur->sansIncidence);
    actualiser();

    m_validateur->surAvancement = [this](qint64 lus, qint64 total) { avancer(lus, total); };
    const auto surClic = [this](const QString &bouton, auto action) {
        m_contexte.dernierRecours.connecter(findChild<QPushButton *>(bouton), &QPushButton::clicked, this,
                                            action);
    };
    surClic(u"CmdExtFichier"_s, [this] { extraire(); });
    surClic(u"CmdImprimer"_s, [this] { imprimer(m_validateur->rejets); });
    surClic(u"CmdImprimerOK"_s, [this] { imprimer(m_validateur->sansIncidence); });
    surClic(u"CmdApercu"_s, [this] { montrer(m_validateur->rejets); });
    surClic(u"CmdApercuOK"_s, [this] { montrer(m_validateur->sansIncidence); });
    fermerPar(*findChild<QPushButton *>(u"cmdexit"_s), *this);
}

void FrmValidateur::relierListe(const QString &nom, const ListesErreurs &listes)
{
    auto *table = findChild<QTableView *>(nom);
    auto *modele = new ModeleErreurs(listes, this);
    m_modeles.append(modele);
    table->setModel(modele);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
    const int chiffre = table->fontMetrics().horizontalAdvance(u'0');
    table->setColumnWidth(ModeleErreurs::Ligne, 10 * chiffre);
    table->setColumnWidth(ModeleErreurs::Entree, 100 * chiffre);
    table->setColumnWidth(ModeleErreurs::Numero, 17 * chiffre);
    table->setColumnWidth(ModeleErreurs::Nom, 32 * chiffre);
    table->setHorizontalScrollMode(QTableView::ScrollPerPixel);
    table->horizontalHeader()->setHighlightSections(false);

    // The whole entry of the current row stands below the table, to be read and selected.
    auto *detail = findChild<QPlainTextEdit *>(u"Detail"_s + nom);
    connect(table->selectionModel(), &QItemSelectionModel::currentRowChanged, detail,
            [detail](const QModelIndex &courante) {
                detail->setPlainText(courante.siblingAtColumn(ModeleErreurs::Entree).data().toString());
            });
    connect(modele, &QAbstractItemModel::modelReset, detail, &QPlainTextEdit::clear);

    table->installEventFilter(this);
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
        m_avancement->hide();
        actualiser();
        for (auto *table : findChildren<QTableView *>()) {
            elargirEntree(*table);
            table->selectRow(0);
        }
        // The errors are read next; and one Enter too many for the boxes must not begin a new extraction.
        if (verdict == Verdict::Interrompue)
            return;
        if (auto *table = m_onglets->currentWidget()->findChild<QTableView *>())
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
    m_avancement->setValue(total > 0 ? static_cast<int>(lus * m_avancement->maximum() / total) : 0);
    m_avancement->setVisible(lus < total);
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
    m_onglets->setEnabled(m_validateur->ongletsPermis());
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
