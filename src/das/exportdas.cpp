#include "das/exportdas.h"

#include "das/controledas.h"
#include "das/genredas.h"
#include "declarations/declaration.h"
#include "declarations/exportdeclaration.h"
#include "rules/dialogue.h"
#include "rules/fonds.h"
#include "rules/texte.h"
#include "storage/base.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView NinBlanc = u"000000000000000000";

void sexe(QString &ligne, const Enregistrement &rangee, int colonne, QString &)
{
    ligne += rangee.estNul(colonne) ? u"M"_s : rangee.texte(colonne);
}

/// A mask that was not filled in counts for nothing, like Null.
void nin(QString &ligne, const Enregistrement &rangee, int colonne, QString &)
{
    const QString texte = rangee.texte(colonne);
    ligne += rangee.estNul(colonne) || texte.contains(u'_') ? NinBlanc.toString() : texte;
}

/// Null repeats what the line before had: this is meant.
void acteNaissance(QString &ligne, const Enregistrement &rangee, int colonne, QString &reporte)
{
    if (!rangee.estNul(colonne))
        reporte = rangee.texte(colonne);
    ligne += reporte;
}

constexpr ChampExport champs[] = {
    {u"l.num_salarie", ecriture::telQuel},
    {u"nom", ecriture::coupe},
    {u"prenom", ecriture::coupe},
    {u"sf", ecriture::telQuel},
    {u"date_naiss", ecriture::jour},
    {u"lieu_naiss", ecriture::coupeOuVide},
    {u"adresse", ecriture::coupeOuVide},
    {u"ville", ecriture::coupeOuVide},
    {u"c_postal", ecriture::coupeOuVide},
    {u"presume", ecriture::telQuel},
    {u"etranger", ecriture::telQuel},
    {u"num_cpt_ccp", ecriture::coupeOuVide},
    {u"num_cpt_banc", ecriture::coupeOuVide},
    {u"banque", ecriture::coupeOuVide},
    {u"agence_banque", ecriture::coupeOuVide},
    {u"profes", ecriture::coupeOuVide},
    {u"sal_annuel", ecriture::montant},
    {u"nbj_travail", ecriture::entier},
    {u"type_dure", ecriture::telQuel},
    {u"date_es", ecriture::telQuelOuVide},
    {u"type_date_es", ecriture::telQuelOuVide},
    {u"sexe", sexe},
    {u"telephone", ecriture::coupeOuVide},
    {u"Email", ecriture::coupeOuVide},
    {u"CinNumber", ecriture::coupeOuVide},
    {u"IdNat", ecriture::coupeOuVide},
    {u"PrenomPere", ecriture::coupeOuVide},
    {u"NomMere", ecriture::coupeOuVide},
    {u"PrenomMere", ecriture::coupeOuVide},
    {u"NIN", nin},
    {u"NumActeNaiss", acteNaissance},
};

/// Whether the declared figures are those of the lines; a figure that is Null counts as zero.
bool sommesConcordent(const Enregistrement &entete, Dialogue &dialogue)
{
    const Currency rien;
    if (entete.montant(u"sum_calc", rien) == entete.montant(u"sum_annuel", rien) &&
        entete.entier(u"total_calc", 0) == entete.entier(u"total_salarie", 0))
        return true;
    dialogue.avertir(u"La somme des salaires annuels ou le nombre de salaries saisis dans l'en-tête DAS ne "
                     "correspondent pas aux sommes calculées sur les lignes de cette DAS.\nVerifiez vos "
                     "lignes DAS SVP"_s);
    return false;
}

} // namespace

void ecrireDas(Base &base, const Enregistrement &entete, QIODevice &fichier)
{
    const CleDeclaration cle = cleEntete(genreDas(), entete);
    ecrireLigne(fichier, fonds::MarqueDas);
    const QString ligneEntete = cle.employeur + u';' + cle.periode + u';' + QString::number(cle.type) + u';' +
                                entete.montant(u"sum_annuel").texte(SepAutre) + u';' +
                                QString::number(entete.entier(u"total_salarie")) + u';';
    ecrireLigne(fichier, ligneEntete);

    Requete rangees =
        base.Cnx.lire(u"SELECT "_s + colonnesExport(champs) + lignesEtSalaries(base, genreDas(), cle),
                      lignesDe(genreDas(), cle).valeurs);
    ecrireLignes(fichier, rangees, champs);
}

bool exporterDas(Base &base, bool cheminFige, Dialogue &dialogue)
{
    const Enregistrement entete = base.RsEnteteDas.courant();
    const CleDeclaration cle = cleEntete(genreDas(), entete);
    const QString nom = cle.employeur + u"_DAS_"_s + cle.periode + u".txt"_s;
    const ExportDeclaration declaration{
        .controler = [&] { return sommesConcordent(entete, dialogue) && CtrlDas(base, dialogue); },
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
