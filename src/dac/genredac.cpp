#include "dac/genredac.h"

#include "declarations/declaration.h"
#include "declarations/entetes.h"
#include "declarations/transfert.h"

using namespace Qt::StringLiterals;

const GenreDeclaration &genreDac()
{
    // The file knows an employer by eight characters.
    constexpr int largeurEmployeur = 8;
    static const GenreDeclaration genre{
        .entetes = &Base::RsEnteteDac,
        .lignes = &Base::RsLigneDac,
        .cle = {{u"NumEmployeur"_s, u"NumEmployeur"_s, largeurEmployeur},
                {u"Periode"_s, u"Periode"_s},
                {u"Type_Dac"_s, u"Type_dac"_s}},
        .employeur = u"NumEmployeur"_s,
        .salarie = u"NumSalarie"_s,
        .sommes = {{u"Assiette_Calc"_s, u"ifnull(sum(Assiette), 0)"_s, u"Assiette"_s},
                   // A count, in a column of amounts.
                   {u"Effectif_Calc"_s, u"count(*) * 10000"_s, u"Effectif_total"_s},
                   {u"Effectif_Reel"_s, u"count(CASE WHEN Type_ES = 'E' THEN 1 END)"_s}},
        .textes = {.supprimerEntete = u"Confirmez la suppression entête DAC ? "_s,
                   .lignesPresentes =
                       u"Impossible de supprimer l'entête DAC, supprimez ses lignes DAC d'abord!"_s,
                   // "DAS" is meant: the two lists ask with the same words.
                   .supprimerLigne = u"Confirmez la suppression de cette ligne DAS ?"_s,
                   .titreSupprimerLigne = u"Suppression"_s},
    };
    return genre;
}

const EntetesNumerotees &entetesDac()
{
    static const EntetesNumerotees entetes{
        .genre = genreDac(),
        .periode = u"Periode"_s,
        .type = u"Type_Dac"_s,
        .somme = u"Assiette"_s,
        .effectif = u"Effectif_total"_s,
        .aLaCreation = {{u"Effectif_Reel"_s, 0}},
        .controlePeriode = u"CmbPeriode",
        .textes = {.choixVide = u"Veuillez saisir la période et le numéro employeur SVP"_s,
                   .principaleExiste =
                       u"Une Dac principale existe pour cet employeur avec la même période !, s'il s'agit de "
                       "DAC complémentaire, veuillez cochez la case associée"_s,
                   .sansPrincipale =
                       u"Cet employeur ne possede pas de Dac principale pour cette periode, \n voulez vous "
                       "tout de même saisir une Dac complémentaire ?"_s,
                   .sommeIncorrecte =
                       u"Veuillez saisir une valeur correcte pour la somme des assiettes déclarées!"_s,
                   .effectifIncorrect = u"Veuillez saisir un nombre de salariés correct!"_s},
    };
    return entetes;
}

const TransfertLignes &transfertDac()
{
    static const TransfertLignes transfert{
        .entetes = entetesDac(),
        .type = {},
        .textes = {.sansDestination = u"Veuillez selectionner la période de déstination SVP"_s,
                   .memePeriode =
                       u"Transfert impossible, période source doit être différente de la destination"_s,
                   .sansEntete = u"Veuillez enregistrer l'entête DAC en premier, avant d'effectuer le "
                                 "transfert des écritures !"_s,
                   .nonPrincipale =
                       u"Erreur, Exportation données impossible, entête DAC  :  %1,   non principale !!"_s,
                   .lignesPresentes =
                       u" Existence de Lignes DAC  pour cette periode, transfert non effectué !"_s,
                   .titreLignesPresentes = u"Controle transfert DAC"_s},
    };
    return transfert;
}
