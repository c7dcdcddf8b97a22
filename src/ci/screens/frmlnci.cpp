#include "ci/screens/frmlnci.h"

#include "ci/screens/ecranligneci.h"

using namespace Qt::StringLiterals;

namespace {

const FormeLignes &formeLignes()
{
    static const FormeLignes forme{
        .nom = u"frmlnCi"_s,
        .titre = u"Modification et saisie des lignes CI"_s,
        .titreListe = u"Lignes de la déclaration CI"_s,
        .colonnes = {{u"N_SecSoc"_s, u"N° SS"_s},
                     {u"Cpt_z"_s, u"N° ordre"_s},
                     {u"Date_embauche"_s, u"Embauche"_s},
                     {u"date_arret"_s, u"Arrêt"_s},
                     {u"Date_reprise"_s, u"Reprise"_s},
                     {u"Nb_Heure"_s, u"Heures"_s},
                     {u"Salaire_Horaire"_s, u"Salaire horaire"_s},
                     {u"Mt_Indemnise"_s, u"Montant"_s}},
        .largeur = 780,
        .bandeau =
            [](const CleDeclaration &cle) {
                return BandeauLignes{u" Référence     :   "_s + cle.texte(u"N_Identifiant"), {}};
            },
        .avecComptes = false,
        .ajouter =
            [](Contexte &contexte, LignesDeclaration &lignes, QWidget *parent) {
                EcranLigneCi(Forme::Creation, contexte, lignes, {}, parent).exec();
            },
        .modifier =
            [](Contexte &contexte, LignesDeclaration &lignes, const Enregistrement &ligne, QWidget *parent) {
                EcranLigneCi(Forme::Modification, contexte, lignes, ligne, parent).exec();
            },
    };
    return forme;
}

} // namespace

frmlnCi::frmlnCi(Contexte &contexte, const LignesDeclaration &lignes, QWidget *parent)
    : EcranLignes(contexte, lignes, formeLignes(), parent)
{
}
