#pragma once

#include <QByteArray>
#include <QString>
#include <QTest>

#include <chrono>
#include <random>
#include <thread>

/// The seeds of a test that kills at random moments: one a row, counted up from the time of day, so that
/// every run meets others. QUIVERDECK_SEED=n replays the row of that seed alone.
namespace moments {

inline bool isLong() {
    return qEnvironmentVariableIntValue("QUIVERDECK_LONG") != 0;
}

inline void rows(int count) {
    QTest::addColumn<unsigned>("seed");
    const auto row = [](unsigned seed) {
        QTest::newRow(("QUIVERDECK_SEED=" + QByteArray::number(seed)).constData()) << seed;
    };
    bool replayed = false;
    const unsigned seed = qEnvironmentVariable("QUIVERDECK_SEED").toUInt(&replayed);
    if (replayed) {
        row(seed);
        return;
    }
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const auto first = static_cast<unsigned>(std::chrono::duration_cast<std::chrono::seconds>(now).count() %
                                             1'000'000 * 1000);
    for (int i = 0; i < count; ++i)
        row(first + static_cast<unsigned>(i));
}

/// Some microseconds below `most`, so that the moment falls anywhere in what goes on.
inline void pass(std::mt19937& random, unsigned most) {
    std::this_thread::sleep_for(std::chrono::microseconds(random() % most));
}

} // namespace moments
