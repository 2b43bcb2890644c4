#pragma once

#include <optional>

/// Where page and scroll bar stand in a preview window. All lengths in twips, of the window's own outer size.
struct MisureAnteprima {
    /// The bar's range, for a page that is higher than what the window shows; the steps are 16-bit numbers.
    struct Corsa {
        int Max = 0;
        int SmallChange = 0;
        int LargeChange = 0;
    };

    double barLeft = 0;
    double barHeight = 0;
    std::optional<Corsa> corsa; ///< none when the whole page shows: the bar then keeps its old range
    double canvasLeft = 0;
};

/// `barre` is the height of toolbar and status bar together. Raises Overflow when a step needs more than 16
/// bits.
MisureAnteprima misuraAnteprima(double windowWidth, double windowHeight, double barre, double barWidth,
                                double canvasWidth, double canvasHeight);
