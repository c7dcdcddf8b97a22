#include "das/formulaires.h"

#include "das/genredas.h"
#include "declarations/declaration.h"
#include "rules/date.h"
#include "rules/dialogue.h"
#include "rules/erreurs.h"
#include "storage/base.h"

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr double CoteLogo = 18;

QString condition(const CleDeclaration &cle)
{
    return cle.texte(u"Type") == u"1" ? QString() : u"(Complémentaire)"_s;
}

/// A row without which there is nothing to print.
Enregistrement exiger(Enregistrement lu, const CleDeclaration &cle)
{
    if (lu.estVide()) {
        throw ErreurBase(
            u"Il n'y a rien à imprimer : l'employeur n° %1 ou son entête DAS n'existe plus dans la base."_s
                .arg(cle.texte(u"num_emp")));
    }
    return lu;
}

/// The header as it stands now, so that what is compared is what is printed.
Enregistrement relire(Base &base, const CleDeclaration &cle)
{
    return exiger(lireEntete(base, genreDas(), cle), cle);
}

Enregistrement lireEmployeur(Base &base, const CleDeclaration &cle)
{
    return exiger(base.Cnx.premiere(u"SELECT rais_soc, adresse, tel FROM employeur WHERE num_emp = ?"_s,
                                    {Valeur::brute(cle.valeur(u"num_emp"))}),
                  cle);
}

const QString sommesDifferent =
    u"La somme des salaires annuels ou le nombre de salaries saisis dans l'entête ne correspondent pas aux "
    "sommes calculées sur les lignes de cette DAS.\n"_s;

QString fichier(const CleDeclaration &cle, QStringView suite)
{
    return cle.texte(u"num_emp") + u"_DAS_"_s + cle.texte(u"annee") + suite + u".pdf";
}

/// The fund's logo, which reaches down beside the rows that follow, and its name.
Rangee enseigne(double hauteur = 0)
{
    return {.cellules = {{.largeur = CoteLogo + 4, .logo = CoteLogo},
                         {.texte = u"KORVANDEL"_s, .corps = 18, .gras = true}},
            .hauteur = hauteur};
}

Rangee centree(const QString &texte, double corps, bool gras, double avant = 0)
{
    return {.cellules = {{.texte = texte, .corps = corps, .gras = gras, .alignement = Alignement::Centre}},
            .avant = avant};
}

Rangee champ(const QString &libelle, const QString &valeur, double largeur, double hauteur)
{
    return {.cellules = {{.texte = libelle, .largeur = largeur, .grisee = true},
                         {.texte = valeur, .corps = 11, .gras = true}},
            .reglee = true,
            .hauteur = hauteur};
}

} // namespace

std::optional<Document> DataReport1(Base &base, const Enregistrement &entete, Dialogue &dialogue)
{
    const CleDeclaration cle = cleEntete(genreDas(), entete);
    const Enregistrement lue = relire(base, cle);
    if (!sommesConcordent(base, genreDas(), lue)) {
        dialogue.avertir(sommesDifferent + u"Verifiez vos lignes DAS SVP"_s);
        return {};
    }
    const Condition lignes = lignesDe(genreDas(), cle);
    const qint64 debau =
        base.Cnx
            .premiere(u"SELECT count(*) FROM ligne_das WHERE type_date_es = 'S' AND "_s + lignes.sql,
                      lignes.valeurs)
            .entier(0);
    const Enregistrement employeur = lireEmployeur(base, cle);

    Document document{
        .nom = u"DataReport1"_s,
        .titre = u"Déclaration DAS"_s,
        .fichier = fichier(cle, u""),
        .marge = 20,
        .tete = {enseigne(), {.cellules = {{.largeur = CoteLogo + 4}, {.texte = u"KORVANDEL"_s}}}}};
    document.tete += centree(u"DECLARATION ANNUELLE DES SALAIRES ET SALARIÉS (DAS)"_s, 13, true, 14);
    document.tete += centree(condition(cle), 13, true);
    document.tete +=
        centree(u"(A émettre à la caisse au plus tard le 31 Juillet de l'année de référence)"_s, 9.5, false);
    const auto ajouter = [&](const QString &libelle, const QString &valeur) {
        document.tete += champ(libelle, valeur, 75, 12);
    };
    ajouter(u"Année de réference"_s, lue.texte(u"annee"));
    document.tete.last().avant = 8;
    ajouter(u"Nom ou raison sociale de l'entreprise"_s, employeur.texte(u"rais_soc"));
    ajouter(u"Numéro employeur"_s, lue.texte(u"num_emp"));
    ajouter(u"Adresse de l'employeur"_s, employeur.texte(u"adresse"));
    ajouter(u"Numéro de téléphone"_s, employeur.texte(u"tel"));
    ajouter(u"Montant total des salaires"_s,
            formatMasque(lue.montant(u"sum_calc", Currency()), u"# ##0.00 "));
    ajouter(u"Nombre de travailleurs employés pendant l'année de référence"_s,
            QString::number(lue.entier(u"total_calc", 0)));
    ajouter(u"Nombre de travailleurs débauchés pendant l'année de réference"_s, QString::number(debau));

    document.tete +=
        Rangee{.cellules = {{.texte = u"Date, signature et cachet de l'employeur:"_s}}, .avant = 8};
    document.tete += Rangee{.cellules = {{}}, .reglee = true, .hauteur = 40};
    document.tete += Rangee{.cellules = {{.texte = u"Pièces à joindre:"_s, .gras = true}}, .avant = 8};
    for (const QString &piece : {u"Attestation d'indemnisation \"CNAS\" pour maladie, maternité ou accident "
                                 "de travail; fiche familliale;"_s,
                                 u"Carte d'handicap des travailleurs concernés."_s}) {
        document.tete +=
            Rangee{.cellules = {{.texte = u"–"_s, .largeur = 5, .corps = 9}, {.texte = piece, .corps = 9}}};
    }
    return document;
}

std::optional<Document> DataReport2(Base &base, const Enregistrement &entete, Dialogue &)
{
    const CleDeclaration cle = cleEntete(genreDas(), entete);
    const Enregistrement lue = relire(base, cle);
    const Enregistrement employeur = lireEmployeur(base, cle);

    Document document{.nom = u"DataReport2"_s,
                      .titre = u"Jaquette CD"_s,
                      .fichier = fichier(cle, u"_CD"),
                      .vignette = 120,
                      .tete = {enseigne(CoteLogo)}};
    const auto ajouter = [&](const QString &libelle, const QString &valeur) {
        document.tete += champ(libelle, valeur, 28, 18);
    };
    ajouter(u"Employeur"_s, lue.texte(u"num_emp") + u'\n' + employeur.texte(u"rais_soc"));
    document.tete.last().avant = 12;
    ajouter(u"Année"_s, lue.texte(u"annee"));
    ajouter(u"Numéro:"_s, {}); // written by hand, that of the disc
    document.tete += Rangee{
        .cellules = {{.texte = employeur.texte(u"adresse"), .corps = 11}}, .reglee = true, .hauteur = 14};
    document.tete += centree(condition(cle), 13, true, 4);
    return document;
}

std::optional<Document> DataReport3(Base &base, const Enregistrement &entete, Dialogue &dialogue)
{
    const CleDeclaration cle = cleEntete(genreDas(), entete);
    if (!sommesConcordent(base, genreDas(), relire(base, cle)) &&
        !dialogue.demander(sommesDifferent + u"Voulez vous imprimer malgrès tout?"_s))
        return {};
    const Enregistrement employeur = lireEmployeur(base, cle);

    const auto cellules = std::make_shared<QStringList>();
    Requete lignes = lireAvecSalaries(base, genreDas(), lignesDe(genreDas(), cle),
                                      u"l.num_salarie, nom, prenom, date_naiss, nbj_travail, type_dure, "
                                      "sal_annuel, profes, adresse, num_cpt_ccp, num_cpt_banc"_s);
    while (lignes.suivante()) {
        const auto montant = [&](int colonne) {
            return lignes.estNul(colonne) ? QString()
                                          : formatMasque(lignes.montant(colonne), u"## ### ### ###.00");
        };
        *cellules << lignes.texte(0) << lignes.texte(1) << lignes.texte(2) << texteDate(lignes.date(3))
                  << QString(lignes.texte(4) + u' ' + lignes.texte(5)).trimmed() << montant(6)
                  << lignes.texte(7) << lignes.texte(8) << lignes.texte(9) << lignes.texte(10);
    }

    Document document{.nom = u"DataReport3"_s,
                      .titre = u"Lignes DAS"_s,
                      .fichier = fichier(cle, u"_lignes"),
                      .paysage = true,
                      .marge = 10,
                      .numerote = true};
    document.tete = {
        {.cellules = {{.texte = u"DAS KORVANDEL"_s, .largeur = 60, .corps = 12, .gras = true},
                      {.texte = u"Lignes DAS"_s, .corps = 12, .gras = true, .alignement = Alignement::Centre},
                      {.texte = condition(cle),
                       .largeur = 60,
                       .corps = 12,
                       .gras = true,
                       .alignement = Alignement::Droite}}},
        {.reglee = true, .avant = 1}};
    const auto ajouter = [&](const QString &libelle, double place, const QString &valeur, double largeur) {
        document.tete.last().cellules
            << Cellule{.texte = libelle, .largeur = place, .corps = 9, .grisee = true}
            << Cellule{.texte = valeur, .largeur = largeur, .corps = 9, .gras = true};
    };
    ajouter(u"Employeur"_s, 22, employeur.texte(u"rais_soc"), 0);
    ajouter(u"Année"_s, 15, cle.texte(u"annee"), 15);
    ajouter(u"Numéro employeur"_s, 36, cle.texte(u"num_emp"), 23);
    ajouter(u"DAS"_s, 12, cle.texte(u"Type"), 12);
    // The table stands off its head.
    document.tete += Rangee{.cellules = {{.corps = 1}}};
    constexpr Alignement gauche = Alignement::Gauche;
    document.tableau = {.colonnes = {{u" N° SS"_s, 23, gauche},
                                     {u" Nom"_s, 27, gauche},
                                     {u" Prénom"_s, 25, gauche},
                                     {u"Date de naissance"_s, 19, gauche},
                                     {u" Durée de travail"_s, 17, gauche},
                                     {u" Salaire annuel"_s, 35, Alignement::Droite},
                                     {u" Fonction"_s, 24, gauche},
                                     {u" Adresse"_s, 35, gauche},
                                     {u" Compte CCP"_s, 36, gauche},
                                     {u" Compte bancaire"_s, 36, gauche}},
                        .corps = 7.5};
    const auto nombreColonnes = document.tableau.colonnes.size();
    document.tableau.nombre = cellules->size() / nombreColonnes;
    document.tableau.cellule = [cellules, nombreColonnes](qsizetype rang, int colonne) {
        return cellules->at(rang * nombreColonnes + colonne);
    };
    return document;
}
