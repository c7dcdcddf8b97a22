#pragma once

#include <QString>

#include <functional>

class Dialogue;
class QIODevice;

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
    /// What follows the success; its failure is not told.
    std::function<void()> ensuite = {};

    /// Where the clerk chooses the file, failures from here on end the action.
    enum class Gardien { DesLeControle, DesLeChoix, Aucun } gardien = Gardien::DesLeControle;
    /// Told of such a failure; when it is empty the action ends without a word.
    QString echec = {};
    /// Whether a failure in the fixed folder, while the file is written, ends the program.
    bool fatalAuDossierFixe = true;
    /// The title of the warning that no file was chosen; a plain box when it is empty.
    QString titreSansFichier = {};
};

/// Runs an export: control, target, file, success. The declarations differ in what becomes of a failure, and
/// this is meant; one that nothing guards goes to the caller.
/// @throws ErreurFatale for a failure in the fixed folder, where it ends the program
/// @return whether the file was written
bool exporter(const ExportDeclaration &declaration, bool cheminFige, Dialogue &dialogue);
