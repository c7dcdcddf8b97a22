#pragma once

#include "storage/connexion.h"
#include "storage/liste.h"

#include <QCache>

#include <memory>
#include <vector>

/// Which rows: an SQL condition with its bound values. The empty one means all rows.
struct Condition
{
    QString sql;
    Valeurs valeurs;

    friend Condition operator&&(const Condition &a, const Condition &b);
};

/// The rows whose column begins with the text: as typed, in upper or in lower case, accented letters
/// included. Percent signs, underscores and quotes are ordinary characters.
Condition commencePar(const QString &colonne, QStringView texte);

/// The rows of one table, under a condition and in an order (that of entry when there is none), as a Qt model
/// with a current row. It keeps the rowids and reads the rows when they are looked at, so a table of any size
/// opens at once and shows in a grid.
///
/// The current row stays on the same row through a requery, a sort and another condition; an added row
/// becomes current; when the current row is deleted its neighbour takes its place. Looking a row up never
/// moves it, and after a rollback it is the one that it was when the transaction began.
///
/// Rows are written by their key, as somebody has seen them: the current row is for showing, and where it
/// stands decides of no write.
///
/// All routines throw ErreurBase when the recordset is not open, except those of the model, which show no
/// row, and estOuvert().
class Recordset : public Liste
{
    Q_OBJECT

public:
    /// @param tri the order in which the table opens
    Recordset(Connexion &cnx, QString table, QList<Tri> tri = {}, QObject *parent = nullptr);

    QString table() const { return m_table; }

    // Opening

    /// Opens in the table's own order, again when it is open. @throws ErreurSql, and is closed then
    void ouvrir(const Condition &condition = {});
    /// Reads the list of rows again under another condition, in the same order; the first row is current when
    /// the one before is not among them.
    void filtrer(const Condition &condition);
    void fermer();
    bool estOuvert() const override { return m_ouvert; }
    /// Reads the list of rows again, under the same condition and in the same order.
    void requery();
    /// Orders by one column, then by entry; the condition stays.
    void trier(const QString &colonne, Qt::SortOrder sens = Qt::AscendingOrder) override;
    /// Reads the list of rows again in the table's own order.
    void reprendreOrdre();
    QList<Tri> tri() const override { return m_tri; }

    // Rows

    bool vide() const { return nombre() == 0; }
    int nombre() const;
    /// The row's values, read now or before; empty for a row that is gone.
    Enregistrement ligne(int ligne) const;
    /// The first row that has these values, whatever their order in the table; -1 when there is none.
    int chercher(const Champs &champs) const;

    // The current row, -1 when there is none

    int ligneCourante() const override { return m_courante; }
    void allerA(int ligne) override;
    Enregistrement courant() const { return ligne(m_courante); }
    bool estNul(Col colonne) const { return courant().estNul(colonne); }
    QVariant valeur(Col colonne) const { return courant().valeur(colonne); }
    QString texte(Col colonne) const { return courant().texte(colonne); }
    qint64 entier(Col colonne) const { return courant().entier(colonne); }
    Currency montant(Col colonne) const { return courant().montant(colonne); }
    QDate date(Col colonne) const { return courant().date(colonne); }

    // Changes, each a statement of its own

    /// Adds a row; it becomes current when the condition lets it be seen.
    void ajouter(const Champs &champs);
    /// Changes a row. Refused when it is gone, or when its key or one of these columns is no longer what was
    /// read: the list is read again then, nothing moves, and ErreurBase is thrown. The same reading is
    /// refused again at the next try, since nobody has seen what it would overwrite.
    /// @param lue the row as it was read and shown: one of ligne() or courant(), or of a query with the key
    void modifier(const Enregistrement &lue, const Champs &champs);
    /// Deletes a row; refused as modifier() is.
    void supprimer(const Enregistrement &lue);

    // Columns

    QString nomColonne(int colonne) const override { return m_noms->at(colonne); }
    /// The place of the column. @throws ErreurBase when there is none
    int rangColonne(Col colonne) const { return colonne.rang(*m_noms); }
    Genre genreColonne(int colonne) const override { return m_genres.at(colonne); }

    // The model

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    using Rowids = std::vector<qint64>;

    void exigerOuvert() const;
    void lireColonnes();
    /// The ORDER BY of the list: its columns, then the order of entry.
    QString ordre() const;
    /// Reads the list of rows again under a condition and in an order, or leaves all as it was.
    void relire(Condition condition, QList<Tri> tri);
    Rowids lireRowids() const;
    /// Where the row belongs in a list that is in order.
    int placeDe(qint64 rowid, const Rowids &parmi) const;
    /// Puts the row where the order wants it. @return its new place
    int deplacer(int ligne);
    /// Shows these rows and puts the current row on that rowid, or where it was when it is gone.
    void montrer(Rowids rowids, qint64 rowidCourant);
    qint64 rowidCourant() const;
    int ligneDe(qint64 rowid) const;
    bool correspond(qint64 rowid) const;
    /// The raw values of a row, read together with its neighbours; empty when it is gone.
    const QVariantList &brutes(int ligne) const;
    /// The row, as long as its key and these columns are what was read.
    Condition telleQueLue(const Enregistrement &lue, const QStringList &colonnes) const;
    /// Runs an UPDATE or a DELETE of one row. @return the row's rowid; refuses when it is not there
    qint64 ecrire(const QString &sql, const Valeurs &valeurs, const QStringList &colonnes,
                  const Condition &ligne);
    [[noreturn]] void refuserChangee();
    void retenirLecture() const { m_luEnTransaction = m_luEnTransaction || m_cnx.enTransaction(); }
    void avantTransaction() noexcept;
    void apresAnnulation() noexcept;

    Connexion &m_cnx;
    QString m_table;
    QList<Tri> m_triPropre;
    QList<Tri> m_tri;
    Condition m_condition;
    bool m_ouvert = false;
    /// Rows were read since the transaction began: they are not to be kept behind a rollback.
    mutable bool m_luEnTransaction = false;
    qint64 m_avantTransaction = -1; ///< rowid of the current row

    std::shared_ptr<const QStringList> m_noms = std::make_shared<const QStringList>();
    QList<Genre> m_genres;
    QStringList m_cle;

    Rowids m_rowids;
    int m_courante = -1;
    mutable QCache<qint64, QVariantList> m_lues;
};
