#pragma once

class Base;
class Dialogue;

/// How a start ended.
enum class Demarrage {
    /// All tables are open.
    Complet,
    /// The clerk was told why it stopped; the main window stays open with what is open so far.
    Interrompu,
    /// Tables were created and the clerk told to start again: the program ends now.
    FinProgramme
};

/// The start of the program: lays down the files on a fresh machine, opens the database and the shared
/// recordsets, brings an older database to today's layout one group of gaps at a time, and fills the empty
/// reference tables.
/// @throws ErreurFatale when the program must end: no usable database, or a table that could not be created
/// @throws ErreurBase when a delivered table is missing; the program goes on with what is open
Demarrage demarrer(Base &base, Dialogue &dialogue);
