#include "platform/toolkit/QuiverStyle.h"

#include "platform/toolkit/ChildFrame.h"
#include "platform/toolkit/Fonts.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTreeView>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace toolkit {

namespace {

constexpr int comboFrame = 1; // pixels

QColor line() {
    return {0xb4, 0xbc, 0xc6};
}

QColor titleColour(bool active) {
    return active ? QColor(0xd5, 0xe3, 0xf0) : QColor(0xe6, 0xe9, 0xed);
}

/// A disc with a sign in it, sharp on every screen.
QIcon sign(const QString& text, const QColor& colour) {
    QIcon icon;
    for (const int size : {32, 48, 64, 96}) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        painter.drawEllipse(picture.rect().adjusted(1, 1, -1, -1));
        painter.setPen(Qt::white);
        painter.setFont(font(u"Arial"_s, size * 0.5, true));
        painter.drawText(picture.rect(), Qt::AlignCenter, text);
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

void drawChevron(QPainter* painter, const QRect& place, const QColor& colour) {
    const QPointF middle = QRectF(place).center();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(colour, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF points[] = {middle + QPointF(-3, -1.5), middle + QPointF(0, 1.5),
                              middle + QPointF(3, -1.5)};
    painter->drawPolyline(points, 3);
    painter->restore();
}

} // namespace

QuiverStyle::QuiverStyle() : QProxyStyle(QStyleFactory::create(u"Fusion"_s)) {}

QColor QuiverStyle::accent() {
    return {0x2f, 0x6f, 0xa8};
}

QPalette QuiverStyle::colours() {
    QPalette palette(QColor(0xf3, 0xf4, 0xf6));
    palette.setColor(QPalette::Window, QColor(0xf3, 0xf4, 0xf6));
    palette.setColor(QPalette::WindowText, QColor(0x1f, 0x24, 0x2b));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf6, 0xf8, 0xfa));
    palette.setColor(QPalette::Text, QColor(0x1f, 0x24, 0x2b));
    palette.setColor(QPalette::Button, QColor(0xf0, 0xf2, 0xf5));
    palette.setColor(QPalette::ButtonText, QColor(0x1f, 0x24, 0x2b));
    palette.setColor(QPalette::Mid, line());
    palette.setColor(QPalette::Highlight, accent());
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, accent());
    palette.setColor(QPalette::ToolTipBase, QColor(0xff, 0xfd, 0xf0));
    palette.setColor(QPalette::ToolTipText, QColor(0x1f, 0x24, 0x2b));
    palette.setColor(QPalette::PlaceholderText, QColor(0x80, 0x88, 0x92));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x93, 0x9a, 0xa3));
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(0xf3, 0xf4, 0xf6));
    palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor(0xc3, 0xd6, 0xe8));
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, QColor(0x1f, 0x24, 0x2b));
    return palette;
}

int QuiverStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_TitleBarHeight:
        return ChildFrame::titleHeight;
    case PM_MdiSubWindowFrameWidth:
        return ChildFrame::border;
    case PM_TabBarTabHSpace:
        return 14;
    case PM_TabBarTabVSpace:
        return 6;
    case PM_TabBarTabOverlap:
    case PM_TabBarBaseOverlap:
        return 1;
    case PM_ButtonMargin:
        return 4;
    case PM_ScrollBarExtent:
        return 15;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return 13;
    case PM_HeaderMargin:
    case PM_ToolTipLabelFrameWidth:
        return 3;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int QuiverStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* returnData) const {
    switch (hint) {
    case SH_ComboBox_Popup:
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    case SH_ToolTip_WakeUpDelay:
        return 500;
    case SH_TabBar_Alignment:
        return Qt::AlignLeft;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

QRect QuiverStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl sub,
                                  const QWidget* widget) const {
    const QRect whole = option->rect;
    if (control == CC_ComboBox) {
        switch (sub) {
        case SC_ComboBoxFrame:
        case SC_ComboBoxListBoxPopup:
            return whole;
        case SC_ComboBoxArrow:
            return visualRect(option->direction, whole,
                              {whole.right() - comboFrame - arrowWidth + 1, whole.top() + comboFrame,
                               arrowWidth, whole.height() - 2 * comboFrame});
        case SC_ComboBoxEditField: {
            const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
            const int left = combo != nullptr && combo->editable ? comboFrame : comboFrame + 3;
            return visualRect(option->direction, whole,
                              whole.adjusted(left, comboFrame, -comboFrame - arrowWidth, -comboFrame));
        }
        default:
            break;
        }
    }
    if (control == CC_TitleBar) {
        const int side = ChildFrame::titleHeight - 6;
        switch (sub) {
        case SC_TitleBarCloseButton:
            return {whole.right() - side - 3, whole.top() + (whole.height() - side) / 2, side, side};
        case SC_TitleBarLabel:
            return whole.adjusted(6, 0, -side - 6, 0);
        default:
            return {};
        }
    }
    return QProxyStyle::subControlRect(control, option, sub, widget);
}

QSize QuiverStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                    const QWidget* widget) const {
    QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_ToolButton) {
        result += QSize(4, 2);
    } else if (type == CT_ItemViewItem) {
        // Lists of lines breathe; a short list of choices must show nine of them in 139 pixels.
        const int air = qobject_cast<const QTreeView*>(widget) != nullptr ? 6 : 2;
        result.setHeight(std::max(result.height(), option->fontMetrics.height() + air));
    }
    return result;
}

QIcon QuiverStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                const QWidget* widget) const {
    switch (icon) {
    case SP_MessageBoxCritical:
        return sign(u"×"_s, QColor(0xc0, 0x3b, 0x34));
    case SP_MessageBoxQuestion:
        return sign(u"?"_s, accent());
    case SP_MessageBoxWarning:
        return sign(u"!"_s, QColor(0xd9, 0x8c, 0x1f));
    case SP_MessageBoxInformation:
        return sign(u"i"_s, accent());
    default:
        return QProxyStyle::standardIcon(icon, option, widget);
    }
}

void QuiverStyle::drawTitleBar(const QStyleOptionComplex* option, QPainter* painter,
                               const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    if (bar == nullptr)
        return;
    const bool active = bar->titleBarState & State_Active;
    painter->save();
    painter->fillRect(bar->rect, titleColour(active));
    painter->setPen(line());
    painter->drawLine(bar->rect.bottomLeft(), bar->rect.bottomRight());
    const QRect label = subControlRect(CC_TitleBar, option, SC_TitleBarLabel, widget);
    QFont font = widget != nullptr ? widget->font() : painter->font();
    font.setBold(true);
    painter->setFont(font);
    painter->setPen(bar->palette.color(QPalette::WindowText));
    painter->drawText(label, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      painter->fontMetrics().elidedText(bar->text, Qt::ElideRight, label.width()));
    const QRect close = subControlRect(CC_TitleBar, option, SC_TitleBarCloseButton, widget);
    const bool hot = (bar->activeSubControls & SC_TitleBarCloseButton) && (bar->state & State_MouseOver);
    const bool down = (bar->activeSubControls & SC_TitleBarCloseButton) && (bar->state & State_Sunken);
    painter->setRenderHint(QPainter::Antialiasing);
    if (hot || down) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(down ? QColor(0xb8, 0x3a, 0x32) : QColor(0xd0, 0x4a, 0x42));
        painter->drawRoundedRect(close, 3, 3);
    }
    painter->setPen(QPen(hot || down ? QColor(Qt::white) : bar->palette.color(QPalette::WindowText), 1.3));
    const QRectF cross = QRectF(close).adjusted(4.5, 4.5, -4.5, -4.5);
    painter->drawLine(cross.topLeft(), cross.bottomRight());
    painter->drawLine(cross.topRight(), cross.bottomLeft());
    painter->restore();
}

void QuiverStyle::drawCombo(const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const {
    const bool enabled = option->state & State_Enabled;
    const bool focus = option->state & State_HasFocus;
    const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(focus ? accent() : line(), 1));
    painter->setBrush(option->palette.color(enabled ? QPalette::Normal : QPalette::Disabled, QPalette::Base));
    if (combo == nullptr || combo->frame)
        painter->drawRoundedRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    painter->restore();
    if (option->subControls & SC_ComboBoxArrow) {
        const QRect arrow = subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget);
        const bool hot = (option->state & State_MouseOver) && (option->activeSubControls & SC_ComboBoxArrow);
        if (enabled && (hot || (option->state & State_On)))
            painter->fillRect(arrow, QColor(0xe1, 0xea, 0xf3));
        drawChevron(painter, arrow,
                    option->palette.color(enabled ? QPalette::Normal : QPalette::Disabled, QPalette::Text));
    }
}

void QuiverStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const {
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_TitleBar) {
        drawTitleBar(option, painter, widget);
    } else if (control == CC_ComboBox) {
        drawCombo(option, painter, widget);
    } else if (slider != nullptr) {
        QStyleOptionSlider bar = *slider;
        bar.palette = common(bar.palette);
        QProxyStyle::drawComplexControl(control, &bar, painter, widget);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

void QuiverStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
    if (element == PE_FrameWindow) { // the slim frame of a child page
        painter->save();
        painter->fillRect(option->rect, titleColour(option->state & State_Active));
        painter->setPen(line());
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
        painter->restore();
        return;
    }
    if (element == PE_Frame) { // lists, texts of several lines, pictures
        fillFrame(*painter, option->rect, line());
        return;
    }
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (button != nullptr) {
        QStyleOptionButton panel = *button;
        panel.palette = common(panel.palette);
        QProxyStyle::drawPrimitive(element, &panel, painter, widget);
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void QuiverStyle::fillFrame(QPainter& painter, const QRect& frame, const QColor& colour) {
    const QRectF r(frame);
    painter.fillRect(QRectF(r.left(), r.top(), r.width(), 1), colour);
    painter.fillRect(QRectF(r.left(), r.bottom() - 1, r.width(), 1), colour);
    painter.fillRect(QRectF(r.left(), r.top(), 1, r.height()), colour);
    painter.fillRect(QRectF(r.right() - 1, r.top(), 1, r.height()), colour);
}

QPalette QuiverStyle::common(const QPalette& palette) const {
    const auto known = std::find(palettes_.begin(), palettes_.end(), palette);
    return known != palettes_.end() ? *known : palettes_.emplace_back(palette);
}

} // namespace toolkit
