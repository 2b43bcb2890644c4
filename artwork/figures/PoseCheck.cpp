#include "PoseCheck.h"

namespace figures {
namespace {

std::string rounded(float v) {
    return std::to_string(static_cast<int>(std::lround(v)));
}

void within(float value, float low, float high, const std::string& what) {
    if (!(value >= low - 0.5F && value <= high + 0.5F)) {
        throw PoseError(what + " is " + rounded(value) + " degrees, the joint allows " + rounded(low) +
                        " to " + rounded(high));
    }
}

constexpr std::array<const char*, 15> partNames = {
    "pelvis",       "trunk",         "head",        "left arm",   "right arm",
    "left forearm", "right forearm", "left hand",   "right hand", "left thigh",
    "right thigh",  "left shank",    "right shank", "left foot",  "right foot"};

std::string the(const Shape& shape) {
    return std::string("the ") + partNames.at(static_cast<std::size_t>(shape.part));
}

/// Angle of `v` from `zero` towards `positive`, in the plane of the two.
float planar(const Vec3& v, const Vec3& zero, const Vec3& positive) {
    return degrees(std::atan2(dot(v, positive), dot(v, zero)));
}

void leg(const Skeleton& s, int side) {
    const auto& l = s.leg[static_cast<std::size_t>(side)];
    const std::string name = side == Left ? ".left" : ".right";
    const Vec3 thigh = unit(l.thigh.to - l.thigh.from);
    const Vec3 shank = unit(l.shank.to - l.shank.from);
    const Vec3 local = s.pelvis.localDirection(thigh);
    within(degrees(std::asin(std::clamp(local.y * outward(side), -1.0F, 1.0F))), -35, 65,
           "hip" + name + " spread");
    if (std::hypot(local.x, local.z) > 0.35F)
        within(planar(local, {0, 0, -1}, {1, 0, 0}), -35, 140, "hip" + name + " flexion");
    within(planar(shank, thigh, -l.thigh.front), -4, 158, "knee" + name);
    // the sole against the shin: 90 degrees when the foot stands square
    within(planar(l.foot.ax, l.shank.front, shank), -42, 92, "ankle" + name);
    within(l.toeFlex, -10, 80, "toes" + name);
}

void arm(const Skeleton& s, int side) {
    const auto& a = s.arm[static_cast<std::size_t>(side)];
    const std::string name = side == Left ? ".left" : ".right";
    const Vec3 upper = s.chest.localDirection(unit(a.upper.to - a.upper.from));
    const Vec3 fore = unit(a.lower.to - a.lower.from);
    within(planar(fore, unit(a.upper.to - a.upper.from), a.upper.front), -4, 152, "elbow" + name);
    // backwards the shoulder goes less far than forwards, across the chest only a third of the way
    within(degrees(std::asin(std::clamp(-upper.x, -1.0F, 1.0F))), -90, upper.z > 0.3F ? 45 : 78,
           "shoulder" + name + " extension");
    within(degrees(std::asin(std::clamp(-upper.y * outward(side), -1.0F, 1.0F))), -90, 50,
           "shoulder" + name + " across");
    within(angleBetween(fore, a.hand.ax), 0, 92, "wrist" + name);
}

} // namespace

void PoseCheck::joints(const Skeleton& s) {
    const auto relative = [](const Frame& child, const Frame& parent) {
        return parent.localDirection(child.az);
    };
    const Vec3 spine = relative(s.chest, s.pelvis);
    within(degrees(std::atan2(spine.x, spine.z)), -40, 85, "spine bend");
    within(degrees(std::atan2(spine.y, std::hypot(spine.x, spine.z))), -42, 42, "spine side bend");
    for (const auto& [lower, upper] : {std::pair{s.pelvis, s.waist}, std::pair{s.waist, s.chest}}) {
        const Vec3 forward = lower.localDirection(upper.ax);
        within(degrees(std::atan2(forward.y, forward.x)), -32, 32, "spine twist");
    }
    const Vec3 head = relative(s.head, s.chest);
    within(degrees(std::atan2(head.x, head.z)), -55, 60, "head nod");
    within(degrees(std::asin(std::clamp(head.y, -1.0F, 1.0F))), -45, 45, "head side");
    const Vec3 gaze = s.chest.localDirection(s.head.ax);
    within(degrees(std::atan2(gaze.y, gaze.x)), -80, 80, "head turn");
    for (int side : {Left, Right}) {
        leg(s, side);
        arm(s, side);
    }
}

void PoseCheck::contact(const Shapes& shapes, const Skeleton& s, const Room& room) {
    float least = 1000;
    for (const auto& shape : shapes) {
        const bool foot = shape.part == Part::Foot || shape.part == Part::FootR;
        for (const auto& [p, r] : {std::pair{shape.a, shape.ra}, std::pair{shape.b, shape.rb}}) {
            float low = p.z - r;
            if (foot) { // shoes are cut off at the sole
                const auto& f = s.leg[shape.part == Part::Foot ? 0 : 1].foot;
                const float sole = f.point({0, 0, -body::ankleHeight}).z;
                low = f.az.z > 0.95F ? std::max(low, sole) : p.z - std::min(r, 2.2F);
            }
            for (const auto& support : room.supports()) {
                const float top = support.topUnder(p, 1.0F);
                if (top < -500 || p.z < top - 25) // beside or right under a bench is not in it
                    continue;
                if (low < top - 3.2F) {
                    throw PoseError(the(shape) + " sinks " + rounded(top - low) + " cm into the " +
                                    support.name);
                }
                least = std::min(least, low - top);
            }
        }
    }
    // heels and toes of a raised foot touch with the edge of the sole
    for (const auto& l : s.leg) {
        for (const Vec3& p :
             {Vec3{body::ballAhead, 0, -body::ankleHeight}, Vec3{-body::heelBack, 0, -body::ankleHeight}}) {
            const Vec3 w = l.foot.point(p);
            for (const auto& support : room.supports()) {
                const float top = support.topUnder(w, 0);
                if (top > -500 && w.z > top - 25) {
                    if (w.z < top - 2.2F) {
                        throw PoseError("a foot sinks " + rounded(top - w.z) + " cm into the " +
                                        support.name);
                    }
                    least = std::min(least, w.z - top);
                }
            }
        }
    }
    if (least > 1.5F)
        throw PoseError("the body floats " + rounded(least) + " cm over what lies below it");
    for (const auto& thing : room.shapes()) {
        if (thing.material != Material::Column && thing.material != Material::Screen &&
            thing.material != Material::Ball)
            continue;
        for (const auto& shape : shapes) {
            for (float t : {0.0F, 0.5F, 1.0F}) {
                const float inside =
                    thing.distance(mix(shape.a, shape.b, t)) - (shape.ra * (1 - t) + shape.rb * t);
                if (inside < -4.0F && shape.group != Group::HandLeft && shape.group != Group::HandRight) {
                    throw PoseError(the(shape) + " sinks " + rounded(-inside) +
                                    " cm into the column or a ball");
                }
            }
        }
    }
}

} // namespace figures
