#pragma once

#include <QTest>

/// Makes the rows of a data-driven test out of structs, whose first member `nom` is the name of the row. The
/// test takes its row by QFETCH(Cas, cas).
template <typename Cas>
void lignesDuTest(const QList<Cas> &tous)
{
    QTest::addColumn<Cas>("cas");
    for (const Cas &un : tous)
        QTest::newRow(un.nom) << un;
}
