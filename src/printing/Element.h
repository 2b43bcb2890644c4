#pragma once
// One placed thing on the printed sheet. All lengths are twips (1/1440 inch, 15 to the logical pixel).

#include "printing/Picture.h"

#include <QColor>
#include <QRectF>
#include <QString>
#include <QStringList>

namespace sheet {

enum class Kind { Text, Picture, Frame, Rule };

/// A font in the sheet's own units: 1 point = 20 twips, whatever the device.
struct Font {
    QStringList families; ///< Wished family first, then its near-metric stand-ins.
    double points = 8.25;
    bool bold = false;
    bool italic = false;
};

/// An element has a name and, in element arrays, an index (0 otherwise).
/// A rule runs from left,top to left + width,top + height.
struct Element {
    QString name;
    int index = 0;
    Kind kind = Kind::Text;

    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
    bool visible = true;

    QString text;
    Font font;
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignTop;
    QColor colour = Qt::black; ///< Of text, frame or rule.
    QColor back;               ///< Invalid: transparent.
    bool wordWrap = false;
    /// Room that text may really use when something else reaches into the box; 0 means the whole side.
    double usableWidth = 0;
    double usableHeight = 0;

    double lineWidth = 15;    ///< Of frame or rule.
    double cornerRadius = 0;  ///< Of a frame.
    sheet::Picture picture{}; ///< Stretched to the box.

    QRectF rect() const { return {left, top, width, height}; }
};

} // namespace sheet
