#include "tests/employees/basesalaries.h"

#include "storage/schema.h"

#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

BaseSalaries::BaseSalaries()
{
    if (!m_dossier.isValid())
        qFatal("no temporary folder");
    {
        Connexion cnx;
        cnx.ouvrir(chemin());
        Transaction transaction(cnx);
        for (const Table &table : tablesDuSchema()) {
            cnx.definir(table.creation());
            for (const QString &ordre : table.creationIndex())
                cnx.definir(ordre);
        }
        for (const auto &[code, nom] : {std::pair{u"01", u"ADRAR"}, {u"16", u"ALGER"}})
            cnx.inserer(u"Wilaya"_s, {{u"Code"_s, code}, {u"Libelle"_s, nom}});
        for (const auto &[code, nom] :
             {std::pair{u"1601", u"Alger centre"}, {u"0102", u"TIMIMOUN"}, {u"0101", u"ADRAR"}})
            cnx.inserer(u"Commune"_s, {{u"Code"_s, code}, {u"Libelle"_s, nom}});
        for (const auto &[code, nom] : {std::pair{u"004", u"Algérie"},
                                        {u"001", u"Afghanistan"},
                                        {u"002", u"Afrique du Sud"},
                                        {u"003", u"Albanie"},
                                        {u"005", u"Allemagne"}})
            cnx.inserer(u"Nationalite"_s, {{u"ID"_s, code}, {u"Libelle"_s, nom}});
        transaction.commit();
    }
    ouvrirPourSalaries(base, chemin());
}

QString BaseSalaries::fichier(const QString &nom, const QByteArray &octets) const
{
    QFile fichier(m_dossier.filePath(nom));
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(octets) != octets.size())
        qFatal("%s not written", qPrintable(nom));
    return fichier.fileName();
}

void BaseSalaries::ajouter(const QString &numero, qint64 cpt_z, const Champs &champs)
{
    Champs tous{{u"Num_Salarie"_s, numero},
                {u"cpt_z"_s, cpt_z},
                {u"nom"_s, u"DUPONT"},
                {u"prenom"_s, u"JEAN"},
                {u"sf"_s, u"M"},
                {u"date_naiss"_s, QDate(1988, 3, 4)},
                {u"adresse"_s, u"12 RUE DES ROSIERS"},
                {u"num_cpt_ccp"_s, u"123456768"},
                {u"profes"_s, u"MAÇON"},
                {u"etranger"_s, u"N"},
                {u"presume"_s, u"N"},
                {u"sexe"_s, u"M"},
                {u"CommuneNaiss"_s, u"0101"},
                {u"IdNat"_s, u"004"},
                {u"NumActeNaiss"_s, u"12345"},
                {u"NIN"_s, u"109880123123450006"},
                {u"telephone"_s, u"0550112233"},
                {u"PrenomPere"_s, u"PAUL"},
                {u"NomMere"_s, u"DURAND"},
                {u"PrenomMere"_s, u"MARIE"}};
    for (const Champ &champ : champs) {
        const auto place = std::find_if(tous.begin(), tous.end(),
                                        [&](const Champ &un) { return un.colonne == champ.colonne; });
        if (place == tous.end())
            tous.append(champ);
        else
            *place = champ;
    }
    base.Cnx.inserer(u"salarie"_s, tous);
    base.RsSalarie.requery();
}

void BaseSalaries::peupler(int salaries)
{
    base.Cnx.executer(
        u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?) "
        "INSERT INTO salarie (Num_Salarie, cpt_z, nom, prenom, date_naiss, profes, etranger, IdNat, "
        "lieu_naiss) "
        "SELECT printf('%012d', i * 4999), 1, char(65 + i % 26) || 'NOM' || (i * 7919 % 100003), "
        "'PRENOM' || i % 97, date('1950-01-01', (i % 15000) || ' days'), 'METIER' || i % 41, 'N', '004', "
        "'   VILLE' || i % 1541 FROM n"_s,
        {salaries});
    base.RsSalarie.requery();
}

QStringList BaseSalaries::lignes(Connexion &cnx, const QString &sql)
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

void ouvrirPourSalaries(Base &base, const QString &chemin)
{
    base.OuvrirBase(chemin);
    for (Recordset *un :
         {&base.RsSalarie, &base.RsNationalite, &base.RsWilaya, &base.RsCommune, &base.RsAnnee,
          &base.RsEmployeur, &base.RsLigneDas, &base.RsDetailCi, &base.RsLigneDac})
        un->ouvrir();
}

FicheSalarie ficheNationale()
{
    FicheSalarie fiche;
    fiche.num_salmask = u"8823456789"_s;
    fiche.clemask = u"11"_s;
    fiche.nomedit = u"DUPONT"_s;
    fiche.prenomedit = u"JEAN"_s;
    fiche.CmbSexe = 0;
    fiche.mskdate = u"04/03/1988"_s;
    fiche.CmbWilaya = u"01   ADRAR"_s;
    fiche.CmbCommune = u"0101   ADRAR"_s;
    fiche.sfedit = u"M"_s;
    fiche.MskNumActeNaiss = u"12345"_s;
    fiche.MskNin = u"109880123123450006"_s;
    fiche.TxtPIN = u"123"_s;
    fiche.PrenomPere = u"PAUL"_s;
    fiche.NomMere = u"DURAND"_s;
    fiche.PrenomMere = u"MARIE"_s;
    fiche.profesedit = u"MAÇON"_s;
    fiche.adredit = u"12 RUE DES ROSIERS"_s;
    fiche.villeEdit = u"ADRAR"_s;
    fiche.c_postalEdit = u"01000"_s;
    fiche.MskNTel = u"0550112233"_s;
    fiche.num_cpt_ccpedit = u"123456768"_s;
    return fiche;
}

FicheSalarie ficheEtrangere()
{
    FicheSalarie fiche = ficheNationale();
    cocherEtranger(fiche, true);
    fiche.CmbNationalite = 0;
    return fiche;
}
