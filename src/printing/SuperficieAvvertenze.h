#pragma once

#include "printing/Surface.h"

namespace sheet {

/// The fixed sheet of warnings, complete and placed: five wrong postures with their explanations, the general
/// warnings in red and the two logos. Raises FileNotFound when one of the pictures
/// `images/avvertenze/posa0.JPG` to `posa4.JPG` is missing.
Surface avvertenzeSurface();

} // namespace sheet
