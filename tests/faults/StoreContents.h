#pragma once

#include <QString>
#include <QStringList>

/// A store as anybody finds it, beside the program's own road. What fails throws std::runtime_error.
namespace storeContents {

/// Every row of every table, "table: column|column|…", in the order of their keys.
QStringList of(const QString& path);

/// Runs one statement on it.
void apply(const QString& path, const QString& sql);

} // namespace storeContents
