#include "declarations/lignes.h"

#include "rules/dialogue.h"
#include "rules/texte.h"

#include <utility>

using namespace Qt::StringLiterals;

LignesDeclaration::LignesDeclaration(Base &base, const GenreDeclaration &genre, CleDeclaration cle)
    : m_base(base), m_genre(genre), m_cle(std::move(cle))
{
    montrerToutes();
}

void LignesDeclaration::passerA(const CleDeclaration &cle)
{
    m_cle = cle;
    montrerToutes();
}

void LignesDeclaration::montrerToutes()
{
    liste().ouvrir(lignesDe(m_genre, m_cle));
    m_recherche = false;
}

void LignesDeclaration::chercher(QStringView debut)
{
    const QStringView texte = Trim(debut);
    if (texte.isEmpty()) {
        montrerToutes();
        return;
    }
    liste().ouvrir(lignesDe(m_genre, m_cle) && commencePar(m_genre.ligne.salarie, texte));
    m_recherche = true;
}

void LignesDeclaration::ajouter(const Champs &champs)
{
    if (m_recherche)
        montrerToutes();
    Transaction transaction(m_base.Cnx);
    liste().ajouter(champs + Champs{{m_genre.ligne.employeur, m_cle.employeur},
                                    {m_genre.ligne.periode, m_cle.periode},
                                    {m_genre.ligne.type, m_cle.type}});
    recalculer();
    transaction.commit();
}

void LignesDeclaration::modifier(const Enregistrement &lue, const Champs &champs)
{
    Transaction transaction(m_base.Cnx);
    liste().modifier(lue, champs);
    recalculer();
    transaction.commit();
}

void LignesDeclaration::supprimer(const Enregistrement &lue, Dialogue &dialogue)
{
    if (!dialogue.confirmer(m_genre.textes.supprimerLigne, m_genre.textes.titreSupprimerLigne))
        return;
    Transaction transaction(m_base.Cnx);
    liste().supprimer(lue);
    recalculer();
    transaction.commit();
}

/// Over all lines of the declaration, whatever the list shows.
void LignesDeclaration::recalculer()
{
    Recordset &entetes = m_base.*m_genre.entetes;
    // From the table itself: what another program has added up meanwhile is no reason to refuse.
    const Enregistrement entete = lireEntete(m_base, m_genre, m_cle);
    if (entete.estVide()) {
        throw ErreurBase(u"L'en-tête de cette déclaration (%1, %2, n° %3) n'existe plus."_s.arg(
            m_cle.employeur, m_cle.periode, QString::number(m_cle.type)));
    }

    QStringList expressions;
    for (const SommeEntete &somme : m_genre.sommes)
        expressions += somme.expression;
    const Condition lignes = lignesDe(m_genre, m_cle);
    const Enregistrement totaux = m_base.Cnx.premiere(
        u"SELECT %1 FROM [%2] WHERE %3"_s.arg(expressions.join(u", "), liste().table(), lignes.sql),
        lignes.valeurs);
    Champs champs;
    for (int i = 0; i < m_genre.sommes.size(); ++i)
        champs.append({m_genre.sommes[i].colonne, totaux.entier(i)});
    entetes.modifier(entete, champs);
}
