#include "platform/host/Application.h"

using namespace Qt::StringLiterals;

namespace host {

QString title() {
    return u"Quiver-Deck"_s;
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
    return u"%1.%2.%3"_s.arg(versionMajor()).arg(versionMinor()).arg(versionRevision());
}

} // namespace host
