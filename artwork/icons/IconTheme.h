#pragma once

#include <QColor>
#include <QDir>
#include <QImage>
#include <QString>

/// The scalable icons of one freedesktop theme, drawn in this program's colours.
class IconTheme {
public:
    /// `folder` is the theme's own, with actions/<size>/<name>.svg below it.
    explicit IconTheme(const QString& folder) : folder_(folder) {}

    /// Draws the icon `name` on a clear square of `side` units at `ratio` pixels to the unit, from the
    /// drawing that the theme made for the nearest size. The strokes that the theme leaves to the text colour
    /// take `tint`; with `hot` the theme's own colours become brighter and fuller. Throws std::runtime_error
    /// if the theme has no such icon.
    QImage draw(const QString& name, int side, int ratio, const QColor& tint, bool hot) const;

private:
    QByteArray source(const QString& name, int side, int& drawnFor) const;
    QDir folder_;
};
