#pragma once

#include "rules/document.h"

class ListesErreurs;

/// The printed list of errors: the title between empty lines, then a block for each data line, the first
/// error with the line's number and name, further ones below. Errors and words are paired by rank in their
/// lists, which must live as long as the document.
Document listeImprimee(const ListesErreurs &listes, const QString &titre);
