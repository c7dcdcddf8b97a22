#pragma once

#include <QString>

#include <functional>
#include <span>

class Dialogue;
class Enregistrement;
class QIODevice;
class Requete;

/// One export of a declaration to a file. Without a fixed folder the clerk chooses the file.
struct ExportDeclaration
{
    /// Everything that must hold before a file is opened; it tells what does not. @return whether to go on
    std::function<bool()> controler;
    /// Name of the file in the fixed folder.
    QString nomFige;
    /// Name offered in the save dialog.
    QString nomPropose;
    QString titre;
    /// Writes the whole file. What was written before a failure stays.
    std::function<void(QIODevice &)> ecrire;
    /// Told with the path when all is written.
    QString succes;
    /// Told on a failure where the clerk chose the file; when it is empty the action ends without a word.
    QString echec;
};

/// Runs an export. A failure in the fixed folder while the file is written is an ErreurFatale, any other one
/// there goes to the caller; where the clerk chooses the file, failures from the control on end here. This
/// difference is meant.
/// @return whether the file was written
bool exporter(const ExportDeclaration &declaration, bool cheminFige, Dialogue &dialogue);

/// Appends the text of one column to the line of a file.
/// @param reporte the field as the line before had it, for a column that repeats it
using EcritureChamp = void (*)(QString &ligne, const Enregistrement &rangee, int colonne, QString &reporte);

/// A field of a line of a file: the column that it comes from and how it is written.
struct ChampExport
{
    QStringView colonne;
    EcritureChamp ecrire;
};

/// The columns for a SELECT, in the order of the fields.
QString colonnesExport(std::span<const ChampExport> champs);

/// Writes a line for every row of the query, whose columns are those of colonnesExport().
void ecrireLignes(QIODevice &fichier, Requete &rangees, std::span<const ChampExport> champs);

/// Writes a line in the code page with its end. @throws ErreurFichier
void ecrireLigne(QIODevice &fichier, QStringView ligne);

// How fields are written. A Null that the first five meet is an ErreurConversion which names the column.

namespace ecriture {
void telQuel(QString &ligne, const Enregistrement &rangee, int colonne, QString &reporte);
void coupe(QString &ligne, const Enregistrement &rangee, int colonne, QString &reporte);
void jour(QString &ligne, const Enregistrement &rangee, int colonne, QString &reporte);
void montant(QString &ligne, const Enregistrement &rangee, int colonne, QString &reporte);
void entier(QString &ligne, const Enregistrement &rangee, int colonne, QString &reporte);
/// As stored; Null gives an empty field.
void telQuelOuVide(QString &ligne, const Enregistrement &rangee, int colonne, QString &reporte);
/// Trimmed; Null gives an empty field.
void coupeOuVide(QString &ligne, const Enregistrement &rangee, int colonne, QString &reporte);
} // namespace ecriture
