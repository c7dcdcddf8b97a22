#pragma once

class Base;
class Dialogue;
struct FichierDeclaration;

/// The file of the claim.
const FichierDeclaration &fichierCi();

/// Controls the current claim and writes it to a file, as exporter() does.
bool exporterCi(Base &base, bool cheminFige, Dialogue &dialogue);
