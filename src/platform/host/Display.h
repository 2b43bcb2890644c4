#pragma once

namespace host {

/// A mode of the screen: size in pixels, bits a pixel, pictures a second.
struct DisplayMode {
    int width = 0;
    int height = 0;
    int bits = 0;
    int frequency = 0;
};

/// Reads the present mode and sets another one.
class Display {
public:
    virtual ~Display() = default;
    virtual bool read(DisplayMode& mode) = 0;
    virtual bool set(const DisplayMode& mode) = 0;
};

/// The installed display; without one, a display that can neither be read nor set (false both times).
Display& display();
/// Installs a display, which stays the caller's; nullptr takes it away.
void setDisplay(Display* service);

} // namespace host
