#pragma once

#include "rules/avancement.h"

class Base;
class Dialogue;

/// Lets the clerk choose a file in one of the two older forms of the annual declaration, lines of fixed
/// columns, and adds its header and its lines with the employer, the campaign and the employees that are
/// missing, in one transaction. Nothing is checked but dates and numbers; the header's sums stay zero until a
/// line changes.
/// @return whether the file is in the database; nothing of it is when the clerk was told why not
/// @throws Erreur naming the line; nothing of the file stays then
bool importerDas(Base &base, Dialogue &dialogue, const Avancement &avancement);
