#pragma once

#include "Pose.h"

namespace figures {

/// Proportions of an adult of 172 cm, in centimetres.
namespace body {
inline constexpr float thigh = 43;
inline constexpr float shank = 41;
inline constexpr float ankleHeight = 8.6F; ///< ankle joint over the sole
inline constexpr float ballAhead = 12.5F;  ///< from below the ankle to the ball of the foot
inline constexpr float toeLength = 7.5F;
inline constexpr float heelBack = 6.0F;
inline constexpr float hipHalf = 9;
inline constexpr float lumbar = 10; ///< hip centre to the lower bend of the spine
inline constexpr float thorax = 12; ///< lower to upper bend
inline constexpr float shoulderUp = 25.5F;
inline constexpr float shoulderHalf = 17;
inline constexpr float neckUp = 27.5F;
inline constexpr float neck = 9;
inline constexpr float upperArm = 29;
inline constexpr float forearm = 25.5F;
inline constexpr float grip = 8.2F; ///< wrist to the middle of the fist
} // namespace body

/// A limb's bone: from joint to joint, with the direction its front faces and the one that points outwards.
struct Bone {
    Vec3 from;
    Vec3 to;
    Vec3 front;
    Vec3 out;
    /// Point at `t` of the length, `f` cm to the front, `o` cm outwards.
    Vec3 point(float t, float f, float o) const { return mix(from, to, t) + front * f + out * o; }
};

struct LegBones {
    Bone thigh;
    Bone shank;
    Frame foot;        ///< origin at the ankle, x to the toes, z away from the sole
    float toeFlex = 0; ///< degrees the toes are bent up against the foot
};

struct ArmBones {
    Bone upper;
    Bone lower;
    Frame hand; ///< origin at the wrist, x to the fingers, y to the thumb, z out of the back of the hand
    ArmPose::Shape shape = ArmPose::Relaxed;
    float thumbSign = 1;
};

/// The solved body: every joint in its place in the room (x towards the column, z up from the floor).
struct Skeleton {
    Frame pelvis;
    Frame waist;
    Frame chest;
    Frame head; ///< origin at the top of the neck
    std::array<LegBones, 2> leg;
    std::array<ArmBones, 2> arm;

    /// A joint by name ("pelvis", "head", "hand.left", "knee.right", ...); throws PoseError for another name.
    Vec3 joint(const std::string& name) const;
    /// Middle of the fist.
    Vec3 gripPoint(int side) const;
};

} // namespace figures
