#include "fenetresnationalites.h"

#include "frmimpnat.h"
#include "registrefenetres.h"

using namespace Qt::StringLiterals;

void ajouterFenetresNationalites(RegistreFenetres &registre)
{
    registre.ajouter(u"wImpTabNat"_s, [](Contexte &contexte) { return new FrmImpNat(contexte); });
}
