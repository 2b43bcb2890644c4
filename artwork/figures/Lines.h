#pragma once

#include "Tracer.h"

namespace figures {

/// The drawn line of the series: outlines and creases of a traced picture, and its reduction to final pixels.
class Lines {
public:
    /// Darkens the samples along outlines, overlaps and borders of materials. `fine` samples a pixel side.
    static void draw(SampleMap& picture, int fine);
    /// Averages `fine` x `fine` samples and lays them over `image`.
    static void reduce(const SampleMap& picture, int fine, QImage& image);
};

} // namespace figures
