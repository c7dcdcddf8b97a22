#pragma once

#include <QTest>

#include <tuple>

/// Makes the rows of a data-driven test out of structs or tuples. The name of the row is the member `nom` of
/// a struct, and stands first in a tuple. The test takes its row by QFETCH(Cas, cas).
template <typename Cas>
void lignesDuTest(const QList<Cas> &tous)
{
    QTest::addColumn<Cas>("cas");
    for (const Cas &un : tous) {
        if constexpr (requires { un.nom; })
            QTest::newRow(un.nom) << un;
        else
            QTest::newRow(std::get<0>(un)) << un;
    }
}
