#include "Solver.h"

#include "Anatomy.h"

namespace figures {
namespace {

const std::array<const char*, 2> sideName = {"left", "right"};

/// Middle joint of a two-bone chain from `root` to `target`, bent towards `pole`. `target` is pulled in when
/// it is a hair too far; farther is an error. `hinge` becomes the axis about which the chain bends.
Vec3 middleJoint(const Vec3& root, Vec3& target, float l1, float l2, const Vec3& pole, const std::string& who,
                 Vec3& hinge) {
    const Vec3 way = target - root;
    float d = length(way);
    if (d > l1 + l2 + 1.0F || d < std::fabs(l1 - l2) + 0.5F) {
        throw PoseError(who + " cannot reach its place: it is " +
                        std::to_string(static_cast<int>(std::lround(d))) + " cm away, the limb spans " +
                        std::to_string(static_cast<int>(l1 + l2)) + " cm");
    }
    const Vec3 axis = unit(way);
    d = std::min(d, (l1 + l2) * 0.9995F);
    target = root + axis * d;
    const float along = (l1 * l1 - l2 * l2 + d * d) / (2 * d);
    const float off = std::sqrt(std::max(0.0F, l1 * l1 - along * along));
    const Vec3 bent = perpendicular(pole, axis, {1, 0.1F, 0});
    hinge = cross(axis, bent);
    return root + axis * along + bent * off;
}

/// Fronts and outer sides of two bones that bend in one plane.
void plane(Bone& upper, Bone& lower, const Vec3& hinge, int side) {
    const Vec3 d1 = unit(upper.to - upper.from);
    const Vec3 d2 = unit(lower.to - lower.from);
    upper.front = unit(cross(hinge, d1));
    lower.front = unit(cross(hinge, d2));
    upper.out = hinge * -outward(side);
    lower.out = upper.out;
}

} // namespace

Vec3 Solver::sidedVector(const Vec3& v, int side) const {
    return room_.figure().direction({v.x, v.y * outward(side), v.z});
}

bool Solver::holds(const std::string& kind, int side) const {
    return std::any_of(pose_.accessories.begin(), pose_.accessories.end(), [&](const Accessory& a) {
        return a.kind == kind && (side == Left ? a.left : a.right);
    });
}

void Solver::trunk(const BodyPose& body, Skeleton& s) const {
    const Frame& f = room_.figure();
    s.pelvis = f.at(f.point(body.pelvis)).turned(body.yaw, body.tilt, body.roll);
    s.waist = s.pelvis.at(s.pelvis.point({0, 0, body::lumbar}))
                  .turned(body.twist / 2, body.bend / 2, body.side / 2);
    s.chest =
        s.waist.at(s.waist.point({0, 0, body::thorax})).turned(body.twist / 2, body.bend / 2, body.side / 2);
    float nod = body.nod;
    if (!body.hasHead) { // the eyes stay on the horizon as far as the neck lets them
        const float pitch = degrees(std::atan2(s.chest.az.x * f.ax.x + s.chest.az.y * f.ax.y, s.chest.az.z));
        nod = -std::clamp(pitch * 0.65F, -35.0F, 42.0F);
    }
    const Frame neck = s.chest.at(s.chest.point({-1.6F, 0, body::neckUp}))
                           .turned(body.headTurn * 0.3F, nod * 0.5F, body.headSide * 0.5F);
    s.head = neck.at(neck.point({0.6F, 0, body::neck}))
                 .turned(body.headTurn * 0.7F, nod * 0.5F, body.headSide * 0.5F);
}

Vec3 Solver::footForward(const LegPose& pose, int side) const {
    const float a = radians(pose.turn);
    return sidedVector({std::cos(a), std::sin(a), 0}, side);
}

void Solver::leg(const BodyPose& body, Skeleton& s, int side) const {
    const auto i = static_cast<std::size_t>(side);
    const LegPose& pose = body.leg[i];
    LegBones& l = s.leg[i];
    l.thigh.from = s.pelvis.point({0, outward(side) * body::hipHalf, 0});
    if (pose.kind == LegPose::Kneel) {
        kneel(pose, s, side);
        return;
    }
    if (pose.kind == LegPose::Angles) {
        legByAngles(pose, s, side);
        return;
    }
    const Vec3 fwd = footForward(pose, side);
    const Vec3 up{0, 0, 1};
    const Frame& f = room_.figure();
    Vec3 ground = f.point({pose.at.x, pose.at.y * outward(side), pose.at.z});
    ground.z = pose.kind == LegPose::Stand ? room_.support(pose.surface).frame.origin.z : pose.at.z;
    if (pose.kind == LegPose::Stand) {
        const Support& support = room_.support(pose.surface);
        if (support.topUnder(ground + fwd * body::ballAhead, 0) < 0 &&
            support.topUnder(ground - fwd * body::heelBack, 0) < 0)
            throw PoseError(std::string("foot.") + sideName[i] + " stands beside the " + pose.surface);
    }
    l.foot.ax = fwd;
    l.foot.az = up;
    l.foot.ay = cross(up, fwd);
    const bool toes = pose.heel >= 0;
    const float pivotX = pose.kind == LegPose::Free ? 0 : toes ? body::ballAhead : -body::heelBack;
    const Vec3 pivot = ground + fwd * pivotX;
    l.foot = l.foot.turned(0, pose.heel, 0);
    l.foot.origin = pivot + l.foot.direction({-pivotX, 0, body::ankleHeight});
    l.toeFlex = pose.kind == LegPose::Stand && toes ? std::min(pose.heel, 75.0F) : 0;
    Vec3 pole;
    if (pose.hasPole) {
        pole = sidedVector(pose.pole, side);
    } else {
        const float a = radians(pose.turn);
        pole = s.pelvis.direction({std::cos(a), outward(side) * std::sin(a), 0}) + fwd * 0.3F;
    }
    l.shank.to = l.foot.origin;
    Vec3 hinge;
    l.thigh.to = middleJoint(l.thigh.from, l.shank.to, body::thigh, body::shank, pole,
                             std::string("foot.") + sideName[i], hinge);
    l.shank.from = l.thigh.to;
    l.foot.origin = l.shank.to;
    plane(l.thigh, l.shank, hinge, side);
}

void Solver::kneel(const LegPose& pose, Skeleton& s, int side) const {
    const auto i = static_cast<std::size_t>(side);
    LegBones& l = s.leg[i];
    const Vec3 fwd = footForward(pose, side);
    const float top = room_.support(pose.surface).frame.origin.z;
    const float drop = l.thigh.from.z - (top + 5.4F);
    if (drop > body::thigh + 1.0F || drop < -5) {
        throw PoseError(std::string("foot.") + sideName[i] + " cannot kneel: the hip is " +
                        std::to_string(static_cast<int>(drop)) + " cm over the knee");
    }
    const float ahead = std::sqrt(std::max(0.0F, body::thigh * body::thigh - drop * drop)) * pose.fore;
    l.thigh.to = l.thigh.from + fwd * ahead - Vec3{0, 0, drop};
    l.shank.from = l.thigh.to;
    const bool tuck = pose.tuck > 0.5F;
    const float rise = (tuck ? 13.5F : 5.0F) - 5.4F;
    l.shank.to = l.shank.from - fwd * std::sqrt(body::shank * body::shank - rise * rise) + Vec3{0, 0, rise};
    const Vec3 down{0, 0, -1};
    l.foot.origin = l.shank.to;
    if (tuck) {
        l.foot.ax = unit(down + fwd * 0.25F);
        l.foot.az = perpendicular(fwd, l.foot.ax, fwd);
        l.toeFlex = 65;
    } else {
        l.foot.ax = unit(-fwd + down * 0.12F);
        l.foot.az = perpendicular(down, l.foot.ax, down);
    }
    l.foot.ay = cross(l.foot.az, l.foot.ax);
    plane(l.thigh, l.shank, cross(down, fwd), side);
}

void Solver::legByAngles(const LegPose& pose, Skeleton& s, int side) const {
    LegBones& l = s.leg[static_cast<std::size_t>(side)];
    const float fl = radians(pose.flex);
    const float sp = radians(pose.spread);
    const float o = outward(side);
    const Vec3 d1 =
        s.pelvis.direction({std::sin(fl) * std::cos(sp), o * std::sin(sp), -std::cos(fl) * std::cos(sp)});
    const Vec3 front0 = perpendicular(s.pelvis.direction({std::cos(fl), 0, std::sin(fl)}), d1, s.pelvis.ax);
    const Vec3 out0 = cross(front0, d1) * o;
    const float r = radians(pose.roll);
    const Vec3 front = front0 * std::cos(r) + out0 * std::sin(r);
    const float k = radians(pose.knee);
    const Vec3 d2 = d1 * std::cos(k) - front * std::sin(k);
    l.thigh.to = l.thigh.from + d1 * body::thigh;
    l.shank.from = l.thigh.to;
    l.shank.to = l.shank.from + d2 * body::shank;
    plane(l.thigh, l.shank, cross(d1, front), side);
    const float a = radians(pose.ankle);
    l.foot.origin = l.shank.to;
    l.foot.ax = l.shank.front * std::cos(a) + d2 * std::sin(a);
    l.foot.az = -d2 * std::cos(a) + l.shank.front * std::sin(a);
    l.foot.ay = cross(l.foot.az, l.foot.ax);
}

float Solver::gap(const Shapes& shapes, const Room& room, const std::string& part) {
    const auto wanted = [&part](const Shape& s) {
        switch (s.part) {
        case Part::Pelvis:
            return part == "pelvis";
        case Part::Chest:
            return part == "back";
        case Part::Head:
            return part == "head";
        case Part::Thigh:
            return part == "thigh.left";
        case Part::ThighR:
            return part == "thigh.right";
        case Part::Shank:
            return part == "calf.left";
        case Part::ShankR:
            return part == "calf.right";
        case Part::Forearm:
            return part == "forearm.left";
        case Part::ForearmR:
            return part == "forearm.right";
        default:
            return false;
        }
    };
    float least = 1000;
    for (const auto& s : shapes) {
        if (!wanted(s))
            continue;
        for (const auto& [p, r] : {std::pair{s.a, s.ra}, std::pair{s.b, s.rb}})
            for (const auto& support : room.supports())
                least = std::min(least, p.z - r - support.topUnder(p, 0));
    }
    return least;
}

Skeleton Solver::once(const BodyPose& body) const {
    Skeleton s;
    trunk(body, s);
    for (int side : {Left, Right}) {
        leg(body, s, side);
        arm(body, s, side);
    }
    return s;
}

Skeleton Solver::solve(const BodyPose& body) const {
    BodyPose b = body;
    Skeleton s = once(b);
    for (const auto& [part, surface] : b.rests) {
        static_cast<void>(room_.support(surface));
        float left = 0;
        for (int round = 0; round < 3; ++round) {
            left = gap(anatomy(s), room_, part);
            if (left > 900)
                throw PoseError(std::string("part ").append(part).append(" has nothing to rest on"));
            b.pelvis.z -= left + 0.6F; // flesh yields a little
            s = once(b);
        }
        if (std::fabs(gap(anatomy(s), room_, part)) > 2.0F) {
            throw PoseError(
                std::string("part ").append(part).append(" does not come to rest on ").append(surface));
        }
    }
    return s;
}

} // namespace figures
