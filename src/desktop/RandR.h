#pragma once

#include "platform/host/Display.h"

#include <memory>

struct xcb_connection_t;

/// The mode of an X11 screen through the RandR extension, over a connection of its own.
class RandR {
public:
    /// Connects to the display that DISPLAY names.
    RandR();
    ~RandR();
    RandR(const RandR&) = delete;
    RandR& operator=(const RandR&) = delete;

    /// False without a server, or without the extension.
    bool read(host::DisplayMode& mode) const;
    /// Sets a mode that the server offers, at its own frequency. False if it offers none of that size or
    /// refuses; the depth cannot be changed.
    bool set(const host::DisplayMode& mode) const;

private:
    struct Modes;
    std::unique_ptr<Modes> modes() const;

    xcb_connection_t* connection_;
    int screen_ = 0;
};
