#include "das/screens/frmlndas.h"

#include "das/screens/ecranlignedas.h"
#include "declarations/entetes.h"

using namespace Qt::StringLiterals;

namespace {

const FormeLignes &formeLignes()
{
    static const FormeLignes forme{
        .nom = u"frmlndas"_s,
        .titre = u"Modification et saisie de la DAS"_s,
        .titreListe = u"Lignes de la DAS"_s,
        .colonnes = {{u"num_salarie"_s, u"N° SS"_s},
                     {u"cpt_z"_s, u"N° ordre"_s},
                     {u"sal_annuel"_s, u"Salaire annuel"_s},
                     {u"nbj_travail"_s, u"Durée"_s},
                     {u"type_dure"_s, u"Unité"_s},
                     {u"date_es"_s, u"Date E/S"_s},
                     {u"type_date_es"_s, u"E/S"_s}},
        .bandeau =
            [](const CleDeclaration &cle) {
                return BandeauLignes{u" Campagne     :   "_s + cle.texte(u"annee"),
                                     estComplementaire(cle.valeur(u"Type")) ? u"DAS Complémentaire"_s
                                                                            : u"DAS Principale"_s};
            },
        .ajouter =
            [](Contexte &contexte, LignesDeclaration &lignes, QWidget *parent) {
                EcranLigneDas(Forme::Creation, contexte, lignes, {}, parent).exec();
            },
        .modifier =
            [](Contexte &contexte, LignesDeclaration &lignes, const Enregistrement &ligne, QWidget *parent) {
                EcranLigneDas(Forme::Modification, contexte, lignes, ligne, parent).exec();
            },
    };
    return forme;
}

} // namespace

frmlndas::frmlndas(Contexte &contexte, const LignesDeclaration &lignes, QWidget *parent)
    : EcranLignes(contexte, lignes, formeLignes(), parent)
{
}
