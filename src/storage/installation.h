#pragma once

/// Lays down the folder of the program's files as an installer would, when it holds no database: the four
/// reference files, the folder of the exports and an empty database with all tables. Nothing that is there is
/// overwritten. The database comes last and appears when it is complete, so a start that was killed is taken
/// up by the next.
/// @throws ErreurFatale naming what could not be made
void installerSiAbsente();
