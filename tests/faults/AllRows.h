#pragma once

#include "support/ScratchProgram.h"

/// Every row of every table of a store, in the order of the tables' names and the rows' keys.
inline QStringList allRows(const ScratchProgram& program) {
    QStringList rows;
    for (const QString& table :
         program.rows(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name")))
        for (const QString& row : program.rows(QStringLiteral("SELECT * FROM %1 ORDER BY 1, 2").arg(table)))
            rows += table + QStringLiteral(": ") + row;
    return rows;
}
