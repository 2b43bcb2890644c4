#include "platform/toolkit/Hourglass.h"

#include <QCursor>
#include <QGuiApplication>

namespace toolkit {

Hourglass::Hourglass() {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

Hourglass::~Hourglass() {
    QGuiApplication::restoreOverrideCursor();
}

Hourglass::Pause::Pause() {
    for (; QGuiApplication::overrideCursor() != nullptr; ++paused_)
        QGuiApplication::restoreOverrideCursor();
}

Hourglass::Pause::~Pause() {
    for (; paused_ > 0; --paused_)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

} // namespace toolkit
