#pragma once

#include <QImage>
#include <QPointF>

#include <vector>

namespace figures {

/// Flat signs laid over a finished picture.
class Signs {
public:
    /// An arrow along `road` (pixels, first to last), with a head at the end, or at both ends.
    static void arrow(QImage& image, const std::vector<QPointF>& road, bool both);
    /// The red ring with a bar: "not like this".
    static void forbidden(QImage& image);
};

} // namespace figures
