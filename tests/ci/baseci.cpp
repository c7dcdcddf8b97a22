#include "tests/ci/baseci.h"

#include "ci/genreci.h"
#include "tests/commun/horloge.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

Champs remplaces(Champs tous, const Champs &champs)
{
    for (const Champ &champ : champs) {
        std::find_if(tous.begin(), tous.end(), [&](const Champ &un) {
            return un.colonne == champ.colonne;
        })->valeur = champ.valeur;
    }
    return tous;
}

} // namespace

BaseCi::BaseCi()
{
    arreterHorloge(QDate(2024, 3, 15));
    base.Cnx.inserer(u"employeur"_s, {{u"num_emp"_s, employeur},
                                      {u"rais_soc"_s, u"SARL L'Étoile"},
                                      {u"adresse"_s, u"3, rue d'en bas"},
                                      {u"tel"_s, u"0660112233"}});
    base.Cnx.inserer(u"Banque"_s, {{u"Code"_s, u"001"}, {u"Abreviat"_s, u"BNA"}, {u"Libelle"_s, u"Banque"}});
    base.RsEmployeur.requery();
    base.RsBanque.requery();
    ajouter(salarie, 1, {{u"nom"_s, u"BENALI"}});
    ajouter(autreSalarie, 1, {{u"nom"_s, u"D'ARC"}});
}

CleDeclaration BaseCi::entete(const Champs &champs)
{
    base.RsEnteteCi.ajouter(remplaces({{u"N_Identifiant"_s, reference},
                                       {u"N_employeur"_s, employeur},
                                       {u"date_arret"_s, QDate(2024, 1, 5)},
                                       {u"Date_reprise"_s, QDate(2024, 1, 12)},
                                       {u"Montant_Indemnise"_s, Currency::deEntier(1500)},
                                       {u"Effect_Mis_arret"_s, 2},
                                       {u"ChargePat"_s, Currency::deEntier(390)},
                                       {u"ChargeCp"_s, Currency::deTexte(u"183.15")},
                                       {u"ChargeCi"_s, Currency::deTexte(u"5.63")},
                                       {u"HTS"_s, 40},
                                       {u"NCompteBnq"_s, compte},
                                       {u"LibAgBnq"_s, u"AGENCE CENTRE"},
                                       {u"Telephone"_s, u"0660112233"}},
                                      champs));
    return cleEntete(genreCi(), base.RsEnteteCi.courant());
}

void BaseCi::ligne(QStringView numero, qint64 cpt_z, const Champs &champs)
{
    base.Cnx.inserer(u"Detail_CI"_s, remplaces({{u"N_Identif"_s, reference},
                                                {u"N_SecSoc"_s, numero},
                                                {u"Cpt_z"_s, cpt_z},
                                                {u"Date_embauche"_s, QDate(2020, 9, 1)},
                                                {u"date_arret"_s, QDate(2024, 1, 5)},
                                                {u"Date_reprise"_s, QDate(2024, 1, 12)},
                                                {u"Nb_Heure"_s, 10},
                                                {u"Salaire_Horaire"_s, Currency::deEntier(100)},
                                                {u"Mt_Indemnise"_s, Currency::deEntier(750)}},
                                               champs));
}

void BaseCi::accorder()
{
    base.Cnx.executer(u"UPDATE Entete_CI SET (sum_calc, total_calc) = (SELECT ifnull(sum(Mt_Indemnise), 0), "
                      "count(*) FROM Detail_CI WHERE N_Identif = N_Identifiant)"_s);
    base.Cnx.executer(u"UPDATE Entete_CI SET Montant_Indemnise = sum_calc, Effect_Mis_arret = total_calc"_s);
    base.RsEnteteCi.requery();
}

FicheEnteteCi ficheEnteteCi()
{
    return {.cmbemp = BaseCi::employeur,
            .MskReference = BaseCi::reference,
            .MskDateArret = u"05/01/2024"_s,
            .MskDateReprise = u"12/01/2024"_s,
            .total_salEdit = u"00002"_s,
            .sumEdit = u"1 500.00"_s,
            .SS26 = u"390"_s,
            .SS1221 = u"183,15"_s,
            .SS0375 = u"5.63"_s,
            .CmbHS = u"44"_s,
            .CmbBnq = u"001"_s,
            .MskAgbnq = u"00123"_s,
            .MskNCompteBnq = BaseCi::compte,
            .txtAgBnq = u"AGENCE CENTRE"_s,
            .TxtTelephone = u"0660112233"_s};
}

FicheLigneCi ficheLigneCi(QStringView numero, qint64 cpt_z)
{
    FicheLigneCi fiche;
    fiche.num_saledit = numero.first(10).toString();
    fiche.mskcle = numero.sliced(10).toString();
    fiche.cpt_z = cpt_z;
    fiche.MskDateEmbauche = u"01/09/2020"_s;
    fiche.MskDateArret = u"05/01/2024"_s;
    fiche.MskDateReprise = u"12/01/2024"_s;
    fiche.TxtNbHeure = u"10"_s;
    fiche.TxtMtHoraire = u"100.00"_s;
    return fiche;
}
