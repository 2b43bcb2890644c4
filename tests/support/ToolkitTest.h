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
    Q_DISABLE_COPY(ExpectedFatal)

    int count = 0;
    int lastNumber = 0;
    QString description;
};
