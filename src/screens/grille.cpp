#include "screens/grille.h"

#include "rules/erreurs.h"
#include "screens/dernierrecours.h"
#include "screens/etatsfenetres.h"
#include "screens/feuille.h"
#include "storage/liste.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

/// Rows that are measured for the width of a column: never more than are read at once.
constexpr int LignesMesurees = 64;
constexpr int LignesProposees = 14;
constexpr int LargeurProposee = 360;

} // namespace

Grille::Grille(QWidget *parent) : QTableView(parent)
{
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);

    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);

    QHeaderView *tete = horizontalHeader();
    tete->setSectionsClickable(true);
    tete->setHighlightSections(false);
    tete->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    tete->setResizeContentsPrecision(LignesMesurees);
    connect(tete, &QHeaderView::sectionResized, this,
            [this](int section, int, int largeur) { retenirLargeur(section, largeur); });

    // What is seen is measured once the rows are there, and once for all changes of one action.
    m_aMesurer.setSingleShot(true);
    m_aMesurer.setInterval(0);
    connect(&m_aMesurer, &QTimer::timeout, this, &Grille::mesurer);
}

Grille::~Grille() { garderLargeurs(); }

void Grille::lier(Liste &liste, const QList<ColonneGrille> &colonnes, DernierRecours &dernierRecours)
{
    m_liste = &liste;
    m_colonnes = colonnes;
    m_feuille = feuilleDe(this)->objectName();
    m_modele.setListe(liste);
    for (const ColonneGrille &colonne : m_colonnes) {
        if (liste.sectionDe(colonne.nom) < 0)
            throw ErreurBase(u"La colonne « %1 » n'existe pas."_s.arg(colonne.nom));
        m_modele.titrer(colonne.nom, colonne.titre, colonne.compte);
        const int largeur = reglages().value(cleLargeur(colonne.nom)).toInt();
        if (largeur >= horizontalHeader()->minimumSectionSize()) {
            m_largeurs.insert(colonne.nom, largeur);
            m_duCommis.insert(colonne.nom);
        }
    }
    setModel(&m_modele);
    mettreEnPlace();
    mesurer();
    montrerCourante();

    connect(&liste, &Liste::ligneCouranteChangee, this, &Grille::montrerCourante);
    const auto remesurer = [this] { m_aMesurer.start(); };
    connect(&liste, &QAbstractItemModel::rowsInserted, this, remesurer);
    connect(&liste, &QAbstractItemModel::dataChanged, this, remesurer);
    dernierRecours.connecter(horizontalHeader(), &QHeaderView::sectionClicked, this, &Grille::trierPar);
    connect(this, &QAbstractItemView::doubleClicked, this, &Grille::modificationDemandee);
}

void Grille::marquer(std::function<bool(int ligne)> estMarquee)
{
    constexpr QColor gris(0x70, 0x70, 0x70); // still to be read
    m_modele.marquer(std::move(estMarquee), m_colonnes.first().nom,
                     style()
                         ->standardPixmap(QStyle::SP_DialogApplyButton)
                         .scaledToHeight(fontMetrics().ascent(), Qt::SmoothTransformation),
                     gris);
}

/// A recordset that closes takes its columns along; they come back as they were when it opens again.
void Grille::reset()
{
    QTableView::reset();
    if (!m_liste)
        return;
    const bool colonnes = horizontalHeader()->count() > 0;
    if (!colonnes)
        m_enPlace = false;
    else if (!m_enPlace)
        mettreEnPlace();
    montrerTri();
    m_aMesurer.start();
}

void Grille::mettreEnPlace()
{
    const QScopedValueRollback garde(m_dimensionne, true);
    QHeaderView *tete = horizontalHeader();
    for (int section = 0; section < tete->count(); ++section)
        tete->hideSection(section);
    for (int place = 0; place < m_colonnes.size(); ++place) {
        const int section = m_liste->sectionDe(m_colonnes[place].nom);
        if (section < 0)
            continue;
        tete->showSection(section);
        tete->moveSection(tete->visualIndex(section), place);
    }
    m_enPlace = true;
    appliquerLargeurs();
    montrerTri();
}

// The current row

void Grille::montrerCourante()
{
    if (!m_liste->estOuvert() || m_liste->ligneCourante() < 0)
        return;
    const int colonne =
        currentIndex().isValid() ? currentIndex().column() : horizontalHeader()->logicalIndex(0);
    const QModelIndex courante = model()->index(m_liste->ligneCourante(), colonne);
    selectionModel()->setCurrentIndex(courante,
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(courante);
}

void Grille::currentChanged(const QModelIndex &courante, const QModelIndex &precedente)
{
    QTableView::currentChanged(courante, precedente);
    if (courante.isValid() && m_liste->estOuvert())
        m_liste->allerA(courante.row());
}

/// The current row is the selected one, whatever keys are held: there is no row without it.
QItemSelectionModel::SelectionFlags Grille::selectionCommand(const QModelIndex &index, const QEvent *) const
{
    return index.isValid() ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                           : QItemSelectionModel::NoUpdate;
}

// A drag would select what it crosses.
void Grille::mouseMoveEvent(QMouseEvent *evenement) { evenement->accept(); }

void Grille::keyPressEvent(QKeyEvent *evenement)
{
    const bool surLigne = currentIndex().isValid();
    switch (evenement->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (surLigne)
            emit modificationDemandee();
        return;
    case Qt::Key_Delete:
        if (surLigne)
            emit suppressionDemandee();
        return;
    case Qt::Key_Home:
        if (surLigne)
            m_liste->allerA(0);
        return;
    case Qt::Key_End:
        if (surLigne)
            m_liste->allerA(m_liste->rowCount() - 1);
        return;
    default:
        QTableView::keyPressEvent(evenement);
    }
}

// The order

void Grille::trierPar(int section)
{
    // The head turns its arrow by itself at a click, also when the database then refuses.
    const auto fleche = qScopeGuard([this] { montrerTri(); });
    const Tri croissant{m_liste->nomColonne(section)};
    const bool dejaCroissant = m_liste->tri() == QList<Tri>{croissant};
    m_liste->trier(croissant.colonne, dejaCroissant ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void Grille::montrerTri()
{
    const QList<Tri> tri = m_liste->tri();
    const int section = tri.isEmpty() ? -1 : m_liste->sectionDe(tri.first().colonne);
    horizontalHeader()->setSortIndicatorShown(section >= 0);
    if (section >= 0)
        horizontalHeader()->setSortIndicator(section, tri.first().sens);
}

// The widths

void Grille::mesurer()
{
    if (!m_enPlace)
        return;
    QHeaderView *tete = horizontalHeader();
    const int fleche = style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, tete) + 4;
    for (const ColonneGrille &colonne : std::as_const(m_colonnes)) {
        const int section = m_liste->sectionDe(colonne.nom);
        if (section < 0 || m_duCommis.contains(colonne.nom))
            continue;
        const int vue = std::max(sizeHintForColumn(section), tete->sectionSizeHint(section) + fleche);
        // Never narrower again: columns that jump at each change are hard to read.
        m_largeurs[colonne.nom] = std::max(m_largeurs.value(colonne.nom), vue + 4);
    }
    appliquerLargeurs();
}

/// The last column takes the room that is left.
void Grille::appliquerLargeurs()
{
    if (!m_enPlace)
        return;
    const QScopedValueRollback garde(m_dimensionne, true);
    int reste = viewport()->width();
    for (const ColonneGrille &colonne : std::as_const(m_colonnes)) {
        const int section = m_liste->sectionDe(colonne.nom);
        if (section < 0)
            continue;
        const int largeur = m_largeurs.value(colonne.nom, horizontalHeader()->defaultSectionSize());
        const bool derniere = &colonne == &m_colonnes.constLast();
        setColumnWidth(section, derniere ? std::max(largeur, reste) : largeur);
        reste -= largeur;
    }
}

void Grille::retenirLargeur(int section, int largeur)
{
    if (m_dimensionne || !m_enPlace || largeur == 0)
        return;
    for (const ColonneGrille &colonne : std::as_const(m_colonnes)) {
        if (m_liste->sectionDe(colonne.nom) == section) {
            m_largeurs[colonne.nom] = largeur;
            m_duCommis.insert(colonne.nom);
        }
    }
    appliquerLargeurs();
}

void Grille::garderLargeurs()
{
    QSettings reglage = reglages();
    for (const QString &colonne : std::as_const(m_duCommis))
        reglage.setValue(cleLargeur(colonne), m_largeurs.value(colonne));
}

QString Grille::cleLargeur(const QString &colonne) const
{
    return u"fenetres/%1/%2/%3"_s.arg(m_feuille, objectName(), colonne);
}

void Grille::showEvent(QShowEvent *evenement)
{
    QTableView::showEvent(evenement);
    if (m_liste) {
        mesurer();
        montrerCourante();
    }
}

void Grille::hideEvent(QHideEvent *evenement)
{
    garderLargeurs();
    QTableView::hideEvent(evenement);
}

void Grille::resizeEvent(QResizeEvent *evenement)
{
    QTableView::resizeEvent(evenement);
    appliquerLargeurs();
}

QSize Grille::sizeHint() const
{
    int largeur = verticalScrollBar()->sizeHint().width() + 2 * frameWidth();
    for (const ColonneGrille &colonne : m_colonnes)
        largeur += m_largeurs.value(colonne.nom);
    const int hauteur = horizontalHeader()->sizeHint().height() +
                        LignesProposees * verticalHeader()->defaultSectionSize() + 2 * frameWidth();
    return {std::max(largeur, LargeurProposee), hauteur};
}
