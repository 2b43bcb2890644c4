#pragma once

#include "platform/host/Display.h"

/// The display of the desktop. Its size is read from the toolkit, in real pixels; under X11 the mode is read
/// and changed through RandR, elsewhere it cannot be changed.
class Schermo : public host::Display {
public:
    bool read(host::DisplayMode& mode) override;
    bool set(const host::DisplayMode& mode) override;
};
