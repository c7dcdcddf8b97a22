#pragma once

#include "ci/enteteci.h"
#include "ci/ligneci.h"
#include "declarations/declaration.h"
#include "tests/employees/basesalaries.h"

/// A database with an employer, a bank and two employees, on which claims are made. It is the 15 March 2024.
class BaseCi : public BaseSalaries
{
public:
    BaseCi();

    static const inline QString employeur = QStringLiteral("12345678");
    static const inline QString reference = QStringLiteral("123456780000000001");
    static const inline QString compte = QStringLiteral("00100123012345678938");
    static const inline QString salarie = QStringLiteral("882345000154");      ///< BENALI
    static const inline QString autreSalarie = QStringLiteral("882345000253"); ///< D'ARC
    static const inline QString sansNumero = QStringLiteral("000000000000");

    /// Adds a header, stopped from 5 to 12 January 2024; the first one is current.
    /// @param autres what it has otherwise, as in an UPDATE
    CleDeclaration entete(const QString &autres = {});
    /// Adds a line of 10 hours at 100.
    void ligne(const QString &numero = salarie, qint64 cpt_z = 1, const QString &autres = {});
};

/// A header that is taken without a word.
FicheEnteteCi ficheEnteteCi();
/// A line that is, too.
FicheLigneCi ficheLigneCi(const QString &numero = BaseCi::salarie, qint64 cpt_z = 1,
                          const QString &heures = QStringLiteral("10"),
                          const QString &salaire = QStringLiteral("100.00"));

/// The rows of a table of cases, in columns.
QList<QStringList> table(const QString &chemin);
