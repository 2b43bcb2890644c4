#include "platform/toolkit/Exposure.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QWidget>
#include <QWindow>

namespace toolkit {

void waitForExposure(const QWidget& window, int milliseconds) {
    const QDeadlineTimer patience(milliseconds);
    while (window.isVisible() && !window.windowHandle()->isExposed() && !patience.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents,
                                        20);
    }
}

} // namespace toolkit
