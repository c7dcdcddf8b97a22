#pragma once

#include "employees/affiliation.h"
#include "storage/base.h"

#include <QTemporaryDir>

/// A database of today's layout in a folder of its own, with a few wilayas, communes and nationalities.
class BaseSalaries
{
public:
    BaseSalaries();

    QString chemin() const { return m_dossier.filePath(QStringLiteral("das.mdb")); }
    QString fichier(const QString &nom, const QByteArray &octets) const;

    /// Adds an employee; columns that are not given get those of a national with everything in order.
    void ajouter(const QString &numero, qint64 cpt_z, const Champs &champs = {});
    void peupler(int salaries);

    /// The rows of a query, their columns joined by "|", Null shown as "NULL".
    QStringList lignes(const QString &sql) { return lignes(base.Cnx, sql); }
    static QStringList lignes(Connexion &cnx, const QString &sql);

private:
    QTemporaryDir m_dossier;

public:
    Base base;
};

/// Opens the database and the recordsets that the employees' routines use.
void ouvrirPourSalaries(Base &base, const QString &chemin);

/// A national in whom no rule finds a fault: born in 1988, certificate 12345.
FicheSalarie ficheNationale();
/// The same person as a foreigner.
FicheSalarie ficheEtrangere();
