#pragma once

#include <QStringView>

#include <array>

/// The fields of a line that rules speak of, whatever the file.
struct ChampsLigne
{
    enum Champ {
        NumSalarie,
        Nom,
        Prenom,
        SituationFamiliale,
        DateNaissance,
        Adresse,
        Presume,
        Etranger,
        CompteCCP,
        CompteBancaire,
        Salaire,
        Duree,
        TypeDuree,
        DateEntreeSortie,
        TypeEntreeSortie,
        Categorie,
        Telephone,
        Mail,
        Nationalite,
        PrenomPere,
        NomMere,
        PrenomMere,
        Nin,
        ActeNaissance,
        CommuneNaissance,
        Fonction,
        Profession,
        DateEmbauche,
        DateArret,
        DateReprise,
        SalaireHoraire,
        SalaireIndemnise,
        Autre, ///< any field that nothing looks at
        NombreChamps,
    };

    /// What the messages call a field.
    static constexpr QStringView label(Champ champ)
    {
        constexpr std::array<QStringView, NombreChamps> labels{
            u"N° Salarié",
            u"Nom",
            u"Prenom",
            u"Situation Familiale",
            u"Date Naissance",
            u"Adresse",
            u"Présumé",
            u"Etranger",
            u"N° Compte CCP",
            u"",
            u"Salaire Annuel",
            u"Durée Travaillée",
            u"Type Durée Travaillée",
            u"Date Entrée / Sortie",
            u"Type Entrée / Sortie",
            u"Categorie",
            u"Telephone",
            u"Mail",
            u"Nationalite",
            u"PrenomPere",
            u"NomMere",
            u"PrenomMere",
            u"NIN",
            u"Acte Naissance",
            u"Commune Naissance",
            u"Fonction",
            u"Profession",
            u"Date Embauche",
            u"Date Arret",
            u"Date Reprise",
            u"Salaire Horraire",
            u"Salaire Indemnise",
            u"",
        };
        return labels[champ];
    }
};
