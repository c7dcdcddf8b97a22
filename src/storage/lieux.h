#pragma once

#include <QString>

/// The fixed places of the program's files. No option, variable or file moves them; they are worked out at
/// each call because the home folder is the user's.

/// C:\DAS_KORVANDEL on Windows, DAS_KORVANDEL in the user's home folder elsewhere.
QString dossierDas();

/// The database.
QString cheminBase();

QString cheminBanques();
QString cheminCommunes();
QString cheminWilayas();
/// The nationalities, imported by hand and not at start.
QString cheminCountry();

/// Where the exports to the fixed folder go.
QString dossierExpor();

/// A file's name that stays in its folder, on any system: what is told of a declaration may come from a file.
QString nomDeFichier(QString nom);
