#pragma once

#include "Shape.h"
#include "Skeleton.h"

namespace figures {

/// Joints near which a limb melts into the trunk.
struct Joints {
    std::array<Vec3, 2> shoulder;
    std::array<Vec3, 2> hip;
    static Joints of(const Skeleton& s) {
        return {{s.arm[0].upper.from, s.arm[1].upper.from}, {s.leg[0].thigh.from, s.leg[1].thigh.from}};
    }
};

/// A list of shapes (sorted by group) as one distance field.
class Field {
public:
    using List = std::vector<const Shape*>;

    /// Signed distance from `p` to the joined shapes.
    static float distance(const List& shapes, const Joints& joints, const Vec3& p);

    /// Outward normal at a point of the surface.
    static Vec3 normal(const List& shapes, const Joints& joints, const Vec3& p);

    /// What a point of the surface belongs to.
    struct Owner {
        const Shape* shape = nullptr; ///< the nearest shape
        float tint = 0;               ///< 0..1: how far it belongs to a trained muscle
    };
    /// `trained` has a bit for each muscle index.
    static Owner owner(const List& shapes, const Vec3& p, std::uint32_t trained);
};

} // namespace figures
