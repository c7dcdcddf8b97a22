#include "fenetresvalidateurs.h"

#include "frmdasvalide.h"
#include "registrefenetres.h"

using namespace Qt::StringLiterals;

void ajouterFenetresValidateurs(RegistreFenetres &registre)
{
    registre.ajouter(u"wvalidate"_s, [](Contexte &contexte) { return new FrmDasValide(contexte); });
}
