#include "dac/exportdac.h"

#include "dac/controledac.h"
#include "dac/genredac.h"
#include "declarations/declaration.h"
#include "declarations/exportdeclaration.h"
#include "rules/fonds.h"
#include "rules/texte.h"
#include "storage/base.h"

using namespace Qt::StringLiterals;

namespace {

using enum FormeChamp;

constexpr QStringView zerosActe = u"00000";
constexpr QStringView zerosCommune = u"0000";
constexpr QStringView zerosNin = u"000000000000000000";
constexpr QStringView zerosCompte = u"00000000000000000000";
constexpr QStringView zerosTelephone = u"0000000000";
constexpr QStringView zerosPiece = u"000000000000000";
constexpr QStringView zerosNationalite = u"000";
constexpr QStringView sansEmail = u"Non fournie";

constexpr ChampExport champsEntete[] = {
    {.colonne = u"NumEmployeur", .forme = Coupe, .largeur = 8},
    {u"Periode", TelQuel},
    {u"Type_Dac", Entier},
    {u"Assiette", Montant},
    {u"Effectif_total", Entier},
    {u"Effectif_Reel", Entier, u"0"},
};

constexpr ChampExport champsLigne[] = {
    {u"l.NumSalarie", TelQuel},
    {u"nom", Coupe},
    {u"prenom", Coupe},
    {u"date_naiss", Jour},
    {u"presume", TelQuel},
    {u"NumActeNaiss", TelQuel, zerosActe, zerosActe},
    {u"CommuneNaiss", TelQuel, zerosCommune, zerosCommune},
    {u"PrenomPere", Coupe},
    {u"NomMere", Coupe},
    {u"PrenomMere", Coupe},
    {u"etranger", TelQuel},
    {.colonne = u"NIN", .siNul = zerosNin, .siVide = zerosNin, .nulSiEgal = u"__________________"},
    {u"num_cpt_ccp", Coupe, zerosCompte, zerosCompte},
    {u"num_cpt_banc", Coupe, zerosCompte, zerosCompte},
    {u"profes", Coupe, u""},
    {u"l.Assiette", Montant},
    {u"NBJT", Entier},
    {u"Type_Nbjt", TelQuel},
    {u"Date_ES", Jour, u""},
    {u"Type_ES", TelQuel, u""},
    {u"Telephone", Coupe, zerosTelephone, zerosTelephone},
    {.colonne = u"Email", .forme = Coupe, .siNul = sansEmail, .siVide = sansEmail, .blancsVides = true},
    {u"CinNumber", Coupe, zerosPiece, zerosPiece},
    {u"IdNat", Coupe, zerosNationalite, zerosNationalite},
    {u"adresse", Coupe, u""},
};

bool controler(Base &base, const Enregistrement &entete, Dialogue &dialogue)
{
    return CtrlDacNominative(base, Trim(entete.texte(u"NumEmployeur")).toString(), entete.texte(u"Periode"),
                             entete.entier(u"Type_Dac"), dialogue);
}

/// The period counts as exported, for all employers and numbers.
void marquerPeriode(Base &base, const Enregistrement &entete)
{
    base.CmdSql.executer(u"UPDATE Periode SET Etat = 'O' WHERE Code = ?"_s, {entete.texte(u"Periode")});
    base.RsPeriode.requery();
}

} // namespace

const FichierDeclaration &fichierDac()
{
    static const FichierDeclaration fichier{
        .genre = genreDac(),
        .marque = fonds::MarqueDac,
        .entete = champsEntete,
        .ligne = champsLigne,
        // Only the name that is offered tells a complementary declaration from the principal one: this is
        // meant.
        .nomFige = u"{NumEmployeur}_DAC_NOMINATIVE_{Periode}.txt"_s,
        .nomPropose = u"{NumEmployeur}_DAC_NOMINATIVE_{Periode}_{Type_Dac}.txt"_s,
        .sommesDifferentes = u"La somme des assiettes ou le nombre d'employé saisi dans l'en-tête DAC ne "
                             u"correspondent pas aux "
                             "sommes calculées sur les lignes de cette DAC.\nVerifiez vos lignes DAC SVP"_s,
        .apresSommes = controler,
        .montreLignes = false,
        .gestion = FichierDeclaration::Gestion::DesLaCible,
        .echecFatal = true,
        .succes = u"DAC NOMINATIVE exportée avec succès vers "_s,
        .ensuite = marquerPeriode,
    };
    return fichier;
}
