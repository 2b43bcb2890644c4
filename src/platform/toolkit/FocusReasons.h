#pragma once

#include <QtCore/qnamespace.h>

namespace toolkit {

/// True if the focus moved between controls, false if a popup, a box or another window took it or gave it
/// back.
inline bool betweenControls(Qt::FocusReason reason) {
    return reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason &&
           reason != Qt::MenuBarFocusReason;
}

} // namespace toolkit
