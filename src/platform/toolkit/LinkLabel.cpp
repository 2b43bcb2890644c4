#include "platform/toolkit/LinkLabel.h"

#include <QDesktopServices>
#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

#include <algorithm>

namespace toolkit {

LinkLabel::LinkLabel(const QString& name, const QString& caption, const QUrl& target, QWidget* parent)
    : Label(name, caption, parent) {
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
    setForegroundRole(QPalette::Link);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setToolTip(target.toString());
    connect(this, &Label::clicked, this, [target] { QDesktopServices::openUrl(target); });
}

void LinkLabel::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space) {
        Q_EMIT clicked();
        return;
    }
    Label::keyPressEvent(event);
}

void LinkLabel::paintEvent(QPaintEvent* event) {
    Label::paintEvent(event);
    if (hasFocus()) {
        QStylePainter painter(this);
        QStyleOptionFocusRect frame;
        frame.initFrom(this);
        frame.rect.setWidth(std::min(width(), fontMetrics().horizontalAdvance(text()) + 3));
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, frame);
    }
}

} // namespace toolkit
