#include "validators/particularites.h"

#include "rules/fonds.h"

namespace {

constexpr std::array marquesDas{fonds::MarqueDas};
constexpr std::array marquesDac{fonds::MarqueDac};
constexpr std::array marquesCi{fonds::MarqueCi1, fonds::MarqueCi};

constexpr QStringView titreCi = u"Fichier Déclaration nominative CI";

/// The longest time worked in a quarter.
constexpr int dureeMaximaleDac(QChar unite) { return unite == u'H' ? 720 : 90; }

} // namespace

constexpr ParticularitesSalaires particularitesDas{
    .cadre =
        {
            .nom = u"DAS",
            .marques = marquesDas,
            .fautePremiereLigne =
                u"Erreur Première Ligne différente de   DAS KORVANDEL VER 3.0   \nVeuillez corriger SVP !!!",
            .anomalieAussi = true,
            .titreChoix = u"DAS INFO",
            .titreDebut = u"DAS INFO",
            .titreEntete = u"DAS INFO",
            .titreSuite = {},
            .separateur = u"sépateur",
            .finApresCompte = true,
            .motsAvecValeur = true,
            .apostrophesEnBlancs = true,
            .resultats = {u"LabDAS", u"LabDAS2"},
            .montantDesLignes = u"Total Lignes DAS",
            .nombreDesLignes = u"Total Nb Salariés Lignes DAS",
            .celuiDeLentete = u"Entête DAS",
            .masqueEcart = {},
            .egaliteTue = false,
        },
    .placePeriode = 14,
    .longueurPeriode = 4,
    .fauteEmployeur = u"Erreur N° Employeur Deuxième Ligne différent du Nom du Fichier ",
    .labelPeriode = u"Année Deuxième Ligne différente du Nom du Fichier!!!",
    .numeroNul = u"Numéro DAS Nul!!! Il Doit Etre Supérieur à 0 !!!",
    .numero = u"Numéro DAS Non Numérique ou Négatif",
    .montant = u"Montant Total des Salaires Non Numérique ou Négatif",
    .nonNumerique = Classe::Rejet,
    .finCleFausse = u"! ",
    .motsNom = u" est Vide ou incorrecte",
    .chiffresRefuses = true,
    .motsNationaliteVide = u" =  est Vide",
    .motsSansSalaire = u" non autorisé",
    .unites = {.lettres = u"MJH",
               .mots = u" est Différent de M(Mois), J(Jour) ou H(Heure)",
               .classe = Classe::RejetDur},
    .dureeMaximale = fonds::dureeMaximale,
};

constexpr ParticularitesSalaires particularitesDac{
    .cadre =
        {
            .nom = u"DAC",
            .marques = marquesDac,
            .fautePremiereLigne =
                u"Erreur Format de la Première Ligne incorrecte   \nVeuillez corriger SVP !!!",
            .anomalieAussi = true,
            .titreChoix = u"Dac INFO",
            .titreDebut = u"DAC INFO",
            .titreEntete = u"DAC INFO",
            .titreSuite = u"DAC INFO",
            .separateur = u"sépateur",
            .finApresCompte = false,
            .motsAvecValeur = false,
            .apostrophesEnBlancs = true,
            .resultats = {u"LabDAC", u"LabDAC2"},
            .montantDesLignes = u"Total Lignes DAC",
            .nombreDesLignes = u"Total Nb Salariés Lignes DAC",
            .celuiDeLentete = u"Entête DAC",
            .masqueEcart = u"## ### ### ### ###.00",
            .egaliteTue = false,
        },
    .placePeriode = 25,
    .longueurPeriode = 6,
    .fauteEmployeur =
        u"Erreur N° Employeur ou la période déclarée -  Deuxième Ligne différent du Nom du Fichier ",
    .labelPeriode = u"Periode Deuxième Ligne différente du Nom du Fichier!!!",
    .numeroNul = u"Numéro DAC Nul!!! Il Doit Etre Supérieur à 0 !!!",
    .numero = u"Numéro DAC Non Numérique ou Négatif",
    .montant = u"Montant Total des assiettes Non Numérique ou Négatif",
    .nonNumerique = Classe::RejetDur,
    .finCleFausse = u"!",
    .motsNom = u" est Vide",
    .chiffresRefuses = false,
    .motsNationaliteVide = u" est Vide",
    .motsSansSalaire = u" est Non Numérique",
    .unites = {.lettres = u"JH",
               .mots = u" est Différent de J(Jour) ou H(Heure)",
               .classe = Classe::RejetDur,
               .motsListe = u" est Différent de  J(Jour) ou H(Heure)"},
    .dureeMaximale = dureeMaximaleDac,
};

constexpr Particularites particularitesCi{
    .nom = u"CI",
    .marques = marquesCi,
    .fautePremiereLigne = u"Erreur Première Ligne différente de DECLARATION CHOMAGE INTEMPERIE KORVANDEL VER "
                          u"1.0 ou 2.0\nVeuillez corriger SVP !!!",
    .anomalieAussi = false,
    .titreChoix = u"DAS INFO",
    .titreDebut = titreCi,
    .titreEntete = u"DAS INFO",
    .titreSuite = titreCi,
    .separateur = u"séparateur",
    .finApresCompte = false,
    .motsAvecValeur = true,
    .apostrophesEnBlancs = false,
    .resultats = {u"LabDAS", u"LabDAS2"},
    .montantDesLignes = u"Cumul Montant indemnisé du Fichier déclaration nominative",
    .nombreDesLignes = u"Total Nb Salariés du Fichier",
    .celuiDeLentete = u"Entête Fichier",
    .masqueEcart = u"## ### ### ###.##",
    .egaliteTue = true,
};
