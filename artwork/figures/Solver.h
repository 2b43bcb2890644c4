#pragma once

#include "Room.h"

namespace figures {

/// Puts a body in its place: trunk from the angles, limbs by inverse kinematics from where hands and feet
/// belong.
class Solver {
public:
    Solver(const Room& room, const Pose& pose) : room_(room), pose_(pose) {}

    /// Throws PoseError when a hand or foot cannot reach its place or a part cannot rest where it should.
    Skeleton solve(const BodyPose& body) const;

    /// The pose between two positions (0 the first, 1 the second): the road of a movement.
    static BodyPose between(const BodyPose& first, const BodyPose& second, float t);

    /// Whether hands and feet hold the same way in both positions, so that what lies between can be solved.
    static bool alike(const BodyPose& first, const BodyPose& second);

    /// Free height under the lowest shape of a part, over whatever support lies below it.
    static float gap(const Shapes& shapes, const Room& room, const std::string& part);

private:
    void trunk(const BodyPose& body, Skeleton& s) const;
    void leg(const BodyPose& body, Skeleton& s, int side) const;
    void arm(const BodyPose& body, Skeleton& s, int side) const;
    void kneel(const LegPose& pose, Skeleton& s, int side) const;
    void legByAngles(const LegPose& pose, Skeleton& s, int side) const;
    void armByAngles(const ArmPose& pose, Skeleton& s, int side) const;
    void place(const ArmPose& pose, Skeleton& s, int side) const;
    void reach(const ArmPose& pose, Skeleton& s, int side, const Vec3& wrist) const;
    void orient(const ArmPose& pose, Skeleton& s, int side) const;
    Vec3 footForward(const LegPose& pose, int side) const;
    Vec3 sidedVector(const Vec3& v, int side) const;
    bool holds(const std::string& kind, int side) const;
    Skeleton once(const BodyPose& body) const;

    const Room& room_;
    const Pose& pose_;
};

} // namespace figures
