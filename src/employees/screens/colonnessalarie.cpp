#include "employees/screens/colonnessalarie.h"

using namespace Qt::StringLiterals;

QList<ColonneGrille> colonnesSalarie()
{
    return {{u"Num_Salarie"_s, u"N° SS"_s},
            {u"cpt_z"_s, u"N° d'ordre"_s},
            {u"nom"_s, u"Nom"_s},
            {u"prenom"_s, u"Prénom"_s},
            {u"sf"_s, u"Sit. famille"_s},
            {u"date_naiss"_s, u"Date de naissance"_s},
            {u"adresse"_s, u"Adresse"_s},
            {u"ville"_s, u"Ville"_s},
            {u"c_postal"_s, u"Code postal"_s},
            {u"num_cpt_ccp"_s, u"N° de compte CCP"_s},
            {u"num_cpt_banc"_s, u"N° de compte bancaire"_s},
            {u"profes"_s, u"Profession"_s},
            {u"banque"_s, u"Banque"_s},
            {u"agence_banque"_s, u"Agence bancaire"_s},
            {u"etranger"_s, u"Étranger"_s},
            {u"lieu_naiss"_s, u"Lieu de naissance"_s},
            {u"presume"_s, u"Présumé"_s},
            {u"sexe"_s, u"Sexe"_s},
            {u"telephone"_s, u"Téléphone"_s},
            {u"Email"_s, u"E-mail"_s},
            {u"CinNumber"_s, u"N° pièce d'identité"_s},
            {u"IdNat"_s, u"Nationalité"_s},
            {u"NumActeNaiss"_s, u"N° acte de naissance"_s},
            {u"NIN"_s, u"NIN"_s},
            {u"CommuneNaiss"_s, u"Commune de naissance"_s},
            {u"PrenomPere"_s, u"Prénom du père"_s},
            {u"NomMere"_s, u"Nom de la mère"_s},
            {u"PrenomMere"_s, u"Prénom de la mère"_s}};
}
