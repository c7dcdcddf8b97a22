#include "validators/impression.h"

#include "validators/listeserreurs.h"

using namespace Qt::StringLiterals;

void composerListe(const ListesErreurs &listes, const QString &titre,
                   const std::function<void(const QString &)> &ligne)
{
    ligne({});
    ligne(u'\t' + titre);
    ligne({});
    for (qsizetype i = 0; i < listes.taille(); ++i) {
        const qint64 numero = listes.O[static_cast<std::size_t>(i)];
        if (i > 0 && listes.O[static_cast<std::size_t>(i - 1)] == numero) {
            ligne(QString(15, u' ') + listes.E[i]);
            continue;
        }
        ligne({});
        ligne(u"  Ligne N°: "_s + QString::number(numero) + u", \tN° SS: "_s + listes.N[i] + u", \tNom : "_s +
              listes.NP[i]);
        ligne(u"  Erreur : "_s + listes.E[i]);
    }
}
