#pragma once

#include "Vec3.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace figures {

/// The muscle codes of the map, in the order of `Shape::muscle`.
inline constexpr std::array<std::string_view, 18> muscleCodes = {"ADU", "FI1", "FI2", "FI3", "ERE", "ICI",
                                                                 "ICE", "GLU", "POL", "DOR", "TRA", "PET",
                                                                 "QUA", "TRI", "BIC", "DAL", "DEP", "ADD"};

/// Index of a code in `muscleCodes`, nothing for another text.
std::optional<int> muscleIndex(std::string_view code);

enum class Material : std::uint8_t {
    Skin,
    Shirt,
    Shorts,
    Shoe,
    Sole,
    Hair,
    Feature,
    Plate,
    PlateTop,
    Column,
    Steel,
    Rubber,
    Screen,
    Accent,
    Mat,
    Strap,
    Wood,
    Ball,
    Cushion,
    Ground
};

/// Shapes of one group melt into each other; the groups are joined in this order.
enum class Group : std::uint8_t {
    Torso,
    Head,
    ArmLeft,
    ArmRight,
    HandLeft,
    HandRight,
    LegLeft,
    LegRight,
    ShoeLeft,
    ShoeRight,
    Hair,
    Object
};

/// The part of the body a shape belongs to; sided parts add the side (0 left, 1 right).
enum class Part : std::uint8_t {
    Pelvis,
    Chest,
    Head,
    UpperArm,
    UpperArmR,
    Forearm,
    ForearmR,
    Hand,
    HandR,
    Thigh,
    ThighR,
    Shank,
    ShankR,
    Foot,
    FootR,
    Thing
};
constexpr Part sided(Part left, int side) {
    return static_cast<Part>(static_cast<int>(left) + side);
}

/// A solid: a round cone (two balls and what lies between them), or a box with rounded edges.
struct Shape {
    Group group = Group::Object;
    Part part = Part::Thing;
    Material material = Material::Skin;
    std::int8_t muscle = -1; ///< index of the muscle it stands for, or -1

    static Shape cone(const Vec3& a, float ra, const Vec3& b, float rb);
    /// Box of half sizes `half` in the axes of `frame`, its edges rounded by `edge`.
    static Shape box(const Frame& frame, const Vec3& half, float edge);

    /// Keeps only what lies where dot(normal, p) <= limit.
    void cut(const Vec3& normal, float limit);

    /// Signed distance from `p`, negative inside.
    float distance(const Vec3& p) const;
    /// Whether the shape is surely farther than `bound` from `p`; a quick look at the ball round it.
    bool beyond(const Vec3& p, float bound) const {
        const Vec3 v = p - middle_;
        const float r = ball_ + bound;
        return r < 0 || dot(v, v) > r * r;
    }
    /// The shape lies within `reach` of the segment a-b.
    Vec3 a;
    Vec3 b;
    float reach = 0;
    float ra = 0;
    float rb = 0;
    bool isBox = false;
    Frame frame;
    Vec3 half;

private:
    Vec3 middle_;
    float ball_ = 0;
    bool hasCut_ = false;
    Vec3 cutNormal_;
    float cutLimit_ = 0;
    Vec3 ba_;
    float l2_ = 0, rr_ = 0, a2_ = 0, il2_ = 0;
};

inline float Shape::distance(const Vec3& p) const {
    float d = 0;
    if (isBox) {
        const Vec3 q = frame.local(p);
        const Vec3 e{std::fabs(q.x) - half.x, std::fabs(q.y) - half.y, std::fabs(q.z) - half.z};
        const Vec3 o{std::max(e.x, 0.0F), std::max(e.y, 0.0F), std::max(e.z, 0.0F)};
        d = length(o) + std::min(std::max({e.x, e.y, e.z}), 0.0F) - ra;
    } else if (a2_ <= 0) { // one ball swallows the other
        d = ra >= rb ? length(p - a) - ra : length(p - b) - rb;
    } else {
        const Vec3 pa = p - a;
        const float y = dot(pa, ba_);
        const float z = y - l2_;
        const Vec3 across = pa * l2_ - ba_ * y;
        const float x2 = dot(across, across);
        const float y2 = y * y * l2_;
        const float z2 = z * z * l2_;
        const float k = (rr_ > 0 ? 1.0F : -1.0F) * rr_ * rr_ * x2;
        if ((z > 0 ? 1.0F : -1.0F) * a2_ * z2 > k)
            d = std::sqrt(x2 + z2) * il2_ - rb;
        else if ((y > 0 ? 1.0F : -1.0F) * a2_ * y2 < k)
            d = std::sqrt(x2 + y2) * il2_ - ra;
        else
            d = (std::sqrt(x2 * a2_ * il2_) + y * rr_) * il2_ - ra;
    }
    return hasCut_ ? std::max(d, dot(cutNormal_, p) - cutLimit_) : d;
}

using Shapes = std::vector<Shape>;

} // namespace figures
