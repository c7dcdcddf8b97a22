#include "declarations/declaration.h"

using namespace Qt::StringLiterals;

CleDeclaration cleEntete(const GenreDeclaration &genre, const Enregistrement &entete)
{
    return {entete.texte(genre.entete.employeur), entete.texte(genre.entete.periode),
            entete.entier(genre.entete.type)};
}

Enregistrement lireEntete(Base &base, const GenreDeclaration &genre, const CleDeclaration &cle)
{
    return base.Cnx.premiere(
        u"SELECT * FROM [%1] WHERE [%2] = ? AND [%3] = ? AND [%4] = ?"_s.arg(
            (base.*genre.entetes).table(), genre.entete.employeur, genre.entete.periode, genre.entete.type),
        {cle.employeur, cle.periode, cle.type});
}

Condition lignesDe(const GenreDeclaration &genre, const CleDeclaration &cle)
{
    return {u"[%1] = ? AND [%2] = ? AND [%3] = ?"_s.arg(genre.ligne.employeur, genre.ligne.periode,
                                                        genre.ligne.type),
            {cle.employeur, cle.periode, cle.type}};
}

QString lignesEtSalaries(Base &base, const GenreDeclaration &genre, const CleDeclaration &cle)
{
    return u" FROM [%1] AS l INNER JOIN salarie AS s ON s.num_salarie = l.[%2] AND s.cpt_z = l.cpt_z "
           "WHERE l.rowid IN (SELECT rowid FROM [%1] WHERE %3) ORDER BY l.rowid"_s.arg(
               (base.*genre.lignes).table(), genre.ligne.salarie, lignesDe(genre, cle).sql);
}
