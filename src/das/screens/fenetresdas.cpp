#include "das/screens/fenetresdas.h"

#include "das/screens/frmentdas.h"
#include "das/screens/frmimpligne.h"
#include "screens/registrefenetres.h"

using namespace Qt::StringLiterals;

void ajouterFenetresDas(RegistreFenetres &registre)
{
    registre.ajouter(u"wdas"_s, [](Contexte &contexte) { return new frmentdas(contexte); });
    registre.ajouter(u"wImpDas"_s, [](Contexte &contexte) { return new FrmImpLigne(contexte); });
}
