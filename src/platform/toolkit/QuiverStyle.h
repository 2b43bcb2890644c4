#pragma once

#include <QPalette>
#include <QProxyStyle>

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

private:
    void drawTitleBar(const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const;
    void drawCombo(const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const;
};

} // namespace toolkit
