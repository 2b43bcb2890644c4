#pragma once

#include "printing/Element.h"

#include <QTextLayout>

#include <memory>
#include <vector>

class QPainter;

namespace sheet {

/// The font of the sheet in page units: one "pixel" of it is a twip, hinting off, so that widths and line
/// breaks are those of the design whatever the device. The first installed family of the list is taken.
QFont pageFont(const Font& font, double sizeScale = 1);

/// A text element's text laid out in its box, without painting.
///
/// A single line too wide for its box is drawn narrower, down to 85 %, then smaller, and ends with "…" only
/// when even that is not enough; it is never cut at the box's height. A wrapped text too long for its box is
/// set smaller, down to 85 % or 5.7 points, and then cut at a whole line that ends with "…".
class FittedText {
public:
    /// `element` must outlive this object.
    explicit FittedText(const Element& element);

    /// The lines as they show.
    QStringList lines() const { return lines_; }
    /// The smallest upright rectangle around all lines, on the surface, in twips.
    QRectF bounds() const;
    double sizeScale() const { return sizeScale_; }
    double widthScale() const { return widthScale_; }
    bool isCut() const { return cut_; }

    /// Paints with the upper left corner of the box at `origin`.
    void paint(QPainter& painter, QPointF origin) const;

private:
    struct Line {
        std::unique_ptr<QTextLayout> layout;
        QPointF at; ///< Relative to the box, before the narrowing.
        double width = 0;
    };

    void fitSingle(const QString& text);
    void fitWrapped(const QString& text);
    bool breakLines(const QString& text, qsizetype most);
    void cutLastLine();
    void place();
    void useScale(double scale);
    double usableWidth() const;
    double usableHeight() const;
    double widthOf(const QString& text) const;

    const Element& element_;
    QFont font_;
    double lineHeight_ = 0;
    double sizeScale_ = 1;
    double widthScale_ = 1;
    bool cut_ = false;
    QStringList lines_;
    std::vector<Line> placed_;
};

} // namespace sheet
