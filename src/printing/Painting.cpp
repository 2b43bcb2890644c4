#include "printing/Painting.h"

#include "printing/FittedText.h"

#include <QPainter>

#include <cmath>

namespace sheet {

namespace {

constexpr double pixelsPerMetre = 96 / 0.0254;

double snap(double twips) {
    return std::round(twips / twipsPerPixel) * twipsPerPixel;
}

/// The box on whole logical pixels; its size does not depend on where it stands.
QRectF snapped(const Element& element) {
    return {snap(element.left), snap(element.top), snap(element.width), snap(element.height)};
}

void paintText(const Element& element, QPainter& painter) {
    const QRectF box = snapped(element);
    if (element.back.isValid())
        painter.fillRect(box, element.back);
    if (!element.text.isEmpty())
        FittedText(element).paint(painter, box.topLeft());
}

void paintPicture(const Element& element, QPainter& painter) {
    if (element.picture.isNull())
        return;
    const QRectF box = snapped(element);
    const QSize pixels = painter.deviceTransform().mapRect(box).size().toSize();
    painter.drawImage(box, element.picture.stretchedTo(pixels));
}

void paintFrame(const Element& element, QPainter& painter) {
    const double inset = element.lineWidth / 2;
    painter.setPen(QPen(element.colour, element.lineWidth));
    painter.setBrush(element.back.isValid() ? QBrush(element.back) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(snapped(element).adjusted(inset, inset, -inset, -inset), element.cornerRadius,
                            element.cornerRadius);
}

void paintRule(const Element& element, QPainter& painter) {
    const QPointF from(snap(element.left), snap(element.top));
    painter.setPen(QPen(element.colour, element.lineWidth, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(from, from + QPointF(snap(element.width), snap(element.height)));
}

} // namespace

void paint(const Surface& surface, QPainter& painter) {
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    for (const Element& element : surface.elements()) {
        if (!element.visible)
            continue;
        switch (element.kind) {
        case Kind::Text:
            paintText(element, painter);
            break;
        case Kind::Picture:
            paintPicture(element, painter);
            break;
        case Kind::Frame:
            paintFrame(element, painter);
            break;
        case Kind::Rule:
            paintRule(element, painter);
            break;
        }
    }
    painter.restore();
}

QImage raster(const Surface& surface, qreal devicePixelRatio) {
    QImage image((QSizeF(surface.pixels()) * devicePixelRatio).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        painter.scale(devicePixelRatio / twipsPerPixel, devicePixelRatio / twipsPerPixel);
        paint(surface, painter);
    }
    // Set only now: the painter above scales by itself.
    image.setDevicePixelRatio(devicePixelRatio);
    const int perMetre = int(std::lround(pixelsPerMetre * devicePixelRatio));
    image.setDotsPerMeterX(perMetre);
    image.setDotsPerMeterY(perMetre);
    return image;
}

} // namespace sheet
