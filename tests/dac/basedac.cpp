#include "tests/dac/basedac.h"

#include <algorithm>

using namespace Qt::StringLiterals;

BaseDac::BaseDac()
{
    base.Cnx.inserer(u"employeur"_s, {{u"num_emp"_s, employeur}, {u"rais_soc"_s, u"SARL L'Étoile"}});
    base.Cnx.executer(u"PRAGMA synchronous = OFF"_s);
}

void BaseDac::peuplerDac(int lignes, int salaries)
{
    Transaction transaction(base.Cnx);
    base.Cnx.executer(
        u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
        "INSERT INTO salarie (Num_Salarie, cpt_z, nom, prenom, date_naiss, adresse, num_cpt_ccp, "
        "num_cpt_banc, profes, presume, etranger, IdNat, NumActeNaiss, NIN, CommuneNaiss, PrenomPere, "
        "NomMere, PrenomMere) "
        "SELECT printf('882345%06d', i), 1, 'NOM' || i, 'PRENOM', '1988-03-04', '12 RUE DES ROSIERS', "
        "printf('007%017d', i * 97), printf('001%017d', (i + 500000) * 97), 'MAÇON', 'N', 'N', '004', "
        "'12345', "
        "'109880123123450006', '0101', 'PAUL', 'DURAND', 'MARIE' FROM n LIMIT ?"_s,
        {std::max(lignes, salaries)});
    base.Cnx.executer(
        u"INSERT INTO Ligne_Dac SELECT Num_Salarie, cpt_z, ?, 1, ?, 300000000 + rowid, 22, 'J', "
        "'2020-01-01', 'E' FROM salarie ORDER BY rowid LIMIT ?"_s,
        {periode, employeur, lignes});
    transaction.commit();
}

void BaseDac::entete(qint64 type)
{
    base.RsEnteteDac.ajouter({{u"NumEmployeur"_s, employeur},
                              {u"Periode"_s, periode},
                              {u"Type_Dac"_s, type},
                              {u"Assiette"_s, Currency()},
                              {u"Effectif_total"_s, 0}});
}

void BaseDac::accorder()
{
    base.Cnx.executer(
        u"UPDATE Entete_Dac SET (Assiette_Calc, Effectif_Calc) = (SELECT ifnull(sum(l.Assiette), 0), "
        "10000 * count(*) FROM Ligne_Dac AS l WHERE l.Type_dac = Entete_Dac.Type_Dac)"_s);
    base.Cnx.executer(
        u"UPDATE Entete_Dac SET Assiette = Assiette_Calc, Effectif_total = Effectif_Calc / 10000"_s);
    base.RsEnteteDac.requery();
}
