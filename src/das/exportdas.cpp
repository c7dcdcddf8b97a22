#include "das/exportdas.h"

#include "das/controledas.h"
#include "das/genredas.h"
#include "declarations/champsexport.h"
#include "declarations/declaration.h"
#include "declarations/exportdeclaration.h"
#include "rules/dialogue.h"
#include "rules/fonds.h"
#include "storage/base.h"

using namespace Qt::StringLiterals;

namespace {

using enum Forme;

constexpr QStringView NinBlanc = u"000000000000000000";

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
    // A mask that was not filled in counts for nothing, like Null.
    {u"NIN", TelQuel, NinBlanc, {}, Inacheve::SiIncomplet},
    // Null repeats what the line before had: this is meant.
    {.colonne = u"NumActeNaiss", .reporte = true},
};

constexpr FormatExport format{fonds::MarqueDas, champsEntete, champsLigne};

/// Tells when the declared figures are not those of the lines.
bool ctrlSommes(const Enregistrement &entete, Dialogue &dialogue)
{
    if (sommesConcordent(entete))
        return true;
    dialogue.avertir(u"La somme des salaires annuels ou le nombre de salaries saisis dans l'en-tête DAS ne "
                     "correspondent pas aux sommes calculées sur les lignes de cette DAS.\nVerifiez vos "
                     "lignes DAS SVP"_s);
    return false;
}

} // namespace

bool sommesConcordent(const Enregistrement &entete)
{
    const Currency rien;
    return entete.montant(u"sum_calc", rien) == entete.montant(u"sum_annuel", rien) &&
           entete.entier(u"total_calc", 0) == entete.entier(u"total_salarie", 0);
}

void ecrireDas(Base &base, const Enregistrement &entete, QIODevice &fichier)
{
    ecrireDeclaration(base, genreDas(), format, entete, cleEntete(genreDas(), entete), fichier);
}

bool exporterDas(Base &base, bool cheminFige, Dialogue &dialogue)
{
    const Enregistrement entete = base.RsEnteteDas.courant();
    const CleDeclaration cle = cleEntete(genreDas(), entete);
    const QString nom = cle.employeur + u"_DAS_"_s + cle.periode + u".txt"_s;
    const ExportDeclaration declaration{
        .controler = [&] { return ctrlSommes(entete, dialogue) && CtrlDas(base, dialogue); },
        .nomFige = nom,
        .nomPropose = nom,
        .titre = u"Exporter Fichier"_s,
        .ecrire =
            [&](QIODevice &fichier) {
                // The lines list shows all lines of what is exported.
                base.RsLigneDas.ouvrir(lignesDe(genreDas(), cle));
                ecrireDas(base, entete, fichier);
            },
        .succes = u"DAS exportée avec succès vers "_s,
        .echec = u"Une erreur s'est produite, le fichier n'a pas été totalement généré, veuillez rectifier "
                 "l'erreur SVP"_s,
    };
    return exporter(declaration, cheminFige, dialogue);
}
