#pragma once

#include "storage/connexion.h"
#include "storage/recordset.h"

/// What all windows share: the one connection, the command and the recordsets, which live as long as the
/// program. demarrer() opens them. A recordset that the start did not reach throws ErreurBase when it is
/// used.
class Base
{
public:
    Base();

    /// Opens the database after looking at it closely; the file is left as it is when something is wrong with
    /// it.
    /// @throws ErreurFatale naming the file when it is missing, no database, damaged, read-only or locked
    void OuvrirBase(const QString &chemin);

    /// Whether there is something to declare about: a campaign and an employer.
    bool declarationsPossibles() const;

    Connexion Cnx;
    Commande CmdSql;

    Recordset RsSalarie;
    Recordset RsNationalite;
    Recordset RsBanque;
    Recordset RsLigneDas;
    Recordset RsDetailCi;
    Recordset RsEnteteDas;
    Recordset RsEnteteCi;
    Recordset RsAnnee;
    Recordset RsEmployeur;
    Recordset RsPeriode;
    Recordset RsEnteteDac;
    Recordset RsLigneDac;
    Recordset RsCommune;
    Recordset RsWilaya;
};
