#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace host {

/// The samples of a WAV file: integer PCM of 8 or 16 bits.
struct Wave {
    unsigned channels = 0;
    unsigned rate = 0;          ///< frames a second
    unsigned bitsPerSample = 0; ///< 8 (unsigned) or 16 (signed, little end first)
    QByteArray samples;         ///< whole frames
};

/// Reads the bytes of a WAV file; nothing if they are no such file or of another encoding.
std::optional<Wave> readWave(const QByteArray& bytes);

/// Plays a WAV file on the default device and comes back when it has sounded. Without a device, or
/// without a file it can read, it comes back at once, silently: false then.
bool playAndWait(const QString& path);

} // namespace host
