#pragma once

class RegistreFenetres;

/// Adds the windows of employers and of banks to those that the main menu opens.
void ajouterFenetresEmployeurs(RegistreFenetres &registre);
