#include "declarations/entetes.h"

#include "declarations/declaration.h"
#include "rules/dialogue.h"
#include "rules/erreurs.h"
#include "rules/texte.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

RefusEntete refuser(ChampEntete champ, const QString &texte, Dialogue &dialogue)
{
    dialogue.avertir(texte);
    return champ;
}

/// The count as the whole number that its column takes: rounded half to even.
qint64 effectifEntier(const QString &texte)
{
    const double arrondi = std::nearbyint(lireNombre(texte));
    if (std::abs(arrondi) > std::numeric_limits<qint32>::max())
        throw ErreurConversion(u"« %1 » est trop grand pour un nombre de salariés."_s.arg(texte));
    return static_cast<qint64>(arrondi);
}

bool estNegatif(const QString &texte) { return lireNombre(texte) < 0; }

/// The number of the new declaration; nothing when it is refused.
std::optional<qint64> nouveauType(Base &base, const GenreDeclaration &genre, const FicheEntete &fiche,
                                  Dialogue &dialogue)
{
    // The table itself, and not the list: another program may have added a header meanwhile.
    const Recordset &entetes = base.*genre.entetes;
    const QString deLaPeriode = u" FROM [%1] WHERE [%2] = ? AND [%3] = ?"_s.arg(
        entetes.table(), genre.entete.employeur, genre.entete.periode);
    const Valeurs cle{fiche.cmbemp, fiche.periode};
    if (!fiche.cmplCheck) {
        const QString principale = u"SELECT 1"_s + deLaPeriode + u" AND [%1] = 1"_s.arg(genre.entete.type);
        if (!base.Cnx.existe(principale, cle))
            return 1;
        dialogue.avertir(genre.textes.principaleExiste);
        return {};
    }
    const Enregistrement plusHaut =
        base.Cnx.premiere(u"SELECT max([%1])"_s.arg(genre.entete.type) + deLaPeriode, cle);
    if (!plusHaut.estNul(0))
        return plusHaut.entier(0) + 1;
    if (dialogue.demander(genre.textes.sansPrincipale, {}, false, Icone::Information))
        return 2;
    return {};
}

} // namespace

bool estMontantSaisi(const QString &texte) { return EstNumerique(sansBlancs(texte)); }

RefusEntete ajouterEntete(Base &base, const GenreDeclaration &genre, const FicheEntete &fiche,
                          Dialogue &dialogue)
{
    using enum ChampEntete;
    const GenreDeclaration::Textes &textes = genre.textes;
    if (fiche.cmbemp.isEmpty() || fiche.periode.isEmpty())
        return refuser(fiche.periode.isEmpty() ? periode : cmbemp, textes.choixVide, dialogue);
    if (!base.Cnx.existe(u"SELECT 1 FROM employeur"_s))
        return refuser(cmbemp, u"Il n'y a pas d'employeur!"_s, dialogue);
    if (!base.Cnx.existe(u"SELECT 1 FROM employeur WHERE num_emp = ?"_s, {fiche.cmbemp}))
        return refuser(cmbemp, u"Ce numéro d'employeur n'éxiste pas"_s, dialogue);
    const std::optional<qint64> type = nouveauType(base, genre, fiche, dialogue);
    if (!type)
        return cmplCheck;

    const QString somme = sansBlancs(fiche.sumedit);
    const QString effectif = sansBlancs(fiche.total_salEdit);
    if (!EstNumerique(somme) || estNegatif(somme))
        return refuser(sumedit, textes.sommeIncorrecte, dialogue);
    if (!EstNumerique(effectif) || estNegatif(effectif))
        return refuser(total_salEdit, textes.effectifIncorrect, dialogue);
    if ((lireNombre(somme) == 0) != (lireNombre(effectif) == 0))
        return refuser(sumedit, u"Valeurs incorrectes !"_s, dialogue);

    (base.*genre.entetes)
        .ajouter(Champs{{genre.entete.periode, fiche.periode},
                        {genre.entete.employeur, fiche.cmbemp},
                        {genre.entete.type, *type},
                        {genre.entete.somme, LireMontant(somme)},
                        {genre.entete.effectif, effectifEntier(effectif)}} +
                 genre.entete.aLaCreation);
    return {};
}

RefusEntete modifierEntete(Base &base, const GenreDeclaration &genre, const Enregistrement &lue,
                           const QString &somme, const QString &effectif, Dialogue &dialogue)
{
    const QString sommeNette = sansBlancs(somme);
    const QString effectifNet = sansBlancs(effectif);
    const bool sommeBonne = EstNumerique(sommeNette) && lireNombre(sommeNette) > 0;
    const bool effectifBon = EstNumerique(effectifNet) && lireNombre(effectifNet) >= 1;
    if (!sommeBonne || !effectifBon) {
        return refuser(sommeBonne ? ChampEntete::total_salEdit : ChampEntete::sumedit,
                       u"Valeurs incorrectes!"_s, dialogue);
    }
    (base.*genre.entetes)
        .modifier(lue, {{genre.entete.somme, LireMontant(sommeNette)},
                        {genre.entete.effectif, effectifEntier(effectifNet)}});
    return {};
}

bool supprimerEntete(Base &base, const GenreDeclaration &genre, const Enregistrement &lue, Dialogue &dialogue)
{
    if (!dialogue.confirmer(genre.textes.supprimerEntete, u"Confirmation"_s))
        return false;
    const Condition lignes = lignesDe(genre, cleEntete(genre, lue));
    if (base.Cnx.existe(u"SELECT 1 FROM [%1] WHERE %2"_s.arg((base.*genre.lignes).table(), lignes.sql),
                        lignes.valeurs)) {
        dialogue.avertir(genre.textes.lignesPresentes);
        return false;
    }
    (base.*genre.entetes).supprimer(lue);
    return true;
}

bool supprimerEnteteSeul(Base &base, const GenreDeclaration &genre, const Enregistrement &lue,
                         Dialogue &dialogue)
{
    if (!dialogue.confirmer(u"Confirmez la suppression !"_s, u"Confirmation"_s))
        return false;
    (base.*genre.entetes).supprimer(lue);
    return true;
}
