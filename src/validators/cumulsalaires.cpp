#include "validators/cumulsalaires.h"

#include "rules/erreurs.h"
#include "rules/nombre.h"
#include "rules/texte.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// The two digits behind the point, a missing one as 0.
int centiemesDe(QStringView salaire, qsizetype point)
{
    int centiemes = 0;
    for (const qsizetype place : {point + 1, point + 2}) {
        centiemes *= 10;
        if (place >= salaire.size())
            continue;
        if (!estChiffre(salaire[place]))
            throw ErreurConversion(u"« %1 » n'est pas un nombre."_s.arg(salaire));
        centiemes += salaire[place].unicode() - u'0';
    }
    return centiemes;
}

} // namespace

void CumulSalaires::ajouter(QStringView salaire)
{
    const qsizetype point = salaire.indexOf(SepDecimal);
    const int centiemes = point >= 0 ? centiemesDe(salaire, point) : 0;
    const double entier = Val(point >= 0 ? salaire.first(point) : salaire);

    constexpr double limite = 1e15;
    constexpr qint64 comble = std::numeric_limits<qint64>::max() / 2;
    if (std::abs(entier) >= limite || m_centiemes > comble || m_centiemes < -comble) {
        const double debordement = m_debordement + entier + centiemes / 100.0;
        if (!std::isfinite(debordement))
            throw ErreurConversion(u"Dépassement de capacité : le total des salaires est trop grand."_s);
        m_debordement = debordement;
        return;
    }
    m_centiemes += static_cast<qint64>(entier) * 100 + centiemes;
}
