#pragma once

class RegistreFenetres;

/// Adds the windows of employees to those that the main menu opens.
void ajouterFenetresSalaries(RegistreFenetres &registre);
