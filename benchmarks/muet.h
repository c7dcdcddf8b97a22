#pragma once

#include "rules/dialogue.h"

/// Says yes to everything, and nothing.
class Muet : public Dialogue
{
public:
    explicit Muet(QString chemin = {}) : m_chemin(std::move(chemin)) {}
    QString choisirFichier(const QString &, const QString &) override { return m_chemin; }
    QString choisirDestination(const QString &, const QString &, const QString &) override
    {
        return m_chemin;
    }

protected:
    bool montrer(const Boite &) override { return true; }

private:
    QString m_chemin;
};
