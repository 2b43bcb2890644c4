#pragma once

namespace host {
class Box;
}

/// Fits a picture control into a square: shrinks it in proportion, never enlarges it, and centres it. The
/// control must stretch its picture to its own size.
class RidimensionatoreImmagini {
public:
    double MAX = 3000; ///< side of the square, in twips

    /// Remembers the control, which stays the caller's, and its home place. To be called with the control
    /// there.
    void setImage(host::Box& img);
    /// Fits the control from its present size. May be called again after a new picture was loaded. Raises
    /// 91 before setImage.
    void ridimensiona();

private:
    host::Box* img_ = nullptr;
    double left_ = 0;
    double top_ = 0;
};
