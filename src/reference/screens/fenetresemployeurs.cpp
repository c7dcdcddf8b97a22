#include "reference/screens/fenetresemployeurs.h"

#include "reference/screens/frm_bnq.h"
#include "reference/screens/frm_imp.h"
#include "screens/registrefenetres.h"

using namespace Qt::StringLiterals;

void ajouterFenetresEmployeurs(RegistreFenetres &registre)
{
    registre.ajouter(u"wImp"_s, [](Contexte &contexte) { return new Frm_imp(contexte); });
    registre.ajouter(u"wbnq"_s, [](Contexte &contexte) { return new Frm_BNQ(contexte); });
}
