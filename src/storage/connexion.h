#pragma once

#include "storage/enregistrement.h"
#include "storage/erreursql.h"
#include "storage/valeur.h"

#include <QObject>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <memory>
#include <optional>
#include <unordered_map>

class Connexion;

/// A query under way. After suivante() it is the row on which it stands:
///
///     Requete lignes = cnx.lire(u"SELECT nom, prenom FROM salarie WHERE NIN = ?"_s, {nin});
///     while (lignes.suivante())
///         noms += lignes.texte(u"nom");
class Requete : public Enregistrement
{
public:
    Requete(Requete &&) = default;
    Requete &operator=(Requete &&) = delete;
    ~Requete();

    /// Goes to the next row; the first call to the first one. @return false behind the last row
    bool suivante();

private:
    friend class Connexion;
    struct Preparee
    {
        QSqlQuery requete;
        std::shared_ptr<const QStringList> noms;
    };

    Requete(Connexion &cnx, QString sql, std::unique_ptr<Preparee> preparee);

    Connexion *m_cnx;
    QString m_sql;
    std::unique_ptr<Preparee> m_preparee;
};

/// The connection to the database. Every statement is prepared, takes its values as bound parameters and is
/// kept for the next time. Every failure is an ErreurSql with a text in French.
class Connexion : public QObject
{
    Q_OBJECT

public:
    explicit Connexion(QObject *parent = nullptr);
    ~Connexion() override;

    /// How long a statement waits for another program's lock, in milliseconds, from the next opening on.
    void setAttente(int millisecondes) { m_attente = millisecondes; }
    int attente() const { return m_attente; }
    /// Opens the file, or makes it. The checks before that are Base::OuvrirBase's.
    void ouvrir(const QString &chemin);
    void fermer();
    bool estOuverte() const { return m_base.isOpen(); }
    QString chemin() const { return m_chemin; }

    /// Starts a query that gives rows.
    Requete lire(const QString &sql, const Valeurs &valeurs = {});

    /// The first row of a query; the empty one when it gives none.
    Enregistrement premiere(const QString &sql, const Valeurs &valeurs = {});

    /// Whether a query gives a row.
    bool existe(const QString &sql, const Valeurs &valeurs = {});

    /// Runs a statement. @return how many rows it added, changed or deleted
    /// @param colonnes the column of each value, for the text of a refusal
    qint64 executer(const QString &sql, const Valeurs &valeurs = {}, const QStringList &colonnes = {});

    /// Adds a row. @return its rowid
    qint64 inserer(const QString &table, const Champs &champs);

    /// Runs a statement that makes or changes a table or an index.
    void definir(const QString &sql);

    bool enTransaction() const { return m_enTransaction; }

    /// Rolls back whatever is open; what the last failure handler calls. An action in whose middle that
    /// happens (a window was painted meanwhile) can write nothing more until its guard is gone. Never throws.
    void annulerTransaction() noexcept;

signals:
    void transactionCommencee();
    /// What was written since the transaction began is undone.
    void transactionAnnulee();

private:
    friend class Insertion;
    friend class Requete;
    friend class Transaction;

    void commencer();
    void valider();
    void retourner() noexcept;
    void finirSansValider() noexcept;
    std::unique_ptr<Requete::Preparee> preparer(const QString &sql);
    void ranger(const QString &sql, std::unique_ptr<Requete::Preparee> preparee);
    std::unique_ptr<Requete::Preparee> lancer(const QString &sql, const Valeurs &valeurs,
                                              const QStringList &colonnes);
    void exigerOuverte() const;

    int m_attente = 5000;
    QString m_chemin;
    QString m_nomQt;
    QSqlDatabase m_base;
    std::unordered_map<QString, std::unique_ptr<Requete::Preparee>> m_preparees;
    bool m_enTransaction = false;
    bool m_rompue = false;
};

/// The addition of many rows with the same columns: its statement is put together once.
class Insertion
{
public:
    Insertion(Connexion &cnx, const QString &table, QStringList colonnes);

    /// @param valeurs in the order of the columns @return the rowid of the new row
    qint64 ajouter(const Valeurs &valeurs);

private:
    Connexion &m_cnx;
    QStringList m_colonnes;
    QString m_sql;
};

/// The shared command of the main window, for statements that give no rows.
class Commande
{
public:
    explicit Commande(Connexion &cnx) : m_cnx(cnx) {}

    qint64 executer(const QString &sql, const Valeurs &valeurs = {}) { return m_cnx.executer(sql, valeurs); }
    void definir(const QString &sql) { m_cnx.definir(sql); }

private:
    Connexion &m_cnx;
};

/// Holds a transaction and rolls it back at its end unless it was committed. They do not nest.
///
///     Transaction transaction(cnx);
///     ...
///     transaction.commit();
class Transaction
{
public:
    /// Takes the right to write at once, so that another program's lock is met here and not half-way.
    explicit Transaction(Connexion &cnx);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    void commit();
    void annuler();

private:
    Connexion &m_cnx;
    bool m_ouverte = true;
};
