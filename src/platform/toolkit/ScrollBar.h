#pragma once

#include "platform/host/Controls.h"

#include <QScrollBar>

namespace toolkit {

/// A scroll bar that tells its value (`changed`) when it is released or stepped, not while it is dragged, and
/// at once when the program sets another. Values outside the range are brought into it.
class ScrollBar : public QScrollBar, public host::ScrollValue {
    Q_OBJECT
public:
    ScrollBar(const QString& name, QWidget* parent, Qt::Orientation orientation = Qt::Vertical);

    int value() const override { return QScrollBar::value(); }
    void setValue(int value) override { QScrollBar::setValue(value); }
    int minimum() const override { return QScrollBar::minimum(); }
    int maximum() const override { return QScrollBar::maximum(); }
    void setMin(int minimum) { setMinimum(minimum); }
    void setMax(int maximum) { setMaximum(maximum); }
    void setSmallChange(int step) { setSingleStep(step); }
    void setLargeChange(int step) { setPageStep(step); }

    /// Reports while it is dragged, too (for a page that should follow the hand). Off at first.
    void setLive(bool live) { setTracking(live); }

Q_SIGNALS:
    void changed();

protected:
    void wheelEvent(QWheelEvent* event) override;
};

} // namespace toolkit
