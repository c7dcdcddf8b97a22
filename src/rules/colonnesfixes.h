#pragma once

#include "rules/erreurs.h"
#include "rules/texte.h"

class LecteurLignes;

/// A field of a line of fixed columns: the column of the table that it fills, and where it stands in the
/// line, from 1. A column of the line is a character of the code page.
struct ChampFixe
{
    QStringView colonne;
    int debut;
    int longueur;
};

/// The text of a field, trimmed; a line that ends early has empty fields there.
inline QStringView couper(QStringView ligne, const ChampFixe &champ)
{
    return Trim(ligne.mid(champ.debut - 1, champ.longueur));
}

/// What a field stands for, converted from its text.
/// @throws ErreurConversion with the name and the columns of the field behind what was refused
template <typename Conversion>
auto convertir(QStringView texte, const ChampFixe &champ, Conversion conversion)
{
    try {
        return conversion(texte);
    } catch (const ErreurConversion &erreur) {
        throw ErreurConversion(QStringLiteral("%1\nChamp %2, colonnes %3 à %4.")
                                   .arg(erreur.texte(), champ.colonne.toString(),
                                        QString::number(champ.debut),
                                        QString::number(champ.debut - 1 + champ.longueur)));
    }
}

/// The last column that these fields, which stand in their order, take of a line.
constexpr qsizetype derniereColonne(std::span<const ChampFixe> champs)
{
    return champs.back().debut - 1 + champs.back().longueur;
}

/// The head of the next line, up to the last column that is read: what stands behind costs nothing.
/// @throws ErreurFichier as LecteurLignes::lire()
QString lireColonnes(LecteurLignes &lecteur, qsizetype longueur);
