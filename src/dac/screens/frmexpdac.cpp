#include "dac/screens/frmexpdac.h"

#include "dac/genredac.h"
#include "storage/base.h"

using namespace Qt::StringLiterals;

namespace {

const FormeTransfert &formeTransfert()
{
    static const FormeTransfert forme{
        .nom = u"frmexpdac"_s,
        .titre = u"Transfert Lignes DAC"_s,
        .libellePeriode = u"Période source :"_s,
        .libelleDestination = u"Période destination :"_s,
        .controleSource = u"CmbPeriode"_s,
        .controleDestination = u"CmbPeriodeDest"_s,
        .afficher = u"Afficher détail DAC"_s,
        .titreListe = u"Lignes de la DAC"_s,
        .colonnes = {{u"NumSalarie"_s, u"N° SS"_s},
                     {u"cpt_z"_s, u"N° ordre"_s},
                     {u"Type_dac"_s, u"DAC"_s},
                     {u"Assiette"_s, u"Assiette"_s},
                     {u"NBJT"_s, u"Durée"_s},
                     {u"Type_Nbjt"_s, u"Unité"_s},
                     {u"Date_ES"_s, u"Date E/S"_s},
                     {u"Type_ES"_s, u"E/S"_s}},
        .transfert = transfertDac(),
        .periodes = &Base::RsPeriode,
        .colonnePeriode = u"Code"_s,
    };
    return forme;
}

} // namespace

frmexpdac::frmexpdac(Contexte &contexte) : EcranTransfert(contexte, formeTransfert()) {}
