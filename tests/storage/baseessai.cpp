#include "tests/storage/baseessai.h"

#include "storage/schema.h"
#include "tests/storage/foyer.h"

using namespace Qt::StringLiterals;

BaseEssai::BaseEssai()
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
    ouvrirTables(base, chemin());
    base.Cnx.executer(u"PRAGMA synchronous = OFF"_s); // no test pulls the plug
}

QString BaseEssai::fichier(const QString &nom, const QByteArray &octets) const
{
    ecrireFichier(m_dossier.filePath(nom), octets);
    return m_dossier.filePath(nom);
}

QStringList BaseEssai::lignes(Connexion &cnx, const QString &sql)
{
    QStringList resultat;
    Requete requete = cnx.lire(sql);
    while (requete.suivante()) {
        QStringList colonnes;
        try {
            for (int i = 0;; ++i)
                colonnes += requete.estNul(i) ? u"NULL"_s : requete.valeur(i).toString();
        } catch (const ErreurBase &) { // behind the last column
        }
        resultat += colonnes.join(u'|');
    }
    return resultat;
}

void ouvrirTables(Base &base, const QString &chemin)
{
    base.OuvrirBase(chemin);
    for (Recordset *une :
         {&base.RsSalarie, &base.RsNationalite, &base.RsBanque, &base.RsLigneDas, &base.RsDetailCi,
          &base.RsEnteteDas, &base.RsEnteteCi, &base.RsAnnee, &base.RsEmployeur, &base.RsPeriode,
          &base.RsEnteteDac, &base.RsLigneDac, &base.RsCommune, &base.RsWilaya})
        une->ouvrir();
}

void limiterPages(Connexion &cnx, std::optional<int> pages)
{
    const qint64 limite = pages ? cnx.premiere(u"PRAGMA page_count"_s).entier(0) + *pages : qint64(1'000'000);
    cnx.existe(u"PRAGMA max_page_count = %1"_s.arg(limite));
}
