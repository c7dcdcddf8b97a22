#include "das/screens/frmentdas.h"

#include "das/exportdas.h"
#include "das/formulaires.h"
#include "das/genredas.h"
#include "das/screens/frmlndas.h"
#include "declarations/entetes.h"
#include "declarations/screens/ecranmodificationentete.h"
#include "screens/contexte.h"
#include "screens/impression.h"

using namespace Qt::StringLiterals;

namespace {

template <std::optional<Document> Formulaire(Base &, const Enregistrement &, Dialogue &)>
void imprimer(Contexte &contexte, const Enregistrement &entete, QWidget *ecran)
{
    if (const std::optional<Document> document = Formulaire(contexte.base, entete, contexte.dialogue))
        montrerApercu(*document, contexte, ecran);
}

const FormeModificationEntete &formeModification()
{
    static const FormeModificationEntete forme{
        .nom = u"frm_mod_ent"_s,
        .titre = u"Modifier en-tête DAS"_s,
        .libelleSomme = u"Total Salaires :"_s,
        .libelleEffectif = u"Nombre Salariés :"_s,
        .entetes = entetesDas(),
    };
    return forme;
}

const FormeEntetesNumerotees &formeEntetes()
{
    static const FormeEntetesNumerotees forme{
        .nom = u"frmentdas"_s,
        .liste = {.genre = genreDas(),
                  .fichier = fichierDas(),
                  .colonnes = {{u"num_emp"_s, u"N° employeur"_s},
                               {u"annee"_s, u"Année"_s},
                               {u"Type"_s, u"DAS"_s},
                               {u"sum_annuel"_s, u"Total salaires"_s},
                               {u"total_salarie"_s, u"Nombre salariés"_s},
                               {u"sum_calc"_s, u"Cumul lignes"_s},
                               {u"total_calc"_s, u"Nombre lignes"_s}},
                  .somme = u"sum_calc"_s,
                  .effectif = u"total_calc"_s,
                  .lignes = [](Contexte &contexte, const LignesDeclaration &lignes, QWidget *parent)
                      -> EcranLignes * { return new frmlndas(contexte, lignes, parent); },
                  .modifier =
                      [](Contexte &contexte, const Enregistrement &entete, QWidget *parent) {
                          EcranModificationEntete(contexte, formeModification(), entete, parent).exec();
                      }},
        .entetes = entetesDas(),
        .periodes = &Base::RsAnnee,
        .colonnePeriode = u"annee"_s,
        .boutons = {{u"cmdsup"_s, u"Supprimer"_s, 0, 3,
                     [](Contexte &contexte, const Enregistrement &entete, QWidget *) {
                         supprimerEnteteSeul(contexte.base, genreDas(), entete, contexte.dialogue);
                     }},
                    {u"Cmdprint"_s, u"Imprimer Entête"_s, 2, 0, imprimer<DataReport1>},
                    {u"CmdPrintLn"_s, u"Imprimer lignes DAS"_s, 2, 1, imprimer<DataReport3>},
                    {u"CmdCD"_s, u"Imprimer Jaquette CD"_s, 2, 2, imprimer<DataReport2>}},
        .titre = u"Entête DAS"_s,
        .libellePeriode = u"Année :"_s,
        .complementaire = u"DAS complémentaire"_s,
        .aide = u" DAS= 1 pour les DAS principales, >1 pour les DAS complémentaires."_s,
        .libelleSomme = u"Total Salaires :"_s,
        .titreListe = u"Liste des DAS"_s,
        .libelleCumul = u"Cumul Salaires :"_s,
        .libelleNombre = u"Nombre Salariés :"_s,
        .sommeVide = {},
        .effectifVide = u"00000"_s,
    };
    return forme;
}

} // namespace

frmentdas::frmentdas(Contexte &contexte) : EcranEntetesNumerotees(contexte, formeEntetes()) {}
