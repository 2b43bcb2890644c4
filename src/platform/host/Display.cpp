#include "platform/host/Display.h"

namespace host {

namespace {

class FixedDisplay final : public Display {
public:
    bool read(DisplayMode& /*mode*/) override { return false; }
    bool set(const DisplayMode& /*mode*/) override { return false; }
};

Display*& installed() {
    static Display* service = nullptr;
    return service;
}

} // namespace

Display& display() {
    static FixedDisplay fixed;
    return installed() ? *installed() : fixed;
}

void setDisplay(Display* service) {
    installed() = service;
}

} // namespace host
