#pragma once

class Base;
class Dialogue;

/// Fills the empty table of nationalities from its file, once; the clerk is told how it went. A line that the
/// table refuses ends the import without a word, and the table stays empty.
/// @return whether the table was filled
bool importerNationalites(Base &base, Dialogue &dialogue);
