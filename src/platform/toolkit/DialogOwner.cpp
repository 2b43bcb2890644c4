#include "platform/toolkit/DialogOwner.h"

#include "platform/toolkit/Form.h"

#include <QApplication>
#include <QDialog>

namespace toolkit {

QWidget* dialogOwner() {
    QWidget* window = QApplication::activeWindow();
    if (qobject_cast<QDialog*>(window) != nullptr)
        return window;
    const auto* form = qobject_cast<Form*>(window);
    return form != nullptr && !form->isGone() ? window : Form::active();
}

} // namespace toolkit
