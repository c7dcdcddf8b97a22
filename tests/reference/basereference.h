#pragma once

#include "storage/base.h"

#include <QTemporaryDir>

/// A database file of a test's own in today's layout, opened as the program opens it.
class BaseReference
{
public:
    BaseReference();

    QString chemin() const { return m_dossier.filePath(QStringLiteral("das.mdb")); }
    /// The one column of a query, row by row.
    QStringList lignes(const QString &sql);

private:
    QTemporaryDir m_dossier;

public:
    Base base;
};
