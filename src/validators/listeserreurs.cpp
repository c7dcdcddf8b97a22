#include "validators/listeserreurs.h"

#include "rules/erreurs.h"
#include "rules/texte.h"

using namespace Qt::StringLiterals;

void ListeTextes::ajouter(QStringView texte)
{
    m_octets += encoder(texte);
    m_fins.push_back(m_octets.size());
    const qsizetype rang = taille() - 1;
    if (longueur(rang) > longueur(m_rangPlusLong))
        m_rangPlusLong = rang;
}

void ListeTextes::vider() { *this = {}; }

QString ListeTextes::operator[](qsizetype i) const { return decoder(octets(i)); }

void ListesErreurs::ajouter(QStringView entree, qint64 ligne, QStringView numero, QStringView nom,
                            QStringView mots)
{
    constexpr qsizetype places = 5 * sizeof(qsizetype);
    const qsizetype taille = entree.size() + numero.size() + nom.size() + mots.size() + places;
    if (taille > TailleMax - m_octets)
        throw ErreurFichier(u"Le fichier a trop d'erreurs pour qu'elles soient listées."_s);
    m_octets += taille;
    Entrees.ajouter(entree);
    O.push_back(ligne);
    N.ajouter(numero);
    NP.ajouter(nom);
    E.ajouter(mots);
}

void ListesErreurs::vider()
{
    Entrees.vider();
    O = {};
    N.vider();
    NP.vider();
    m_octets = 0;
}
