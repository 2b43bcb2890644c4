#pragma once

#include <QFont>
#include <QString>

namespace toolkit {

/// A font by the name and size of a form's design. Sizes are points at 96 dots an inch and become whole
/// pixels, so that a screen's own density never moves a line break; families fall back on near-metric ones.
QFont font(const QString& family, double points, bool bold = false);

/// The font of every form: MS Sans Serif, 8.25 points (11 pixels).
QFont formFont();

} // namespace toolkit
