#include "tests/dac/basedac.h"

using namespace Qt::StringLiterals;

BaseDac::BaseDac()
{
    base.Cnx.inserer(u"employeur"_s, {{u"num_emp"_s, employeur}, {u"rais_soc"_s, u"SARL L'Étoile"}});
    base.Cnx.executer(u"PRAGMA synchronous = OFF"_s);
}

void BaseDac::peuplerDac(int lignes)
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
        {lignes});
    base.Cnx.executer(
        u"INSERT INTO Ligne_Dac SELECT Num_Salarie, cpt_z, ?, 1, ?, 300000000 + rowid, 22, 'J', "
        "'2020-01-01', 'E' FROM salarie ORDER BY rowid"_s,
        {periode, employeur});
    transaction.commit();
}
