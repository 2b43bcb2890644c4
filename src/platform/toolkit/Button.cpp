#include "platform/toolkit/Button.h"

#include <QKeyEvent>

namespace toolkit {

Button::Button(const QString& name, const QString& caption, QWidget* parent) : QPushButton(caption, parent) {
    setObjectName(name);
    setAutoDefault(false);
}

void Button::setPicture(const QIcon& picture, int size) {
    setIcon(picture);
    setIconSize({size, size});
}

void Button::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QPushButton::keyPressEvent(event);
}

} // namespace toolkit
