#include "tests/storage/foyer.h"

#include "storage/lieux.h"
#include "storage/schema.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

Foyer::Foyer() : m_avant(qgetenv("HOME"))
{
#ifdef Q_OS_WIN
    qFatal("the fixed folder of Windows is the user's own: these tests run elsewhere");
#endif
    if (!m_dossier.isValid())
        qFatal("no temporary folder");
    qputenv("HOME", m_dossier.path().toLocal8Bit());
}

Foyer::~Foyer() { qputenv("HOME", m_avant); }

void ecrireFichier(const QString &chemin, const QByteArray &octets)
{
    QDir().mkpath(QFileInfo(chemin).absolutePath());
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(octets) != octets.size())
        qFatal("%s not written", qPrintable(chemin));
}

QByteArray lireFichier(const QString &chemin)
{
    QFile fichier(chemin);
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
}

void peupler(Connexion &cnx, int salaries)
{
    cnx.executer(
        u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?) "
        "INSERT INTO salarie (Num_Salarie, cpt_z, nom, prenom, date_naiss, profes) "
        "SELECT printf('%012d', i), 1, char(65 + i % 26) || 'NOM' || (i * 7919 % 100003), "
        "'PRENOM' || i % 97, date('1950-01-01', (i % 15000) || ' days'), 'METIER' || i % 41 FROM n"_s,
        {salaries});
}

void poserAncienneBase(int colonnesSalarie, int salaries)
{
    for (const auto &[chemin, ligne] : {std::pair{cheminBanques(), "001BNA       Banque\r\nEnd\r\n"},
                                        {cheminCommunes(), "0101ADRAR\r\nEnd\r\n"},
                                        {cheminWilayas(), "01ADRAR\r\nEnd\r\n"}})
        ecrireFichier(chemin, ligne);
    ecrireFichier(cheminBase(), {});
    Connexion cnx;
    cnx.ouvrir(cheminBase());
    Transaction transaction(cnx);
    for (const QStringView nom : {u"employeur", u"salarie", u"annee", u"entete_das", u"ligne_das"}) {
        Table table = tableDuSchema(nom);
        if (nom == u"salarie") {
            while (table.colonnes.size() < colonnesSalarie)
                table.colonnes.append({QStringLiteral("Colonne%1").arg(table.colonnes.size())});
            table.colonnes.resize(colonnesSalarie);
        }
        cnx.definir(table.creation());
    }
    if (salaries > 0)
        peupler(cnx, salaries);
    transaction.commit();
}
