#include "Field.h"

#include <QImage>
#include <QPainter>
#include <QPainterPathStroker>

#include <algorithm>

Field Field::coverage(const QPainterPath& path, const QTransform& toPixels, int margin) {
    const QPainterPath mapped = toPixels.map(path);
    const QRect area = mapped.boundingRect().toAlignedRect().adjusted(-margin, -margin, margin, margin);
    QImage mask(area.size(), QImage::Format_Grayscale8);
    mask.fill(Qt::black);
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-area.topLeft());
    painter.fillPath(mapped, Qt::white);
    painter.end();
    Field field(area);
    for (int y = area.top(); y <= area.bottom(); ++y) {
        const uchar* row = mask.constScanLine(y - area.top());
        for (int x = area.left(); x <= area.right(); ++x)
            field.at(x, y) = static_cast<float>(row[x - area.left()]) / 255.0F;
    }
    return field;
}

Field Field::line(const QPainterPath& path, double width, const QTransform& toPixels, int margin) {
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    QPainterPath outline = stroker.createStroke(path);
    outline.setFillRule(Qt::WindingFill);
    return coverage(outline, toPixels, margin);
}

Field Field::blurred(int radius) const {
    Field result = *this;
    for (int pass = 0; pass < 3; ++pass) {
        result.blurLines(radius, true);
        result.blurLines(radius, false);
    }
    return result;
}

void Field::blurLines(int radius, bool across) {
    const auto width = static_cast<size_t>(area_.width());
    const auto height = static_cast<size_t>(area_.height());
    const auto reach = static_cast<size_t>(radius);
    const size_t lines = across ? height : width;
    const size_t length = across ? width : height;
    const size_t step = across ? 1 : width;
    const float share = 1.0F / static_cast<float>(2 * radius + 1);
    std::vector<float> source(length);
    for (size_t line = 0; line < lines; ++line) {
        const size_t first = across ? line * width : line;
        for (size_t i = 0; i < length; ++i)
            source[i] = values_[first + step * i];
        // The sum of a window that slides along the line; beyond its ends there is 0.
        float sum = 0;
        for (size_t i = 0; i < std::min(reach, length); ++i)
            sum += source[i];
        for (size_t i = 0; i < length; ++i) {
            if (i + reach < length)
                sum += source[i + reach];
            if (i > reach)
                sum -= source[i - reach - 1];
            values_[first + step * i] = std::max(0.0F, sum * share); // rounding may leave the sum below 0
        }
    }
}
