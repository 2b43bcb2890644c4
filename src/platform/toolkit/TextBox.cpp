#include "platform/toolkit/TextBox.h"

#include "platform/toolkit/ApostropheGuard.h"
#include "platform/toolkit/Focus.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace toolkit {

TextBox::TextBox(const QString& name, QWidget* parent) : QLineEdit(parent) {
    setObjectName(name);
    setMaxLength(longest);
    setTextMargins(-1, 0, -2, 0); // the editor's own are too wide for the narrow fields
    connect(this, &QLineEdit::textChanged, this, &TextBox::changed);
    connect(this, &QLineEdit::returnPressed, this, &TextBox::enterPressed);
}

void TextBox::setText(const QString& text) {
    if (guard_ != nullptr)
        guard_->pause(true);
    QLineEdit::setText(text);
    if (guard_ != nullptr)
        guard_->pause(false);
}

void TextBox::guardApostrophes() {
    if (guard_ == nullptr) {
        guard_ = new ApostropheGuard(this);
        setValidator(guard_);
    }
}

void TextBox::keyPressEvent(QKeyEvent* event) {
    const QString text = event->text();
    const int key = event->key();
    if (filter_ && !text.isEmpty() && key != Qt::Key_Delete && key != Qt::Key_Tab && key != Qt::Key_Backtab &&
        key != Qt::Key_Escape && !filter_(text.at(0))) {
        event->accept();
        return;
    }
    if (guard_ != nullptr && text == QLatin1String("'") && !isReadOnly()) {
        insert(ApostropheGuard::guarded(text)); // an edit of its own, so that it can be undone
        event->accept();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void TextBox::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::MouseFocusReason)
        focusPress_ = true; // the press comes next and would undo a selection made now
    else if (betweenControls(event->reason()))
        Q_EMIT gotFocus();
}

void TextBox::mousePressEvent(QMouseEvent* event) {
    QLineEdit::mousePressEvent(event);
    if (focusPress_)
        Q_EMIT gotFocus();
}

void TextBox::mouseMoveEvent(QMouseEvent* event) {
    if (!focusPress_) // a trembling hand does not select
        QLineEdit::mouseMoveEvent(event);
}

void TextBox::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    focusPress_ = false;
}

} // namespace toolkit
