#pragma once

#include <algorithm>
#include <cmath>
#include <numbers>

namespace figures {

/// A point or direction; lengths are centimetres everywhere in the drawing program.
struct Vec3 {
    float x = 0;
    float y = 0;
    float z = 0;

    constexpr Vec3 operator+(const Vec3& o) const { return {x + o.x, y + o.y, z + o.z}; }
    constexpr Vec3 operator-(const Vec3& o) const { return {x - o.x, y - o.y, z - o.z}; }
    constexpr Vec3 operator-() const { return {-x, -y, -z}; }
    constexpr Vec3 operator*(float s) const { return {x * s, y * s, z * s}; }
    constexpr bool operator==(const Vec3&) const = default;
};

constexpr float dot(const Vec3& a, const Vec3& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
constexpr Vec3 cross(const Vec3& a, const Vec3& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline float length(const Vec3& a) {
    return std::sqrt(dot(a, a));
}
/// The unit vector along `a`; `a` itself when it is too short to have a direction.
inline Vec3 unit(const Vec3& a) {
    const float l = length(a);
    return l > 1e-6F ? a * (1.0F / l) : a;
}
constexpr Vec3 mix(const Vec3& a, const Vec3& b, float t) {
    return a + (b - a) * t;
}
/// The part of `v` at right angles to the unit vector `axis`, made a unit; `spare` decides when nothing is
/// left.
inline Vec3 perpendicular(const Vec3& v, const Vec3& axis, const Vec3& spare) {
    Vec3 p = v - axis * dot(v, axis);
    if (length(p) < 1e-3F)
        p = spare - axis * dot(spare, axis);
    return unit(p);
}

constexpr float radians(float degrees) {
    return degrees * std::numbers::pi_v<float> / 180.0F;
}
constexpr float degrees(float rad) {
    return rad * 180.0F / std::numbers::pi_v<float>;
}
/// Angle between two directions, in degrees.
inline float angleBetween(const Vec3& a, const Vec3& b) {
    return degrees(std::acos(std::clamp(dot(unit(a), unit(b)), -1.0F, 1.0F)));
}
inline float smoothstep(float from, float to, float v) {
    const float t = std::clamp((v - from) / (to - from), 0.0F, 1.0F);
    return t * t * (3 - 2 * t);
}

/// An orthonormal frame: where it stands and where its axes point (x forward, y left, z up for body parts).
struct Frame {
    Vec3 origin;
    Vec3 ax{1, 0, 0};
    Vec3 ay{0, 1, 0};
    Vec3 az{0, 0, 1};

    Vec3 direction(const Vec3& local) const { return ax * local.x + ay * local.y + az * local.z; }
    Vec3 point(const Vec3& local) const { return origin + direction(local); }
    Vec3 localDirection(const Vec3& world) const { return {dot(world, ax), dot(world, ay), dot(world, az)}; }
    Vec3 local(const Vec3& world) const { return localDirection(world - origin); }
    Frame at(const Vec3& worldOrigin) const { return {worldOrigin, ax, ay, az}; }

    /// The frame turned in its own axes: first `yaw` about z, then `pitch` about y (z towards x), then `roll`
    /// about x (z towards y); degrees.
    Frame turned(float yaw, float pitch, float roll) const {
        Frame f = *this;
        f = f.spun(2, radians(yaw));
        f = f.spun(1, radians(pitch));
        return f.spun(0, -radians(roll));
    }

private:
    Frame spun(int axis, float angle) const {
        const float c = std::cos(angle);
        const float s = std::sin(angle);
        Frame f = *this;
        if (axis == 0) {
            f.ay = ay * c + az * s;
            f.az = az * c - ay * s;
        } else if (axis == 1) {
            f.ax = ax * c - az * s;
            f.az = az * c + ax * s;
        } else {
            f.ax = ax * c + ay * s;
            f.ay = ay * c - ax * s;
        }
        return f;
    }
};

} // namespace figures
