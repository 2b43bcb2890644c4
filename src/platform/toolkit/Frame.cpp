#include "platform/toolkit/Frame.h"

#include <QMouseEvent>
#include <QPainter>

namespace toolkit {

Frame::Frame(const QString& name, QWidget* parent, const QString& caption)
    : QWidget(parent), caption_(caption) {
    setObjectName(name);
}

void Frame::setBorder(bool border) {
    border_ = border;
    update();
}

void Frame::paintEvent(QPaintEvent* /*event*/) {
    if (!border_)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Mid), 1));
    const int half =
        caption_.isEmpty() ? 6 : fontMetrics().height() / 2; // the border runs through the caption
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, half + 0.5, -0.5, -0.5), 3, 3);
    if (!caption_.isEmpty()) {
        const QRect text(8, 0, fontMetrics().horizontalAdvance(caption_) + 6, fontMetrics().height());
        painter.fillRect(text, palette().color(QPalette::Window));
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(text, Qt::AlignCenter, caption_);
    }
}

void Frame::mouseReleaseEvent(QMouseEvent* event) {
    QWidget::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT clicked();
}

} // namespace toolkit
