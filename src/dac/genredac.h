#pragma once

struct EntetesNumerotees;
struct GenreDeclaration;
struct TransfertLignes;

/// The nominative declaration.
const GenreDeclaration &genreDac();

/// Its headers: the period is a month or a quarter.
const EntetesNumerotees &entetesDac();

/// The copy of the lines of one period into another one; they keep the number of their declaration.
const TransfertLignes &transfertDac();
