#pragma once

#include <QString>

#include <optional>

class Base;
class Dialogue;
class Recordset;
struct Condition;
struct EntetesNumerotees;

/// The copy of an employer's lines of one period into another one, told by what it has of its own.
struct TransfertLignes
{
    const EntetesNumerotees &entetes;
    /// The number of the declaration that the copies get; without one each keeps its own.
    std::optional<qint64> type;

    struct Textes
    {
        QString sansDestination;
        QString memePeriode;
        QString sansEntete;
        /// "%1" stands for the destination.
        QString nonPrincipale;
        QString lignesPresentes;
        QString titreLignesPresentes;
    } textes;
};

/// What the clerk has chosen.
struct ChoixTransfert
{
    QString employeur;
    QString source;
    QString destination;
};

/// The lines that a transfer shows: those of all declarations of an employer for a period.
Condition lignesATransferer(const TransfertLignes &transfert, const QString &employeur,
                            const QString &periode);

/// Whether there are employers; it is told otherwise.
bool employeursPresents(Base &base, Dialogue &dialogue);

/// Copies the lines that the list shows, in its order, unless a fault is told. Sums of the header and checks
/// of the lines wait for the next change of a line there: this is meant. The shared lists show the copies
/// before the success is told.
/// @throws ErreurBase for a line that the database refuses; the copies before it stay
/// @return whether all lines were copied
bool transferer(Base &base, const TransfertLignes &transfert, const ChoixTransfert &choix,
                const Recordset &lignes, Dialogue &dialogue);
