#include "tools/screens/fenetresoutils.h"

#include "screens/registrefenetres.h"
#include "tools/screens/frmgencle.h"

using namespace Qt::StringLiterals;

void ajouterFenetresOutils(RegistreFenetres &registre)
{
    registre.ajouter(u"wGen"_s, [](Contexte &contexte) { return new FrmGenCle(contexte); });
}
