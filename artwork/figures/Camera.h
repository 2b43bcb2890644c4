#pragma once

#include "Vec3.h"

namespace figures {

/// Parallel projection: where the viewer stands, what lies in the middle, and how many pixels a centimetre
/// takes.
struct Camera {
    Vec3 right{0, 1, 0};
    Vec3 up{0, 0, 1};
    Vec3 into{1, 0, 0}; ///< from the viewer into the picture
    float middleX = 0;  ///< picture coordinates (cm along right and up) of the frame's middle
    float middleY = 0;
    float scale = 4; ///< pixels per cm
    int width = 960;
    int height = 900;

    /// Looks from the azimuth (degrees about z, 0 from the front of the machine), `pitch` degrees from above.
    static Camera from(float azimuth, float pitch) {
        const float a = radians(azimuth);
        const float p = radians(pitch);
        Camera c;
        c.into = -Vec3{std::cos(a) * std::cos(p), std::sin(a) * std::cos(p), std::sin(p)};
        c.right = unit(cross(c.into, {0, 0, 1}));
        c.up = cross(c.right, c.into);
        return c;
    }
    float x(const Vec3& p) const { return (dot(p, right) - middleX) * scale + static_cast<float>(width) / 2; }
    float y(const Vec3& p) const { return static_cast<float>(height) / 2 - (dot(p, up) - middleY) * scale; }
    float depth(const Vec3& p) const { return dot(p, into); }
    /// The point on the ray of a pixel at depth 0.
    Vec3 start(float px, float py) const {
        return right * ((px - static_cast<float>(width) / 2) / scale + middleX) +
               up * ((static_cast<float>(height) / 2 - py) / scale + middleY);
    }
    /// The same view with `n` times the pixels.
    Camera finer(int n) const {
        Camera c = *this;
        c.scale *= static_cast<float>(n);
        c.width *= n;
        c.height *= n;
        return c;
    }
};

} // namespace figures
