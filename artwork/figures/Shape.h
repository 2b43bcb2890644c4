#pragma once

#include "Vec3.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace figures {

/// The muscle codes of the map, in the order of `Shape::muscle`.
inline constexpr std::array<std::string_view, 18> muscleCodes = {
    "ADU", "FI1", "FI2", "FI3", "ERE", "ICI", "ICE", "GLU", "POL",
    "DOR", "TRA", "PET", "QUA", "TRI", "BIC", "DAL", "DEP", "ADD"};

/// Index of a code in `muscleCodes`, nothing for another text.
std::optional<int> muscleIndex(std::string_view code);

enum class Material : std::uint8_t {
    Skin, Shirt, Shorts, Shoe, Sole, Hair, Feature,
    Plate, PlateTop, Column, Steel, Rubber, Screen, Accent,
    Mat, Strap, Wood, Ball, Cushion, Ground
};

/// Shapes of one group melt into each other; the groups are joined in this order.
enum class Group : std::uint8_t {
    Torso, Head, ArmLeft, ArmRight, HandLeft, HandRight, LegLeft, LegRight, ShoeLeft, ShoeRight, Hair, Object
};

/// The part of the body a shape belongs to; sided parts add the side (0 left, 1 right).
enum class Part : std::uint8_t {
    Pelvis, Chest, Head, UpperArm, UpperArmR, Forearm, ForearmR, Hand, HandR,
    Thigh, ThighR, Shank, ShankR, Foot, FootR, Thing
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
    /// A ball round the whole shape is not tight enough for tiles: the shape lies within `reach` of segment a-b.
    Vec3 a;
    Vec3 b;
    float reach = 0;
    float ra = 0;
    float rb = 0;
    bool isBox = false;
    Frame frame;
    Vec3 half;

private:
    bool hasCut_ = false;
    Vec3 cutNormal_;
    float cutLimit_ = 0;
    Vec3 ba_;
    float l2_ = 0, rr_ = 0, a2_ = 0, il2_ = 0;
};

using Shapes = std::vector<Shape>;

} // namespace figures
