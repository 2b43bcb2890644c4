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
    entries()[QFileInfo(QString::fromLocal8Bit(file)).completeBaseName().remove(QLatin1String("test_"))] =
        run;
}

int suite::run(int argc, char** argv) {
    int failures = 0;
    if (argc < 2)
        for (const auto& [name, test] : entries())
            failures += test(argc, argv);
    if (argc < 2)
        return failures;
    const auto entry = entries().find(QString::fromLocal8Bit(argv[1]));
    if (entry == entries().end()) {
        std::fprintf(stderr, "no test \"%s\"\n", argv[1]);
        return 255;
    }
    std::vector<char*> rest(argv, argv + argc);
    rest.erase(rest.begin() + 1);
    return entry->second(argc - 1, rest.data());
}
