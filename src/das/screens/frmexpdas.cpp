#include "das/screens/frmexpdas.h"

#include "das/transfertdas.h"
#include "declarations/transfert.h"
#include "storage/base.h"

using namespace Qt::StringLiterals;

namespace {

const FormeTransfert &formeTransfert()
{
    static const FormeTransfert forme{
        .nom = u"frmexpdas"_s,
        .titre = u"Transfert Lignes DAS"_s,
        .libellePeriode = u"Année source :"_s,
        .libelleDestination = u"Année destination :"_s,
        .controleSource = u"cmbannee"_s,
        .controleDestination = u"CmbAnneeDest"_s,
        .afficher = u"Afficher détail DAS"_s,
        .titreListe = u"Lignes de la DAS"_s,
        .colonnes = {{u"num_salarie"_s, u"N° SS"_s},
                     {u"cpt_z"_s, u"N° ordre"_s},
                     {u"type_das"_s, u"DAS"_s},
                     {u"sal_annuel"_s, u"Salaire annuel"_s},
                     {u"nbj_travail"_s, u"Durée"_s},
                     {u"type_dure"_s, u"Unité"_s},
                     {u"date_es"_s, u"Date E/S"_s},
                     {u"type_date_es"_s, u"E/S"_s}},
        .transfert = transfertDas(),
        .periodes = &Base::RsAnnee,
        .colonnePeriode = u"annee"_s,
    };
    return forme;
}

} // namespace

frmexpdas::frmexpdas(Contexte &contexte) : EcranTransfert(contexte, formeTransfert()) {}
