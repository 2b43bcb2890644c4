#pragma once

#include "Field.h"

namespace figures {

/// The soft shadow that bodies and things throw on a level plane, as a grid of darkness.
class Shadow {
public:
    /// Samples the rectangle of half sides `halfX` and `halfY` cm round `middle` at height `z`, a value every
    /// `step` cm.
    Shadow(const Shapes& casters, const Joints& joints, const Vec3& middle, float halfX, float halfY, float z,
           float step);

    /// Darkness 0..1 at a place of the plane.
    float at(const Vec3& p) const;

private:
    float value(int ix, int iy) const;
    float x0_, y0_, step_;
    int nx_, ny_;
    std::vector<float> dark_;
};

} // namespace figures
