#include "ci/genreci.h"

#include "declarations/declaration.h"

using namespace Qt::StringLiterals;

const GenreDeclaration &genreCi()
{
    static const GenreDeclaration genre{
        .entetes = &Base::RsEnteteCi,
        .lignes = &Base::RsDetailCi,
        .cle = {{u"N_Identifiant"_s, u"N_Identif"_s}},
        .employeur = u"N_employeur"_s,
        .salarie = u"N_SecSoc"_s,
        .sommes = {{u"sum_calc"_s, u"ifnull(sum(Mt_Indemnise), 0)"_s, u"Montant_Indemnise"_s},
                   {u"total_calc"_s, u"count(*)"_s, u"Effect_Mis_arret"_s}},
        .textes = {.supprimerEntete = u"Confirmez la suppression ? "_s,
                   .lignesPresentes = u"Impossible de supprimer l'entête, supprimez ses lignes CI d'abord!"_s,
                   .supprimerLigne = u"Confirmez la suppression de cette déclaration ?"_s,
                   .titreSupprimerLigne = u"Suppression"_s},
    };
    return genre;
}
