#include "dac/screens/frmdecnom.h"

#include "dac/exportdac.h"
#include "dac/genredac.h"
#include "dac/screens/frmlndac.h"
#include "declarations/screens/ecranmodificationentete.h"

using namespace Qt::StringLiterals;

namespace {

const FormeModificationEntete &formeModification()
{
    static const FormeModificationEntete forme{
        .nom = u"frm_mod_Dec_Nom"_s,
        .titre = u"Modifier en-tête DAC"_s,
        .libelleSomme = u"Total Assiettes :"_s,
        .libelleEffectif = u"Nombre Salariés :"_s,
        .entetes = entetesDac(),
    };
    return forme;
}

const FormeEntetesNumerotees &formeEntetes()
{
    static const FormeEntetesNumerotees forme{
        .nom = u"frmDecNom"_s,
        .liste = {.genre = genreDac(),
                  .fichier = fichierDac(),
                  .colonnes = {{u"NumEmployeur"_s, u"N° employeur"_s},
                               {u"Periode"_s, u"Période"_s},
                               {u"Type_Dac"_s, u"DAC"_s},
                               {u"Assiette"_s, u"Total assiettes"_s},
                               {u"Effectif_total"_s, u"Nombre salariés"_s},
                               {u"Effectif_Reel"_s, u"Entrées"_s},
                               {u"Assiette_Calc"_s, u"Cumul lignes"_s},
                               {.nom = u"Effectif_Calc"_s, .titre = u"Nombre lignes"_s, .compte = true}},
                  .somme = u"Assiette_Calc"_s,
                  .effectif = u"Effectif_Calc"_s,
                  .lignes = [](Contexte &contexte, const LignesDeclaration &lignes, QWidget *parent)
                      -> EcranLignes * { return new frmlndac(contexte, lignes, parent); },
                  .modifier =
                      [](Contexte &contexte, const Enregistrement &entete, QWidget *parent) {
                          EcranModificationEntete(contexte, formeModification(), entete, parent).exec();
                      }},
        .entetes = entetesDac(),
        .periodes = &Base::RsPeriode,
        .colonnePeriode = u"Code"_s,
        .titre = u"Entête Déclaration Nominative"_s,
        .libellePeriode = u"Période :"_s,
        .complementaire = u"DAC complémentaire (Ajout ou Modification)"_s,
        .aide = u" DAC= 1 pour la déclaration principale, >1 pour la déclaration complémentaire"_s,
        .libelleSomme = u"Total Assiettes :"_s,
        .titreListe = u"Entête DAC"_s,
        .libelleCumul = u"Cumul Assiettes:"_s,
        .libelleNombre = u"Nombre Employés:"_s,
        .sommeVide = u"0"_s,
        .effectifVide = u"0"_s,
        .decoche = true,
        .raisonSociale = true,
    };
    return forme;
}

} // namespace

frmDecNom::frmDecNom(Contexte &contexte) : EcranEntetesNumerotees(contexte, formeEntetes()) {}
