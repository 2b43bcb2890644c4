#pragma once
// Small drawn pictures for the tests, and rasters compared by what the eye sees.

#include "printing/Painting.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace disegni {

/// Writes a picture with fine detail: circles and a diagonal on a tint.
inline bool writeFigure(const QString& path, QSize size, QColor tint = QColor(235, 242, 250)) {
    QDir().mkpath(QFileInfo(path).path());
    QImage image(size, QImage::Format_RGB32);
    image.fill(tint);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, 3));
    for (int i = 1; i < 8; ++i)
        painter.drawEllipse(QRectF(QPointF(), size).adjusted(i * 12, i * 12, -i * 12, -i * 12));
    painter.drawLine(0, 0, size.width(), size.height());
    painter.end();
    return image.save(path, nullptr, 95);
}

/// The greatest difference of mean grey between blocks of `side` pixels of two images of one size.
/// A shifted or differently broken line of text shows, the grain of antialiasing does not.
inline double greatestBlockDifference(const QImage& a, const QImage& b, int side) {
    if (a.size() != b.size())
        return 255;
    const QSize blocks((a.width() + side - 1) / side, (a.height() + side - 1) / side);
    const auto grey = [&](const QImage& image, int x, int y) {
        double sum = 0;
        int count = 0;
        for (int v = y * side; v < std::min((y + 1) * side, image.height()); ++v)
            for (int u = x * side; u < std::min((x + 1) * side, image.width()); ++u, ++count)
                sum += qGray(image.pixel(u, v));
        return sum / count;
    };
    double greatest = 0;
    for (int y = 0; y < blocks.height(); ++y)
        for (int x = 0; x < blocks.width(); ++x)
            greatest = std::max(greatest, std::abs(grey(a, x, y) - grey(b, x, y)));
    return greatest;
}

/// What is left of a difference when a page painted `ratio` times finer is reduced again.
inline double differenceWhenReduced(const sheet::Surface& surface, int ratio) {
    const QImage once = sheet::raster(surface, 1);
    QImage finer = sheet::raster(surface, ratio);
    finer.setDevicePixelRatio(1);
    const QImage reduced = finer.scaled(once.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return greatestBlockDifference(once, reduced.convertToFormat(once.format()), 12);
}

} // namespace disegni
