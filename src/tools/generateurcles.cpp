#include "tools/generateurcles.h"

#include "rules/dialogue.h"
#include "rules/identite.h"
#include "rules/nombre.h"
#include "rules/texte.h"

using namespace Qt::StringLiterals;

namespace {

/// The bank's code stands before what the key is worked out of.
constexpr qsizetype codeBanque = 3;
constexpr qsizetype chiffresAvecCle = 17;

} // namespace

std::optional<QString> cleDuSS(const QString &TxtSS)
{
    const QStringView numero = Trim(TxtSS);
    if (!EstNumerique(numero))
        return {};
    return CleSS(numero);
}

std::optional<QString> cleDuCCP(const QString &TxtCCP)
{
    QString corps = Trim(TxtCCP).toString();
    if (!EstNumerique(corps))
        return {};
    return CleCCP(corps);
}

std::optional<QString> verdictRipRib(const QString &wCptRIPRIB, Dialogue &dialogue)
{
    const QStringView compte = Trim(wCptRIPRIB);
    if (!EstNumerique(compte)) {
        dialogue.avertir(u"Compte RIB ou RIP non numérique "_s);
        return {};
    }
    if (lireNombre(compte) == 0)
        return {};
    return CleRIB(compte.mid(codeBanque, chiffresAvecCle)) == u"0" ? u"Vrai"_s : u"Faux"_s;
}
