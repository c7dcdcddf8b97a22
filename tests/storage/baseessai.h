#pragma once

#include "storage/base.h"

#include <QTemporaryDir>

/// A database file of a test's own in today's layout, opened as the program opens it, with all recordsets.
class BaseEssai
{
public:
    BaseEssai();

    QString chemin() const { return m_dossier.filePath(QStringLiteral("das.mdb")); }
    /// Writes a file beside the database. @return its path
    QString fichier(const QString &nom, const QByteArray &octets) const;
    /// The rows of a query, their columns joined by "|", Null shown as "NULL".
    QStringList lignes(const QString &sql) { return lignes(base.Cnx, sql); }
    static QStringList lignes(Connexion &cnx, const QString &sql);

private:
    QTemporaryDir m_dossier;

public:
    Base base;
};

/// Opens a database with all its recordsets.
void ouvrirTables(Base &base, const QString &chemin);
/// Lets the file grow by that many pages and no more; without a number it grows as it likes.
void limiterPages(Connexion &cnx, std::optional<int> pages = {});
