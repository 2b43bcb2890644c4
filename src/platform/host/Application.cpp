#include "platform/host/Application.h"

namespace host {

QString title() {
    return QStringLiteral("Quiver-Deck");
}

qint16 versionMajor() {
    return QUIVERDECK_VERSION_MAJOR;
}

qint16 versionMinor() {
    return QUIVERDECK_VERSION_MINOR;
}

qint16 versionRevision() {
    return QUIVERDECK_VERSION_PATCH;
}

QString versionText() {
    return QStringLiteral("%1.%2.%3").arg(versionMajor()).arg(versionMinor()).arg(versionRevision());
}

} // namespace host
