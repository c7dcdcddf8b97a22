#include "declarations/declaration.h"

#include "rules/texte.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// @param colonne which of the two columns of each pair
Condition ceux(const GenreDeclaration &genre, const CleDeclaration &cle, QString PaireCle::*colonne)
{
    Condition condition;
    for (const PaireCle &paire : genre.cle) {
        // An older file may have left a number empty: the value is compared as it stands, Null too.
        condition = condition &&
                    Condition{u"[%1] IS ?"_s.arg(paire.*colonne), {Valeur::brute(cle.valeur(paire.entete))}};
    }
    return condition;
}

} // namespace

CleDeclaration cleEntete(const GenreDeclaration &genre, const Enregistrement &entete)
{
    QStringList noms;
    QVariantList valeurs;
    for (const PaireCle &paire : genre.cle) {
        noms += paire.entete;
        valeurs += entete.valeur(paire.entete);
    }
    return CleDeclaration(std::make_shared<const QStringList>(noms), valeurs);
}

Enregistrement lireEntete(Base &base, const GenreDeclaration &genre, const CleDeclaration &cle)
{
    const Condition condition = ceux(genre, cle, &PaireCle::entete);
    return base.Cnx.premiere(
        u"SELECT * FROM [%1] WHERE %2"_s.arg((base.*genre.entetes).table(), condition.sql),
        condition.valeurs);
}

Condition lignesDe(const GenreDeclaration &genre, const CleDeclaration &cle)
{
    return ceux(genre, cle, &PaireCle::ligne);
}

Condition lignesDuFichier(const GenreDeclaration &genre, const CleDeclaration &cle)
{
    QStringList noms;
    QVariantList valeurs;
    for (const PaireCle &paire : genre.cle) {
        noms += paire.entete;
        valeurs += paire.largeurAuFichier > 0
                       ? QVariant(Trim(cle.texte(paire.entete)).left(paire.largeurAuFichier).toString())
                       : cle.valeur(paire.entete);
    }
    return lignesDe(genre, CleDeclaration(std::make_shared<const QStringList>(noms), valeurs));
}

Requete lireAvecSalaries(Base &base, const GenreDeclaration &genre, const Condition &lignes,
                         const QString &colonnes)
{
    // The lines are chosen by their rowids, which come in order: sorting whole rows would go through the disk
    // for a big declaration.
    return base.Cnx.lire(
        u"SELECT %1 FROM [%2] AS l INNER JOIN salarie AS s ON s.num_salarie = l.[%3] AND s.cpt_z = l.cpt_z "
        "WHERE l.rowid IN (SELECT rowid FROM [%2] WHERE %4) ORDER BY l.rowid"_s.arg(
            colonnes, (base.*genre.lignes).table(), genre.salarie, lignes.sql),
        lignes.valeurs);
}

Currency figure(const Recordset &entetes, const Enregistrement &entete, const QString &colonne)
{
    if (entetes.genreColonne(entetes.rangColonne(colonne)) == Genre::Montant)
        return entete.montant(colonne, Currency());
    return Currency::deEntier(entete.entier(colonne, 0));
}

bool sommesConcordent(const Base &base, const GenreDeclaration &genre, const Enregistrement &entete)
{
    const Recordset &entetes = base.*genre.entetes;
    return std::all_of(genre.sommes.begin(), genre.sommes.end(), [&](const SommeEntete &somme) {
        return somme.declaree.isEmpty() ||
               figure(entetes, entete, somme.colonne) == figure(entetes, entete, somme.declaree);
    });
}
