#pragma once

#include <QString>

#include <functional>

class ListesErreurs;

/// The printed list of errors, line by line, tabs included: the title between empty lines, then a block for
/// each data line, the first error with the line's number and name, further ones below. Errors and words are
/// paired by rank in their lists. @param ligne takes each printed line
void composerListe(const ListesErreurs &listes, const QString &titre,
                   const std::function<void(const QString &)> &ligne);
