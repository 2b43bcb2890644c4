#pragma once

#include "CsvFile.h"
#include "Database.h"
#include "support/Suite.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// What the tests of built stores share.
namespace stores {

inline void write(const QString& path, const QString& text) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text.toUtf8());
}

/// The first column of the rows that `sql` gives.
inline QStringList rows(catalogue::Database& store, const QString& sql) {
    QStringList result;
    catalogue::Statement statement(store, sql);
    while (statement.next())
        result += statement.text(0);
    return result;
}

inline QString texts(catalogue::Database& store, const QString& sql) {
    return rows(store, sql).join(QLatin1String(", "));
}

/// The project's own sources of the store.
inline QDir sources() {
    return QDir(qEnvironmentVariable("QUIVERDECK_SOURCE") + QLatin1String("/data"));
}

} // namespace stores
