#include "tests/das/basedas.h"

#include "das/genredas.h"

#include <algorithm>

using namespace Qt::StringLiterals;

BaseDas::BaseDas()
{
    base.Cnx.inserer(
        u"employeur"_s,
        {{u"num_emp"_s, employeur}, {u"rais_soc"_s, u"SARL L'Étoile"}, {u"adresse"_s, u"3, rue d'en bas"}});
    base.Cnx.inserer(u"annee"_s, {{u"annee"_s, 2024}, {u"compagne"_s, u"2023/2024"}});
    base.RsEmployeur.requery();
    base.RsAnnee.requery();
    base.RsEnteteDas.ouvrir();
    // No test pulls the plug.
    base.Cnx.executer(u"PRAGMA synchronous = OFF"_s);
}

CleDeclaration BaseDas::entete(qint64 type, Currency somme, qint64 effectif, int annee)
{
    base.RsEnteteDas.ajouter({{u"num_emp"_s, employeur},
                              {u"annee"_s, annee},
                              {u"Type"_s, type},
                              {u"sum_annuel"_s, somme},
                              {u"total_salarie"_s, effectif}});
    return cleEntete(genreDas(), base.RsEnteteDas.courant());
}

void BaseDas::ligne(const QString &numero, qint64 cpt_z, const Champs &champs, qint64 type, int annee)
{
    Champs tous{{u"num_salarie"_s, numero},    {u"cpt_z"_s, cpt_z},
                {u"annee"_s, annee},           {u"num_emp"_s, employeur},
                {u"type_das"_s, type},         {u"sal_annuel"_s, Currency::deEntier(600'000)},
                {u"nbj_travail"_s, 12},        {u"type_dure"_s, u"M"},
                {u"date_es"_s, u"__/__/____"}, {u"type_date_es"_s, u"E"}};
    for (const Champ &champ : champs) {
        const auto place = std::find_if(tous.begin(), tous.end(),
                                        [&](const Champ &un) { return un.colonne == champ.colonne; });
        *place = champ;
    }
    base.Cnx.inserer(u"ligne_das"_s, tous);
}

void BaseDas::accorder()
{
    base.Cnx.executer(u"UPDATE entete_das SET (sum_calc, total_calc) = (SELECT ifnull(sum(sal_annuel), 0), "
                      "count(*) FROM ligne_das AS l WHERE l.num_emp = entete_das.num_emp AND "
                      "l.annee = entete_das.annee AND l.type_das = entete_das.Type)"_s);
    base.Cnx.executer(u"UPDATE entete_das SET sum_annuel = sum_calc, total_salarie = total_calc"_s);
    base.RsEnteteDas.requery();
}

void BaseDas::peuplerDas(int lignes)
{
    entete();
    Transaction transaction(base.Cnx);
    const QString modele = u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?) "_s;
    // Ten digits of the year 88, the certificate 2345 and four more, then the key; beyond 10 000 employees
    // the certificate tells them apart.
    base.Cnx.executer(
        modele + u"INSERT INTO salarie (Num_Salarie, cpt_z, nom, prenom, sf, date_naiss, "
                 "lieu_naiss, adresse, ville, presume, etranger, num_cpt_ccp, profes, SEXE, "
                 "Telephone, IdNat, NumActeNaiss, NIN, PrenomPere, NomMere, PrenomMere) "
                 "SELECT printf('88%08d', i), 1, char(65 + i % 26) || 'NOM', 'PRENOM', 'M', '1988-03-04', "
                 "'ALGER', '12 RUE DES ROSIERS', 'ALGER', 'N', 'N', '123456768', 'MAÇON', 'M', "
                 "'0550112233', '004', printf('0%04d', i / 10000), printf('1098801230%04d0006', i / 10000), "
                 "'PAUL', 'DURAND', 'MARIE' FROM n"_s,
        {lignes});
    // The key: 99 less the sum of the digits, those in odd places twice.
    QString somme;
    for (int place = 1; place <= 10; ++place) {
        somme += (place > 1 ? u"+"_s : QString()) +
                 u"%1 * substr(Num_Salarie, %2, 1)"_s.arg(place % 2 == 1 ? 2 : 1).arg(place);
    }
    base.Cnx.executer(u"UPDATE salarie SET Num_Salarie = Num_Salarie || printf('%02d', 99 - ("_s + somme +
                      u")) WHERE length(Num_Salarie) = 10"_s);
    base.Cnx.executer(
        u"INSERT INTO ligne_das SELECT Num_Salarie, cpt_z, 2024, ?, 1, 6000000000 + 100 * rowid, 12, "
        "'M', '01/07/2023', 'E' FROM salarie ORDER BY rowid"_s,
        {employeur});
    transaction.commit();
    accorder();
}
