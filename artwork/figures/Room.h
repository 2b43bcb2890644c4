#pragma once

#include "Shape.h"
#include "Skeleton.h"

namespace figures {

/// A level top on which a body can stand, lie or lean.
struct Support {
    std::string name;
    Frame frame; ///< origin at the middle of the top
    float halfX = 0;
    float halfY = 0;
    /// Height of the top under `p`, or a very low number when `p` is not over it.
    float topUnder(const Vec3& p, float margin) const;
};

/// The platform and the things that stand around it, as solids and as places to stand on and to hold.
class Room {
public:
    /// Throws PoseError for an unknown accessory.
    explicit Room(const Pose& pose);

    static constexpr float plateTop = 20;
    static constexpr float plateHalf = 38;
    static constexpr float barHeight = 118; ///< of the handlebar over the floor
    static constexpr float barX = 40;       ///< the handlebar's cross tube
    static constexpr float barRadius = 1.6F;

    /// Throws PoseError when nothing of that name stands in the room.
    const Support& support(const std::string& name) const;
    const std::vector<Support>& supports() const { return supports_; }

    /// The frame of the figure: where it faces.
    const Frame& figure() const { return figure_; }

    /// Platform and accessories that do not hang on the body.
    const Shapes& shapes() const { return shapes_; }
    /// Straps, dumbbells and sticks, which follow the hands. Throws PoseError when a strap is too long or
    /// short.
    Shapes held(const Pose& pose, const Skeleton& skeleton) const;

    /// The stick's middle and direction for a body.
    static bool stick(const Pose& pose, const Skeleton& skeleton, Vec3& middle, Vec3& direction);

private:
    void platform(bool column);
    void accessory(const Accessory& a);
    Shape& box(const Vec3& low, const Vec3& high, float edge, Material material);
    Shape& tube(const Vec3& a, const Vec3& b, float radius, Material material);

    Frame figure_;
    bool column_ = true;
    std::vector<Support> supports_;
    Shapes shapes_;
};

} // namespace figures
