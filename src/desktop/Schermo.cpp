#include "desktop/Schermo.h"

#ifdef QUIVERDECK_RANDR
#include "desktop/RandR.h"
#endif

#include <QGuiApplication>
#include <QScreen>

namespace {

bool readFromToolkit(host::DisplayMode& mode) {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr)
        return false;
    const QSizeF real = QSizeF(screen->size()) * screen->devicePixelRatio();
    mode.width = qRound(real.width());
    mode.height = qRound(real.height());
    mode.bits = screen->depth();
    mode.frequency = qRound(screen->refreshRate());
    return true;
}

#ifdef QUIVERDECK_RANDR
bool isX11() {
    return QGuiApplication::platformName() == QLatin1String("xcb");
}
#endif

} // namespace

bool Schermo::read(host::DisplayMode& mode) {
#ifdef QUIVERDECK_RANDR
    if (isX11() && RandR().read(mode))
        return true;
#endif
    return readFromToolkit(mode);
}

bool Schermo::set(const host::DisplayMode& mode) {
#ifdef QUIVERDECK_RANDR
    return isX11() && RandR().set(mode);
#else
    Q_UNUSED(mode)
    return false;
#endif
}
