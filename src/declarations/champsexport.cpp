#include "declarations/champsexport.h"

#include "rules/date.h"
#include "rules/texte.h"
#include "storage/connexion.h"

#include <QIODevice>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView finDeLigne = u"\r\n";

void ecrireOctets(QIODevice &fichier, const QByteArray &octets)
{
    if (fichier.write(octets) != octets.size())
        throw ErreurFichier(u"Le fichier ne peut pas être écrit.\n%1"_s.arg(fichier.errorString()));
}

/// The value in the form of the field.
QString enForme(const ChampExport &champ, const Enregistrement &rangee, Col colonne, const QString &texte)
{
    switch (champ.forme) {
    case FormeChamp::TelQuel:
        return texte;
    case FormeChamp::Coupe:
        return Trim(texte).toString();
    case FormeChamp::Jour:
        return texteDate(rangee.date(colonne));
    case FormeChamp::Montant:
        return rangee.montant(colonne).texte(SepAutre);
    case FormeChamp::Entier:
        return QString::number(rangee.entier(colonne));
    }
    return {};
}

/// @param precedent the field as the line before had it
QString texteChamp(const ChampExport &champ, const Enregistrement &rangee, Col colonne,
                   const QString &precedent)
{
    const QVariant valeur = rangee.valeur(colonne);
    const QString texte = valeur.toString();
    const bool absent = valeur.isNull() ||
                        (!champ.nulSiContient.isEmpty() && texte.contains(champ.nulSiContient)) ||
                        (!champ.nulSiEgal.isEmpty() && texte == champ.nulSiEgal);
    if (absent && champ.repete)
        return precedent;
    if (absent && !champ.siNul)
        throw ErreurConversion(u"une valeur obligatoire manque."_s);
    if (absent)
        return champ.siNul->toString();
    if (champ.siVide && (champ.blancsVides ? Trim(texte) : QStringView(texte)).isEmpty())
        return champ.siVide->toString();
    const QString ecrit = enForme(champ, rangee, colonne, texte);
    return champ.largeur > 0 ? ecrit.leftJustified(champ.largeur, u' ', true) : ecrit;
}

/// The line of a row.
/// @param parPlace whether the columns of the row are those of the fields, in their order
/// @param precedents the fields of the line before, which become those of this one
QString texteLigne(const Enregistrement &rangee, std::span<const ChampExport> champs, bool parPlace,
                   std::vector<QString> &precedents, const QString &lieu)
{
    QString ligne;
    precedents.resize(champs.size());
    for (std::size_t i = 0; i < champs.size(); ++i) {
        try {
            const Col colonne = parPlace ? Col(static_cast<int>(i)) : Col(champs[i].colonne);
            precedents[i] = texteChamp(champs[i], rangee, colonne, precedents[i]);
        } catch (const ErreurConversion &erreur) {
            throw ErreurConversion(u"%1, colonne « %2 » : %3"_s.arg(lieu, champs[i].colonne, erreur.texte()));
        }
        ligne += precedents[i];
        ligne += u';';
    }
    return ligne;
}

} // namespace

QString colonnesExport(std::span<const ChampExport> champs)
{
    QStringList colonnes;
    for (const ChampExport &champ : champs)
        colonnes += champ.colonne.toString();
    return colonnes.join(u", ");
}

void ecrireEntete(QIODevice &fichier, const Enregistrement &entete, std::span<const ChampExport> champs)
{
    std::vector<QString> aucuns;
    ecrireLigne(fichier, texteLigne(entete, champs, false, aucuns, u"En-tête"_s));
}

void ecrireLignes(QIODevice &fichier, Requete &rangees, std::span<const ChampExport> champs)
{
    std::vector<QString> precedents;
    for (qint64 numero = 1; rangees.suivante(); ++numero)
        ecrireLigne(fichier, texteLigne(rangees, champs, true, precedents, u"Ligne %1"_s.arg(numero)));
}

void ecrireLigne(QIODevice &fichier, QStringView ligne)
{
    ecrireOctets(fichier, encoder(ligne) + encoder(finDeLigne));
}
