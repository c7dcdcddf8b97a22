#include "reference/screens/fenetrescampagnes.h"

#include "reference/screens/frmannee.h"
#include "reference/screens/frmperiode.h"
#include "screens/registrefenetres.h"

using namespace Qt::StringLiterals;

void ajouterFenetresCampagnes(RegistreFenetres &registre)
{
    registre.ajouter(u"wannee"_s, [](Contexte &contexte) { return new frmannee(contexte); });
    registre.ajouter(u"wPeriode"_s, [](Contexte &contexte) { return new frmPeriode(contexte); });
}
