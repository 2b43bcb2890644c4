#include "Signs.h"

#include <QLineF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace figures {
namespace {

QPolygonF headAt(const QPointF& tip, const QPointF& direction, double size) {
    const QPointF n(-direction.y(), direction.x());
    return QPolygonF({tip + direction * size, tip + n * size * 0.72 - direction * size * 0.25,
                      tip - n * size * 0.72 - direction * size * 0.25});
}

QPointF unitOf(const QPointF& v) {
    const double l = std::hypot(v.x(), v.y());
    return l > 1e-9 ? v / l : QPointF(1, 0);
}

} // namespace

void Signs::arrow(QImage& image, const std::vector<QPointF>& road, bool both) {
    std::vector<QPointF> way = road;
    double length = 0;
    for (std::size_t i = 1; i < way.size(); ++i)
        length += QLineF(way[i - 1], way[i]).length();
    if (way.size() < 2 || length < 4)
        return;
    constexpr double least = 62; // a shorter movement is drawn this long, so that it can be seen
    if (length < least) {
        const QPointF middle = (way.front() + way.back()) / 2;
        for (auto& p : way)
            p = middle + (p - middle) * (least / length);
    }
    constexpr double size = 25;
    const QPointF first = unitOf(way[0] - way[1]);
    const QPointF last = unitOf(way[way.size() - 1] - way[way.size() - 2]);
    QPainterPath line(way.front());
    for (std::size_t i = 1; i < way.size(); ++i)
        line.lineTo(way[i]);
    QPainterPath heads;
    heads.addPolygon(headAt(way.back(), last, size));
    heads.closeSubpath();
    if (both) {
        heads.addPolygon(headAt(way.front(), first, size));
        heads.closeSubpath();
    }
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor blue(22, 104, 190);
    const QPen halo(QColor(255, 255, 255, 235), 17, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    painter.strokePath(line, halo);
    painter.strokePath(heads,
                       QPen(QColor(255, 255, 255, 235), 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.strokePath(line, QPen(blue, 9, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.fillPath(heads, blue);
}

void Signs::forbidden(QImage& image) {
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const double side = std::min(image.width(), image.height());
    const double d = side * 0.34;
    const QRectF ring(image.width() - d - side * 0.05, side * 0.05, d, d);
    const double pen = d * 0.13;
    painter.setBrush(QColor(255, 255, 255, 225));
    painter.setPen(QPen(QColor(204, 22, 28), pen));
    painter.drawEllipse(ring.adjusted(pen / 2, pen / 2, -pen / 2, -pen / 2));
    painter.setPen(QPen(QColor(204, 22, 28), pen * 1.05, Qt::SolidLine, Qt::RoundCap));
    const double in = d * 0.24;
    painter.drawLine(ring.topLeft() + QPointF(in, in), ring.bottomRight() - QPointF(in, in));
    painter.drawLine(ring.topRight() + QPointF(-in, in), ring.bottomLeft() + QPointF(in, -in));
}

} // namespace figures
