#pragma once

class Base;
class Dialogue;
class Enregistrement;
class QIODevice;

/// Whether the declared figures are those of the lines; a figure that is Null counts as zero.
bool sommesConcordent(const Enregistrement &entete);

/// Writes the annual declaration of a header: format mark, header, one line for every line of it whose
/// employee is in the table. Lines end in CR LF, texts are in windows-1252, nothing is escaped.
/// @throws ErreurConversion for a Null in a field that must be filled
void ecrireDas(Base &base, const Enregistrement &entete, QIODevice &fichier);

/// Controls the current annual declaration and writes it to a file.
/// @param cheminFige whether it goes to the fixed folder, without a question and over what is there
/// @throws ErreurFatale when the file in the fixed folder can't be written
/// @return whether the file was written
bool exporterDas(Base &base, bool cheminFige, Dialogue &dialogue);
