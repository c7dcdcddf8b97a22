#pragma once

#include "rules/colonnesfixes.h"

#include <QList>
#include <QString>

class Connexion;
class Dialogue;
class Recordset;

/// A reference file of fixed columns in windows-1252, ended by a line "End".
struct FichierReference
{
    QString chemin;
    QString messageAbsent;
    /// Whether a line whose first three characters are blank is passed over; it is a bad line otherwise.
    bool sauteLignesBlanches;
    QList<ChampFixe> champs;
};

FichierReference fichierBanques();
FichierReference fichierCommunes();
FichierReference fichierWilayas();

/// Fills the table of the open, empty recordset from its file, in one transaction. A last line that no "End"
/// follows is not stored. @return false when the file is missing or bad, which the clerk was told
bool chargerReference(Connexion &cnx, Recordset &table, const FichierReference &fichier, Dialogue &dialogue);
