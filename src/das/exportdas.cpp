#include "das/exportdas.h"

#include "das/controledas.h"
#include "das/genredas.h"
#include "declarations/declaration.h"
#include "declarations/exportdeclaration.h"
#include "rules/fonds.h"

using namespace Qt::StringLiterals;

namespace {

using enum FormeChamp;

constexpr ChampExport champsEntete[] = {
    {u"num_emp", TelQuel},    {u"annee", TelQuel},        {u"Type", TelQuel},
    {u"sum_annuel", Montant}, {u"total_salarie", Entier},
};

constexpr ChampExport champsLigne[] = {
    {u"l.num_salarie", TelQuel},
    {u"nom", Coupe},
    {u"prenom", Coupe},
    {u"sf", TelQuel},
    {u"date_naiss", Jour},
    {u"lieu_naiss", Coupe, u""},
    {u"adresse", Coupe, u""},
    {u"ville", Coupe, u""},
    {u"c_postal", Coupe, u""},
    {u"presume", TelQuel},
    {u"etranger", TelQuel},
    {u"num_cpt_ccp", Coupe, u""},
    {u"num_cpt_banc", Coupe, u""},
    {u"banque", Coupe, u""},
    {u"agence_banque", Coupe, u""},
    {u"profes", Coupe, u""},
    {u"sal_annuel", Montant},
    {u"nbj_travail", Entier},
    {u"type_dure", TelQuel},
    {u"date_es", TelQuel, u""},
    {u"type_date_es", TelQuel, u""},
    {u"sexe", TelQuel, u"M"},
    {u"telephone", Coupe, u""},
    {u"Email", Coupe, u""},
    {u"CinNumber", Coupe, u""},
    {u"IdNat", Coupe, u""},
    {u"PrenomPere", Coupe, u""},
    {u"NomMere", Coupe, u""},
    {u"PrenomMere", Coupe, u""},
    {.colonne = u"NIN", .siNul = u"000000000000000000", .nulSiContient = u"_"},
    {.colonne = u"NumActeNaiss", .repete = true},
};

} // namespace

const FichierDeclaration &fichierDas()
{
    static const FichierDeclaration fichier{
        .genre = genreDas(),
        .marque = fonds::MarqueDas,
        .entete = champsEntete,
        .ligne = champsLigne,
        // A complementary declaration takes the name of the principal one: this is meant.
        .nomFige = u"{num_emp}_DAS_{annee}.txt"_s,
        .nomPropose = u"{num_emp}_DAS_{annee}.txt"_s,
        .sommesDifferentes =
            u"La somme des salaires annuels ou le nombre de salaries saisis dans l'en-tête DAS ne "
            "correspondent pas aux sommes calculées sur les lignes de cette DAS.\nVerifiez vos lignes DAS "
            "SVP"_s,
        .apresSommes = CtrlDas,
        .gestion = FichierDeclaration::Gestion::DesLeControle,
        .echec = u"Une erreur s'est produite, le fichier n'a pas été totalement généré, veuillez rectifier "
                 "l'erreur SVP"_s,
        .echecFatal = true,
        .succes = u"DAS exportée avec succès vers "_s,
    };
    return fichier;
}

bool exporterDas(Base &base, bool cheminFige, Dialogue &dialogue)
{
    return exporter(fichierDas(), base, base.RsEnteteDas.courant(), cheminFige, dialogue);
}
