#include "printing/Foglio.h"

#include "printing/Painting.h"

#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace {

qint16 buttonState(Qt::MouseButtons buttons) {
    int state = 0;
    if (buttons & Qt::LeftButton)
        state += 1;
    if (buttons & Qt::RightButton)
        state += 2;
    if (buttons & Qt::MiddleButton)
        state += 4;
    return static_cast<qint16>(state);
}

} // namespace

Foglio::Foglio(const QString& name, QWidget* parent, const sheet::Surface& surface, QStringList sensibili)
    : QWidget(parent), surface_(surface), sensibili_(std::move(sensibili)) {
    setObjectName(name);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    resize(surface_.pixels());
}

QSize Foglio::sizeHint() const {
    return surface_.pixels();
}

void Foglio::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::white);
    painter.scale(1 / sheet::twipsPerPixel, 1 / sheet::twipsPerPixel);
    sheet::paint(surface_, painter);
}

bool Foglio::reagisce(const QPointF& pixel) const {
    const sheet::Element* top = surface_.elementAt(pixel * sheet::twipsPerPixel);
    return top == nullptr || sensibili_.contains(top->name);
}

void Foglio::mousePressEvent(QMouseEvent* event) {
    if (!premuto_)
        premutoReagisce_ = reagisce(event->position());
    premuto_ = true;
}

void Foglio::mouseReleaseEvent(QMouseEvent* event) {
    premuto_ = event->buttons() != Qt::NoButton;
}

void Foglio::mouseMoveEvent(QMouseEvent* event) {
    if (premuto_ ? premutoReagisce_ : reagisce(event->position()))
        Q_EMIT mouseMoved(buttonState(event->buttons()));
}
