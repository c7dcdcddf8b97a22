#include "fenetresemployeurs.h"

#include "frm_bnq.h"
#include "frm_imp.h"
#include "registrefenetres.h"

using namespace Qt::StringLiterals;

void ajouterFenetresEmployeurs(RegistreFenetres &registre)
{
    registre.ajouter(u"wImp"_s, [](Contexte &contexte) { return new Frm_imp(contexte); });
    registre.ajouter(u"wbnq"_s, [](Contexte &contexte) { return new Frm_BNQ(contexte); });
}
