#include "Solver.h"

namespace figures {
namespace {

/// Palm and thumb of a hand that closes round `axis`, fingers pointing along `fingers` as far as the axis
/// lets them.
Frame handRound(const Vec3& fingers, const Vec3& thumb, int side) {
    Frame h;
    h.ay = unit(thumb);
    h.ax = perpendicular(fingers, h.ay, {0, 0, -1});
    h.az = side == Left ? cross(h.ay, h.ax) : cross(h.ax, h.ay);
    return h;
}

Frame handFlat(const Vec3& fingers, const Vec3& palm, int side) {
    Frame h;
    h.ax = unit(fingers);
    h.az = -perpendicular(palm, h.ax, {0, 0, -1});
    h.ay = side == Left ? cross(h.ax, h.az) : cross(h.az, h.ax);
    return h;
}

} // namespace

void Solver::arm(const BodyPose& body, Skeleton& s, int side) const {
    const auto i = static_cast<std::size_t>(side);
    const ArmPose& pose = body.arm[i];
    ArmBones& a = s.arm[i];
    const float o = outward(side);
    a.shape = pose.shape;
    if (pose.shape == ArmPose::Auto) {
        const bool grips = pose.kind == ArmPose::Bar || pose.kind == ArmPose::Stick ||
                           holds("straps", side) || holds("dumbbells", side);
        const bool open = pose.kind == ArmPose::Flat || pose.kind == ArmPose::Forearm;
        a.shape = grips ? ArmPose::Grip : open ? ArmPose::Open : ArmPose::Relaxed;
    }
    // the collar bone follows the arm: up and in when it rises, forward when it reaches out
    Vec3 collar{-1.0F, o * body::shoulderHalf, body::shoulderUp + body.shrug};
    a.upper.from = s.chest.point(collar);
    for (int round = 0; round < 2; ++round) {
        if (pose.kind == ArmPose::Angles)
            armByAngles(pose, s, side);
        else
            place(pose, s, side);
        const Vec3 d = s.chest.localDirection(unit(a.upper.to - a.upper.from));
        const float rise = smoothstep(-0.3F, 1.0F, d.z);
        const Vec3 moved = collar + Vec3{1.5F * std::clamp(d.x, -0.6F, 1.0F), -o * 2.5F * rise, 5.0F * rise};
        a.upper.from = s.chest.point(moved);
    }
    if (pose.kind == ArmPose::Angles)
        armByAngles(pose, s, side);
    else
        place(pose, s, side);
}

void Solver::armByAngles(const ArmPose& pose, Skeleton& s, int side) const {
    ArmBones& a = s.arm[static_cast<std::size_t>(side)];
    const float o = outward(side);
    const float e = radians(pose.elev);
    const float p = radians(pose.plane);
    const Vec3 d1 =
        s.chest.direction({std::sin(e) * std::cos(p), o * std::sin(e) * std::sin(p), -std::cos(e)});
    // "forward" carried along as the arm swings up in its plane
    const Vec3 axis = s.chest.direction({std::sin(p), -o * std::cos(p), 0}); // turning axis of the swing
    const Vec3 rest = s.chest.ax;
    const Vec3 kept = axis * dot(axis, rest);
    const Vec3 moving = rest - kept;
    const Vec3 b0 =
        kept + moving * std::cos(e) +
        s.chest.az * (dot(moving, s.chest.direction({std::cos(p), o * std::sin(p), 0})) * std::sin(e));
    const Vec3 bend0 = perpendicular(b0, d1, s.chest.ax);
    const Vec3 inner = cross(d1, bend0) * o; // towards the midline for a hanging arm
    const float t = radians(pose.twist);
    const Vec3 bend = bend0 * std::cos(t) - inner * (-std::sin(t));
    const float k = radians(pose.elbow);
    const Vec3 d2 = d1 * std::cos(k) + bend * std::sin(k);
    a.upper.to = a.upper.from + d1 * body::upperArm;
    a.lower.from = a.upper.to;
    a.lower.to = a.lower.from + d2 * body::forearm;
    a.upper.front = bend;
    a.lower.front = unit(bend * std::cos(k) - d1 * std::sin(k));
    a.upper.out = cross(bend, d1) * o;
    a.lower.out = a.upper.out;
    orient(pose, s, side);
}

void Solver::orient(const ArmPose& pose, Skeleton& s, int side) const {
    ArmBones& a = s.arm[static_cast<std::size_t>(side)];
    const Vec3 fingers = unit(a.lower.to - a.lower.from);
    Vec3 palm = s.chest.direction({0, -outward(side), -0.25F});
    if (std::fabs(dot(fingers, s.chest.ay)) > 0.8F)
        palm = s.chest.direction({0.2F, 0, -1});
    if (pose.hasPalm)
        palm = sidedVector(pose.palmTo, side);
    a.hand = handFlat(fingers, palm, side);
    a.hand.origin = a.lower.to;
}

void Solver::reach(const ArmPose& pose, Skeleton& s, int side, const Vec3& wrist) const {
    const auto i = static_cast<std::size_t>(side);
    ArmBones& a = s.arm[i];
    const float o = outward(side);
    const Vec3 pole =
        pose.hasElbow ? sidedVector(pose.elbowTo, side) : s.chest.direction({-0.35F, 0.55F * o, -0.8F});
    const Vec3 way = wrist - a.upper.from;
    const float d = length(way);
    const float span = body::upperArm + body::forearm;
    if (d > span + 1.2F || d < 9) {
        throw PoseError(std::string("hand.") + (side == Left ? "left" : "right") +
                        " cannot reach its place: it is " + std::to_string(static_cast<int>(std::lround(d))) +
                        " cm from the shoulder, the arm spans " + std::to_string(static_cast<int>(span)) +
                        " cm");
    }
    const Vec3 axis = unit(way);
    const float use = std::min(d, span * 0.9995F);
    const float along =
        (body::upperArm * body::upperArm - body::forearm * body::forearm + use * use) / (2 * use);
    const float off = std::sqrt(std::max(0.0F, body::upperArm * body::upperArm - along * along));
    const Vec3 elbowSide = perpendicular(pole, axis, s.chest.ay);
    a.upper.to = a.upper.from + axis * along + elbowSide * off;
    a.lower.from = a.upper.to;
    a.lower.to = a.upper.from + axis * use;
    const Vec3 d1 = unit(a.upper.to - a.upper.from);
    const Vec3 d2 = unit(a.lower.to - a.lower.from);
    const Vec3 hinge = cross(elbowSide, axis);
    a.upper.front = unit(cross(hinge, d1));
    a.lower.front = unit(cross(hinge, d2));
    a.upper.out = hinge * -o;
    a.lower.out = a.upper.out;
}

void Solver::place(const ArmPose& pose, Skeleton& s, int side) const {
    ArmBones& a = s.arm[static_cast<std::size_t>(side)];
    const float o = outward(side);
    const Frame& f = room_.figure();
    const Vec3 up{0, 0, 1};

    if (pose.kind == ArmPose::Flat || pose.kind == ArmPose::Forearm) {
        const float top = room_.support(pose.surface).frame.origin.z;
        const float t = radians(pose.turn);
        const Vec3 fingers = sidedVector({std::cos(t), std::sin(t), 0}, side);
        if (pose.kind == ArmPose::Flat) {
            Vec3 palm = f.point({pose.at.x, pose.at.y * o, 0});
            palm.z = top;
            a.hand = handFlat(fingers, -up, side);
            a.hand.origin = palm - fingers * 5.0F + up * 2.3F;
            reach(pose, s, side, a.hand.origin);
        } else {
            const float drop = a.upper.from.z - (top + 3.8F);
            if (drop > body::upperArm + 1.0F || drop < 5) {
                throw PoseError(std::string("hand.") + (side == Left ? "left" : "right") +
                                " cannot lie on its forearm: the shoulder is " +
                                std::to_string(static_cast<int>(drop)) + " cm over the elbow");
            }
            const float ahead =
                std::sqrt(std::max(0.0F, body::upperArm * body::upperArm - drop * drop)) * pose.along;
            const Vec3 elbow = a.upper.from + f.ax * ahead - up * drop;
            const Vec3 wrist = elbow + fingers * body::forearm - up * 1.0F;
            ArmPose bent = pose;
            bent.hasElbow = true;
            const Vec3 pole = f.localDirection(elbow - mix(a.upper.from, wrist, 0.5F));
            bent.elbowTo = {pole.x, pole.y * o, pole.z};
            reach(bent, s, side, wrist);
            a.hand = handFlat(fingers, -up, side);
            a.hand.origin = a.lower.to;
        }
        return;
    }

    Vec3 target;
    Vec3 thumb;
    bool gripped = false;
    if (pose.kind == ArmPose::Bar) {
        // a figure that stands across the machine counts along the bar, one that faces it counts outwards
        const bool across = std::fabs(f.ax.x) < 0.5F;
        const float along = across ? pose.along : pose.along * (f.ay.y > 0 ? o : -o);
        target = {Room::barX, along, Room::barHeight};
        thumb = across ? f.ax : f.ay * -o;
        gripped = true;
    } else if (pose.kind == ArmPose::Stick) {
        Vec3 middle;
        Vec3 direction;
        if (!Room::stick(pose_, s, middle, direction))
            throw PoseError("a hand holds a stick that is not there");
        target = middle + direction * (pose.along * o);
        thumb = direction * -o;
        gripped = true;
    } else {
        const Vec3 at{pose.at.x, pose.at.y * o, pose.at.z};
        target = pose.kind == ArmPose::Chest    ? s.chest.point(at)
                 : pose.kind == ArmPose::Pelvis ? s.pelvis.point(at)
                                                : f.point(at);
    }
    if (pose.under)
        thumb = -thumb;
    // the hand goes on from the forearm, whose direction the hand in turn decides: three rounds settle it
    Vec3 fingers = unit(target - a.upper.from);
    for (int round = 0; round < 4; ++round) {
        if (gripped) {
            a.hand = handRound(fingers, thumb, side);
        } else {
            Vec3 palm = pose.hasPalm ? sidedVector(pose.palmTo, side) : s.chest.direction({0, -o, -0.3F});
            a.hand = handFlat(fingers, palm, side);
        }
        const Vec3 wrist =
            target - a.hand.direction({body::grip, 0, gripped || a.shape == ArmPose::Grip ? -2.6F : -1.5F});
        reach(pose, s, side, wrist);
        a.hand.origin = a.lower.to;
        fingers = unit(a.lower.to - a.lower.from);
    }
}

bool Solver::alike(const BodyPose& first, const BodyPose& second) {
    for (std::size_t i = 0; i < 2; ++i)
        if (first.leg[i].kind != second.leg[i].kind || first.leg[i].surface != second.leg[i].surface ||
            first.arm[i].kind != second.arm[i].kind || first.arm[i].surface != second.arm[i].surface)
            return false;
    return first.rests == second.rests;
}

BodyPose Solver::between(const BodyPose& first, const BodyPose& second, float t) {
    BodyPose b = second;
    const auto blend = [t](float& value, float from) { value = from + (value - from) * t; };
    b.pelvis = mix(first.pelvis, second.pelvis, t);
    blend(b.tilt, first.tilt);
    blend(b.roll, first.roll);
    blend(b.yaw, first.yaw);
    blend(b.bend, first.bend);
    blend(b.side, first.side);
    blend(b.twist, first.twist);
    blend(b.nod, first.nod);
    blend(b.headSide, first.headSide);
    blend(b.headTurn, first.headTurn);
    blend(b.shrug, first.shrug);
    for (std::size_t i = 0; i < 2; ++i) {
        LegPose& l = b.leg[i];
        const LegPose& l0 = first.leg[i];
        if (l.kind == l0.kind) {
            l.at = mix(l0.at, l.at, t);
            for (auto field : {&LegPose::turn, &LegPose::heel, &LegPose::flex, &LegPose::spread,
                               &LegPose::roll, &LegPose::knee, &LegPose::ankle})
                blend(l.*field, l0.*field);
        }
        ArmPose& a = b.arm[i];
        const ArmPose& a0 = first.arm[i];
        if (a.kind == a0.kind) {
            a.at = mix(a0.at, a.at, t);
            for (auto field : {&ArmPose::turn, &ArmPose::along, &ArmPose::elev, &ArmPose::plane,
                               &ArmPose::elbow, &ArmPose::twist})
                blend(a.*field, a0.*field);
        }
    }
    return b;
}

} // namespace figures
