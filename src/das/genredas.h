#pragma once

struct GenreDeclaration;

/// The annual declaration: its period is the campaign's year.
const GenreDeclaration &genreDas();
