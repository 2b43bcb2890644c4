#pragma once

#include <QPalette>
#include <QProxyStyle>

#include <vector>

namespace toolkit {

/// The program's look on every desktop: light, one accent colour; arrows, tabs and margins so narrow that
/// captions, items and values fit controls of 17 and 21 pixels.
class QuiverStyle : public QProxyStyle {
    Q_OBJECT
public:
    QuiverStyle();

    static QPalette colours();
    static QColor accent();

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl sub,
                         const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    /// The pictures of message boxes, as flat as the rest.
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;

    static constexpr int arrowWidth = 14; ///< pixels of a combo box's arrow

protected:
    /// A frame of one pixel inside `frame`, filled rather than drawn with a pen: where the screen's scale is
    /// no whole number, a pen's line may fall outside of the widget and vanish.
    static void fillFrame(QPainter& painter, const QRect& frame, const QColor& colour);

private:
    void drawTitleBar(const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const;
    void drawCombo(const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const;
    /// The one palette that stands for all equal ones. Each widget has a copy of its own, and the style below
    /// keeps what it draws of scroll bars and buttons under a name with the copy's number in it: without this
    /// every opening of a window would draw them anew and leave its names in the pixmap cache for good.
    QPalette common(const QPalette& palette) const;

    mutable std::vector<QPalette> palettes_; ///< a handful: those that differ
};

} // namespace toolkit
