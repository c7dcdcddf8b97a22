#include "employees/screens/fenetressalaries.h"

#include "employees/screens/frmimpsal.h"
#include "employees/screens/frmsalarie.h"
#include "screens/registrefenetres.h"

using namespace Qt::StringLiterals;

void ajouterFenetresSalaries(RegistreFenetres &registre)
{
    registre.ajouter(u"wsal"_s, [](Contexte &contexte) { return new frmsalarie(contexte); });
    registre.ajouter(u"wImpFichSal"_s, [](Contexte &contexte) { return new FrmImpSal(contexte); });
}
