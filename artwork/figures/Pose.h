#pragma once

#include "Vec3.h"

#include <array>
#include <stdexcept>
#include <string>
#include <vector>

namespace figures {

/// A pose that cannot be read, solved or drawn; the text says where and why.
class PoseError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

enum Side { Left = 0, Right = 1 };
/// +1 for the left side, -1 for the right: the sign of y that points outwards.
constexpr float outward(int side) {
    return side == Left ? 1.0F : -1.0F;
}

/// Where a foot is and how it stands.
struct LegPose {
    enum Kind { Stand, Kneel, Free, Angles };
    Kind kind = Stand;
    std::string surface = "plate"; ///< what it stands or kneels on
    Vec3 at{0, 12, 0};             ///< below the ankle (y outwards); z only for Free
    float turn = 8;                ///< toes outwards
    float heel = 0;                ///< heel raised over the ball; negative: toes raised over the heel
    float fore = 1;                ///< Kneel: the knee before (1) or behind (-1) the hip
    float tuck = 0;                ///< Kneel: 1 when the toes are tucked under
    float flex = 0, spread = 0, roll = 0, knee = 0, ankle = 0; ///< Angles
    bool hasPole = false;
    Vec3 pole; ///< where the knee points, figure frame, y outwards
};

/// Where a hand is and how it is held.
struct ArmPose {
    enum Kind { Angles, Bar, Flat, Forearm, Chest, Pelvis, World, Stick };
    enum Shape { Auto, Relaxed, Open, Grip };
    Kind kind = Angles;
    Shape shape = Auto;
    std::string surface = "plate";
    Vec3 at;                                           ///< place, y outwards
    float turn = 0;                                    ///< fingers outwards (Flat, Forearm)
    float along = 0;                                   ///< distance from the middle of a stick
    bool under = false;                                ///< underhand grip
    float elev = 8, plane = 60, elbow = 12, twist = 0; ///< Angles
    bool hasElbow = false, hasPalm = false;
    Vec3 elbowTo, palmTo; ///< wished directions, figure frame, y outwards
};

struct Accessory {
    std::string kind; ///< mat, straps, dumbbells, step, ball, stick, bench
    Vec3 at;
    float turn = 0;
    float size = 0;
    bool left = true, right = true; ///< which hands (dumbbells, straps)
};

struct Arrow {
    std::string point; ///< joint whose road is shown
    float dx = 0;      ///< shift on the picture, cm to the right
    float dy = 0;      ///< and upwards
    bool both = true;  ///< a head at either end
};

/// One position of the body.
struct BodyPose {
    Vec3 pelvis{0, 0, 110};
    float tilt = 0; ///< trunk forward
    float roll = 0; ///< trunk to the left
    float yaw = 0;  ///< pelvis turned to the left of `facing`
    float bend = 0, side = 0, twist = 0;
    bool hasHead = false;
    float nod = 0, headSide = 0, headTurn = 0;
    float shrug = 0; ///< shoulders lifted, cm
    std::array<LegPose, 2> leg;
    std::array<ArmPose, 2> arm;
    std::vector<std::pair<std::string, std::string>> rests; ///< part, surface: the pelvis is lowered on it
};

/// One figure: the body, a second position for exercises with movement, and all that stands around.
struct Pose {
    std::string name; ///< file name, for messages
    float facing = 0; ///< 0 towards the column, 90 to the machine's left
    float azimuth = -70;
    float pitch = 9;
    bool column = true; ///< GLIDR is the plate alone
    bool forbidden = false;
    BodyPose body;
    bool hasSecond = false;
    bool ghost = true;
    BodyPose second;
    std::vector<Accessory> accessories;
    std::vector<Arrow> arrows;
};

} // namespace figures
