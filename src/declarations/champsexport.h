#pragma once

#include <QString>

#include <optional>
#include <span>

class Enregistrement;
class QIODevice;
class Requete;

enum class FormeChamp { TelQuel, Coupe, Jour, Montant, Entier };

/// A field of a line of a file: the column that it comes from and how it is written. Everything that a field
/// does is told here, side by side with the others.
struct ChampExport
{
    QStringView colonne;
    FormeChamp forme = FormeChamp::TelQuel;
    /// What stands for Null; without it Null is a failure that names the column.
    std::optional<QStringView> siNul = {};
    /// What stands for an empty text; without it that is a text like others.
    std::optional<QStringView> siVide = {};
    /// Whether blanks alone are an empty text.
    bool blancsVides = false;
    /// A text that holds this counts as Null: a mask that was not filled in.
    QStringView nulSiContient = {};
    /// A text that is this counts as Null.
    QStringView nulSiEgal = {};
    /// Whether Null repeats what the line before had.
    bool repete = false;
    /// How many characters it is held in: cut, or filled with blanks on the right; 0 for as many as it has.
    int largeur = 0;
};

/// The columns for a SELECT, in the order of the fields.
QString colonnesExport(std::span<const ChampExport> champs);

/// Writes the header of a file. @throws ErreurConversion naming the column
void ecrireEntete(QIODevice &fichier, const Enregistrement &entete, std::span<const ChampExport> champs);

/// Writes a line for every row of the query, whose columns are those of colonnesExport().
/// @throws ErreurConversion naming line and column
void ecrireLignes(QIODevice &fichier, Requete &rangees, std::span<const ChampExport> champs);

/// Writes a line in the code page with its end. @throws ErreurFichier
void ecrireLigne(QIODevice &fichier, QStringView ligne);
