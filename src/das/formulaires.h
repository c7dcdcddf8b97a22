#pragma once

#include "rules/document.h"

#include <optional>

class Base;
class Dialogue;
class Enregistrement;

// The printed forms of the annual declaration on a header's row. Each throws ErreurBase when the header or
// its employer is gone: then there is nothing to print.

/// The declaration form, with the figures of the lines.
/// @return nothing when the declared figures are others, which is told
std::optional<Document> DataReport1(Base &base, const Enregistrement &entete, Dialogue &dialogue);

/// The label for the CD that carries the file; nothing stands in its way.
std::optional<Document> DataReport2(Base &base, const Enregistrement &entete, Dialogue &dialogue);

/// The list of the lines whose employee is in the table.
/// @return nothing when the declared figures are others and the clerk gives up
std::optional<Document> DataReport3(Base &base, const Enregistrement &entete, Dialogue &dialogue);
