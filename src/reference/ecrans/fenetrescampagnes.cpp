#include "fenetrescampagnes.h"

#include "frmannee.h"
#include "frmperiode.h"
#include "registrefenetres.h"

using namespace Qt::StringLiterals;

void ajouterFenetresCampagnes(RegistreFenetres &registre)
{
    registre.ajouter(u"wannee"_s, [](Contexte &contexte) { return new frmannee(contexte); });
    registre.ajouter(u"wPeriode"_s, [](Contexte &contexte) { return new frmPeriode(contexte); });
}
