#pragma once

#include <QPainterPath>
#include <QRect>
#include <QTransform>

#include <vector>

/// A grid of numbers over a rectangle of pixels; outside of it every value is 0.
class Field {
public:
    explicit Field(const QRect& area)
        : area_(area), values_(static_cast<size_t>(area.width()) * area.height()) {}

    /// How far `path`, mapped by `toPixels`, covers each pixel (0 to 1), on its bounding box grown by
    /// `margin`.
    static Field coverage(const QPainterPath& path, const QTransform& toPixels, int margin);
    /// The same of a line of `width` twips along `path`.
    static Field line(const QPainterPath& path, double width, const QTransform& toPixels, int margin);

    const QRect& area() const { return area_; }
    float& at(int x, int y) { return values_[index(x, y)]; }
    /// The value at a pixel, 0 outside.
    float value(int x, int y) const { return area_.contains(x, y) ? values_[index(x, y)] : 0.0F; }

    /// A soft copy: three box blurs of `radius` pixels, close to a Gaussian.
    Field blurred(int radius) const;

private:
    size_t index(int x, int y) const {
        return static_cast<size_t>(y - area_.top()) * area_.width() + static_cast<size_t>(x - area_.left());
    }
    void blurLines(int radius, bool across);
    QRect area_;
    std::vector<float> values_;
};
