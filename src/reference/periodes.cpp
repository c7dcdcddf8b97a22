#include "reference/periodes.h"

#include "reference/refusajout.h"
#include "rules/date.h"
#include "rules/dialogue.h"
#include "storage/base.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int anneesEnArriere = 10;
constexpr int moisParTrimestre = 3;

/// "07", "08", "09", "T3" for the third quarter.
QStringList periodesDe(const QString &trimestre)
{
    const auto rang = static_cast<int>(trimestres().indexOf(trimestre));
    QStringList periodes;
    for (int mois = 1; mois <= moisParTrimestre; ++mois)
        periodes += u"%1"_s.arg(rang * moisParTrimestre + mois, 2, 10, QChar(u'0'));
    return periodes << trimestre;
}

} // namespace

QStringList exercicesProposes()
{
    QStringList annees;
    for (int i = 0; i <= anneesEnArriere; ++i)
        annees += QString::number(aujourdhui().year() - i);
    return annees;
}

QStringList trimestres() { return {u"T1"_s, u"T2"_s, u"T3"_s, u"T4"_s}; }

bool ajouterPeriodes(Base &base, const QString &annee, const QString &trimestre, Dialogue &dialogue)
{
    const auto refuser = [&dialogue](const QString &message) {
        dialogue.avertir(message);
        return false;
    };
    if (annee.isEmpty())
        return refuser(u"Veuillez selectionner l'exercice SVP"_s);
    if (trimestre.isEmpty())
        return refuser(u"Veuillez selectionner le trimestre SVP"_s);
    // Only the quarter's own row counts; a month alone comes from an older database.
    if (base.Cnx.existe(u"SELECT 1 FROM Periode WHERE Code = ?"_s, {annee + trimestre})) {
        base.RsPeriode.requery(); // it may be another program's, which the list does not show yet
        return refuser(u"la période est déja créée!"_s);
    }

    try {
        for (const QString &periode : periodesDe(trimestre))
            base.RsPeriode.ajouter({{u"Code"_s, annee + periode}, {u"Etat"_s, u"N"_s}});
    } catch (const ErreurBase &erreur) {
        direRefusAjout(u"Veuillez une autre période"_s, erreur, dialogue);
        return false;
    }
    base.RsAnnee.requery();
    return true;
}
