#include "platform/toolkit/PictureBox.h"

#include "platform/pictures/PictureFile.h"
#include "platform/toolkit/Twips.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

namespace toolkit {

PictureBox::PictureBox(const QString& name, QWidget* parent) : QFrame(parent) {
    setObjectName(name);
}

void PictureBox::load(const QString& path) {
    const pictures::PictureFile file(path);
    const QImage image = file.whole();
    setImage(image);
    ownSize_ = file.size();
}

void PictureBox::setImage(const QImage& image) {
    image_ = image;
    ownSize_ = image.size();
    scaled_ = QPixmap();
    update();
}

void PictureBox::clear() {
    setImage(QImage());
}

QSizeF PictureBox::pictureSize() const {
    return image_.isNull() ? QSizeF() : QSizeF(toTwips(ownSize_.width()), toTwips(ownSize_.height()));
}

double PictureBox::left() const {
    return toTwips(x());
}

double PictureBox::top() const {
    return toTwips(y());
}

double PictureBox::width() const {
    return toTwips(QFrame::width());
}

double PictureBox::height() const {
    return toTwips(QFrame::height());
}

void PictureBox::setLeft(double twips) {
    move(toPixels(twips), y());
}

void PictureBox::setTop(double twips) {
    move(x(), toPixels(twips));
}

void PictureBox::setWidth(double twips) {
    resize(toPixels(twips), QFrame::height());
}

void PictureBox::setHeight(double twips) {
    resize(QFrame::width(), toPixels(twips));
}

void PictureBox::paintEvent(QPaintEvent* event) {
    const QRect place = contentsRect();
    QPainter painter(this);
    if (!image_.isNull() && !place.isEmpty()) {
        const qreal density = devicePixelRatioF();
        const QSize pixels = (QSizeF(place.size()) * density).toSize();
        if (scaled_.size() != pixels) {
            scaled_ =
                QPixmap::fromImage(image_.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
            scaled_.setDevicePixelRatio(density);
        }
        painter.drawPixmap(place.topLeft(), scaled_);
    }
    if (dropHint_) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(place.adjusted(1, 1, -1, -1));
    }
    painter.end();
    QFrame::paintEvent(event);
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event) {
    QFrame::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT clicked();
}

bool PictureBox::takes(const QDropEvent& event) const {
    return event.mimeData()->hasText() && (event.possibleActions() & Qt::CopyAction) &&
           (!fits_ || fits_(event.mimeData()->text()));
}

void PictureBox::dragEnterEvent(QDragEnterEvent* event) {
    if (takes(*event)) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
        dropHint_ = true;
        update();
    } else {
        event->ignore();
    }
}

void PictureBox::dragMoveEvent(QDragMoveEvent* event) {
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void PictureBox::dragLeaveEvent(QDragLeaveEvent* event) {
    QFrame::dragLeaveEvent(event);
    dropHint_ = false;
    update();
}

void PictureBox::dropEvent(QDropEvent* event) {
    dropHint_ = false;
    update();
    if (!takes(*event)) {
        event->ignore();
        return;
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    Q_EMIT dropped(event->mimeData()->text());
}

} // namespace toolkit
