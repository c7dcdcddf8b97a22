#include "tests/ci/baseci.h"

#include "ci/genreci.h"
#include "tests/commun/horloge.h"
#include "tests/storage/foyer.h"

using namespace Qt::StringLiterals;

BaseCi::BaseCi()
{
    arreterHorloge(QDate(2024, 3, 15));
    base.Cnx.executer(u"INSERT INTO employeur VALUES (?, 'SARL L''Étoile', '3, rue', '0660112233', '')"_s,
                      {employeur});
    base.Cnx.executer(u"INSERT INTO Banque VALUES ('001', 'BNA', 'Banque')"_s);
    base.RsEmployeur.requery();
    base.RsBanque.requery();
    ajouter(salarie, 1, {{u"nom"_s, u"BENALI"}});
    ajouter(autreSalarie, 1, {{u"nom"_s, u"D'ARC"}});
}

CleDeclaration BaseCi::entete(const QString &autres)
{
    base.Cnx.executer(
        u"INSERT INTO Entete_CI VALUES (?, ?, '2024-01-05', '2024-01-12', 2, 15000000, 15000000, "
        "3900000, 1831500, 56300, 2, 40, ?, 'AGENCE CENTRE', '0660112233')"_s,
        {reference, employeur, compte});
    if (!autres.isEmpty())
        base.Cnx.executer(u"UPDATE Entete_CI SET %1 WHERE rowid = last_insert_rowid()"_s.arg(autres));
    base.RsEnteteCi.requery();
    return cleEntete(genreCi(), base.RsEnteteCi.courant());
}

void BaseCi::ligne(const QString &numero, qint64 cpt_z, const QString &autres)
{
    base.Cnx.executer(u"INSERT INTO Detail_CI VALUES (?, ?, ?, '2020-09-01', '2024-01-05', '2024-01-12', 10, "
                      "1000000, 7500000)"_s,
                      {reference, numero, cpt_z});
    if (!autres.isEmpty())
        base.Cnx.executer(u"UPDATE Detail_CI SET %1 WHERE rowid = last_insert_rowid()"_s.arg(autres));
}

FicheEnteteCi ficheEnteteCi()
{
    return {BaseCi::employeur, BaseCi::reference, u"05/01/2024"_s, u"12/01/2024"_s,    u"00002"_s,
            u"1 500.00"_s,     u"390"_s,          u"183,15"_s,     u"5.63"_s,          u"44"_s,
            u"001"_s,          u"00123"_s,        BaseCi::compte,  u"AGENCE CENTRE"_s, u"0660112233"_s};
}

FicheLigneCi ficheLigneCi(const QString &numero, qint64 cpt_z, const QString &heures, const QString &salaire)
{
    return {{numero.first(10), numero.sliced(10), cpt_z},
            u"01/09/2020"_s,
            u"05/01/2024"_s,
            u"12/01/2024"_s,
            heures,
            salaire};
}

QList<QStringList> table(const QString &chemin)
{
    QList<QStringList> lignes;
    for (const QString &ligne : QString::fromUtf8(lireFichier(chemin)).split(u'\n', Qt::SkipEmptyParts))
        lignes += ligne.split(u'|');
    return lignes.sliced(1); // behind the heads
}
