#include "reference/campagnes.h"

#include "reference/refusajout.h"
#include "rules/calendrier.h"
#include "rules/date.h"
#include "rules/dialogue.h"
#include "rules/fonds.h"
#include "rules/texte.h"
#include "storage/base.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int anneesEnArriere = 5;
constexpr qsizetype chiffresAnnee = 4;

bool estAnnee(const QString &texte) { return EstNumerique(texte) && Trim(texte).size() == chiffresAnnee; }

/// "du 01/07/2020 au 30/06/2021" for 2021.
QString compagne(int annee)
{
    return u"du "_s + texteDate(debutCampagne(annee)) + u" au "_s + texteDate(finCampagne(annee));
}

} // namespace

QStringList anneesProposees()
{
    QStringList annees;
    for (int i = 0; i <= anneesEnArriere; ++i)
        annees += QString::number(aujourdhui().year() - i);
    return annees;
}

bool ajouterCampagne(Base &base, const QString &texte, Dialogue &dialogue)
{
    const auto refuser = [&dialogue](const QString &message) {
        dialogue.avertir(message);
        return false;
    };
    if (texte.isEmpty())
        return refuser(u"Veuillez selectionner une année à ajouter"_s);
    if (!estAnnee(texte))
        return refuser(u"Saisissez une année correcte."_s);
    const auto annee = static_cast<int>(lireNombre(texte));
    if (annee < fonds::PremiereCampagne || annee > aujourdhui().year()) {
        return refuser(u"Année non conforme!\n"
                       "Saisissez une année superieure à 1997 et inferieure ou égale à l'année en cours."_s);
    }
    // The table itself, and not the list: another program may have added the year meanwhile.
    if (base.Cnx.existe(u"SELECT 1 FROM annee WHERE annee = ?"_s, {annee})) {
        base.RsAnnee.requery();
        return refuser(u"Année déja créée!"_s);
    }

    try {
        base.RsAnnee.ajouter({{u"annee"_s, annee}, {u"compagne"_s, compagne(annee)}});
    } catch (const ErreurBase &erreur) {
        direRefusAjout(u"Veuillez ne pas choisir une année existante"_s, erreur, dialogue);
        return false;
    }
    base.RsAnnee.requery();
    return true;
}
