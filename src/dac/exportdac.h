#pragma once

struct FichierDeclaration;

/// The file of the nominative declaration.
const FichierDeclaration &fichierDac();
