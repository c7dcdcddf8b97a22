#include "tests/reference/basereference.h"

#include "storage/schema.h"

BaseReference::BaseReference()
{
    if (!m_dossier.isValid())
        qFatal("no temporary folder");
    {
        Connexion cnx;
        cnx.ouvrir(chemin());
        Transaction transaction(cnx);
        for (const Table &table : tablesDuSchema()) {
            cnx.definir(table.creation());
            for (const QString &index : table.creationIndex())
                cnx.definir(index);
        }
        transaction.commit();
    }
    base.OuvrirBase(chemin());
    // No test pulls the plug.
    base.Cnx.executer(QStringLiteral("PRAGMA synchronous = OFF"));
    for (Recordset *rs : {&base.RsEmployeur, &base.RsBanque, &base.RsAnnee, &base.RsPeriode,
                          &base.RsEnteteDas, &base.RsEnteteDac, &base.RsSalarie})
        rs->ouvrir();
}

QStringList BaseReference::lignes(const QString &sql)
{
    QStringList lignes;
    Requete requete = base.Cnx.lire(sql);
    while (requete.suivante())
        lignes += requete.texte(0);
    return lignes;
}
