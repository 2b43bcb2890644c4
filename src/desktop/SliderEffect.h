#pragma once

#include <QtGlobal>

namespace host {
class ScrollValue;
}

/// Lets a page be dragged up and down with the left mouse button, by driving its scroll bar. 40 twips of
/// scroll to a screen pixel, so the page runs ahead of the hand.
class SliderEffect {
public:
    /// For every mouse-move event; `Button` is its button state, 1 the left button alone. The position is
    /// the screen's (host::cursor), since the page moves under the mouse. A step past an end of the bar
    /// is dropped.
    void setDisplacement(qint16 Button, host::ScrollValue& VS);

private:
    float ultimaY_ = 0; // screen row at the last call, in pixels
};
