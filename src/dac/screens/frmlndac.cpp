#include "dac/screens/frmlndac.h"

#include "dac/screens/frm_add_lndac.h"
#include "dac/screens/frm_modif_lndac.h"
#include "declarations/entetes.h"

using namespace Qt::StringLiterals;

namespace {

const FormeLignes &formeLignes()
{
    static const FormeLignes forme{
        .nom = u"frmlndac"_s,
        // "nominatuve" is meant: the window is known by that name.
        .titre = u"Modification et saisie de la Déclaration nominatuve"_s,
        .titreListe = u"Lignes de la DAC"_s,
        .colonnes = {{u"NumSalarie"_s, u"N° SS"_s},
                     {u"cpt_z"_s, u"N° ordre"_s},
                     {u"NBJT"_s, u"Durée"_s},
                     {u"Type_Nbjt"_s, u"Unité"_s},
                     {u"Assiette"_s, u"Assiette"_s},
                     {u"Date_ES"_s, u"Date E/S"_s},
                     {u"Type_ES"_s, u"E/S"_s}},
        .bandeau =
            [](const CleDeclaration &cle) {
                return BandeauLignes{u" Période     :   "_s + cle.texte(u"Periode"),
                                     estComplementaire(cle.valeur(u"Type_Dac")) ? u"DAC Complémentaire"_s
                                                                                : u"DAC Principale"_s};
            },
        .ajouter = [](Contexte &contexte, LignesDeclaration &lignes,
                      QWidget *parent) { frm_add_Lndac(contexte, lignes, parent).exec(); },
        .modifier = [](Contexte &contexte, LignesDeclaration &lignes, const Enregistrement &ligne,
                       QWidget *parent) { frm_modif_lndac(contexte, lignes, ligne, parent).exec(); },
    };
    return forme;
}

} // namespace

frmlndac::frmlndac(Contexte &contexte, const LignesDeclaration &lignes, QWidget *parent)
    : EcranLignes(contexte, lignes, formeLignes(), parent)
{
}
