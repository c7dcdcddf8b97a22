#include "employees/choixsalarie.h"

#include "storage/enregistrement.h"

ChoixSalarie choisirSalarie(const Enregistrement &ligne)
{
    return {true, ligne.texte(u"Num_Salarie"), ligne.entier(u"cpt_z"), ligne.texte(u"nom"),
            ligne.texte(u"prenom")};
}
