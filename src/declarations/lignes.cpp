#include "declarations/lignes.h"

#include "rules/dialogue.h"
#include "rules/texte.h"

#include <utility>

using namespace Qt::StringLiterals;

LignesDeclaration::LignesDeclaration(Base &base, const GenreDeclaration &genre, CleDeclaration cle)
    : m_base(base), m_genre(genre), m_cle(std::move(cle))
{
    liste().ouvrir(lignesDe(m_genre, m_cle));
}

Enregistrement LignesDeclaration::entete() const
{
    const Enregistrement lue = lireEntete(m_base, m_genre, m_cle);
    if (!lue.estVide())
        return lue;
    QStringList valeurs;
    for (const PaireCle &paire : m_genre.cle)
        valeurs += m_cle.texte(paire.entete);
    throw ErreurBase(u"L'en-tête de cette déclaration (%1) n'existe plus."_s.arg(valeurs.join(u", ")));
}

void LignesDeclaration::passerA(const CleDeclaration &cle)
{
    m_cle = cle;
    montrerToutes();
}

void LignesDeclaration::montrerToutes()
{
    liste().filtrer(lignesDe(m_genre, m_cle));
    m_recherche = false;
}

void LignesDeclaration::chercher(QStringView debut)
{
    const QStringView texte = Trim(debut);
    if (texte.isEmpty()) {
        montrerToutes();
        return;
    }
    liste().filtrer(lignesDe(m_genre, m_cle) && commencePar(m_genre.salarie, texte));
    m_recherche = true;
}

bool LignesDeclaration::contient(const QString &numero, qint64 cpt_z) const
{
    const Condition ligne = lignesDe(m_genre, m_cle) &&
                            Condition{u"[%1] = ? AND cpt_z = ?"_s.arg(m_genre.salarie), {numero, cpt_z}};
    return m_base.Cnx.existe(u"SELECT 1 FROM [%1] WHERE %2"_s.arg(liste().table(), ligne.sql), ligne.valeurs);
}

void LignesDeclaration::ajouter(const Champs &champs)
{
    if (m_recherche)
        montrerToutes();
    Champs tous = champs;
    for (const PaireCle &paire : m_genre.cle)
        tous.append({paire.ligne, Valeur::brute(m_cle.valeur(paire.entete))});
    Transaction transaction(m_base.Cnx);
    liste().ajouter(tous);
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
    // From the table itself: what another program has added up meanwhile is no reason to refuse.
    const Enregistrement lue = entete();
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
    (m_base.*m_genre.entetes).modifier(lue, champs);
}
