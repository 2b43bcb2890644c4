#include "platform/toolkit/Focus.h"

#include <QFocusEvent>
#include <QWidget>

#include <utility>

namespace toolkit {

namespace {

class Listener : public QObject {
public:
    Listener(QWidget& control, std::function<void()> act) : QObject(&control), act_(std::move(act)) {
        control.installEventFilter(this);
    }

    bool eventFilter(QObject* /*control*/, QEvent* event) override {
        if (event->type() == QEvent::FocusIn && betweenControls(static_cast<QFocusEvent*>(event)->reason()))
            act_();
        return false;
    }

private:
    std::function<void()> act_;
};

} // namespace

bool betweenControls(Qt::FocusReason reason) {
    return reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason &&
           reason != Qt::MenuBarFocusReason;
}

void onFocus(QWidget& control, std::function<void()> act) {
    new Listener(control, std::move(act)); // the control's from here on
}

} // namespace toolkit
