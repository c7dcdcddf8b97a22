#include "declarations/entetes.h"

#include "declarations/declaration.h"
#include "rules/dialogue.h"
#include "rules/erreurs.h"
#include "rules/texte.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

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
std::optional<qint64> nouveauType(Base &base, const EntetesNumerotees &entetes, const FicheEntete &fiche,
                                  Dialogue &dialogue)
{
    // The table itself, and not the list: another program may have added a header meanwhile.
    const QString deLaPeriode = u" FROM [%1] WHERE [%2] = ? AND [%3] = ?"_s.arg(
        (base.*entetes.genre.entetes).table(), entetes.genre.employeur, entetes.periode);
    const Valeurs cle{fiche.cmbemp, fiche.periode};
    if (!fiche.cmplCheck) {
        const QString principale = u"SELECT 1"_s + deLaPeriode + u" AND [%1] = 1"_s.arg(entetes.type);
        if (!base.Cnx.existe(principale, cle))
            return 1;
        dialogue.avertir(entetes.textes.principaleExiste);
        return {};
    }
    // One whose number is empty is there, and counts as the first.
    const Enregistrement plusHaut = base.Cnx.premiere(
        u"SELECT max(iif(typeof([%1]) = 'integer', [%1], 1))"_s.arg(entetes.type) + deLaPeriode, cle);
    if (!plusHaut.estNul(0))
        return plusHaut.entier(0) + 1;
    if (dialogue.demander(entetes.textes.sansPrincipale, {}, false, Icone::Information))
        return 2;
    return {};
}

} // namespace

bool estComplementaire(const QVariant &type) { return type.toLongLong() > 1; }

bool estMontantSaisi(const QString &texte) { return EstNumerique(sansBlancs(texte)); }

std::optional<Refus> ajouterEntete(Base &base, const EntetesNumerotees &entetes, const FicheEntete &fiche,
                                   Dialogue &dialogue)
{
    const EntetesNumerotees::Textes &textes = entetes.textes;
    if (fiche.cmbemp.isEmpty() || fiche.periode.isEmpty())
        return refuser(dialogue, fiche.periode.isEmpty() ? entetes.controlePeriode : u"cmbemp",
                       textes.choixVide);
    if (!base.Cnx.existe(u"SELECT 1 FROM employeur"_s))
        return refuser(dialogue, u"cmbemp", u"Il n'y a pas d'employeur!"_s);
    if (!base.Cnx.existe(u"SELECT 1 FROM employeur WHERE num_emp = ?"_s, {fiche.cmbemp}))
        return refuser(dialogue, u"cmbemp", u"Ce numéro d'employeur n'éxiste pas"_s);
    const std::optional<qint64> type = nouveauType(base, entetes, fiche, dialogue);
    if (!type)
        return Refus{u"cmplCheck", {}};

    const QString somme = sansBlancs(fiche.sumedit);
    const QString effectif = sansBlancs(fiche.total_salEdit);
    if (!EstNumerique(somme) || estNegatif(somme))
        return refuser(dialogue, u"sumedit", textes.sommeIncorrecte);
    if (!EstNumerique(effectif) || estNegatif(effectif))
        return refuser(dialogue, u"total_salEdit", textes.effectifIncorrect);
    if ((lireNombre(somme) == 0) != (lireNombre(effectif) == 0))
        return refuser(dialogue, u"sumedit", u"Valeurs incorrectes !"_s);

    (base.*entetes.genre.entetes)
        .ajouter(Champs{{entetes.periode, fiche.periode},
                        {entetes.genre.employeur, fiche.cmbemp},
                        {entetes.type, *type},
                        {entetes.somme, LireMontant(somme)},
                        {entetes.effectif, effectifEntier(effectif)}} +
                 entetes.aLaCreation);
    return {};
}

std::optional<Refus> modifierEntete(Base &base, const EntetesNumerotees &entetes, const Enregistrement &lue,
                                    const QString &sumedit, const QString &totaledit, Dialogue &dialogue)
{
    const QString somme = sansBlancs(sumedit);
    const QString effectif = sansBlancs(totaledit);
    const bool sommeBonne = EstNumerique(somme) && lireNombre(somme) > 0;
    const bool effectifBon = EstNumerique(effectif) && lireNombre(effectif) >= 1;
    if (!sommeBonne || !effectifBon)
        return refuser(dialogue, sommeBonne ? u"totaledit" : u"sumedit", u"Valeurs incorrectes!"_s);
    (base.*entetes.genre.entetes)
        .modifier(lue, {{entetes.somme, LireMontant(somme)}, {entetes.effectif, effectifEntier(effectif)}});
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
