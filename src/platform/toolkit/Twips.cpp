#include "platform/toolkit/Twips.h"

#include <QWidget>
#include <cmath>

namespace toolkit {

int toPixels(double twips) {
    return static_cast<int>(std::lround(twips / twipsPerPixel));
}

double toTwips(double pixels) {
    return pixels * twipsPerPixel;
}

QRect toPixels(double left, double top, double width, double height) {
    const QPoint topLeft(toPixels(left), toPixels(top));
    return {topLeft, QSize(toPixels(left + width) - topLeft.x(), toPixels(top + height) - topLeft.y())};
}

void place(QWidget& widget, double left, double top, double width, double height) {
    widget.setGeometry(toPixels(left, top, width, height));
}

} // namespace toolkit
