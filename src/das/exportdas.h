#pragma once

class Base;
class Dialogue;
struct FichierDeclaration;

/// The file of the annual declaration.
const FichierDeclaration &fichierDas();

/// Controls the current annual declaration and writes it to a file, as exporter() does.
bool exporterDas(Base &base, bool cheminFige, Dialogue &dialogue);
