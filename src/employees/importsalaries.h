#pragma once

#include "rules/avancement.h"

class Base;
class Dialogue;

/// How the import of an employee file ended.
struct ImportSalaries
{
    /// Whether the file is in the database; nothing of it is otherwise.
    bool fait = false;
    qint64 ajoutes = 0;
    qint64 ignores = 0;
    bool employeurAjoute = false;
};

/// What an import shows while it runs.
struct SuiviImport
{
    Avancement avancer;
    /// Shows the counts, before the clerk is told of the end.
    std::function<void(const ImportSalaries &)> compter;
};

/// Lets the clerk choose a file "KORVANDEL SALARIE VER 1.0" and adds its employer and the employees whose
/// number the table lacks, in one transaction. Nothing is checked but the dates. Every failure but a wrong
/// first line, and a stop, ends without a word and leaves the database as it was.
ImportSalaries importerSalaries(Base &base, Dialogue &dialogue, const SuiviImport &suivi);
