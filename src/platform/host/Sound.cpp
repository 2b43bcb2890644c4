#include "platform/host/Sound.h"

#include <QFile>
#include <QtEndian>

#include <alsa/asoundlib.h>

#include <memory>

namespace host {

namespace {

constexpr qint64 largestFile = qint64{64} * 1024 * 1024;
constexpr quint16 formatPcm = 1;
constexpr unsigned latencyMicroseconds = 200000;

struct ClosePcm {
    void operator()(snd_pcm_t* pcm) const { snd_pcm_close(pcm); }
};

quint32 number32(const QByteArray& bytes, qsizetype at) {
    return qFromLittleEndian<quint32>(bytes.constData() + at);
}

quint16 number16(const QByteArray& bytes, qsizetype at) {
    return qFromLittleEndian<quint16>(bytes.constData() + at);
}

/// The sound library would write its complaints to the terminal.
void ignoreMessage(const char* /*file*/, int /*line*/, const char* /*function*/, int /*error*/,
                   const char* /*format*/, ...) {}

bool play(const Wave& wave) {
    snd_lib_error_set_handler(&ignoreMessage);
    snd_pcm_t* handle = nullptr;
    // Opened without waiting: a device in use by another program must not hold this one up.
    if (snd_pcm_open(&handle, "default", SND_PCM_STREAM_PLAYBACK, SND_PCM_NONBLOCK) < 0)
        return false;
    const std::unique_ptr<snd_pcm_t, ClosePcm> pcm(handle);
    const auto format = wave.bitsPerSample == 8 ? SND_PCM_FORMAT_U8 : SND_PCM_FORMAT_S16_LE;
    if (snd_pcm_nonblock(handle, 0) < 0 ||
        snd_pcm_set_params(handle, format, SND_PCM_ACCESS_RW_INTERLEAVED, wave.channels, wave.rate, 1,
                           latencyMicroseconds) < 0)
        return false;
    const qsizetype frameBytes = qsizetype{wave.channels} * (wave.bitsPerSample / 8);
    const char* at = wave.samples.constData();
    auto left = static_cast<snd_pcm_uframes_t>(wave.samples.size() / frameBytes);
    while (left > 0) {
        snd_pcm_sframes_t written = snd_pcm_writei(handle, at, left);
        if (written < 0)
            written = snd_pcm_recover(handle, static_cast<int>(written), 1);
        if (written < 0)
            return false;
        at += written * frameBytes;
        left -= static_cast<snd_pcm_uframes_t>(written);
    }
    snd_pcm_drain(handle);
    return true;
}

} // namespace

std::optional<Wave> readWave(const QByteArray& bytes) {
    if (bytes.size() < 12 || !bytes.startsWith("RIFF") || bytes.mid(8, 4) != "WAVE")
        return std::nullopt;
    Wave wave;
    qsizetype at = 12;
    while (at + 8 <= bytes.size()) {
        const QByteArray name = bytes.mid(at, 4);
        const qint64 size = number32(bytes, at + 4);
        const qsizetype body = at + 8;
        if (name == "fmt " && size >= 16 && body + 16 <= bytes.size()) {
            if (number16(bytes, body) != formatPcm)
                return std::nullopt;
            wave.channels = number16(bytes, body + 2);
            wave.rate = number32(bytes, body + 4);
            wave.bitsPerSample = number16(bytes, body + 14);
        } else if (name == "data") {
            if (wave.channels == 0 || wave.rate == 0 || (wave.bitsPerSample != 8 && wave.bitsPerSample != 16))
                return std::nullopt;
            wave.samples = bytes.mid(body, size); // a file cut short gives what it has
            const qsizetype frame = qsizetype{wave.channels} * (wave.bitsPerSample / 8);
            wave.samples.chop(wave.samples.size() % frame);
            return wave;
        }
        at = body + size + (size & 1); // blocks stand at even places
    }
    return std::nullopt;
}

bool playAndWait(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > largestFile)
        return false;
    const auto wave = readWave(file.readAll());
    return wave && !wave->samples.isEmpty() && play(*wave);
}

} // namespace host
