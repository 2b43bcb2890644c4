#include "platform/toolkit/ScrollBar.h"

#include <QWheelEvent>

namespace toolkit {

ScrollBar::ScrollBar(const QString& name, QWidget* parent, Qt::Orientation orientation)
    : QScrollBar(orientation, parent) {
    setObjectName(name);
    setTracking(false);
    setSingleStep(1);
    setPageStep(1);
    setContextMenuPolicy(Qt::NoContextMenu);
    connect(this, &QScrollBar::valueChanged, this, &ScrollBar::changed);
}

void ScrollBar::wheelEvent(QWheelEvent* event) {
    const int turn = event->angleDelta().y();
    if (turn != 0) // one step a notch, at once
        setValue(value() + (turn > 0 ? -singleStep() : singleStep()));
    event->accept();
}

} // namespace toolkit
