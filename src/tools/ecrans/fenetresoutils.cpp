#include "fenetresoutils.h"

#include "frmgencle.h"
#include "registrefenetres.h"

using namespace Qt::StringLiterals;

void ajouterFenetresOutils(RegistreFenetres &registre)
{
    registre.ajouter(u"wGen"_s, [](Contexte &contexte) { return new FrmGenCle(contexte); });
}
