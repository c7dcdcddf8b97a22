#include "generateurcles.h"

#include "dialogue.h"
#include "identite.h"
#include "nombre.h"
#include "texte.h"

using namespace Qt::StringLiterals;

namespace {

/// The bank's code stands before what the key is worked out of.
constexpr qsizetype codeBanque = 3;
constexpr qsizetype chiffresAvecCle = 17;

std::optional<QString> cleSS(QStringView numero)
{
    if (!EstNumerique(numero))
        return {};
    return CleSS(numero);
}

std::optional<QString> cleCCP(QStringView numero)
{
    if (!EstNumerique(numero))
        return {};
    QString corps = numero.toString();
    return CleCCP(corps);
}

std::optional<QString> verdictRipRib(QStringView compte, Dialogue &dialogue)
{
    if (!EstNumerique(compte)) {
        dialogue.avertir(u"Compte RIB ou RIP non numérique "_s);
        return {};
    }
    if (LireNombre(compte) == 0)
        return {};
    return CleRIB(compte.mid(codeBanque, chiffresAvecCle)) == u"0" ? u"Vrai"_s : u"Faux"_s;
}

} // namespace

ClesGenerees GenererCles(const QString &TxtSS, const QString &TxtCCP, const QString &wCptRIPRIB,
                         Dialogue &dialogue)
{
    ClesGenerees cles;
    cles.LabSS = cleSS(Trim(TxtSS));
    cles.LabCCP = cleCCP(Trim(TxtCCP));
    cles.labRipRIB = verdictRipRib(Trim(wCptRIPRIB), dialogue);
    return cles;
}
