#pragma once

#include "platform/host/Display.h"
#include "support/Installed.h"

#include <QString>

/// A screen of 800 x 600 for tests, unless they say otherwise, which keeps what it was set to: "1024x768x24
/// ".
class FakeDisplay : public Installed<host::Display, host::setDisplay> {
public:
    explicit FakeDisplay(int width = 800) : width_(width) {}
    bool read(host::DisplayMode& mode) override {
        mode = {width_, 600, 24, 60};
        return true;
    }
    bool set(const host::DisplayMode& mode) override {
        asked += QStringLiteral("%1x%2x%3 ").arg(mode.width).arg(mode.height).arg(mode.bits);
        return accepts;
    }

    QString asked;
    bool accepts = true;

private:
    int width_;
};
