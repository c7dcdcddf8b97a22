#pragma once

#include "screens/modelegrille.h"

#include <QHash>
#include <QSet>
#include <QTableView>
#include <QTimer>

#include <functional>

class DernierRecours;
class Liste;

/// A column of a grid: its name in the table and the title above it.
struct ColonneGrille
{
    QString nom;
    QString titre;
    /// Whether it holds a count, though its column is one of amounts.
    bool compte = false;
};

/// The grid on a list. Its selection and the list's current row are one, both ways, also through a requery. A
/// click on a head sorts by that column, a second click on the same head turns the order round. Columns are
/// as wide as what is seen of them; the widths that the clerk gives them are remembered for the screen.
class Grille : public QTableView
{
    Q_OBJECT

public:
    explicit Grille(QWidget *parent = nullptr);
    ~Grille() override;

    /// Shows these columns of the list, in this order and no others. The list must be open, and may
    /// be closed and opened again later. To be called once the grid stands in its screen.
    void lier(Liste &liste, const QList<ColonneGrille> &colonnes, DernierRecours &dernierRecours);

    /// Ticks and greys the rows for which it is true; asked anew at each painting.
    void marquer(std::function<bool(int ligne)> estMarquee);

    void reset() override;
    void keyboardSearch(const QString &) override {}
    QSize sizeHint() const override;

signals:
    /// Enter, or a double click on a row.
    void modificationDemandee();
    /// The Delete key.
    void suppressionDemandee();

protected:
    void currentChanged(const QModelIndex &courante, const QModelIndex &precedente) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *evenement) const override;
    void keyPressEvent(QKeyEvent *evenement) override;
    void mouseMoveEvent(QMouseEvent *evenement) override;
    void showEvent(QShowEvent *evenement) override;
    void hideEvent(QHideEvent *evenement) override;
    void resizeEvent(QResizeEvent *evenement) override;

private:
    void mettreEnPlace();
    void montrerCourante();
    void montrerTri();
    void trierPar(int section);
    void mesurer();
    void appliquerLargeurs();
    void retenirLargeur(int section, int largeur);
    void garderLargeurs();
    QString cleLargeur(const QString &colonne) const;

    Liste *m_liste = nullptr;
    ModeleGrille m_modele;
    QList<ColonneGrille> m_colonnes;
    QString m_feuille;
    QHash<QString, int> m_largeurs;
    QSet<QString> m_duCommis; ///< the columns whose width the clerk has set
    QTimer m_aMesurer;
    bool m_enPlace = false;
    bool m_dimensionne = false;
};
