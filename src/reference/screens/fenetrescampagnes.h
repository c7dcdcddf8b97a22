#pragma once

class RegistreFenetres;

/// Adds the windows of campaigns and of periods to those that the main menu opens.
void ajouterFenetresCampagnes(RegistreFenetres &registre);
