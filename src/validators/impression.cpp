#include "validators/impression.h"

#include "validators/listeserreurs.h"

using namespace Qt::StringLiterals;

namespace {

QString erreurImprimee(const ListesErreurs &listes, qsizetype rang)
{
    const qint64 numero = listes.O[static_cast<std::size_t>(rang)];
    if (rang > 0 && listes.O[static_cast<std::size_t>(rang - 1)] == numero)
        return QString(15, u' ') + listes.E[rang];
    return u"\n  Ligne N°: "_s + QString::number(numero) + u", \tN° SS: " + listes.N[rang] + u", \tNom : " +
           listes.NP[rang] + u"\n  Erreur : " + listes.E[rang];
}

} // namespace

Document listeImprimee(const ListesErreurs &listes, const QString &titre)
{
    constexpr double margeMm = 12;
    constexpr double largeurMm = 210 - 2 * margeMm;
    Document document{.nom = u"ApercuListe"_s,
                      .titre = titre,
                      .fichier = titre + u".pdf",
                      .marge = margeMm,
                      .numerote = true};
    document.tableau = {.colonnes = {{{}, largeurMm}},
                        .corps = 12,
                        .regle = false,
                        .nombre = 1 + listes.taille(),
                        .cellule = [&listes, titre](qsizetype rang, int) {
                            return rang == 0 ? QString(u"\n\t" + titre + u'\n')
                                             : erreurImprimee(listes, rang - 1);
                        }};
    return document;
}
