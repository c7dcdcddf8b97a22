#pragma once

class RegistreFenetres;

/// Adds the window of the annual declarations to those that the main menu opens.
void ajouterFenetresDas(RegistreFenetres &registre);
