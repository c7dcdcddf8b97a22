#pragma once

class RegistreFenetres;

/// Adds the window of the nationality import to those that the main menu opens.
void ajouterFenetresNationalites(RegistreFenetres &registre);
