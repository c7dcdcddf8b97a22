#include "rules/colonnesfixes.h"

#include "rules/lecteurlignes.h"

#include <algorithm>

QString lireColonnes(LecteurLignes &lecteur, qsizetype longueur)
{
    const QByteArrayView ligne = lecteur.lire();
    return decoder(ligne.first(std::min(ligne.size(), longueur)));
}
