#include "das/transfertdas.h"

#include "das/genredas.h"
#include "declarations/transfert.h"

using namespace Qt::StringLiterals;

const TransfertLignes &transfertDas()
{
    static const TransfertLignes transfert{
        .entetes = entetesDas(),
        .type = 1,
        .textes = {.sansDestination = u"Veuillez selectionner l'année de déstination SVP"_s,
                   .memePeriode =
                       u"Transfert impossible, l'année source doit être différente de la destination"_s,
                   .sansEntete = u"Veuillez enregistrer l'entête DAS en premier, avant d'effectuer le "
                                 "transfert des écritures !"_s,
                   .nonPrincipale = u"Erreur, Exportation données impossible, entête das de la campage  :  "
                                    "%1,   non principale !!"_s,
                   .lignesPresentes =
                       u" Existence de Lignes DAS  pour cette campagne, transfert non effectué !"_s,
                   .titreLignesPresentes = u"Controle transfert"_s},
    };
    return transfert;
}
