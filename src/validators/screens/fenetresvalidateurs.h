#pragma once

class RegistreFenetres;

/// Adds the validators' screens to the windows that the main menu opens.
void ajouterFenetresValidateurs(RegistreFenetres &registre);
