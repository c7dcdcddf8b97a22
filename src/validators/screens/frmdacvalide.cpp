#include "validators/screens/frmdacvalide.h"

#include "screens/contexte.h"
#include "validators/validateurdac.h"

namespace {

constexpr LibelleEntete entete[] = {
    {u"LabEmpl", u"N° Employeur :", u"N° Employeur", 0, 0, 90},
    {u"LabAnn", u"Période :", u"Période", 0, 2, 60},
    {u"LabNumDAC", u"Num. DAC :", u"Numéro de la DAC", 1, 0, 90},
    {u"LabSalDAC", u"Mt assiettes:", u"Montant total des assiettes", 2, 0, 130, 3},
    {u"LabNbDAC", u"Effectif total:", u"Effectif total", 3, 0, 60},
    {u"LabNbDACReel", u"Effectif restant:", u"Effectif restant", 3, 2, 60},
};

} // namespace

FrmDacValide::FrmDacValide(Contexte &contexte)
    : FrmValidateur(contexte, std::make_unique<ValidateurDac>(&contexte.bornes),
                    {u"FrmDacValide", u"Validation Déclaration Nominative", entete})
{
}
