#pragma once

#include "Camera.h"
#include "Room.h"

#include <QImage>

namespace figures {

/// Draws one figure: solves the pose, checks it, traces body, ghost and machine, adds lines, ground shadow,
/// arrows.
class Composer {
public:
    static constexpr int width = 960;
    static constexpr int height = 900;

    /// `trained`: a bit for each index of muscleCodes. Throws PoseError. `size` may differ from the usual one
    /// (warning sheet); `fine` rays a pixel side.
    static QImage draw(const Pose& pose, std::uint32_t trained, int wide = width, int high = height,
                       int fine = 2);
};

} // namespace figures
