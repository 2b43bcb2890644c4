#pragma once

#include "platform/toolkit/Application.h"

#include <QTest>

/// A fatal error that a test expects: while it lives, an uncaught exception is kept here instead of ending
/// the program.
class ExpectedFatal {
public:
    ExpectedFatal() {
        toolkit::Application::setFatalHandler([this](int number, const QString& text) {
            ++count;
            lastNumber = number;
            description = text;
        });
    }
    ~ExpectedFatal() { toolkit::Application::setFatalHandler({}); }
    ExpectedFatal(const ExpectedFatal&) = delete;
    ExpectedFatal& operator=(const ExpectedFatal&) = delete;

    int count = 0;
    int lastNumber = 0;
    QString description;
};

/// The main function of a test of windows: the program's own application, texts and style.
#define QUIVERDECK_WINDOW_TEST_MAIN(Test)                                                                    \
    int main(int argc, char** argv) {                                                                        \
        toolkit::Application application(argc, argv);                                                        \
        Test test;                                                                                           \
        QTEST_SET_MAIN_SOURCE_PATH                                                                           \
        return QTest::qExec(&test, argc, argv);                                                              \
    }
