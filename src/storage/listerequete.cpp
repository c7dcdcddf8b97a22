#include "storage/listerequete.h"

#include <algorithm>

using namespace Qt::StringLiterals;

ListeRequete::ListeRequete(Connexion &cnx, QList<ColonneRequete> colonnes, int cle, QObject *parent)
    : Liste(parent), m_cnx(cnx), m_colonnes(std::move(colonnes)), m_cle(cle)
{
    QStringList noms;
    for (const ColonneRequete &colonne : std::as_const(m_colonnes))
        noms += colonne.nom;
    m_noms = std::make_shared<const QStringList>(std::move(noms));
}

void ListeRequete::ouvrir(const QString &depuis, const Valeurs &valeurs, const QString &ordre)
{
    m_depuis = depuis;
    m_valeurs = valeurs;
    m_ordre = ordre;
    m_tri.clear();
    requery();
}

Requete ListeRequete::lire(const QList<QVariantList> &cles) const
{
    QStringList expressions;
    for (const ColonneRequete &colonne : m_colonnes)
        expressions += colonne.expression;
    QString ordre = m_ordre;
    for (const Tri &tri : m_tri) {
        const QString sens = tri.sens == Qt::AscendingOrder ? u" ASC"_s : u" DESC"_s;
        ordre = expressions[sectionDe(tri.colonne)] + sens + u", "_s + m_ordre;
    }
    QStringList lignes;
    Valeurs valeurs = m_valeurs;
    for (const QVariantList &cle : cles) {
        QStringList egalites;
        for (int i = 0; i < m_cle; ++i) {
            egalites += expressions[i] + u" = ?"_s;
            valeurs += Valeur::brute(cle[i]);
        }
        lignes += egalites.join(u" AND ");
    }
    const QString parmi = lignes.isEmpty() ? QString() : u" AND (%1)"_s.arg(lignes.join(u" OR "));
    return m_cnx.lire(u"SELECT %1 %2%3 ORDER BY %4"_s.arg(expressions.join(u", "), m_depuis, parmi, ordre),
                      valeurs);
}

QVariantList ListeRequete::suivante(Requete &requete) const
{
    QVariantList ligne;
    if (requete.suivante()) {
        for (int i = 0; i < m_colonnes.size(); ++i)
            ligne += requete.valeur(i);
    }
    return ligne;
}

void ListeRequete::requery()
{
    std::vector<QVariantList> lignes;
    Requete requete = lire();
    for (QVariantList ligne = suivante(requete); !ligne.isEmpty(); ligne = suivante(requete))
        lignes.push_back(ligne);

    const QVariantList courante = cleDe(m_courante);
    beginResetModel();
    m_lignes = std::move(lignes);
    int trouvee = -1;
    for (int i = 0; i < rowCount() && trouvee < 0 && !courante.isEmpty(); ++i)
        trouvee = cleDe(i) == courante ? i : -1;
    m_courante = trouvee >= 0 ? trouvee : std::min(std::max(m_courante, 0), rowCount() - 1);
    endResetModel();
    emit ligneCouranteChangee(m_courante);
}

void ListeRequete::ajouter(const QVariantList &cle)
{
    Requete requete = lire({cle});
    const QVariantList nouvelle = suivante(requete);
    if (nouvelle.isEmpty())
        return;
    // The database compares two rows at a time, by the very order of the list.
    const auto place = std::lower_bound(m_lignes.begin(), m_lignes.end(), cle,
                                        [this](const QVariantList &ligne, const QVariantList &autre) {
                                            Requete deux = lire({ligne, autre});
                                            return suivante(deux).first(m_cle) != autre;
                                        });
    const auto rang = static_cast<int>(place - m_lignes.begin());
    beginInsertRows({}, rang, rang);
    m_lignes.insert(place, nouvelle);
    m_courante = rang;
    endInsertRows();
    emit ligneCouranteChangee(m_courante);
}

QVariantList ListeRequete::cleDe(int ligne) const
{
    return ligne < 0 ? QVariantList() : m_lignes[static_cast<std::size_t>(ligne)].first(m_cle);
}

Enregistrement ListeRequete::ligne(int ligne) const
{
    if (ligne < 0 || ligne >= rowCount())
        return {};
    return Enregistrement(m_noms, m_lignes[static_cast<std::size_t>(ligne)]);
}

void ListeRequete::allerA(int ligne)
{
    if (ligne < 0 || ligne >= rowCount() || ligne == m_courante)
        return;
    m_courante = ligne;
    emit ligneCouranteChangee(m_courante);
}

void ListeRequete::trier(const QString &colonne, Qt::SortOrder sens)
{
    const QList<Tri> avant = std::exchange(m_tri, {{colonne, sens}});
    try {
        requery();
    } catch (...) {
        m_tri = avant;
        throw;
    }
}

int ListeRequete::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_lignes.size());
}

int ListeRequete::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_colonnes.size());
}

QVariant ListeRequete::data(const QModelIndex &index, int role) const
{
    if (role != Qt::EditRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    return typee(m_lignes[static_cast<std::size_t>(index.row())][index.column()],
                 genreColonne(index.column()));
}
