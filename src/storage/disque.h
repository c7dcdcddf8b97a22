#pragma once

#include <QString>

#include <system_error>

class QFile;

// What the program writes holds the data of persons: on Unix it is its user's alone, whatever the user's
// settings are. And it is on the disk before the clerk is told that it is written: a machine that loses its
// power then keeps it. A disk that knows no owners, or can't say that it has written, is taken as it is.

/// Opens the file for writing, empty and closed to others before the first word goes into it.
/// @return false when the file says why in errorString()
bool creerPrive(QFile &fichier);

/// Makes the folder and those that it needs, for the user alone. @return why it could not
std::error_code creerDossierPrive(const QString &dossier);

/// Closes the folder, and all that lies in it, to others. What is not the user's stays as it is.
void fermerAuxAutres(const QString &dossier);

/// Brings what was written into the file to the disk. @return why it could not
std::error_code mettreSurDisque(QFile &fichier);

/// Brings the names of the folder, new and gone ones, to the disk. @return why it could not
std::error_code mettreNomsSurDisque(const QString &dossier);

/// Why a file or folder can't be written, in French, with the system's own words behind.
QString causeSysteme(std::error_code erreur);
