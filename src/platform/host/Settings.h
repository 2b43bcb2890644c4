#pragma once

#include <QString>

namespace host {

/// Writes a setting of the user: an INI file named after the application's title in the user's
/// configuration folder. The section "General" holds the top-level keys. Raises error 75 if the file
/// cannot be written.
void saveSetting(const QString& section, const QString& key, const QString& value);

QString settingsFile();
/// Puts the file into another folder; an empty text brings the user's own back.
void setSettingsFolder(const QString& folder);

} // namespace host
