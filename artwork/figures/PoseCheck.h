#pragma once

#include "Room.h"

namespace figures {

/// Refuses what no body can do. All functions throw PoseError.
class PoseCheck {
public:
    /// Each joint within the limits of a healthy adult.
    static void joints(const Skeleton& skeleton);
    /// Somebody touches something, and nobody sinks into plate, floor, bench or column.
    static void contact(const Shapes& bodyShapes, const Skeleton& skeleton, const Room& room);
};

} // namespace figures
