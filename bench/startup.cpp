// The program's start and memory, process against process: the real program on folders of 100, 300 and 1,000
// figures, beside an empty Qt window and the bare decoding of as many thumbnails. The roles take turns, as
// many rounds as the argument says.

#include "Desk.h"
#include "Table.h"
#include "World.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QImageReader>
#include <QProcess>
#include <QTextStream>
#include <QWidget>

#include <array>
#include <cstdio>
#include <ctime>
#include <map>
#include <stdexcept>
#include <string>
#include <sys/inotify.h>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::string_literals;

namespace {

constexpr int usualRounds = 11;
constexpr int thumbnail = 150; // pixels
constexpr auto ready = "Application END";

/// Tells that it is there in the way the program does: by a line in the log.
void tell() {
    QFile log(u"log.txt"_s);
    if (log.open(QIODevice::Append))
        log.write(QByteArray(ready) + "\r\n");
}

/// The role of the empty window: a window and nothing else, until it is painted.
class Empty : public QWidget {
protected:
    void paintEvent(QPaintEvent* /*event*/) override { tell(); }
};

double processorMs(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return double(time.tv_sec) * 1000 + double(time.tv_nsec) / 1e6;
}

/// The role of the bare decoding: each file at the size of its thumbnail. Prints processor and wall time.
int decode(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList files = QCoreApplication::arguments().mid(2);
    const double before = processorMs(CLOCK_PROCESS_CPUTIME_ID);
    QElapsedTimer wall;
    wall.start();
    for (const QString& file : files) {
        QImageReader reader(file);
        reader.setScaledSize(reader.size().scaled(thumbnail, thumbnail, Qt::KeepAspectRatio));
        if (reader.read().isNull())
            return 1;
    }
    std::printf("%f %f\n", processorMs(CLOCK_PROCESS_CPUTIME_ID) - before, double(wall.nsecsElapsed()) / 1e6);
    return 0;
}

struct Cost {
    double cpu = 0;  ///< ms
    double wall = 0; ///< ms
    double peak = 0; ///< MiB of the resident set
    double own = 0;  ///< MiB, each shared page divided among those that share it
};

/// A number of kilobytes from one of the process's status files, in MiB.
double mebibytes(qint64 process, const char* file, const QByteArray& name) {
    QFile status(u"/proc/%1/%2"_s.arg(process).arg(QLatin1String(file)));
    if (!status.open(QIODevice::ReadOnly))
        throw std::runtime_error("no status of the process");
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith(name + ':'))
            return line.mid(name.size() + 1).simplified().split(' ').first().toDouble() / 1024;
    throw std::runtime_error("no such number in the status");
}

/// Starts a process in its folder and waits, without polling, until its log says that it is there.
Cost start(const QString& program, const QStringList& arguments, const QString& folder) {
    const QString log = folder + u"/log.txt"_s;
    QFile::remove(log);
    const int watch = inotify_init1(IN_CLOEXEC);
    inotify_add_watch(watch, QFile::encodeName(folder).constData(), IN_CLOSE_WRITE);
    QProcess process;
    process.setWorkingDirectory(folder);
    process.setProcessChannelMode(QProcess::MergedChannels);
    QElapsedTimer wall;
    wall.start();
    process.start(program, arguments);
    std::array<char, 4096> events{};
    const auto there = [&log] {
        QFile file(log);
        return file.open(QIODevice::ReadOnly) && file.readAll().contains(ready);
    };
    while (!there())
        if (::read(watch, events.data(), events.size()) <= 0)
            throw std::runtime_error("cannot wait for the process");
    Cost cost;
    cost.wall = double(wall.nsecsElapsed()) / 1e6;
    clockid_t clock{};
    const qint64 id = process.processId();
    if (clock_getcpuclockid(static_cast<pid_t>(id), &clock) != 0)
        throw std::runtime_error("the process has ended");
    cost.cpu = processorMs(clock);
    cost.peak = mebibytes(id, "status", "VmHWM");
    cost.own = mebibytes(id, "smaps_rollup", "Pss");
    ::close(watch);
    process.kill();
    process.waitForFinished();
    return cost;
}

Cost startDecoding(const QStringList& files) {
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), QStringList{u"decode"_s} + files);
    process.waitForFinished(-1);
    Cost cost;
    QTextStream(process.readAllStandardOutput()) >> cost.cpu >> cost.wall;
    if (cost.cpu <= 0)
        throw std::runtime_error("the pictures were not decoded");
    return cost;
}

double middle(const std::vector<Cost>& costs, double Cost::*of) {
    std::vector<double> values;
    values.reserve(costs.size());
    for (const Cost& cost : costs)
        values.push_back(cost.*of);
    return bench::median(values);
}

void measure(const std::vector<int>& sizes, int rounds) {
    const QTemporaryDir nothing;
    bench::useVirtualScreen(nothing.path());
    std::map<int, std::unique_ptr<bench::World>> worlds;
    for (const int size : sizes) {
        worlds[size] = std::make_unique<bench::World>(bench::Size{.figures = size});
        QFile::copy(qEnvironmentVariable("QUIVERDECK_BUILD") + u"/src/quiverdeck"_s,
                    worlds[size]->folder() + u"/quiverdeck"_s);
    }
    qputenv("XDG_CONFIG_HOME", worlds.begin()->second->folder().toUtf8()); // not the user's settings
    std::vector<Cost> empty;
    std::map<int, std::vector<Cost>> decoding;
    std::map<int, std::vector<Cost>> program;
    for (int round = 0; round < rounds; ++round) {
        empty.push_back(start(QCoreApplication::applicationFilePath(), {u"window"_s}, nothing.path()));
        for (const int size : sizes) {
            const bench::World& world = *worlds[size];
            decoding[size].push_back(startDecoding(world.pictures()));
            program[size].push_back(start(world.folder() + u"/quiverdeck"_s, {}, world.folder()));
        }
    }
    for (const auto& [what, clock] : {std::pair{"", &Cost::cpu}, std::pair{" (wall)", &Cost::wall}})
        for (const int size : sizes)
            bench::print("start, " + std::to_string(size) + " figures (raw: 2 x decoding + window)" + what,
                         middle(program[size], clock),
                         2 * middle(decoding[size], clock) + middle(empty, clock), "ms",
                         size == 300 ? "<= 1 x" : "", size);
    for (const int size : sizes) {
        const std::string figures = std::to_string(size) + " figures";
        bench::print("memory at the peak, " + figures, middle(program[size], &Cost::peak),
                     middle(empty, &Cost::peak), "MiB", size == 1000 ? "< 150 MiB" : "");
        bench::print("memory, shared pages divided, " + figures, middle(program[size], &Cost::own),
                     middle(empty, &Cost::own), "MiB", "");
    }
}

} // namespace

int main(int argc, char** argv) {
    const std::string role = argc > 1 ? argv[1] : "";
    if (role == "decode")
        return decode(argc, argv);
    if (role == "window") {
        QApplication application(argc, argv);
        Empty window;
        window.show();
        return QApplication::exec();
    }
    const QCoreApplication application(argc, argv);
    measure({100, 300, 1000}, argc > 1 ? std::stoi(role) : usualRounds);
    return 0;
}
