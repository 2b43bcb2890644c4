#pragma once

#include "support/ScratchProgram.h"

#include <QDateTime>
#include <QFile>
#include <QTest>

#include <stdexcept>

namespace faults {

/// Every row of every table of a store, in the order of the tables' names and the rows' keys; but for the
/// count of its starts, which the program writes by itself.
inline QStringList allRows(const ScratchProgram& program) {
    using namespace Qt::StringLiterals;
    QStringList rows;
    for (const QString& table :
         program.rows(u"SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"_s)) {
        for (const QString& row : program.rows(u"SELECT * FROM %1 ORDER BY 1, 2"_s.arg(table)))
            rows += table + u": "_s + row;
    }
    rows.removeIf([](const QString& row) { return row.contains(u"CAMBIO_RISOLUZIONE"_s); });
    return rows;
}

inline QByteArray read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        throw std::runtime_error("cannot write " + path.toStdString());
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
