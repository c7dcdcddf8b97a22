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

void ListeRequete::requery()
{
    QStringList expressions;
    for (const ColonneRequete &colonne : std::as_const(m_colonnes))
        expressions += colonne.expression;
    QString ordre = m_ordre;
    for (const Tri &tri : std::as_const(m_tri)) {
        const QString sens = tri.sens == Qt::AscendingOrder ? u" ASC"_s : u" DESC"_s;
        ordre = expressions[sectionDe(tri.colonne)] + sens + u", "_s + m_ordre;
    }

    std::vector<QVariantList> lignes;
    Requete requete =
        m_cnx.lire(u"SELECT %1 %2 ORDER BY %3"_s.arg(expressions.join(u", "), m_depuis, ordre), m_valeurs);
    while (requete.suivante()) {
        QVariantList &ligne = lignes.emplace_back();
        for (int i = 0; i < m_colonnes.size(); ++i)
            ligne += requete.valeur(i);
    }

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
