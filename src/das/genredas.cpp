#include "das/genredas.h"

#include "declarations/declaration.h"
#include "declarations/entetes.h"

using namespace Qt::StringLiterals;

const GenreDeclaration &genreDas()
{
    static const GenreDeclaration genre{
        .entetes = &Base::RsEnteteDas,
        .lignes = &Base::RsLigneDas,
        .cle = {{u"num_emp"_s, u"num_emp"_s}, {u"annee"_s, u"annee"_s}, {u"Type"_s, u"type_das"_s}},
        .employeur = u"num_emp"_s,
        .salarie = u"num_salarie"_s,
        .sommes = {{u"sum_calc"_s, u"ifnull(sum(sal_annuel), 0)"_s, u"sum_annuel"_s},
                   {u"total_calc"_s, u"count(*)"_s, u"total_salarie"_s}},
        .textes = {.supprimerEntete = u"Confirmez la suppression ? "_s,
                   .lignesPresentes =
                       u"Impossible de supprimer l'entête, supprimez ses lignes DAS d'abord!"_s,
                   .supprimerLigne = u"Confirmez la suppression de cette ligne DAS ?"_s,
                   .titreSupprimerLigne = u"Suppression"_s},
    };
    return genre;
}

const EntetesNumerotees &entetesDas()
{
    static const EntetesNumerotees entetes{
        .genre = genreDas(),
        .periode = u"annee"_s,
        .type = u"Type"_s,
        .somme = u"sum_annuel"_s,
        .effectif = u"total_salarie"_s,
        .aLaCreation = {},
        .controlePeriode = u"cmbannee",
        .textes = {.choixVide = u"Veuillez spécifier une année et un numéro d'employeur SVP"_s,
                   .principaleExiste = u"Une Das existe avec la même année et numéro employeur"_s,
                   .sansPrincipale =
                       u"Cet employeur ne possede pas de Das principale pour cet exercice, \n voulez vous "
                       "tout de même saisir une Das complémentaire ?"_s,
                   .sommeIncorrecte = u"Veuillez saisir une valeur correcte pour la somme des salaires!"_s,
                   .effectifIncorrect = u"Veuillez saisir un nombre de salariés correct!"_s},
    };
    return entetes;
}
