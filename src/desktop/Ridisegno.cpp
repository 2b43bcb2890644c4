#include "desktop/Ridisegno.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QWidget>

namespace desktop {

void ridisegna(QWidget& widget) {
    if (!widget.isVisible())
        return;
    widget.repaint();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace desktop
