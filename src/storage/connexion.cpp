#include "storage/connexion.h"

#include <QSqlError>
#include <QSqlRecord>
#include <QUuid>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// As many statements as the program has, so in practice none is ever prepared twice.
constexpr std::size_t requetesGardees = 256;

} // namespace

Requete::Requete(Connexion &cnx, QString sql, std::unique_ptr<Preparee> preparee)
    : m_cnx(&cnx), m_sql(std::move(sql)), m_preparee(std::move(preparee))
{
    m_noms = m_preparee->noms;
}

Requete::~Requete()
{
    if (m_preparee)
        m_cnx->ranger(m_sql, std::move(m_preparee));
}

bool Requete::suivante()
{
    QSqlQuery &requete = m_preparee->requete;
    if (!requete.next()) {
        m_valeurs.clear();
        if (requete.lastError().isValid())
            throw erreurSql(requete.lastError(), m_cnx->chemin(), {}, {});
        return false;
    }
    m_valeurs.resize(m_noms->size());
    for (qsizetype i = 0; i < m_valeurs.size(); ++i)
        m_valeurs[i] = requete.value(static_cast<int>(i));
    return true;
}

Connexion::Connexion(QObject *parent) : QObject(parent), m_nomQt(QUuid::createUuid().toString()) {}

Connexion::~Connexion() { fermer(); }

void Connexion::ouvrir(const QString &chemin)
{
    fermer();
    m_chemin = chemin;
    m_base = QSqlDatabase::addDatabase(u"QSQLITE"_s, m_nomQt);
    m_base.setDatabaseName(chemin);
    m_base.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=%1"_s.arg(m_attente));
    if (!m_base.open()) {
        const ErreurSql erreur = erreurSql(m_base.lastError(), chemin, {}, {});
        fermer();
        throw erreur;
    }
}

void Connexion::fermer()
{
    if (!m_base.isValid())
        return;
    annulerTransaction();
    m_preparees.clear();
    m_base.close();
    m_base = {};
    QSqlDatabase::removeDatabase(m_nomQt);
}

void Connexion::exigerOuverte() const
{
    if (!m_base.isOpen())
        throw ErreurBase(u"La base de données n'est pas ouverte."_s);
    // The engine gave up the transaction by itself (full disk, failed write), or the last failure handler
    // ended it: what follows would be written on its own, and half a change would stay.
    if (m_rompue)
        throw ErreurBase(u"La transaction en cours a été annulée : rien n'en est enregistré."_s);
}

std::unique_ptr<Requete::Preparee> Connexion::preparer(const QString &sql)
{
    if (const auto trouvee = m_preparees.find(sql); trouvee != m_preparees.end()) {
        auto preparee = std::move(trouvee->second);
        m_preparees.erase(trouvee);
        return preparee;
    }
    auto preparee = std::make_unique<Requete::Preparee>(Requete::Preparee{QSqlQuery(m_base), nullptr});
    preparee->requete.setForwardOnly(true);
    if (!preparee->requete.prepare(sql))
        throw erreurSql(preparee->requete.lastError(), m_chemin, {}, {});
    return preparee;
}

void Connexion::ranger(const QString &sql, std::unique_ptr<Requete::Preparee> preparee)
{
    preparee->requete.finish();
    if (!m_base.isOpen())
        return;
    if (m_preparees.size() >= requetesGardees)
        m_preparees.clear();
    m_preparees.insert_or_assign(sql, std::move(preparee));
}

std::unique_ptr<Requete::Preparee> Connexion::lancer(const QString &sql, const Valeurs &valeurs,
                                                     const QStringList &colonnes)
{
    exigerOuverte();
    auto preparee = preparer(sql);
    QSqlQuery &requete = preparee->requete;
    for (qsizetype i = 0; i < valeurs.size(); ++i)
        requete.bindValue(static_cast<int>(i), valeurs[i].variante());
    if (!requete.exec()) {
        const ErreurSql erreur = erreurSql(requete.lastError(), m_chemin, colonnes, valeurs);
        requete.finish();
        if (m_enTransaction && erreur.fichierEnCause())
            m_rompue = true;
        throw erreur;
    }
    return preparee;
}

Requete Connexion::lire(const QString &sql, const Valeurs &valeurs)
{
    auto preparee = lancer(sql, valeurs, {});
    if (!preparee->noms) {
        QStringList noms;
        const QSqlRecord modele = preparee->requete.record();
        for (int i = 0; i < modele.count(); ++i)
            noms += modele.fieldName(i);
        preparee->noms = std::make_shared<const QStringList>(std::move(noms));
    }
    return Requete(*this, sql, std::move(preparee));
}

Enregistrement Connexion::premiere(const QString &sql, const Valeurs &valeurs)
{
    Requete requete = lire(sql, valeurs);
    if (!requete.suivante())
        return {};
    return requete;
}

bool Connexion::existe(const QString &sql, const Valeurs &valeurs) { return lire(sql, valeurs).suivante(); }

qint64 Connexion::executer(const QString &sql, const Valeurs &valeurs, const QStringList &colonnes)
{
    auto preparee = lancer(sql, valeurs, colonnes);
    const qint64 touchees = preparee->requete.numRowsAffected();
    ranger(sql, std::move(preparee));
    return touchees;
}

qint64 Connexion::inserer(const QString &table, const Champs &champs)
{
    QStringList noms;
    Valeurs valeurs;
    for (const Champ &champ : champs) {
        noms += champ.colonne;
        valeurs += champ.valeur;
    }
    return Insertion(*this, table, noms).ajouter(valeurs);
}

void Connexion::definir(const QString &sql)
{
    // Kept statements would go on with the columns of before.
    m_preparees.clear();
    lancer(sql, {}, {});
}

void Connexion::commencer()
{
    if (m_enTransaction)
        throw ErreurBase(u"Une transaction est déjà ouverte."_s);
    executer(u"BEGIN IMMEDIATE"_s);
    m_enTransaction = true;
    emit transactionCommencee();
}

void Connexion::valider()
{
    executer(u"COMMIT"_s);
    m_enTransaction = false;
}

void Connexion::retourner() noexcept
{
    // Fails only when the engine has rolled back by itself, which is what is wanted.
    if (std::exchange(m_enTransaction, false))
        QSqlQuery(m_base).exec(u"ROLLBACK"_s);
}

void Connexion::annulerTransaction() noexcept
{
    if (!m_enTransaction)
        return;
    retourner();
    m_rompue = true;
}

void Connexion::finirSansValider() noexcept
{
    retourner();
    m_rompue = false;
    emit transactionAnnulee();
}

Insertion::Insertion(Connexion &cnx, const QString &table, QStringList colonnes)
    : m_cnx(cnx), m_colonnes(std::move(colonnes))
{
    const QStringList marques(m_colonnes.size(), u"?"_s);
    m_sql =
        u"INSERT INTO [%1] ([%2]) VALUES (%3)"_s.arg(table, m_colonnes.join(u"], ["), marques.join(u", "));
}

qint64 Insertion::ajouter(const Valeurs &valeurs)
{
    auto preparee = m_cnx.lancer(m_sql, valeurs, m_colonnes);
    const qint64 rowid = preparee->requete.lastInsertId().toLongLong();
    m_cnx.ranger(m_sql, std::move(preparee));
    return rowid;
}

Transaction::Transaction(Connexion &cnx) : m_cnx(cnx) { m_cnx.commencer(); }

Transaction::~Transaction() { annuler(); }

void Transaction::commit()
{
    m_cnx.valider();
    m_ouverte = false;
}

void Transaction::annuler()
{
    if (std::exchange(m_ouverte, false))
        m_cnx.finirSansValider();
}
