#pragma once

#include "Shape.h"
#include "Skeleton.h"

namespace figures {

/// Clothes the skeleton with flesh, muscles, hair, hands and shoes. The shapes come sorted by group.
Shapes anatomy(const Skeleton& skeleton);

} // namespace figures
