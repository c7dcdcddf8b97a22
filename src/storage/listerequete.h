#pragma once

#include "storage/connexion.h"
#include "storage/liste.h"

#include <vector>

/// A column of a query: the name under which it is shown, what it is in SQL, and what it holds.
struct ColonneRequete
{
    QString nom;
    QString expression;
    Genre genre = Genre::Texte;
};

/// The rows of a query, of several tables for example, as a list to look at. All rows are read at once; the
/// current one is found again by its key when the query is run again.
class ListeRequete : public Liste
{
    Q_OBJECT

public:
    /// @param cle how many of the first columns tell the rows apart
    ListeRequete(Connexion &cnx, QList<ColonneRequete> colonnes, int cle, QObject *parent = nullptr);

    /// Runs the query. @param depuis its part from FROM on, with a condition and without an order
    /// @param ordre what stands behind ORDER BY, as long as the clerk asks for no other
    void ouvrir(const QString &depuis, const Valeurs &valeurs, const QString &ordre);
    void requery();
    /// Reads one new row and puts it where the order wants it; it becomes the current one.
    /// @param cle the values of its key
    void ajouter(const QVariantList &cle);

    Enregistrement ligne(int ligne) const;

    bool estOuvert() const override { return !m_depuis.isEmpty(); }
    QString nomColonne(int colonne) const override { return m_colonnes.at(colonne).nom; }
    Genre genreColonne(int colonne) const override { return m_colonnes.at(colonne).genre; }
    int ligneCourante() const override { return m_courante; }
    void allerA(int ligne) override;
    QList<Tri> tri() const override { return m_tri; }
    void trier(const QString &colonne, Qt::SortOrder sens = Qt::AscendingOrder) override;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    /// The query for these rows alone, in its order.
    Requete lire(const QList<QVariantList> &cles = {}) const;
    QVariantList suivante(Requete &requete) const;
    QVariantList cleDe(int ligne) const;

    Connexion &m_cnx;
    QList<ColonneRequete> m_colonnes;
    int m_cle;
    std::shared_ptr<const QStringList> m_noms;
    QString m_depuis;
    Valeurs m_valeurs;
    QString m_ordre;
    QList<Tri> m_tri;
    std::vector<QVariantList> m_lignes;
    int m_courante = -1;
};
