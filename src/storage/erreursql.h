#pragma once

#include "rules/erreurs.h"
#include "storage/valeur.h"

#include <QStringList>

class QSqlError;

/// A refusal of the database engine, with its own text in brackets behind ours.
class ErreurSql : public ErreurBase
{
public:
    ErreurSql(const QString &texte, int code);

    /// The engine's extended result code.
    int code() const { return m_code; }

    /// Whether the file itself is at fault: damaged, no database, or not to be read or written.
    bool fichierEnCause() const;

    /// Whether another program holds the database.
    bool occupee() const;

private:
    int m_code;
};

/// The engine's failure in words for the clerk, naming the column, its width and the value that was refused.
/// @param colonnes the column of each bound value, where known
ErreurSql erreurSql(const QSqlError &erreur, const QString &chemin, const QStringList &colonnes,
                    const Valeurs &valeurs);
