#include "tests/employees/basesalaries.h"

#include "rules/identite.h"

using namespace Qt::StringLiterals;

BaseSalaries::BaseSalaries()
{
    for (const auto &[code, nom] : {std::pair{u"01", u"ADRAR"}, {u"16", u"ALGER"}})
        base.RsWilaya.ajouter({{u"Code"_s, code}, {u"Libelle"_s, nom}});
    for (const auto &[code, nom] :
         {std::pair{u"1601", u"Alger centre"}, {u"0102", u"TIMIMOUN"}, {u"0101", u"ADRAR"}})
        base.RsCommune.ajouter({{u"Code"_s, code}, {u"Libelle"_s, nom}});
    for (const auto &[code, nom] : {std::pair{u"004", u"Algérie"},
                                    {u"001", u"Afghanistan"},
                                    {u"002", u"Afrique du Sud"},
                                    {u"003", u"Albanie"},
                                    {u"005", u"Allemagne"}})
        base.RsNationalite.ajouter({{u"ID"_s, code}, {u"Libelle"_s, nom}});
}

QString BaseSalaries::numero(int rang)
{
    const QString chiffres = u"882345"_s + QString::number(rang).rightJustified(4, u'0');
    return chiffres + CleSS(chiffres);
}

void BaseSalaries::ajouter(const QString &numero, qint64 cpt_z, const Champs &champs)
{
    base.Cnx.executer(
        u"INSERT INTO salarie (Num_Salarie, cpt_z, nom, prenom, sf, date_naiss, adresse, num_cpt_ccp, "
        u"profes, "
        "etranger, presume, sexe, CommuneNaiss, IdNat, NumActeNaiss, NIN, telephone, PrenomPere, NomMere, "
        "PrenomMere) VALUES (?, ?, 'DUPONT', 'JEAN', 'M', '1988-03-04', '12 RUE DES ROSIERS', '123456768', "
        "'MAÇON', 'N', 'N', 'M', '0101', '004', '12345', '109880123123450006', '0550112233', 'PAUL', "
        "'DURAND', 'MARIE')"_s,
        {numero, cpt_z});
    for (const Champ &champ : champs)
        base.Cnx.executer(
            u"UPDATE salarie SET [%1] = ? WHERE Num_Salarie = ? AND cpt_z = ?"_s.arg(champ.colonne),
            {champ.valeur, numero, cpt_z});
    base.RsSalarie.requery();
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
