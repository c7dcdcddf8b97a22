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

QString questionMoyenne(const QString &moyenne, bool modification)
{
    return u"le salaire déclaré mensuel moyen est de : "_s + moyenne + (modification ? u"   "_s : u"  "_s) +
           u"Da, Voulez vous valider ses données ?"_s;
}
