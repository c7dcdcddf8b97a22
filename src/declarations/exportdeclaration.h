#pragma once

#include "declarations/champsexport.h"

class Base;
class Dialogue;
struct GenreDeclaration;

/// The file of a declaration and the way of its export, as the one declaration has it and not the other.
struct FichierDeclaration
{
    const GenreDeclaration &genre;

    // The text of the file: its mark, its header and a line for every line whose employee is in the table

    QStringView marque;
    std::span<const ChampExport> entete;
    std::span<const ChampExport> ligne;

    // The names, with the columns of the header in braces

    /// In the fixed folder.
    QString nomFige;
    /// Offered in the save dialog.
    QString nomPropose;

    // What must hold before a file is opened. What does not is told.

    using Controle = bool (*)(Base &base, const Enregistrement &entete, Dialogue &dialogue);
    Controle avantSommes = nullptr;
    /// Told when the declared figures are not those of the lines, under its title.
    QString sommesDifferentes;
    QString titreSommes = {};
    Controle apresSommes = nullptr;

    /// Title of the warning when no file is named; a plain box without one.
    QString titreSansNom = {};
    /// Whether the lines list shows all lines of what is exported.
    bool montreLignes = true;

    // How it ends

    /// From where on a failure ends in this export, where the clerk chooses the file.
    enum class Gestion { DesLeControle, DesLaCible, Aucune };
    Gestion gestion = Gestion::Aucune;
    /// Told of such a failure; when it is empty the action ends without a word.
    QString echec = {};
    /// Whether a failure of the writing into the fixed folder ends the program.
    bool echecFatal = false;
    /// Told with the path when all is written.
    QString succes;
    /// Run behind that. Its failures are swallowed.
    void (*ensuite)(Base &base, const Enregistrement &entete) = nullptr;
};

/// Writes the file of a header. Lines end in CR LF, texts are in windows-1252, nothing is escaped.
/// @throws ErreurConversion for what a field can't be
void ecrireDeclaration(const FichierDeclaration &fichier, Base &base, const Enregistrement &entete,
                       QIODevice &sortie);

/// Controls a declaration and writes it to a file: that of the fixed folder, without a question and over what
/// is there, or one that the clerk chooses. What was written before a failure stays. That failures end
/// otherwise on the two routes is meant.
/// @throws ErreurFatale for a failure that is to end the program
/// @return whether the file was written
bool exporter(const FichierDeclaration &fichier, Base &base, const Enregistrement &entete, bool cheminFige,
              Dialogue &dialogue);
