#include "platform/toolkit/CheckListBox.h"

#include "platform/runtime/Error.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace toolkit {

CheckListBox::CheckListBox(const QString& name, QWidget* parent) : QListWidget(parent) {
    setObjectName(name);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void CheckListBox::addItem(const QString& text) {
    auto* item = new QListWidgetItem(text, this);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(Qt::Unchecked);
}

QListWidgetItem& CheckListBox::at(int index) const {
    QListWidgetItem* found = item(index);
    if (found == nullptr)
        runtime::raise(runtime::SubscriptOutOfRange, {}, objectName());
    return *found;
}

bool CheckListBox::checked(int index) const {
    return at(index).checkState() == Qt::Checked;
}

void CheckListBox::setChecked(int index, bool on) {
    at(index).setCheckState(on ? Qt::Checked : Qt::Unchecked);
}

void CheckListBox::toggle(QListWidgetItem* item) {
    item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
    Q_EMIT itemClick(row(item));
}

void CheckListBox::mousePressEvent(QMouseEvent* event) {
    QListWidgetItem* item = event->button() == Qt::LeftButton ? itemAt(event->position().toPoint()) : nullptr;
    if (item != nullptr) {
        setCurrentItem(item);
        toggle(item);
    }
}

void CheckListBox::mouseReleaseEvent(QMouseEvent* /*event*/) {} // all was done at the press

void CheckListBox::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event); // the second of two quick clicks counts as one
}

void CheckListBox::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && currentItem() != nullptr) {
        toggle(currentItem());
        return;
    }
    QListWidget::keyPressEvent(event);
}

} // namespace toolkit
