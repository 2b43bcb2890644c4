// A record that includes a widget: it must not compile.
#include "cards/scheda.h"

#include <QWidget>

bool isShown(const QWidget& window) {
    return window.isVisible();
}
