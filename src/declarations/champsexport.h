#pragma once

#include <QString>

#include <optional>
#include <span>

class Base;
class Enregistrement;
class QIODevice;
struct CleDeclaration;
struct GenreDeclaration;

/// How a value stands in a file.
enum class Forme {
    TelQuel, ///< as it is stored
    Coupe,   ///< without the blanks at both ends
    Jour,    ///< dd/mm/yyyy
    Montant, ///< plain text of the amount, the separator ","
    Entier,
};

/// Which texts of a masked field count as Null.
enum class Inacheve {
    Garde,       ///< none
    SiRienSaisi, ///< the mask with nothing in it
    SiIncomplet, ///< every text with a "_"
};

/// A field of a line of a file: all there is to say of how it is written.
struct ChampExport
{
    QStringView colonne;
    Forme forme = Forme::TelQuel;
    /// Stands for Null. Without one the column must be filled.
    std::optional<QStringView> siNul = {};
    /// Stands for a text that is empty in its form; the empty text without one.
    std::optional<QStringView> siVide = {};
    Inacheve inacheve = Inacheve::Garde;
    /// Null repeats what the line before had, nothing on the first line.
    bool reporte = false;
    /// Characters that the field has: a longer text is cut, a shorter one gets blanks behind it. 0 for any.
    int largeur = 0;
};

/// What a declaration's file is made of.
struct FormatExport
{
    QStringView marque;
    /// The second line, from the header's columns.
    std::span<const ChampExport> entete;
    /// The other lines, from the columns of a line ("l.") and of its employee.
    std::span<const ChampExport> ligne;
};

/// Writes the declaration of a header: format mark, header, one line for every line of it whose employee is
/// in the table. Every field has its ";", lines end in CR LF, texts are in windows-1252, nothing is escaped.
/// @param cle whose lines are written
/// @throws ErreurConversion for a Null in a field that must be filled, naming line and column
/// @throws ErreurFichier
void ecrireDeclaration(Base &base, const GenreDeclaration &genre, const FormatExport &format,
                       const Enregistrement &entete, const CleDeclaration &cle, QIODevice &fichier);
