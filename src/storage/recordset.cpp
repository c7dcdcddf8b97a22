#include "storage/recordset.h"

#include "rules/texte.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Rows read together, and rows kept: a few screens full.
constexpr int rangee = 64;
constexpr int lignesGardees = 32 * rangee;

} // namespace

Condition operator&&(const Condition &a, const Condition &b)
{
    if (a.sql.isEmpty())
        return b;
    if (b.sql.isEmpty())
        return a;
    return {u"(%1) AND (%2)"_s.arg(a.sql, b.sql), a.valeurs + b.valeurs};
}

Condition commencePar(const QString &colonne, QStringView texte)
{
    // The engine knows capitals of ASCII only: accented letters are searched for in both spellings. A range,
    // and not LIKE, so that the index serves and no character is a wildcard.
    QStringList formes{texte.toString()};
    if (std::any_of(texte.begin(), texte.end(), [](QChar c) { return c.unicode() > 0x7F; })) {
        formes << majuscules(texte) << texte.toString().toLower();
        formes.removeDuplicates();
    }
    Condition condition;
    QStringList intervalles;
    static constexpr char16_t dernierCaractere[] = {0xDBFF, 0xDFFD};
    for (const QString &forme : std::as_const(formes)) {
        intervalles += u"([%1] >= ? AND [%1] < ?)"_s.arg(colonne);
        const QString fin = forme + QStringView(dernierCaractere, 2);
        condition.valeurs << Valeur::brute(forme) << Valeur::brute(fin);
    }
    condition.sql = intervalles.join(u" OR ");
    return condition;
}

Recordset::Recordset(Connexion &cnx, QString table, QList<Tri> tri, QObject *parent)
    : Liste(parent), m_cnx(cnx), m_table(std::move(table)), m_triPropre(std::move(tri)), m_lues(lignesGardees)
{
    connect(&m_cnx, &Connexion::transactionCommencee, this, &Recordset::avantTransaction);
    connect(&m_cnx, &Connexion::transactionAnnulee, this, &Recordset::apresAnnulation);
}

void Recordset::exigerOuvert() const
{
    if (!m_ouvert) {
        throw ErreurBase(
            u"La table « %1 » n'est pas ouverte : le démarrage du programme ne l'a pas atteinte. "
            "Veuillez relancer l'application."_s.arg(m_table));
    }
}

void Recordset::ouvrir(const Condition &condition)
{
    fermer();
    beginResetModel();
    try {
        lireColonnes();
        m_condition = condition;
        m_tri = m_triPropre;
        m_rowids = lireRowids();
        m_courante = m_rowids.empty() ? -1 : 0;
        m_ouvert = true;
    } catch (...) {
        endResetModel();
        fermer();
        throw;
    }
    endResetModel();
    emit ligneCouranteChangee(m_courante);
}

void Recordset::fermer()
{
    beginResetModel();
    m_ouvert = false;
    m_rowids = {};
    m_lues.clear();
    m_courante = -1;
    m_noms = std::make_shared<const QStringList>();
    m_genres.clear();
    m_cle.clear();
    endResetModel();
}

void Recordset::lireColonnes()
{
    QStringList noms;
    m_genres.clear();
    m_cle.clear();
    Requete colonnes =
        m_cnx.lire(u"SELECT name, type, pk FROM pragma_table_info(?) ORDER BY cid"_s, {m_table});
    while (colonnes.suivante()) {
        noms += colonnes.texte(0);
        m_genres += genreDe(colonnes.texte(1));
        if (colonnes.entier(2) > 0)
            m_cle += noms.last();
    }
    m_noms = std::make_shared<const QStringList>(std::move(noms));
}

QString Recordset::ordre() const
{
    QStringList colonnes;
    for (const Tri &tri : m_tri)
        colonnes += u"[%1] %2"_s.arg(tri.colonne, tri.sens == Qt::AscendingOrder ? u"ASC"_s : u"DESC"_s);
    colonnes += u"rowid"_s;
    return colonnes.join(u", ");
}

Recordset::Rowids Recordset::lireRowids() const
{
    retenirLecture();
    const QString condition = m_condition.sql.isEmpty() ? QString() : u" WHERE (%1)"_s.arg(m_condition.sql);
    // In the order of entry the engine would sort what an index has found: numbers are sorted faster here.
    const QString tri = m_tri.isEmpty() ? QString() : u" ORDER BY "_s + ordre();
    Rowids rowids;
    rowids.reserve(m_rowids.size() + 1);
    Requete requete =
        m_cnx.lire(u"SELECT rowid FROM [%1]%2%3"_s.arg(m_table, condition, tri), m_condition.valeurs);
    while (requete.suivante())
        rowids.push_back(requete.valeur(0).toLongLong());
    if (m_tri.isEmpty())
        std::sort(rowids.begin(), rowids.end());
    return rowids;
}

int Recordset::placeDe(qint64 rowid, const Rowids &parmi) const
{
    // The database compares two rows at a time, by the very order of the list.
    const QString sql =
        u"SELECT rowid FROM [%1] WHERE rowid IN (?, ?) ORDER BY %2 LIMIT 1"_s.arg(m_table, ordre());
    const auto place =
        std::lower_bound(parmi.begin(), parmi.end(), rowid, [&](qint64 ligne, qint64 nouvelle) {
            return m_tri.isEmpty() ? ligne < nouvelle
                                   : m_cnx.premiere(sql, {ligne, nouvelle}).entier(0) == ligne;
        });
    return static_cast<int>(place - parmi.begin());
}

void Recordset::requery() { relire(m_condition, m_tri); }

void Recordset::filtrer(const Condition &condition)
{
    exigerOuvert();
    const qint64 avant = rowidCourant();
    relire(condition, m_tri);
    if (rowidCourant() != avant)
        allerA(0);
}

void Recordset::reprendreOrdre() { relire(m_condition, m_triPropre); }

void Recordset::trier(const QString &colonne, Qt::SortOrder sens)
{
    exigerOuvert();
    relire(m_condition, {{nomColonne(rangColonne(colonne)), sens}});
}

void Recordset::relire(Condition condition, QList<Tri> tri)
{
    exigerOuvert();
    std::swap(m_condition, condition);
    std::swap(m_tri, tri);
    try {
        montrer(lireRowids(), rowidCourant());
    } catch (...) {
        m_condition = condition;
        m_tri = tri;
        throw;
    }
}

void Recordset::montrer(Rowids rowids, qint64 rowidCourant)
{
    if (rowids == m_rowids) {
        m_lues.clear();
        if (!m_rowids.empty())
            emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        if (const int ligne = ligneDe(rowidCourant); ligne >= 0)
            allerA(ligne);
        return;
    }
    beginResetModel();
    m_rowids = std::move(rowids);
    m_lues.clear();
    const int ligne = ligneDe(rowidCourant);
    const int derniere = static_cast<int>(m_rowids.size()) - 1;
    m_courante = ligne >= 0 ? ligne : std::min(std::max(m_courante, 0), derniere);
    endResetModel();
    // Views lose their selection in a reset, so this is told even when the place is the same.
    emit ligneCouranteChangee(m_courante);
}

qint64 Recordset::rowidCourant() const
{
    // No rowid is below 1 in a table that nobody numbered by hand.
    return m_courante < 0 ? -1 : m_rowids[static_cast<std::size_t>(m_courante)];
}

int Recordset::ligneDe(qint64 rowid) const
{
    const auto trouvee = std::find(m_rowids.begin(), m_rowids.end(), rowid);
    return trouvee == m_rowids.end() ? -1 : static_cast<int>(trouvee - m_rowids.begin());
}

bool Recordset::correspond(qint64 rowid) const
{
    if (m_condition.sql.isEmpty())
        return true;
    return m_cnx.existe(u"SELECT 1 FROM [%1] WHERE (%2) AND rowid = ?"_s.arg(m_table, m_condition.sql),
                        m_condition.valeurs + Valeurs{rowid});
}

int Recordset::nombre() const
{
    exigerOuvert();
    return static_cast<int>(m_rowids.size());
}

const QVariantList &Recordset::brutes(int ligne) const
{
    static const QVariantList aucune;
    if (ligne < 0 || ligne >= static_cast<int>(m_rowids.size()))
        return aucune;
    const qint64 voulu = m_rowids[static_cast<std::size_t>(ligne)];
    if (const QVariantList *lue = m_lues.object(voulu))
        return *lue;

    retenirLecture();
    const QString sql = u"SELECT [%1] FROM [%2] WHERE rowid = ?"_s.arg(m_noms->join(u"], ["), m_table);
    const int debut = ligne / rangee * rangee;
    const int fin = std::min(debut + rangee, static_cast<int>(m_rowids.size()));
    for (int i = debut; i < fin; ++i) {
        const qint64 rowid = m_rowids[static_cast<std::size_t>(i)];
        if (m_lues.contains(rowid))
            continue;
        auto lue = std::make_unique<QVariantList>();
        Requete requete = m_cnx.lire(sql, {rowid});
        if (requete.suivante()) {
            lue->reserve(m_noms->size());
            for (int colonne = 0; colonne < m_noms->size(); ++colonne)
                lue->append(requete.valeur(colonne));
        }
        m_lues.insert(rowid, lue.release());
    }
    return *m_lues.object(voulu);
}

Enregistrement Recordset::ligne(int ligne) const
{
    exigerOuvert();
    const QVariantList &valeurs = brutes(ligne);
    return valeurs.isEmpty() ? Enregistrement()
                             : Enregistrement(m_noms, valeurs, m_rowids[static_cast<std::size_t>(ligne)]);
}

int Recordset::chercher(const Champs &champs) const
{
    exigerOuvert();
    Condition condition = m_condition;
    for (const Champ &champ : champs) {
        const QString nom = nomColonne(rangColonne(champ.colonne));
        condition = condition && Condition{u"[%1] IS ?"_s.arg(nom), {champ.valeur}};
    }
    Requete requete =
        m_cnx.lire(u"SELECT rowid FROM [%1] WHERE %2 ORDER BY rowid LIMIT 1"_s.arg(m_table, condition.sql),
                   condition.valeurs);
    return requete.suivante() ? ligneDe(requete.entier(0)) : -1;
}

void Recordset::allerA(int ligne)
{
    exigerOuvert();
    if (ligne < 0 || ligne >= nombre() || ligne == m_courante)
        return;
    m_courante = ligne;
    emit ligneCouranteChangee(m_courante);
}

void Recordset::ajouter(const Champs &champs)
{
    exigerOuvert();
    const qint64 rowid = m_cnx.inserer(m_table, champs);
    retenirLecture();
    m_lues.remove(rowid);
    if (!correspond(rowid))
        return;
    // The engine gives the number of a row deleted behind our back to the next one: the list may still hold
    // it.
    const bool surementNeuf = m_rowids.empty() || (m_tri.isEmpty() && rowid > m_rowids.back());
    if (!surementNeuf && ligneDe(rowid) >= 0) {
        montrer(lireRowids(), rowid);
        return;
    }
    const int ligne = placeDe(rowid, m_rowids);
    beginInsertRows({}, ligne, ligne);
    m_rowids.insert(m_rowids.begin() + ligne, rowid);
    m_courante = ligne;
    endInsertRows();
    emit ligneCouranteChangee(m_courante);
}

Condition Recordset::telleQueLue(const Enregistrement &lue, const QStringList &colonnes) const
{
    Condition ligne;
    if (m_cle.isEmpty())
        ligne = {u"rowid = ?"_s, {lue.rowid()}};
    for (const QString &nom : m_cle)
        ligne = ligne && Condition{u"[%1] = ?"_s.arg(nom), {Valeur::brute(lue.valeur(nom))}};
    for (const QString &nom : *m_noms) {
        // To the letter: a name that is now in capitals has been changed, though it is found as before.
        if (m_cle.isEmpty() || m_cle.contains(nom) || colonnes.contains(nom))
            ligne =
                ligne && Condition{u"[%1] COLLATE BINARY IS ?"_s.arg(nom), {Valeur::brute(lue.valeur(nom))}};
    }
    return ligne;
}

qint64 Recordset::ecrire(const QString &sql, const Valeurs &valeurs, const QStringList &colonnes,
                         const Condition &ligne)
{
    const Enregistrement trouvee =
        m_cnx.premiere(u"SELECT rowid FROM [%1] WHERE %2"_s.arg(m_table, ligne.sql), ligne.valeurs);
    if (trouvee.estVide() ||
        m_cnx.executer(sql + u" WHERE "_s + ligne.sql, valeurs + ligne.valeurs, colonnes) == 0)
        refuserChangee();
    retenirLecture();
    m_lues.remove(trouvee.entier(0));
    return trouvee.entier(0);
}

void Recordset::refuserChangee()
{
    requery();
    throw ErreurBase(u"Cette ligne de la table « %1 » a été modifiée ou supprimée depuis qu'elle a été lue. "
                     "La liste a été relue ; veuillez recommencer."_s.arg(m_table));
}

void Recordset::modifier(const Enregistrement &lue, const Champs &champs)
{
    exigerOuvert();
    if (lue.estVide())
        refuserChangee();
    QStringList noms;
    QStringList affectations;
    Valeurs valeurs;
    for (const Champ &champ : champs) {
        noms += nomColonne(rangColonne(champ.colonne));
        affectations += u"[%1] = ?"_s.arg(noms.last());
        valeurs += champ.valeur;
    }
    const qint64 rowid = ecrire(u"UPDATE [%1] SET %2"_s.arg(m_table, affectations.join(u", ")), valeurs, noms,
                                telleQueLue(lue, noms));

    int ligne = ligneDe(rowid);
    if (correspond(rowid) != (ligne >= 0)) {
        requery();
    } else if (ligne >= 0) {
        const bool ordreTouche = std::any_of(m_tri.begin(), m_tri.end(), [&](const Tri &tri) {
            return noms.contains(tri.colonne, Qt::CaseInsensitive);
        });
        if (ordreTouche)
            ligne = deplacer(ligne);
        emit dataChanged(index(ligne, 0), index(ligne, columnCount() - 1));
    }
}

int Recordset::deplacer(int ligne)
{
    const qint64 rowid = m_rowids[static_cast<std::size_t>(ligne)];
    Rowids autres = m_rowids;
    autres.erase(autres.begin() + ligne);
    const int apres = placeDe(rowid, autres);
    if (apres == ligne)
        return ligne;
    const qint64 courante = rowidCourant();
    beginMoveRows({}, ligne, ligne, {}, apres > ligne ? apres + 1 : apres);
    m_rowids = std::move(autres);
    m_rowids.insert(m_rowids.begin() + apres, rowid);
    m_courante = ligneDe(courante);
    endMoveRows();
    emit ligneCouranteChangee(m_courante);
    return apres;
}

void Recordset::supprimer(const Enregistrement &lue)
{
    exigerOuvert();
    if (lue.estVide())
        refuserChangee();
    const qint64 rowid = ecrire(u"DELETE FROM [%1]"_s.arg(m_table), {}, {}, telleQueLue(lue, {}));
    const int ligne = ligneDe(rowid);
    if (ligne < 0)
        return;
    beginRemoveRows({}, ligne, ligne);
    m_rowids.erase(m_rowids.begin() + ligne);
    if (ligne < m_courante)
        --m_courante;
    m_courante = std::min(m_courante, static_cast<int>(m_rowids.size()) - 1);
    endRemoveRows();
    emit ligneCouranteChangee(m_courante);
}

void Recordset::avantTransaction() noexcept
{
    m_luEnTransaction = false;
    m_avantTransaction = rowidCourant();
}

void Recordset::apresAnnulation() noexcept
{
    if (!m_ouvert)
        return;
    try {
        if (std::exchange(m_luEnTransaction, false))
            montrer(lireRowids(), m_avantTransaction);
        else
            allerA(ligneDe(m_avantTransaction));
    } catch (const Erreur &) {
        fermer(); // it would show rows that are not there
    }
}

int Recordset::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rowids.size());
}

int Recordset::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_noms->size());
}

QVariant Recordset::data(const QModelIndex &index, int role) const
{
    if (role != Qt::EditRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    try {
        const QVariantList &lues = brutes(index.row());
        return lues.isEmpty() ? QVariant() : typee(lues[index.column()], m_genres[index.column()]);
    } catch (const Erreur &) {
        return {}; // a view asks, and nothing may be thrown through it
    }
}
