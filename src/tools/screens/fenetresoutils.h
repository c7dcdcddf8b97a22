#pragma once

class RegistreFenetres;

/// Adds the windows of the tools to those that the main menu opens.
void ajouterFenetresOutils(RegistreFenetres &registre);
