#pragma once

#include <QString>

#include <memory>

class QIODevice;
class Validateur;

/// The file formats of the three declarations.
enum class Format { Inconnu, Das, Dac, Ci };

/// Name of the format: "DAS", "DAC", "CI", empty for an unknown one.
QString nomFormat(Format format);
/// The format of this name, whatever its case; Inconnu for any other text.
Format formatDeNom(QStringView nom);

/// The format that the first line of the open source names, Inconnu where it names none. Reading starts anew
/// behind it. @throws ErreurFichier when the source can't be read
Format formatDe(QIODevice &source);

/// A fresh validator of the format; none for an unknown one.
std::unique_ptr<Validateur> nouveauValidateur(Format format);
