#pragma once

#include "CsvFile.h"
#include "Database.h"
#include "support/Files.h"
#include "support/Suite.h"

#include <QTemporaryDir>

/// What the tests of built stores share.
namespace stores {

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

/// Copies the project's own sources of the store but the figures and templates to a folder, and gives it a
/// template of these lines. The template's first line of exercises is the sixth.
inline void makeSources(const QString& folder, const QString& title, const QString& category,
                        const QString& lines) {
    const QDir data(qEnvironmentVariable("QUIVERDECK_SOURCE") + QLatin1String("/data"));
    writeFile(folder + QStringLiteral("/modelli/%1.csv").arg(title),
              QStringLiteral("categoria: %1\ndescrizione: %2\nnote: n\n\n"
                             "figura;durata;frequenza;ampiezza;recupero;serie;modalita;peso;note\n%3\n")
                  .arg(category, title, lines)
                  .toUtf8());
    for (const QString& file : data.entryList({QStringLiteral("*.csv"), QStringLiteral("*.sql")}))
        QFile::copy(data.filePath(file), folder + QLatin1Char('/') + file);
}

} // namespace stores
