#include "employees/screens/fenetresnationalites.h"

#include "employees/screens/frmimpnat.h"
#include "screens/registrefenetres.h"

using namespace Qt::StringLiterals;

void ajouterFenetresNationalites(RegistreFenetres &registre)
{
    registre.ajouter(u"wImpTabNat"_s, [](Contexte &contexte) { return new FrmImpNat(contexte); });
}
