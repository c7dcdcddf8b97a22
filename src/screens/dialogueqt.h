#pragma once

#include "rules/dialogue.h"

/// The dialogue with the clerk at the screen.
class DialogueQt : public Dialogue
{
public:
    QString choisirFichier(const QString &titre, const QString &filtre) override;
    QString choisirDestination(const QString &titre, const QString &propose, const QString &filtre) override;

protected:
    bool montrer(const Boite &boite) override;
};
