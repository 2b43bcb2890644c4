#pragma once

class QWidget;

namespace toolkit {

/// Waits until a shown top-level window really is on the screen (the window manager maps it later), or is
/// hidden again, at most `milliseconds`. The user's keys and clicks wait meanwhile.
void waitForExposure(const QWidget& window, int milliseconds);

} // namespace toolkit
