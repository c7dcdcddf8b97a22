#include "fenetresdas.h"

#include "frmentdas.h"
#include "registrefenetres.h"

using namespace Qt::StringLiterals;

void ajouterFenetresDas(RegistreFenetres &registre)
{
    registre.ajouter(u"wdas"_s, [](Contexte &contexte) { return new frmentdas(contexte); });
}
