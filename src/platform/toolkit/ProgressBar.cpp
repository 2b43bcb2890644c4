#include "platform/toolkit/ProgressBar.h"

#include "platform/runtime/Error.h"

namespace toolkit {

ProgressBar::ProgressBar(const QString& name, QWidget* parent) : QProgressBar(parent) {
    setObjectName(name);
    setTextVisible(false);
    setRange(0, 100);
    QProgressBar::setValue(0);
}

void ProgressBar::setMin(int minimum) {
    if (minimum > maximum())
        runtime::raise(runtime::InvalidPropertyValue, {}, objectName());
    setMinimum(minimum);
}

void ProgressBar::setMax(int maximum) {
    if (maximum < minimum())
        runtime::raise(runtime::InvalidPropertyValue, {}, objectName());
    setMaximum(maximum);
}

void ProgressBar::setValue(int value) {
    if (value < minimum() || value > maximum())
        runtime::raise(runtime::InvalidPropertyValue, {}, objectName());
    QProgressBar::setValue(value);
}

} // namespace toolkit
