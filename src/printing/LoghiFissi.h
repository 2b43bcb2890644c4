#pragma once

#include "printing/Surface.h"

namespace sheet {

/// Adds `LogoZentara` (the maker's, 1755 x 540 twips) and `logoQD` (the product's, 1350 x 405), which every
/// printed sheet bears. They are drawn from the program's own resources, sharp at any resolution.
void addFixedLogos(Surface& surface);

} // namespace sheet
