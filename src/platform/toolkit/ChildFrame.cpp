#include "platform/toolkit/ChildFrame.h"

#include "platform/toolkit/Form.h"

#include <QCloseEvent>

namespace toolkit {

ChildFrame::ChildFrame(Form& page)
    : QMdiSubWindow(nullptr, Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                 Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      page_(page) {
    setWidget(&page);
    setSystemMenu(nullptr);
    setFocusPolicy(Qt::ClickFocus); // Tab visits the page's controls, not its frame
    setWindowTitle(page.windowTitle());
    connect(&page, &QWidget::windowTitleChanged, this, &QWidget::setWindowTitle);
}

void ChildFrame::closeEvent(QCloseEvent* event) {
    event->ignore();
    page_.unload();
}

} // namespace toolkit
