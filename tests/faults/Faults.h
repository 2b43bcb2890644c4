#pragma once

#include "support/ScratchProgram.h"

#include <QDateTime>
#include <QTest>

namespace faults {

/// Every row of every table of a store, in the order of the tables' names and the rows' keys; but for the
/// count of its starts, which the program writes by itself.
inline QStringList allRows(const ScratchProgram& program) {
    const QString tables =
        QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name");
    QStringList rows;
    for (const QString& table : program.rows(tables))
        rows += QStringList(table) + program.rows("SELECT * FROM " + table + " ORDER BY 1, 2");
    rows.removeIf([](const QString& row) { return row.contains("CAMBIO_RISOLUZIONE"); });
    return rows;
}

inline const bool isLong = qEnvironmentVariableIntValue("QUIVERDECK_LONG") != 0;

/// Rows for a test at random moments: a seed each, counted up from the time of day, so that every run meets
/// others. QUIVERDECK_SEED=n replays the row of that seed alone.
inline void seeds(unsigned count) {
    QTest::addColumn<unsigned>("seed");
    bool replayed = false;
    unsigned first = qEnvironmentVariable("QUIVERDECK_SEED").toUInt(&replayed);
    if (!replayed)
        first = static_cast<unsigned>(QDateTime::currentSecsSinceEpoch() % 1'000'000 * 1000);
    for (unsigned i = 0; i < (replayed ? 1 : count); ++i)
        QTest::addRow("QUIVERDECK_SEED=%u", first + i) << first + i;
}

} // namespace faults
