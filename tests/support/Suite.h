#pragma once

#include <QTest>

/// Several test classes in one program, which saves a link for each. A class bears the name of its file
/// without "test_"; what stands behind the name is Qt Test's own: `test_records scheda linesKeepTheirPlaces`.
namespace suite {

using Run = int (*)(int argc, char** argv);

/// Adds one class while the program starts.
struct Entry {
    Entry(const char* file, Run run);
};

/// Runs the class that the first argument names; the number of failures.
int run(int argc, char** argv);

} // namespace suite

#define QUIVERDECK_TEST(Class)                                                                               \
    static const suite::Entry entryOf##Class(__FILE__, [](int argc, char** argv) {                           \
        Class test;                                                                                          \
        return QTest::qExec(&test, argc, argv);                                                              \
    });
