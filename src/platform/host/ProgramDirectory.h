#pragma once

#include <QString>

namespace host {

/// The folder of the running program, without a separator at its end.
QString programDirectory();
/// Sets another folder; an empty text brings the executable's own back.
void setProgramDirectory(const QString& folder);

/// The program's directory followed by `text` as it stands, backslashes and letter case kept:
/// joined("\\images\\FolderXP.JPG").
QString joined(const QString& text);

/// The real file behind a stored path: backslashes separate folders and letter case does not count. The
/// path may be absolute, begin with the program's directory, or be relative to it. Where several names
/// differ in case alone the exact one wins. A path to nothing comes back with its unknown part as it is.
QString resolve(const QString& storedPath);

} // namespace host
