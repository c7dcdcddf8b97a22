#pragma once

#include "ci/enteteci.h"
#include "ci/ligneci.h"
#include "declarations/declaration.h"
#include "tests/employees/basesalaries.h"

/// A database with an employer, a bank and employees, on which claims are made. It is the 15 March 2024.
class BaseCi : public BaseSalaries
{
public:
    BaseCi();

    static const inline QString employeur = QStringLiteral("12345678");
    static const inline QString reference = QStringLiteral("123456780000000001");
    static const inline QString compte = QStringLiteral("00100123012345678938");
    static const inline QString salarie = QStringLiteral("882345000154");
    static const inline QString autreSalarie = QStringLiteral("882345000253");

    /// Adds a header, stopped from 5 to 12 January 2024, and makes it the current one.
    CleDeclaration entete(const Champs &champs = {});
    /// Adds a line of 10 hours at 100.
    void ligne(QStringView numero = salarie, qint64 cpt_z = 1, const Champs &champs = {});
    /// Brings the sums on the headers and their declared figures to those of the lines.
    void accorder();
};

/// A header that is taken without a word.
FicheEnteteCi ficheEnteteCi();
/// A line that is, too.
FicheLigneCi ficheLigneCi(QStringView numero = BaseCi::salarie, qint64 cpt_z = 1);
