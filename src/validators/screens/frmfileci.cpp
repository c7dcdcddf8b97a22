#include "validators/screens/frmfileci.h"

#include "screens/contexte.h"
#include "validators/validateurci.h"

namespace {

constexpr LibelleEntete entete[] = {
    {u"LabEmpl", u"N° Employeur :", u"N° Employeur", 0, 0, 90},
    {u"LabRef", u"Réference :", u"Référence", 0, 2, 90},
    {u"LabDateArret", u"Date arrêt :", u"Date d'arrêt", 1, 0, 90},
    {u"LabDateReprise", u"Date reprise :", u"Date de reprise", 1, 2, 90},
    {u"LabMtIndemnise", u"Mt indemnisé :", u"Montant indemnisé", 2, 0, 130},
    {u"LabEffectif", u"Effectif :", u"Effectif", 2, 2, 60},
    {u"LabChg26", u"Charge SS 26% - CNAS", u"Charge SS 26 %", 3, 0, 130},
    {u"LabNCompte", u"N° Compte :", u"N° de compte", 3, 2, 160},
    {u"LabCh1221", u"Charge 12.21% - CP:", u"Charge CP 12,21 %", 4, 0, 130},
    {u"LanBanque", u"Banque :", u"Banque", 4, 2, 160},
    {u"LabChg0375", u"Charge 0.375% - CI :", u"Charge CI 0,375 %", 5, 0, 130},
};

} // namespace

FrmFileCI::FrmFileCI(Contexte &contexte)
    : FrmValidateur(contexte, std::make_unique<ValidateurCi>(),
                    {u"FrmFileCI", u"Chômage Intempèries : Validation Fichier Liste Nominative ", entete})
{
}
