#pragma once

#include "rules/selon.h"

#include <QStringView>

/// All that tells the change of an employee, frm_mod_sal, from his entry, frm_add_sal, first the entry's,
/// then the change's. What is not here is the same on both screens, but for the number itself: how a free one
/// is found is told side by side in affiliation.cpp.
namespace difference {

// The control

/// Whether a save without a number needs the clerk's accord, each time.
inline constexpr Selon<bool> accordSansNumero{false, true};

inline constexpr Selon<QStringView> acteManquant{
    u"Numéro d'acte de naissance est obligatoire !",
    u"Numéro d'acte de naissance non fournie, il est obligatoire pour la DAC Nominatif !"};

/// Whether a nationality must be chosen before anything is asked of nationals. Otherwise nationals without
/// one meet the rule of their own nationality, and only foreigners are asked to choose.
inline constexpr Selon<bool> nationaliteDAbord{true, false};

/// The NIN that counts as none. The entry's is one short of the field, so there eighteen zeros are checked
/// like any other number: both are meant.
inline constexpr Selon<QStringView> ninAbsent{u"00000000000000000", u"000000000000000000"};

// The save

inline constexpr Selon<QStringView> sansNumeroPermis{
    u"le numéro SS à blanc ou 000000000000 n'est permis que pour une  nouvelle recrue de moins d'un mois à "
    u"la "
    "date de dépot de la DAS , merci",
    u"le numéro SS à blanc ou 000000000000 n'est permis que pour une  nouvelle recrue de moins d'un mois, "
    "merci"};

/// Whether a family status that was stored as neither C nor M counts as unset. The entry has nothing else to
/// choose from and asks only for an empty one.
inline constexpr Selon<bool> autreSituationRefusee{false, true};

inline constexpr Selon<QStringView> sansCompte{
    u"Etes vous sur que ce salarié ne possède pas de numéros de compte CCP ou bancaire ?",
    u" Etes vous sur que ce salarié ne possède pas de numéro de compte CCP ou bancaire ?"};

inline constexpr Selon<QStringView> compteIncomplet{
    u"Veuillez compléter le numéro de compte bancaire SVP",
    u"Veuillez compléter le numéro de compte RIB bancaire SVP"};

inline constexpr Selon<QStringView> compteErrone{
    u"Votre compte bancaire est erroné !",
    u"Votre compte RIB bancaire est incorrecte, veuillez le corriger SVP !"};

/// Whether the address is trimmed and cut to its first 40 characters. The entry stores up to 50.
inline constexpr Selon<bool> adresseA40{false, true};

/// Whether the parents' names are trimmed.
inline constexpr Selon<bool> parentsRognes{false, true};

inline constexpr Selon<QStringView> succes{u"Salarié Ajouté Avec Succès!", u"Salarié Modifié avec Succès!"};

// The screen

/// The place of birth that no rule reads.
inline constexpr Selon<bool> aLieuNaissance{true, false};

/// A commune without a wilaya: the entry warns once one is chosen, the change tells it on entering the field
/// and moves on to the wilaya.
inline constexpr Selon<QStringView> communeSansWilaya{u"Veuillez sélectionner la wilaya en premier !",
                                                      u"Veuillez sélectionnez la wilaya en premier !"};

/// Whether the address is selected on entering it, as the fields for numbers always are.
inline constexpr Selon<bool> mailSelectionne{false, true};

} // namespace difference
