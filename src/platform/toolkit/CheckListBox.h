#pragma once

#include "platform/host/Controls.h"

#include <QListWidget>

namespace toolkit {

/// A list of items with ticks. A click anywhere on an item, or Space, turns its tick and is told by
/// `itemClick`; ticks set by program are not told.
class CheckListBox : public QListWidget, public host::CheckList {
    Q_OBJECT
public:
    CheckListBox(const QString& name, QWidget* parent);

    void addItem(const QString& text);
    int count() const override { return QListWidget::count(); }
    /// Raise runtime::SubscriptOutOfRange for an index that is not there.
    bool checked(int index) const override;
    void setChecked(int index, bool on) override;

Q_SIGNALS:
    void itemClick(int index);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QListWidgetItem& at(int index) const;
    void toggle(QListWidgetItem* item);
};

} // namespace toolkit
