// A record that includes a widget by its folder: it must not compile.
#include "cards/scheda.h"

#include <QtWidgets/QWidget>

bool isShown(const QWidget& window) {
    return window.isVisible();
}
