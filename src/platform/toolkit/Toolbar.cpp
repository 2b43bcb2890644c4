#include "platform/toolkit/Toolbar.h"

#include "platform/runtime/Error.h"
#include "platform/toolkit/DatePicker.h"
#include "platform/toolkit/ImageList.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QToolButton>

namespace toolkit {

Toolbar::Toolbar(const QString& name, QWidget* parent, Qt::ToolButtonStyle style)
    : QFrame(parent), row_(new QHBoxLayout(this)), style_(style) {
    setObjectName(name);
    row_->setContentsMargins(3, 2, 3, 3);
    row_->setSpacing(1);
    row_->addStretch(1);
}

QToolButton* Toolbar::addButton(const QString& key, const QString& caption, const QString& tip) {
    auto* button = new QToolButton(this);
    button->setObjectName(key);
    button->setText(caption);
    button->setToolTip(tip);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setToolButtonStyle(style_);
    row_->insertWidget(row_->count() - 1, button);
    entries_.push_back({key, button});
    connect(button, &QToolButton::clicked, this, [this, key] {
        if (auto* date = qobject_cast<DatePicker*>(QApplication::focusWidget()))
            date->commit(); // which keeps the focus, and may be half typed
        Q_EMIT buttonClick(key);
    });
    return button;
}

void Toolbar::addSeparator(const QString& key) {
    auto* line = new QFrame(this);
    line->setObjectName(key);
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Plain);
    line->setForegroundRole(QPalette::Mid);
    row_->insertSpacing(row_->count() - 1, 3);
    row_->insertWidget(row_->count() - 1, line);
    row_->insertSpacing(row_->count() - 1, 3);
    entries_.push_back({key, nullptr});
}

void Toolbar::setImageList(const ImageList* normal, const ImageList* hot) {
    normal_ = normal;
    hot_ = hot;
    for (const Entry& entry : entries_)
        if (entry.button != nullptr && normal != nullptr)
            entry.button->setIconSize(normal->imageSize());
}

void Toolbar::setImage(int position, int image) {
    if (normal_ == nullptr)
        runtime::raise(runtime::ObjectNotSet, {}, objectName());
    QIcon icon = normal_->icon(image);
    if (hot_ != nullptr)
        icon.addPixmap(hot_->icon(image).pixmap(hot_->imageSize()), QIcon::Active);
    button(position).setIcon(icon);
    button(position).setIconSize(normal_->imageSize());
}

const Toolbar::Entry& Toolbar::entry(int position) const {
    if (position < 1 || position > count())
        runtime::raise(runtime::ElementNotFound, {}, objectName());
    return entries_[static_cast<std::size_t>(position - 1)];
}

bool Toolbar::isSeparator(int position) const {
    return entry(position).button == nullptr;
}

QString Toolbar::key(int position) const {
    return entry(position).key;
}

QToolButton& Toolbar::button(int position) const {
    QToolButton* button = entry(position).button;
    if (button == nullptr)
        runtime::raise(runtime::ElementNotFound, {}, objectName());
    return *button;
}

QToolButton& Toolbar::button(const QString& key) const {
    for (const Entry& entry : entries_)
        if (entry.button != nullptr && entry.key == key)
            return *entry.button;
    runtime::raise(runtime::ElementNotFound, {}, key);
}

void Toolbar::setButtonEnabled(const QString& key, bool enabled) {
    button(key).setEnabled(enabled);
}

void Toolbar::setButtonEnabled(int position, bool enabled) {
    button(position).setEnabled(enabled);
}

void assegnaImmaginiToolbar(Toolbar& toolbar) {
    int image = 0;
    for (int position = 1; position <= toolbar.count(); ++position)
        if (!toolbar.isSeparator(position))
            toolbar.setImage(position, ++image);
}

} // namespace toolkit
