#include "platform/toolkit/Validation.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QList>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTabBar>
#include <QWidget>
#include <algorithm>
#include <utility>

namespace toolkit {

namespace {

QList<Validation*>& instances() {
    static QList<Validation*> all;
    return all;
}

} // namespace

Validation::Validation(QWidget* page) : QObject(page), page_(page) {
    instances().append(this);
}

Validation::~Validation() {
    instances().removeAll(this);
}

void Validation::add(QWidget* field, const std::function<bool()>& check) {
    checks_.insert(field, check);
    connect(field, &QObject::destroyed, this, [this, field] { checks_.remove(field); });
}

QWidget* Validation::currentField() const {
    for (QWidget* widget = QApplication::focusWidget(); widget != nullptr && widget != page_;
         widget = widget->parentWidget())
        if (checks_.contains(widget))
            return widget;
    return nullptr;
}

bool Validation::leavesFor(QWidget* target, const QWidget* field) const {
    if (target == nullptr || !page_->isAncestorOf(target) || target->window() != page_->window() ||
        target == field || field->isAncestorOf(target))
        return false;
    for (QWidget* widget = target; widget != nullptr && widget != page_; widget = widget->parentWidget()) {
        if (!widget->isEnabled())
            return false;
        if (widget->focusPolicy() & Qt::ClickFocus)
            return true;
        if (qobject_cast<QTabBar*>(widget) != nullptr || qobject_cast<QScrollBar*>(widget) != nullptr)
            return true;
        if (const auto* button = qobject_cast<QAbstractButton*>(widget))
            return button->focusPolicy() != Qt::NoFocus;
    }
    return false;
}

bool Validation::refuses(QWidget* field) {
    if (checking_)
        return false;
    const QScopedValueRollback<bool> guard(checking_, true);
    if (checks_.value(field)())
        return false;
    field->setFocus(Qt::OtherFocusReason);
    auto* text = qobject_cast<QLineEdit*>(field);
    if (text == nullptr)
        text = field->findChild<QLineEdit*>();
    if (text != nullptr)
        text->selectAll(); // what is typed next corrects the text instead of lengthening it
    return true;
}

bool Validation::stops(QObject* receiver, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::Shortcut:
        break;
    default:
        return false;
    }
    auto* target = qobject_cast<QWidget*>(receiver);
    if (target == nullptr)
        return false;
    const QList<Validation*> all = instances();
    return std::any_of(all.begin(), all.end(), [target, event](Validation* validation) {
        return instances().contains(validation) && validation->stopsHere(target, event);
    });
}

bool Validation::stopsHere(QWidget* target, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::MouseButtonRelease)
        return std::exchange(swallowRelease_, false) && page_->isAncestorOf(target);
    const bool press = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
    if (press)
        swallowRelease_ = false;
    QWidget* field = currentField();
    if (field == nullptr)
        return false;
    if (type == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool tab = key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab;
        return tab && (target == field || field->isAncestorOf(target)) && refuses(field);
    }
    if (type == QEvent::Shortcut)
        return page_->isAncestorOf(target) && target != field && refuses(field);
    if (type == QEvent::Wheel && qobject_cast<QScrollBar*>(target) == nullptr)
        return false;
    if (!leavesFor(target, field) || !refuses(field))
        return false;
    swallowRelease_ = press;
    return true;
}

} // namespace toolkit
