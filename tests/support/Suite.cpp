#include "support/Suite.h"

#include <QFileInfo>

#include <cstdio>
#include <map>

namespace {

std::map<QString, suite::Run>& entries() {
    static std::map<QString, suite::Run> all;
    return all;
}

} // namespace

suite::Entry::Entry(const char* file, Run run) {
    const QString name = QFileInfo(QString::fromLocal8Bit(file)).completeBaseName();
    entries()[name.mid(name.indexOf(u'_') + 1)] = run;
}

int suite::run(int argc, char** argv) {
    const auto entry = entries().find(QString::fromLocal8Bit(argc < 2 ? "" : argv[1]));
    if (entry == entries().end()) {
        std::fputs("name one test of this program\n", stderr);
        return 255;
    }
    argv[1] = argv[0];
    return entry->second(argc - 1, argv + 1);
}
