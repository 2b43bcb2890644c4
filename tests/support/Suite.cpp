#include "support/Suite.h"

#include <QFileInfo>

#include <cstdio>
#include <map>
#include <vector>

namespace {

std::map<QString, suite::Run>& entries() {
    static std::map<QString, suite::Run> all;
    return all;
}

} // namespace

suite::Entry::Entry(const char* file, Run run) {
    const QString name = QFileInfo(QString::fromLocal8Bit(file)).completeBaseName();
    entries()[name.startsWith(QLatin1String("test_")) ? name.mid(5) : name] = run;
}

int suite::run(int argc, char** argv) {
    const QString wanted = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    if (const auto entry = entries().find(wanted); entry != entries().end()) {
        std::vector<char*> rest(argv, argv + argc);
        rest.erase(rest.begin() + 1);
        return entry->second(argc - 1, rest.data());
    }
    if (argc > 1) {
        std::fprintf(stderr, "no test \"%s\"\n", argv[1]);
        return 255;
    }
    int failures = 0;
    for (const auto& [name, test] : entries())
        if (!name.startsWith(QLatin1String("--")))
            failures += test(argc, argv);
    return failures;
}
