#pragma once

#include <QString>

namespace catalogue {

/// Where the readable sources of the store lie.
struct Sources {
    QString folder; ///< schema.sql, the tables as CSV, and modelli/ with one file for each supplied template
};

/// Builds the store as it ships, from `sources`, at `target`. What stood there is replaced, at once and only
/// when all went well. Throws Error naming file and line of a source that does not fit.
void buildStore(const Sources& sources, const QString& target);

/// The stored path of a figure's picture: "images\figure\" + code + ".JPG".
QString storedPicture(const QString& code);

} // namespace catalogue
