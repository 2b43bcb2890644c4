#include "platform/toolkit/Exposure.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>
#include <QWidget>
#include <QWindow>

namespace toolkit {

void waitForExposure(const QWidget& window, int milliseconds) {
    const QDeadlineTimer patience(milliseconds);
    QTimer tick; // ends the waiting below
    tick.start(20);
    while (window.isVisible() && !window.windowHandle()->isExposed() && !patience.hasExpired())
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
}

} // namespace toolkit
