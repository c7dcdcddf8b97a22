#pragma once

struct GenreDeclaration;

/// The claim for a site stopped by bad weather.
const GenreDeclaration &genreCi();
