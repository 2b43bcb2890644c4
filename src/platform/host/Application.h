#pragma once

#include <QString>

namespace host {

/// "Quiver-Deck": the title of every box, and the name of the user's settings.
QString title();

// The project's one version, as 16-bit numbers and as "1.0.0".
qint16 versionMajor();
qint16 versionMinor();
qint16 versionRevision();
QString versionText();

} // namespace host
