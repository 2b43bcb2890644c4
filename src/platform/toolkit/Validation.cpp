#include "platform/toolkit/Validation.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTabBar>
#include <QToolButton>
#include <QWidget>

namespace toolkit {

Validation::Validation(QWidget* page) : QObject(page), page_(page) {
    qApp->installEventFilter(this);
}

void Validation::add(QWidget* field, std::function<bool()> check) {
    checks_.insert(field, std::move(check));
    connect(field, &QObject::destroyed, this, [this, field] { checks_.remove(field); });
}

QWidget* Validation::currentField() const {
    for (QWidget* widget = QApplication::focusWidget(); widget != nullptr && widget != page_;
         widget = widget->parentWidget()) {
        if (checks_.contains(widget)) {
            return widget;
        }
    }
    return nullptr;
}

bool Validation::leavesFor(QWidget* target, const QWidget* field) const {
    if (target == nullptr || !page_->isAncestorOf(target) || target->window() != page_->window() ||
        target == field || field->isAncestorOf(target)) {
        return false;
    }
    for (QWidget* widget = target; widget != nullptr && widget != page_; widget = widget->parentWidget()) {
        if (!widget->isEnabled()) {
            return false;
        }
        if (widget->focusPolicy() & Qt::ClickFocus) {
            return true;
        }
        if (qobject_cast<QTabBar*>(widget) != nullptr || qobject_cast<QScrollBar*>(widget) != nullptr) {
            return true;
        }
        if (const auto* button = qobject_cast<QAbstractButton*>(widget)) {
            return button->focusPolicy() != Qt::NoFocus;
        }
    }
    return false;
}

bool Validation::refuses(QWidget* field) {
    if (checking_) {
        return false;
    }
    const QScopedValueRollback<bool> guard(checking_, true);
    if (checks_.value(field)()) {
        return false;
    }
    field->setFocus(Qt::OtherFocusReason);
    return true;
}

bool Validation::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    const bool press = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
    if (!press && type != QEvent::MouseButtonRelease && type != QEvent::Wheel && type != QEvent::KeyPress &&
        type != QEvent::Shortcut) {
        return false;
    }
    auto* target = qobject_cast<QWidget*>(watched);
    if (target == nullptr) {
        return false;
    }
    if (type == QEvent::MouseButtonRelease) {
        return std::exchange(swallowRelease_, false) && page_->isAncestorOf(target);
    }
    QWidget* field = currentField();
    if (field == nullptr) {
        return false;
    }
    if (type == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool tab = key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab;
        return tab && (target == field || field->isAncestorOf(target)) && refuses(field);
    }
    if (type == QEvent::Wheel && qobject_cast<QScrollBar*>(target) == nullptr) {
        return false;
    }
    if (type == QEvent::Shortcut && (!page_->isAncestorOf(target) || target == field)) {
        return false;
    }
    if (type != QEvent::Shortcut && !leavesFor(target, field)) {
        return false;
    }
    if (!refuses(field)) {
        return false;
    }
    swallowRelease_ = press;
    return true;
}

} // namespace toolkit
