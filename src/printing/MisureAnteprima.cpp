#include "printing/MisureAnteprima.h"

#include "platform/runtime/Conversions.h"

MisureAnteprima misuraAnteprima(double windowWidth, double windowHeight, double barre, double barWidth,
                                double canvasWidth, double canvasHeight) {
    MisureAnteprima misure;
    misure.barLeft = windowWidth - barWidth - 100;
    misure.barHeight = windowHeight - barre - 400;
    const double d = canvasHeight - (windowHeight - barre) + 200;
    if (d > 0)
        misure.corsa = {runtime::toInt16(d), runtime::toInt16(d / 20), runtime::toInt16(d / 10)};
    misure.canvasLeft = canvasWidth >= windowWidth ? 0 : (windowWidth - canvasWidth) / 2;
    return misure;
}
