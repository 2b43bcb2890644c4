#pragma once

#include <QRect>

class QWidget;

namespace toolkit {

/// All window geometry is written in twips; this is the one place that turns them into pixels.
constexpr int twipsPerPixel = 15;

/// Pixels nearest to `twips` (halves away from zero).
int toPixels(double twips);

/// The exact twips of a length in pixels.
double toTwips(double pixels);

/// A rectangle in twips as pixels. Edges are rounded each by itself, so that neighbours stay neighbours.
QRect toPixels(double left, double top, double width, double height);

/// Places `widget` inside its parent; twips.
void place(QWidget& widget, double left, double top, double width, double height);

} // namespace toolkit
