#include "ci/exportci.h"

#include "ci/genreci.h"
#include "declarations/declaration.h"
#include "declarations/exportdeclaration.h"
#include "rules/dialogue.h"
#include "rules/fonds.h"
#include "rules/identite.h"
#include "rules/texte.h"

using namespace Qt::StringLiterals;

namespace {

using enum FormeChamp;

const QString abandon = u"Abandon de la génération du fichier"_s;

constexpr ChampExport champsEntete[] = {
    {u"N_Identifiant", Coupe, u""},       {u"date_arret", Jour, u""},         {u"Date_reprise", Jour, u""},
    {u"Montant_Indemnise", Montant, u""}, {u"Effect_Mis_arret", Entier, u""}, {u"ChargePat", Montant, u""},
    {u"ChargeCp", Montant, u""},          {u"ChargeCi", Montant, u""},        {u"HTS", Entier, u""},
    {u"NCompteBnq", Coupe, u""},          {u"LibAgBnq", Coupe, u""},          {u"Telephone", Coupe, u""},
};

constexpr ChampExport champsLigne[] = {
    {u"l.N_SecSoc", Coupe, u""},     {u"nom", Coupe, u""},
    {u"prenom", Coupe, u""},         {u"date_naiss", Jour, u""},
    {u"profes", Coupe, u""},         {u"l.Date_embauche", Jour, u""},
    {u"l.date_arret", Jour, u""},    {u"l.Date_reprise", Jour, u""},
    {u"Nb_Heure", Entier, u""},      {u"Salaire_Horaire", Montant, u""},
    {u"Mt_Indemnise", Montant, u""},
};

/// What the fund needs to pay, and to ask back.
bool ctrlPaiement(Base &, const Enregistrement &entete, Dialogue &dialogue)
{
    const auto refuser = [&](const QString &texte) {
        dialogue.avertir(texte, abandon);
        return false;
    };
    const QString compte = entete.texte(u"NCompteBnq");
    if (compte.isEmpty())
        return refuser(u" Veuillez saisir le numéro de compte bancaire SVP !"_s);
    if (CleRIB(milieuDe(compte, 4, 17)) != u"0")
        return refuser(u" Numèro de compte bancaire incorrecte  SVP !"_s);
    if (entete.estNul(u"LibAgBnq"))
        return refuser(u"libellé agence bancaire non saisi SVP !"_s);
    if (Trim(entete.texte(u"LibAgBnq")).isEmpty())
        return refuser(u"libellé agence bancaire vide SVP !"_s);
    if (Trim(entete.texte(u"Telephone")).isEmpty()) {
        return refuser(u"Veuillez saisir votre numéro de telephone au niveau du masque affiliation employeur "
                       "SVP !"_s);
    }
    return true;
}

} // namespace

const FichierDeclaration &fichierCi()
{
    static const FichierDeclaration fichier{
        .genre = genreCi(),
        .marque = fonds::MarqueCi,
        .entete = champsEntete,
        .ligne = champsLigne,
        // The blank of the one name and not of the other is meant.
        .nomFige = u"{N_Identifiant}_CI .txt"_s,
        .nomPropose = u"{N_Identifiant}_CI.txt"_s,
        .avantSommes = ctrlPaiement,
        .sommesDifferentes =
            u"La somme des montants brut déclarés ou le nombre d'employé saisis dans l'en-tête ne "
            "correspondent pas aux sommes calculées sur les lignes de cette déclaration CI.\nVerifiez vos "
            "lignes CI   SVP  !!!!"_s,
        .titreSommes = u" Intérruption de génération du Bordereau de paiement"_s,
        .titreSansNom = abandon,
        .succes = u"Fichier Liste Nominative exportée avec succès vers "_s,
    };
    return fichier;
}

bool exporterCi(Base &base, bool cheminFige, Dialogue &dialogue)
{
    return exporter(fichierCi(), base, base.RsEnteteCi.courant(), cheminFige, dialogue);
}
