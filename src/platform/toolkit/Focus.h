#pragma once

#include <QtCore/qnamespace.h>

#include <functional>

class QWidget;

namespace toolkit {

/// True if the focus moved between controls, false if a popup, a box or another window took it or gave it
/// back.
bool betweenControls(Qt::FocusReason reason);

/// From now on `act` runs each time the focus comes to `control` from another control, just ahead of the
/// control's own handling.
void onFocus(QWidget& control, std::function<void()> act);

} // namespace toolkit
