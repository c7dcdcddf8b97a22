#include "rules/calendrier.h"

#include "rules/date.h"
#include "rules/texte.h"

using namespace Qt::StringLiterals;

namespace {

struct Ligne
{
    QStringView periode;
    QStringView debut;
    QStringView fin;
};

constexpr Ligne lignes[] = {
    {u"01", u"01/01/", u"31/01/"}, {u"02", u"01/02/", u"29/02/"}, {u"T1", u"01/01/", u"31/03/"},
    {u"04", u"01/04/", u"30/04/"}, {u"05", u"01/05/", u"31/05/"}, {u"06", u"01/06/", u"30/06/"},
    {u"T2", u"01/04/", u"30/06/"}, {u"07", u"01/07/", u"31/07/"}, {u"08", u"01/08/", u"31/08/"},
    {u"09", u"01/09/", u"30/09/"}, {u"T3", u"01/07/", u"30/09/"}, {u"10", u"01/10/", u"31/10/"},
    {u"11", u"01/11/", u"30/11/"}, {u"12", u"01/12/", u"31/12/"}, {u"T4", u"01/10/", u"31/12/"},
};

} // namespace

QDate debutCampagne(int annee) { return {annee - 1, 7, 1}; }

QDate finCampagne(int annee) { return {annee, 6, 30}; }

QDate limiteSansNumero(int annee) { return {annee, 6, 1}; }

void BornesPeriode(QStringView code, BornesDePeriode &bornes)
{
    const QStringView annee = debutDe(code, 4);
    const QStringView periode = finDe(code, 2);
    for (const Ligne &ligne : lignes) {
        if (ligne.periode != periode)
            continue;
        bornes.DateDebutPeriode = ligne.debut.toString() + annee;
        bornes.DateFinPeriode = ligne.fin.toString() + annee;
        // February: the 29th is tried, and gives way where the year has none.
        if (periode == u"02" && !EstDate(bornes.DateFinPeriode))
            bornes.DateFinPeriode = u"28/02/"_s + annee;
        return;
    }
}
