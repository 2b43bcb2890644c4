#include "platform/toolkit/DialogOwner.h"

#include "platform/toolkit/Form.h"

#include <QApplication>

namespace toolkit {

QWidget* dialogOwner() {
    QWidget* window = QApplication::activeWindow();
    const auto* form = qobject_cast<Form*>(window);
    return form != nullptr && form->isGone() ? Form::active() : window;
}

} // namespace toolkit
