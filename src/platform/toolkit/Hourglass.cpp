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

} // namespace toolkit
