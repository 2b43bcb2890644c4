// Makes the click of the muscle map: quiverdeck-make-sound <file to write>
// A soft tick of 60 ms, mono, 16 bits: two sines under a fast decay, at most a quarter of full scale.
#include <QByteArray>
#include <QDataStream>
#include <QFile>

#include <cmath>
#include <cstdio>
#include <numbers>

namespace {
constexpr quint32 rate = 44100; // samples a second
constexpr quint32 samples = rate * 60 / 1000;
constexpr double peak = 8000;

qint16 sample(quint32 index) {
    const double t = static_cast<double>(index) / rate;
    const double attack = 1 - std::exp(-t / 0.0008); // no edge at the start, which would sound hard
    const double decay = std::exp(-t / 0.011);
    const double end = 1 - static_cast<double>(index) / samples; // silence exactly at the end
    const double turn = 2 * std::numbers::pi * t;
    const double wave = 0.7 * std::sin(turn * 1250) + 0.3 * std::sin(turn * 2480);
    return static_cast<qint16>(std::lround(peak * attack * decay * end * wave));
}

QByteArray wave() {
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    constexpr quint32 dataBytes = samples * sizeof(qint16);
    out.writeRawData("RIFF", 4);
    out << quint32{36 + dataBytes};
    out.writeRawData("WAVEfmt ", 8);
    out << quint32{16} << quint16{1} << quint16{1} << rate << rate * quint32{2} << quint16{2} << quint16{16};
    out.writeRawData("data", 4);
    out << dataBytes;
    for (quint32 i = 0; i < samples; ++i)
        out << sample(i);
    return bytes;
}
} // namespace

int main(int argc, char* argv[]) {
    if (argc != 2) {
        std::fputs("usage: quiverdeck-make-sound <file to write>\n", stderr);
        return 2;
    }
    QFile file(QString::fromLocal8Bit(argv[1]));
    const QByteArray bytes = wave();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()) {
        std::fprintf(stderr, "quiverdeck-make-sound: %s cannot be written\n", argv[1]);
        return 1;
    }
    return 0;
}
