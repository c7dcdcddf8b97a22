#pragma once

struct EntetesNumerotees;
struct GenreDeclaration;

/// The annual declaration.
const GenreDeclaration &genreDas();

/// Its headers: the period is the campaign's year.
const EntetesNumerotees &entetesDas();
