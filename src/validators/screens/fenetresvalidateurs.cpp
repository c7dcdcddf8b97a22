#include "validators/screens/fenetresvalidateurs.h"

#include "screens/registrefenetres.h"
#include "validators/screens/frmdasvalide.h"

using namespace Qt::StringLiterals;

void ajouterFenetresValidateurs(RegistreFenetres &registre)
{
    registre.ajouter(u"wvalidate"_s, [](Contexte &contexte) { return new FrmDasValide(contexte); });
}
